// The sign beside a message: drawn, so that it is crisp at any scale.
#pragma once

#include <QWidget>

namespace quendal {

enum class BoxSign { Info, Question, Alarm };

class BoxSignView final : public QWidget {
    Q_OBJECT
  public:
    // `size` in pixels.
    BoxSignView(BoxSign sign, int size, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    BoxSign sign_;
};

} // namespace quendal
