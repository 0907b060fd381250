// The part of a window in which a content stands that may be larger than it.
#pragma once

#include <QRect>
#include <QSize>

class QScrollBar;
class QWidget;

namespace quendal {

class ScrollRoom {
  public:
    // Both belong to the window, as do the scroll bars.
    ScrollRoom(QWidget& window, QWidget& content);

    // Gives the content its size: all of `room`, or what it needs where that is more.
    void arrange(const QRect& room, QSize needed);
    // Scrolls no farther than until `part` of the content is seen.
    void reveal(const QRect& part);
    // By so many pixels; what can't be scrolled stays.
    void scrollBy(QPoint distance);

  private:
    void put(QScrollBar& bar, const QRect& place, int hidden, int page);
    void follow();

    QWidget& content_;
    QScrollBar* down_;
    QScrollBar* across_;
    QRect room_; // without the scroll bars
};

} // namespace quendal
