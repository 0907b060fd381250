// A thin veil over the window beneath a box, so that the eye goes to the box.
#pragma once

#include <QPointer>
#include <QWidget>

namespace quendal {

class Veil {
  public:
    // Null: nothing to cover.
    explicit Veil(QWidget* window);
    ~Veil();
    Veil(const Veil&) = delete;
    Veil& operator=(const Veil&) = delete;

  private:
    QPointer<QWidget> cover_; // goes with its window
};

} // namespace quendal
