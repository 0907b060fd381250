#include "desktop/boxes/veil.h"

#include <QPainter>

namespace quendal {

namespace {

class Cover final : public QWidget {
  public:
    explicit Cover(QWidget* window) : QWidget(window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window->rect());
        show();
        raise();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), QColor(31, 42, 46, 70));
    }
};

} // namespace

Veil::Veil(QWidget* window) : cover_(window != nullptr ? new Cover(window) : nullptr) {}

Veil::~Veil() {
    delete cover_;
}

} // namespace quendal
