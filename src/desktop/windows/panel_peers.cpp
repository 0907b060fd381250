// Frames, panels, headings and lines.
#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/icon_library.h"
#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/painted_peer.h"
#include "desktop/windows/peers.h"
#include "host/panels.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kGap = 8;         // design px between icon, text and edge
constexpr double kFrameTitle = 15; // size of a frame's title
const QColor kHeadWash(238, 245, 245);

double thin(double scale) {
    return std::max(1.0, std::floor(scale));
}

// Draws the icon upright in the middle of `box` at its left edge and gives the room right of it.
QRectF paintIcon(QPainter& painter, const QRectF& box, IconLibrary& icons, const std::string& path,
                 double scale, QIcon::Mode mode = QIcon::Normal) {
    const QPixmap icon = icons.pixmap(path, scale, painter.device()->devicePixelRatioF(), mode);
    if (icon.isNull()) {
        return box;
    }
    const QSizeF size = icon.deviceIndependentSize();
    painter.drawPixmap(QPointF(box.left(), std::round(box.center().y() - size.height() / 2)), icon);
    return box.adjusted(size.width() + kGap * scale, 0, 0, 0);
}

class FramePeer final : public PaintedPeer {
  public:
    FramePeer(ctl_Frame& frame, FormWindow& window) : PaintedPeer(frame, window), frame_(frame) {}

    void paint(QPainter& painter, const QRectF& box) override {
        if (frame_.plain()) {
            return;
        }
        const double s = scale();
        const double corner = look::kCorner * s;
        look::drawBox(painter, box, corner, look::kPanel, look::kBorder, thin(s));
        if (frame_.text().empty() && frame_.pictureIcon().empty()) {
            return;
        }
        const QRectF head(box.left(), box.top(), box.width(), look::kFrameHead * s);
        paintHead(painter, box, head, corner);
        const QRectF room = paintIcon(painter, head.adjusted(kGap * 1.25 * s, 0, -kGap * s, 0),
                                      icons(), frame_.pictureIcon(), s);
        painter.setPen(frame_.enabled() ? look::textOn(frame_.textColor(), kHeadWash)
                                        : look::kCalmInk);
        FontSpec spec = frame_.font();
        if (spec == FontSpec{}) {
            spec.size = kFrameTitle;
        }
        spec.bold = true;
        title_.paint(painter, room, text(), spec, s, across() | Qt::AlignVCenter, Wrap::None);
    }

  private:
    void paintHead(QPainter& painter, const QRectF& box, const QRectF& head, double corner) {
        const double line = thin(scale());
        QPainterPath inside;
        inside.addRoundedRect(box.adjusted(line, line, -line, -line), corner - line, corner - line);
        painter.save();
        painter.setClipPath(inside);
        painter.fillRect(head, kHeadWash);
        painter.fillRect(QRectF(head.left(), std::round(head.bottom()) - line, head.width(), line),
                         look::kBorder);
        painter.restore();
    }

    ctl_Frame& frame_;
    FittedText title_;
};

class PanelPeer final : public PaintedPeer {
  public:
    PanelPeer(ctl_Pannel& panel, FormWindow& window) : PaintedPeer(panel, window), panel_(panel) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const double s = scale();
        const QColor ground = look::toQColor(panel_.backcolor());
        look::drawBox(painter, box, look::kCorner * s, ground, look::toQColor(panel_.bordercolor()),
                      thin(s));
        const double gap = kGap * s;
        QRectF room = box.adjusted(gap, gap / 2, -gap, -gap / 2);
        room = paintIcon(painter, room, icons(), panel_.pictureIcon(), s);
        painter.setPen(panel_.enabled() ? look::textOn(panel_.textColor(), ground)
                                        : look::readable(look::kCalmInk, ground));
        QString shown = text();
        shown.replace(QStringLiteral("<br>"), QStringLiteral("\n"), Qt::CaseInsensitive);
        fitted_.paint(painter, room, shown, panel_.font(), s, across() | Qt::AlignVCenter,
                      Wrap::Words);
    }

  private:
    ctl_Pannel& panel_;
    FittedText fitted_;
};

class TitlePeer final : public PaintedPeer {
  public:
    TitlePeer(ctl_Title& title, FormWindow& window) : PaintedPeer(title, window), title_(title) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const double s = scale();
        painter.fillRect(box, look::kPanel);
        painter.fillRect(QRectF(0, box.height() - thin(s), box.width(), thin(s)), look::kBorder);
        QRectF room = box.adjusted(2 * kGap * s, 6 * s, -2 * kGap * s, -6 * s);
        room = paintIcon(painter, room, icons(), title_.pictureIcon(), s);
        const bool both = !title_.title().empty() && !title_.text().empty();
        const double cut = both ? room.height() * 0.5 : room.height();
        painter.setPen(look::kAccentInk);
        heading_.paint(painter, {room.left(), room.top(), room.width(), cut},
                       shownText(title_.title().empty() ? title_.text() : title_.title()),
                       {.size = look::kHeadingSize + 2, .bold = true}, s,
                       Qt::AlignLeft | Qt::AlignVCenter, Wrap::None);
        if (both) {
            painter.setPen(look::kInk);
            line_.paint(painter, {room.left(), room.top() + cut, room.width(), room.height() - cut},
                        text(), title_.font(), s, Qt::AlignLeft | Qt::AlignVCenter, Wrap::Words);
        }
    }

  private:
    ctl_Title& title_;
    FittedText heading_;
    FittedText line_;
};

class HeaderPeer final : public PaintedPeer {
  public:
    HeaderPeer(ctl_Header& header, FormWindow& window)
        : PaintedPeer(header, window), header_(header) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const auto* picture = dynamic_cast<const DesktopPicture*>(header_.picture().get());
        if (picture == nullptr) {
            painter.fillRect(box, look::kAccentWash);
            return;
        }
        prepare(*picture, box);
        painter.drawImage(QPointF(0, 0), prepared_);
    }

  protected:
    void show() override {
        prepared_ = QImage();
        PaintedPeer::show();
    }

  private:
    // As wide as the header; what is then too high is cut off above and below alike.
    void prepare(const DesktopPicture& picture, const QRectF& box) {
        const double ratio = widget()->devicePixelRatioF();
        const QSize size = (box.size() * ratio).toSize();
        if (prepared_.size() == size) {
            return;
        }
        const QSize natural(std::max(1, picture.width()), std::max(1, picture.height()));
        const QSize covering = natural.scaled(size, Qt::KeepAspectRatioByExpanding);
        prepared_ = picture.inSize(covering).copy((covering.width() - size.width()) / 2,
                                                  (covering.height() - size.height()) / 2,
                                                  size.width(), size.height());
        prepared_.setDevicePixelRatio(ratio);
    }

    ctl_Header& header_;
    QImage prepared_;
};

class StatusBarPeer final : public PaintedPeer {
  public:
    StatusBarPeer(ctl_StatusBar& bar, FormWindow& window) : PaintedPeer(bar, window) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const double s = scale();
        painter.fillRect(box, kHeadWash);
        painter.fillRect(QRectF(0, 0, box.width(), thin(s)), look::kBorder);
        painter.setPen(look::kCalmInk);
        fitted_.paint(painter, box.adjusted(kGap * 1.5 * s, thin(s), -kGap * 1.5 * s, 0), text(),
                      control()->font(), s, across() | Qt::AlignVCenter, Wrap::None);
    }

  private:
    FittedText fitted_;
};

class RulePeer final : public PaintedPeer {
  public:
    RulePeer(Control& rule, FormWindow& window) : PaintedPeer(rule, window) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const double line = thin(scale());
        const QColor colour = look::kBorder;
        if (box.width() >= box.height()) {
            const double top = std::floor((box.height() - line) / 2);
            painter.fillRect(QRectF(0, std::max(0.0, top), box.width(), line), colour);
        } else {
            const double left = std::floor((box.width() - line) / 2);
            painter.fillRect(QRectF(std::max(0.0, left), 0, line, box.height()), colour);
        }
    }
};

class LinePeer final : public PaintedPeer {
  public:
    LinePeer(Line& line, FormWindow& window) : PaintedPeer(line, window), line_(line) {}

    void paint(QPainter& painter, const QRectF& /*box*/) override {
        const double s = scale();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(look::toQColor(line_.textColor()), line_.thickness() * s, Qt::SolidLine,
                            Qt::RoundCap));
        painter.drawLine(onWidget(line_.from()) * s, onWidget(line_.to()) * s);
    }

  private:
    QPointF onWidget(Point point) const {
        return {point.x - line_.place().left, point.y - line_.place().top};
    }

    Line& line_;
};

} // namespace

PeerPtr makeLinePeer(Line& line, FormWindow& window) {
    return std::make_unique<LinePeer>(line, window);
}
PeerPtr makePanelPeer(ctl_Pannel& panel, FormWindow& window) {
    return std::make_unique<PanelPeer>(panel, window);
}
PeerPtr makeFramePeer(ctl_Frame& frame, FormWindow& window) {
    return std::make_unique<FramePeer>(frame, window);
}
PeerPtr makeTitlePeer(ctl_Title& title, FormWindow& window) {
    return std::make_unique<TitlePeer>(title, window);
}
PeerPtr makeHeaderPeer(ctl_Header& header, FormWindow& window) {
    return std::make_unique<HeaderPeer>(header, window);
}
PeerPtr makeStatusBarPeer(ctl_StatusBar& bar, FormWindow& window) {
    return std::make_unique<StatusBarPeer>(bar, window);
}
PeerPtr makeRulePeer(Control& rule, FormWindow& window) {
    return std::make_unique<RulePeer>(rule, window);
}

} // namespace quendal
