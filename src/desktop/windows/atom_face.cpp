#include "desktop/windows/atom_face.h"

#include "desktop/windows/look.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>

namespace quendal {

namespace {

// All measures on a face of radius 1 around (0, 0); y points down.
constexpr double kHead = 0.56;
constexpr double kOrbitLong = 0.95;
constexpr double kOrbitShort = 0.34;
constexpr double kOutline = 0.035;
constexpr std::array kTilts = {-20.0, 40.0, 100.0}; // of the orbits, degrees
const QColor kOutlineColour(20, 84, 88);
const QColor kOrbitColour(92, 146, 150);
const QColor kElectron(242, 168, 60);

struct Feature {
    double mouthCurve; // sag of the mouth's middle, above 0 a smile
    double mouthWidth;
    double browTilt; // degrees, above 0 the inner ends are raised
    double browLift;
    double eyeOpen;
    QColor skinLight;
    QColor skinDark;
};

Feature featureOf(int mood) {
    const QColor light(170, 226, 222);
    const QColor dark(70, 170, 172);
    switch (mood) {
    case 2:
        return {0.20, 0.26, 4, 0.05, 1.0, QColor(186, 236, 214), QColor(72, 180, 150)};
    case 3:
        return {-0.13, 0.19, 20, 0.02, 0.85, QColor(186, 212, 226), QColor(98, 152, 182)};
    case 5:
        return {-0.05, 0.17, 16, 0.06, 1.1, QColor(196, 220, 220), QColor(104, 166, 168)};
    case 6:
        return {0.0, 0.13, -6, 0.04, 0.8, light, dark};
    default:
        return {0.11, 0.22, 2, 0.02, 1.0, light, dark};
    }
}

enum class Half { Behind, Before };

// The half with y above 0 in the orbit's own plane lies before the face, which shows through it.
void paintOrbit(QPainter& painter, Half half) {
    const QRectF box(-kOrbitLong, -kOrbitShort, 2 * kOrbitLong, 2 * kOrbitShort);
    QPainterPath head;
    head.addEllipse(QPointF(0, 0), kHead, kHead);
    QPainterPath around;
    around.addRect(-1.1, -1.1, 2.2, 2.2);
    const int start = half == Half::Before ? 180 * 16 : 0;
    QColor colour = kOrbitColour;
    painter.setBrush(Qt::NoBrush);
    painter.save();
    painter.setClipPath(around.subtracted(head));
    painter.setPen(QPen(colour, kOutline * 0.8));
    painter.drawArc(box, start, 180 * 16);
    if (half == Half::Before) {
        colour.setAlpha(90);
        painter.setClipPath(head);
        painter.setPen(QPen(colour, kOutline * 0.8));
        painter.drawArc(box, start, 180 * 16);
    }
    painter.restore();
}

void paintElectron(QPainter& painter, double phase, Half half) {
    const double angle = 2 * std::numbers::pi * phase;
    const bool before = std::sin(angle) > 0;
    if (before != (half == Half::Before)) {
        return;
    }
    const QPointF at(kOrbitLong * std::cos(angle), kOrbitShort * std::sin(angle));
    QRadialGradient shine(at - QPointF(0.025, 0.025), 0.11);
    shine.setColorAt(0, QColor(255, 226, 166));
    shine.setColorAt(1, kElectron);
    painter.setBrush(shine);
    painter.setPen(QPen(QColor(150, 92, 10), kOutline * 0.7));
    painter.drawEllipse(at, 0.085, 0.085);
}

void paintOrbits(QPainter& painter, Half half) {
    for (const double tilt : kTilts) {
        painter.save();
        painter.rotate(tilt);
        paintOrbit(painter, half);
        painter.restore();
    }
}

void paintElectrons(QPainter& painter, double turn, Half half) {
    constexpr double kStart = 0.07;
    for (std::size_t i = 0; i < kTilts.size(); ++i) {
        const double phase = turn + kStart + static_cast<double>(i) / kTilts.size();
        painter.save();
        painter.rotate(kTilts[i]);
        paintElectron(painter, phase - std::floor(phase), half);
        painter.restore();
    }
}

void paintHead(QPainter& painter, const Feature& feature) {
    QRadialGradient skin(QPointF(-0.2, -0.24), kHead * 1.6);
    skin.setColorAt(0, feature.skinLight.lighter(108));
    skin.setColorAt(0.45, feature.skinLight);
    skin.setColorAt(1, feature.skinDark);
    painter.setBrush(skin);
    painter.setPen(QPen(kOutlineColour, kOutline));
    painter.drawEllipse(QPointF(0, 0), kHead, kHead);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 110));
    painter.save();
    painter.translate(-0.25, -0.36);
    painter.rotate(-35);
    painter.drawEllipse(QPointF(0, 0), 0.13, 0.06);
    painter.restore();
}

void paintEye(QPainter& painter, double x, const Feature& feature, const AtomLook& look) {
    const double open = look.blink ? 0.08 : feature.eyeOpen;
    const QPointF centre(x, -0.12);
    const double wide = 0.135;
    const double high = 0.165 * open;
    painter.setPen(QPen(kOutlineColour, kOutline * 0.8));
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, wide, high);
    if (look.blink) {
        return;
    }
    QPainterPath white;
    white.addEllipse(centre, wide, high);
    painter.save();
    painter.setClipPath(white);
    const QPointF pupil = centre + QPointF(look.gaze.x() * 0.062, look.gaze.y() * 0.072 * open);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::kInk);
    painter.drawEllipse(pupil, 0.07, 0.07);
    painter.setBrush(Qt::white);
    painter.drawEllipse(pupil + QPointF(-0.025, -0.028), 0.022, 0.022);
    painter.restore();
}

// `side` is -1 for the left brow and 1 for the right one.
void paintBrow(QPainter& painter, double side, const Feature& feature, int mood) {
    painter.save();
    const double lift = mood == 6 && side > 0 ? 0.09 : feature.browLift;
    painter.translate(side * 0.175, -0.35 - lift);
    painter.rotate(side * feature.browTilt);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kOutlineColour, kOutline * 1.3, Qt::SolidLine, Qt::RoundCap));
    QPainterPath brow(QPointF(-0.09, 0.015));
    brow.quadTo(QPointF(0, -0.035), QPointF(0.09, 0.015));
    painter.drawPath(brow);
    painter.restore();
}

// `lip` is the line of the closed mouth; the other lip closes it to a shape.
void paintOpenMouth(QPainter& painter, QPainterPath lip, const Feature& feature, double y) {
    const double wide = feature.mouthWidth;
    const bool smiles = feature.mouthCurve > 0.05;
    lip.quadTo(QPointF(0, y + (smiles ? 0.05 : 0.22)), QPointF(-wide, y));
    lip.closeSubpath();
    painter.setBrush(QColor(122, 34, 44));
    painter.drawPath(lip);
    painter.save();
    painter.setClipPath(lip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(224, 108, 108));
    const QRectF room = lip.boundingRect();
    painter.drawEllipse(QPointF(0, room.bottom()), wide * 0.62, room.height() * 0.42);
    if (smiles) {
        painter.setBrush(Qt::white);
        painter.drawRect(QRectF(-wide * 0.72, room.top(), wide * 1.44, 0.055));
    }
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(lip);
}

void paintMouth(QPainter& painter, const Feature& feature, const AtomLook& look) {
    const double y = feature.mouthCurve < 0 ? 0.30 : 0.20;
    const double wide = feature.mouthWidth;
    painter.setPen(
        QPen(kOutlineColour, kOutline * 1.15, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath mouth(QPointF(-wide, y));
    if (look.mood == 6) {
        mouth = QPainterPath(QPointF(-0.05, y + 0.05));
        mouth.quadTo(QPointF(0.05, y), QPointF(0.15, y + 0.03));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(mouth);
        return;
    }
    mouth.quadTo(QPointF(0, y + 2 * feature.mouthCurve), QPointF(wide, y));
    if (look.mouthOpen || look.mood == 2) {
        paintOpenMouth(painter, mouth, feature, y);
        return;
    }
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mouth);
}

void paintCheeks(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(240, 130, 120, 80));
    painter.drawEllipse(QPointF(-0.35, 0.12), 0.085, 0.055);
    painter.drawEllipse(QPointF(0.35, 0.12), 0.085, 0.055);
}

// A drop of sweat for the worried, a tear for the sad.
void paintDrop(QPainter& painter, QPointF at) {
    QPainterPath drop(at + QPointF(0, -0.10));
    drop.cubicTo(at + QPointF(0.075, 0.0), at + QPointF(0.065, 0.075), at + QPointF(0, 0.075));
    drop.cubicTo(at + QPointF(-0.065, 0.075), at + QPointF(-0.075, 0.0), at + QPointF(0, -0.10));
    painter.setPen(QPen(QColor(52, 118, 170), kOutline * 0.6));
    painter.setBrush(QColor(176, 220, 246));
    painter.drawPath(drop);
}

void paintFace(QPainter& painter, const AtomLook& look) {
    const Feature feature = featureOf(look.mood);
    paintHead(painter, feature);
    if (look.mood == 1 || look.mood == 2) {
        paintCheeks(painter);
    }
    for (const double side : {-1.0, 1.0}) {
        paintEye(painter, side * 0.175, feature, look);
        paintBrow(painter, side, feature, look.mood);
    }
    paintMouth(painter, feature, look);
    if (look.mood == 5) {
        paintDrop(painter, {0.44, -0.24});
    } else if (look.mood == 3) {
        paintDrop(painter, {0.26, 0.14});
    }
}

// The face looks the same while its electrons turn.
bool sameFace(const AtomLook& one, const AtomLook& other) {
    return one.mood == other.mood && one.gaze == other.gaze && one.mouthOpen == other.mouthOpen &&
           one.blink == other.blink;
}

void prepare(QPainter& painter, const QRectF& square) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.center());
    painter.scale(square.width() / 2, square.height() / 2);
}

// `side` in pixels of the widget.
QImage layer(double side, double ratio, const std::function<void(QPainter&)>& paint) {
    const int pixels = static_cast<int>(std::ceil(side * ratio));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    prepare(painter, QRectF(0, 0, side, side));
    paint(painter);
    return image;
}

} // namespace

void AtomFace::paint(QPainter& painter, const QRectF& box, const AtomLook& look) {
    const double side = std::min(box.width(), box.height());
    const double ratio = painter.device()->devicePixelRatioF();
    if (side < 1) {
        return;
    }
    if (side != side_ || ratio != ratio_) {
        side_ = side;
        ratio_ = ratio;
        behind_ = layer(side, ratio, [](QPainter& on) { paintOrbits(on, Half::Behind); });
        before_ = layer(side, ratio, [](QPainter& on) { paintOrbits(on, Half::Before); });
        face_ = QImage();
    }
    if (face_.isNull() || !sameFace(look, look_)) {
        face_ = layer(side, ratio, [&look](QPainter& on) { paintFace(on, look); });
        look_ = look;
    }
    QRectF square(0, 0, side, side);
    square.moveCenter(box.center());
    const auto electrons = [&](Half half) {
        painter.save();
        prepare(painter, square);
        paintElectrons(painter, look.turn, half);
        painter.restore();
    };
    painter.drawImage(square.topLeft(), behind_);
    electrons(Half::Behind);
    painter.drawImage(square.topLeft(), face_);
    painter.drawImage(square.topLeft(), before_);
    electrons(Half::Before);
}

void paintBubble(QPainter& painter, const QRectF& box, double scale) {
    const double tail = kBubbleTail * scale;
    const double corner = std::min(10 * scale, box.height() / 3);
    const QRectF body = box.adjusted(tail + 1, 1, -1, -1);
    const double mouth = body.top() + body.height() * 0.6;
    QPainterPath shape(QPointF(body.left(), mouth - tail * 0.6));
    shape.lineTo(body.left(), body.top() + corner);
    shape.arcTo(QRectF(body.left(), body.top(), 2 * corner, 2 * corner), 180, -90);
    shape.lineTo(body.right() - corner, body.top());
    shape.arcTo(QRectF(body.right() - 2 * corner, body.top(), 2 * corner, 2 * corner), 90, -90);
    shape.lineTo(body.right(), body.bottom() - corner);
    shape.arcTo(
        QRectF(body.right() - 2 * corner, body.bottom() - 2 * corner, 2 * corner, 2 * corner), 0,
        -90);
    shape.lineTo(body.left() + corner, body.bottom());
    shape.arcTo(QRectF(body.left(), body.bottom() - 2 * corner, 2 * corner, 2 * corner), 270, -90);
    shape.lineTo(body.left(), mouth + tail * 0.3);
    shape.lineTo(box.left() + 1, mouth + tail * 0.6);
    shape.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::kStrongBorder, std::max(1.0, scale), Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.setBrush(look::kPanel);
    painter.drawPath(shape);
}

} // namespace quendal
