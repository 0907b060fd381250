// Labels, term labels and small pictures.
#include "desktop/pictures/icon_library.h"
#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/painted_peer.h"
#include "desktop/windows/peers.h"
#include "desktop/windows/term_layout.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/pictures.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>

#include <algorithm>

namespace quendal {

namespace {

class LabelPeer final : public PaintedPeer {
  public:
    LabelPeer(ctl_Label& label, FormWindow& window) : PaintedPeer(label, window), label_(label) {}

    void paint(QPainter& painter, const QRectF& box) override {
        painter.setPen(textColour());
        QRectF room = box;
        if (label_.angle() != 0) {
            painter.translate(box.center());
            painter.rotate(-label_.angle());
            const bool upright = static_cast<int>(std::abs(label_.angle())) % 180 == 90;
            room = upright ? QRectF(0, 0, box.height(), box.width())
                           : QRectF(0, 0, box.width(), box.height());
            room.moveCenter({0, 0});
        }
        const Wrap wrap = label_.wordwrap() ? Wrap::Words : Wrap::None;
        fitted_.paint(painter, room, text(), label_.font(), scale(), across() | upAndDown(room),
                      wrap);
    }

  protected:
    void show() override {
        bindMnemonic();
        PaintedPeer::show();
    }

  private:
    // One line stands in the middle of a box of about its height, longer texts begin at the top.
    Qt::Alignment upAndDown(const QRectF& room) const {
        const double line = QFontMetricsF(look::font(label_.font(), scale())).height();
        return room.height() < 1.8 * line ? Qt::AlignVCenter : Qt::AlignTop;
    }

    // "&" in a label leads to the control that comes behind it.
    void bindMnemonic() {
        const QKeySequence keys = QKeySequence::mnemonic(text());
        if (shortcut_ == nullptr && !keys.isEmpty()) {
            shortcut_ = new QShortcut(widget());
            QObject::connect(shortcut_, &QShortcut::activated, widget(), [this] { focusBuddy(); });
        }
        if (shortcut_ != nullptr) {
            shortcut_->setKey(keys);
        }
    }

    void focusBuddy() {
        if (control() == nullptr) {
            return;
        }
        const auto& all = control()->form().controls();
        auto next = std::find(all.begin(), all.end(), control());
        for (; next != all.end(); ++next) {
            if ((*next)->takesFocus() && (*next)->shownThroughContainers() &&
                (*next)->enabledThroughContainers()) {
                report([next] { (*next)->setFocus(); });
                return;
            }
        }
    }

    ctl_Label& label_;
    QShortcut* shortcut_ = nullptr;
    FittedText fitted_;
};

class TermLabelPeer final : public PaintedPeer {
  public:
    TermLabelPeer(ctl_TermLabel& label, FormWindow& window)
        : PaintedPeer(label, window), label_(label) {}

    void paint(QPainter& painter, const QRectF& box) override {
        painter.setPen(textColour());
        if (!layout_) {
            layout_.emplace(label_.term(), label_.font(), scale(), box.size());
        }
        const double left = label_.textAlign() == TextAlign::Right ? box.width() - layout_->width()
                            : label_.textAlign() == TextAlign::Centre
                                ? (box.width() - layout_->width()) / 2
                                : 0.0;
        layout_->paint(painter, {left, baseline(box)});
    }

  protected:
    void show() override {
        layout_.reset();
        PaintedPeer::show();
    }
    void placed() override { layout_.reset(); }

  private:
    // Labels beside each other share the baseline of plain text, whatever hangs above and below,
    // as long as all of it stays inside.
    double baseline(const QRectF& box) const {
        FontSpec spec = label_.font();
        spec.size = layout_->pixelSize();
        const QFontMetricsF plain(look::font(spec, 1.0));
        const double middle = (box.height() + plain.ascent() - plain.descent()) / 2;
        const double least = layout_->ascent();
        const double most = std::max(least, box.height() - layout_->descent());
        return std::clamp(middle, least, most);
    }

    ctl_TermLabel& label_;
    std::optional<TermLayout> layout_;
};

class ImagePeer final : public PaintedPeer {
  public:
    ImagePeer(ctl_Image& image, FormWindow& window) : PaintedPeer(image, window) {}

    void paint(QPainter& painter, const QRectF& box) override {
        const std::string& path = control()->pictureIcon();
        const double ratio = widget()->devicePixelRatioF();
        // Never beyond the control; on a form that scales itself as large as that allows.
        const double design = IconLibrary::designSize(path);
        const double room = std::min(box.width() / design, box.height() / design);
        const double fit = control()->form().scalesItself() ? room : std::min(scale(), room);
        const QPixmap icon = icons().pixmap(path, fit, ratio);
        const QSizeF size = icon.deviceIndependentSize();
        painter.drawPixmap(
            QPointF((box.width() - size.width()) / 2, (box.height() - size.height()) / 2), icon);
    }
};

} // namespace

PeerPtr makeLabelPeer(ctl_Label& label, FormWindow& window) {
    return std::make_unique<LabelPeer>(label, window);
}
PeerPtr makeTermLabelPeer(ctl_TermLabel& label, FormWindow& window) {
    return std::make_unique<TermLabelPeer>(label, window);
}
PeerPtr makeImagePeer(ctl_Image& image, FormWindow& window) {
    return std::make_unique<ImagePeer>(image, window);
}

} // namespace quendal
