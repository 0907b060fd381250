// Picture boxes and the mascot.
#include "desktop/pictures/picture_surface.h"
#include "desktop/windows/atom_face.h"
#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/painted_peer.h"
#include "desktop/windows/peers.h"
#include "host/pictures.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include <cmath>
#include <numbers>

namespace quendal {

namespace {

class PicturePeer final : public PaintedPeer {
  public:
    PicturePeer(PictureBox& box, FormWindow& window) : PaintedPeer(box, window), box_(box) {
        letPressesThrough();
    }

    void paint(QPainter& painter, const QRectF& box) override {
        PictureSurface* drawn = surface();
        if (drawn == nullptr) {
            return;
        }
        const double ratio = widget()->devicePixelRatioF();
        const QImage& image = drawn->image((box.size() * ratio).toSize(), scale() * ratio);
        painter.drawImage(box, image, QRectF(image.rect()));
    }

  protected:
    void show() override {
        letPressesThrough();
        widget()->setAttribute(Qt::WA_OpaquePaintEvent, !box_.overlay());
        if (PictureSurface* drawn = surface()) {
            drawn->finish(); // what was drawn before there was a window
            drawn->invalidate();
        }
        PaintedPeer::show();
    }

    void showAspect(Aspect aspect) override {
        if (aspect == Aspect::Drawing) {
            showDrawing();
        } else if (aspect == Aspect::Picture || aspect == Aspect::Colours) {
            show();
        }
    }

    QPointF unitsAt(QPointF pixel) const override {
        const Size units = surfaceScale(box_);
        return {pixel.x() * units.width / std::max(1, widget()->width()),
                pixel.y() * units.height / std::max(1, widget()->height())};
    }

  private:
    void letPressesThrough() {
        widget()->setAttribute(Qt::WA_TransparentForMouseEvents, box_.overlay() && !wantsPresses());
    }

    PictureSurface* surface() const { return dynamic_cast<PictureSurface*>(&box_.surface()); }

    // Only the part that looks different is painted again; a frame like the last one costs nothing.
    void showDrawing() {
        PictureSurface* drawn = surface();
        const QRectF changed = drawn == nullptr ? QRectF() : drawn->finish();
        if (!changed.isEmpty()) {
            const double s = scale();
            widget()->update(QRectF(changed.topLeft() * s, changed.size() * s)
                                 .toAlignedRect()
                                 .adjusted(-2, -2, 2, 2));
        }
    }

    PictureBox& box_;
};

class DrAtomPeer final : public PaintedPeer {
  public:
    DrAtomPeer(ctl_DrAtom& atom, FormWindow& window) : PaintedPeer(atom, window), atom_(atom) {
        clock_.start();
        // Doesn't touch the logic, so the form's own pump has no part in it.
        QObject::connect(&timer_, &QTimer::timeout, widget(), [this] { beat(); });
        timer_.start(kBeat);
    }

    void paint(QPainter& painter, const QRectF& box) override {
        QRectF face = box;
        if (atom_.buble() && !atom_.text().empty()) {
            const double cut = std::min(box.width() * 0.45, box.height());
            face = QRectF(box.left(), box.bottom() - cut, cut, cut);
            paintSpeech(painter, box.adjusted(cut * 0.92, 0, 0, -cut * 0.2));
        }
        face_.paint(painter, face,
                    {.mood = atom_.Mood(),
                     .gaze = gaze_,
                     .mouthOpen = atom_.mouthopen(),
                     .blink = blinking(),
                     .turn = turn_});
    }

  private:
    static constexpr int kBeat = 50; // ms
    static constexpr double kBlinkEvery = 4.2;
    static constexpr double kBlinkFor = 0.13; // s

    double seconds() const { return static_cast<double>(clock_.elapsed()) / 1000.0; }
    bool blinking() const { return std::fmod(seconds(), kBlinkEvery) > kBlinkEvery - kBlinkFor; }

    void beat() {
        if (control() == nullptr) {
            timer_.stop();
            return;
        }
        if (!widget()->isVisible()) {
            return;
        }
        const double before = turn_;
        turn_ = std::fmod(turn_ + atom_.orbspped() * kBeat / 1000.0, 1.0);
        const QPointF wanted = wantedGaze();
        const QPointF step = (wanted - gaze_) * 0.35;
        const bool blinks = blinking();
        if (turn_ != before || std::hypot(step.x(), step.y()) > 0.004 || blinks != blinked_) {
            gaze_ += step;
            blinked_ = blinks;
            widget()->update();
        }
    }

    QPointF wantedGaze() const {
        if (!atom_.eyemove()) {
            const double angle = atom_.eyedirection() * std::numbers::pi / 180;
            return {std::cos(angle), -std::sin(angle)};
        }
        const QPointF to =
            widget()->mapFromGlobal(QPointF(QCursor::pos())) - QRectF(widget()->rect()).center();
        const double length = std::hypot(to.x(), to.y());
        // Near the face the eyes turn less.
        const double reach = std::max(length, static_cast<double>(widget()->height()));
        return to / std::max(1.0, reach);
    }

    void paintSpeech(QPainter& painter, const QRectF& box) {
        paintBubble(painter, box, scale());
        const double gap = 9 * scale();
        painter.setPen(look::kInk);
        speech_.paint(painter, box.adjusted(gap + kBubbleTail * scale(), gap, -gap, -gap), text(),
                      atom_.font(), scale(), Qt::AlignCenter, Wrap::Words);
    }

    ctl_DrAtom& atom_;
    QTimer timer_;
    QElapsedTimer clock_;
    FittedText speech_;
    AtomFace face_;
    QPointF gaze_{0, 0};
    double turn_ = 0;
    bool blinked_ = false;
};

} // namespace

PeerPtr makeDrAtomPeer(ctl_DrAtom& atom, FormWindow& window) {
    return std::make_unique<DrAtomPeer>(atom, window);
}
PeerPtr makePicturePeer(PictureBox& picture, FormWindow& window) {
    return std::make_unique<PicturePeer>(picture, window);
}

} // namespace quendal
