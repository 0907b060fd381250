#include "desktop/windows/scroll_room.h"

#include <QScrollBar>

#include <algorithm>

namespace quendal {

namespace {

constexpr int kAir = 8; // px around what is revealed

// How far a range from `low` to `high` must move to lie between 0 and `room`; its beginning counts
// where it is too long.
int moved(int low, int high, int room) {
    return low < 0 ? low : std::min(low, std::max(0, high - room));
}

} // namespace

ScrollRoom::ScrollRoom(QWidget& window, QWidget& content)
    : content_(content), down_(new QScrollBar(Qt::Vertical, &window)),
      across_(new QScrollBar(Qt::Horizontal, &window)) {
    for (QScrollBar* bar : {down_, across_}) {
        bar->setFocusPolicy(Qt::NoFocus);
        bar->setCursor(Qt::ArrowCursor);
        bar->hide();
        QObject::connect(bar, &QScrollBar::valueChanged, &content, [this] { follow(); });
    }
    down_->setAccessibleName(QStringLiteral("Senkrecht rollen"));
    across_->setAccessibleName(QStringLiteral("Waagerecht rollen"));
}

void ScrollRoom::put(QScrollBar& bar, const QRect& place, int hidden, int page) {
    bar.setGeometry(place);
    bar.setRange(0, std::max(0, hidden));
    bar.setPageStep(page);
    bar.setSingleStep(std::max(1, page / 10));
    bar.setVisible(hidden > 0);
    bar.raise();
}

void ScrollRoom::arrange(const QRect& room, QSize needed) {
    const int thick = down_->sizeHint().width();
    bool tall = needed.height() > room.height();
    // A bar takes room that the other one may then need.
    const bool wide = needed.width() > room.width() - (tall ? thick : 0);
    tall = needed.height() > room.height() - (wide ? thick : 0);
    room_ = room.adjusted(0, 0, tall ? -thick : 0, wide ? -thick : 0);
    content_.resize(needed.expandedTo(room_.size()));
    put(*down_, {room_.right() + 1, room.top(), thick, room_.height()},
        tall ? content_.height() - room_.height() : 0, room_.height());
    put(*across_, {room.left(), room_.bottom() + 1, room.width(), thick},
        wide ? content_.width() - room_.width() : 0, room_.width());
    follow();
}

void ScrollRoom::follow() {
    content_.move(room_.topLeft() - QPoint(across_->value(), down_->value()));
}

void ScrollRoom::reveal(const QRect& part) {
    const QRect seen =
        part.adjusted(-kAir, -kAir, kAir, kAir).translated(-across_->value(), -down_->value());
    scrollBy({moved(seen.left(), seen.right() + 1, room_.width()),
              moved(seen.top(), seen.bottom() + 1, room_.height())});
}

void ScrollRoom::scrollBy(QPoint distance) {
    across_->setValue(across_->value() + distance.x());
    down_->setValue(down_->value() + distance.y());
}

} // namespace quendal
