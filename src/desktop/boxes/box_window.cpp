#include "desktop/boxes/box_window.h"

#include "desktop/boxes/veil.h"
#include "desktop/boxes/wrapped_text.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/roots.h"
#include "host/window_system.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kScreenWidth = 1024; // design px of the smallest screen the program is made for
constexpr double kScreenHeight = 768;
constexpr double kLargestWidth = 720; // design px of the largest box, the calculator
constexpr double kLargestHeight = 600;
constexpr double kMargin = 20; // design px
constexpr double kGap = 8;
constexpr double kTitleWidth = 520; // at most, as is its height
constexpr double kTitleHeight = 110;

// What the box is to be in the middle of. While the window system hasn't yet put the window below
// on the screen, where that says it is means nothing.
QRect surroundings(const QWidget* below, const QRect& screen) {
    const QWindow* window = below != nullptr ? below->windowHandle() : nullptr;
    const bool placed = window != nullptr && window->isExposed() &&
                        screen.contains(below->frameGeometry().center());
    return placed ? below->frameGeometry() : screen;
}

QScreen* screenOf(const QWidget* below) {
    return below != nullptr ? below->screen() : QGuiApplication::primaryScreen();
}

// The window that the box belongs to. Boxes have no parent: a form that leaves the screen meanwhile
// must not take a box with it that is still on the stack.
QWidget* windowInUse() {
    if (QWidget* active = QApplication::activeWindow(); active != nullptr) {
        return active;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown = std::find_if(windows.rbegin(), windows.rend(), [](const QWidget* window) {
        return window->isVisible() && window->windowType() != Qt::Popup;
    });
    return shown != windows.rend() ? *shown : nullptr;
}

// A box wants an answer, so the program isn't busy, whatever the pointer said before.
class PlainPointer {
  public:
    PlainPointer() : changed_(QGuiApplication::overrideCursor() != nullptr) {
        if (changed_) {
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
        }
    }
    ~PlainPointer() {
        if (changed_) {
            QGuiApplication::restoreOverrideCursor();
        }
    }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;

  private:
    bool changed_;
};

QChar mnemonicOf(const QString& text) {
    const QKeySequence sequence = QKeySequence::mnemonic(text);
    return sequence.isEmpty() ? QChar() : QChar(sequence[0].key());
}

} // namespace

double boxScale() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return 1;
    }
    const QSize size = screen->size();
    const double usual =
        std::max(1.0, std::min(size.width() / kScreenWidth, size.height() / kScreenHeight));
    // No box scrolls as a whole, so the zoom ends where the largest would leave the screen.
    const double most = std::min(size.width() / kLargestWidth, size.height() / kLargestHeight);
    return std::clamp(usual * look::zoom(), std::min(usual, 0.8), std::max(usual, most));
}

BoxWindow::BoxWindow(const QString& title, double scale)
    : QWidget(nullptr, Qt::Dialog | Qt::FramelessWindowHint), scale_(scale) {
    look::setScale(*this, scale);
    setObjectName("box");
    setWindowTitle(title.isEmpty() ? QApplication::applicationDisplayName() : title);
    setWindowModality(Qt::ApplicationModal);
    setFont(look::font(look::kTextSize, scale));
    setCursor(Qt::ArrowCursor);
    auto* column = new QVBoxLayout(this); // Qt keeps it with the window
    const int border = px(1.5);
    column->setContentsMargins(border, border, border, border);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    if (!title.isEmpty()) {
        makeHead(title);
    }
    auto* middle = new QWidget(this);
    body_ = new QVBoxLayout(middle);
    body_->setContentsMargins(px(kMargin), px(kMargin), px(kMargin), px(kMargin));
    body_->setSpacing(px(kGap));
    column->addWidget(middle);
    makeFoot();
}

int BoxWindow::px(double design) const {
    return static_cast<int>(std::lround(design * scale_));
}

void BoxWindow::makeHead(const QString& title) {
    head_ = new QWidget(this);
    auto* row = new QHBoxLayout(head_);
    row->setContentsMargins(px(kMargin), px(12), px(kMargin), px(12));
    auto* text = new WrappedText(title, look::font(look::kHeadingSize, scale_, true),
                                 {px(kTitleWidth), px(kTitleHeight)}, head_);
    text->setObjectName("title");
    text->setAttribute(Qt::WA_TransparentForMouseEvents); // the strip moves the box
    row->addWidget(text, 0, Qt::AlignLeft);
    layout()->addWidget(head_);
}

void BoxWindow::makeFoot() {
    foot_ = new QWidget(this);
    buttons_ = new QHBoxLayout(foot_);
    buttons_->setContentsMargins(px(kMargin), px(12), px(kMargin), px(12));
    buttons_->setSpacing(px(kGap));
    buttons_->addStretch();
    layout()->addWidget(foot_);
}

QPushButton& BoxWindow::addActionButton(const QString& text) {
    auto* button = new QPushButton(text, foot_);
    button->setMinimumWidth(px(108));
    buttons_->addWidget(button);
    if (default_ == nullptr) {
        default_ = button;
        button->setDefault(true);
    }
    return *button;
}

QPushButton& BoxWindow::addButton(const QString& text, int code) {
    QPushButton& button = addActionButton(text);
    connect(&button, &QPushButton::clicked, this, [this, code] { finish(code); });
    return button;
}

void BoxWindow::finish(int code) {
    if (!answer_) {
        answer_ = code;
    }
}

int BoxWindow::run(const std::function<void()>& learner, std::optional<QPoint> place) {
    const QPointer<QWidget> below = windowInUse();
    const Veil veil(below);
    const PlainPointer pointer;
    putOnScreen(below, place);
    if (learner) {
        // Before the program's own pump runs: whoever feeds that must not go on beneath the box.
        QCoreApplication::processEvents();
        learner();
        finish(escapeCode_);
    } else {
        CoreLib().Windows.waitWhile([this] { return !answer_; });
    }
    hide();
    if (below != nullptr && below->isVisible()) {
        below->activateWindow();
    }
    return *answer_;
}

void BoxWindow::putOnScreen(const QWidget* below, std::optional<QPoint> place) {
    adjustSize();
    const QRect screen = screenOf(below)->availableGeometry();
    const QPoint middle = surroundings(below, screen).center();
    const QPoint wanted = place.value_or(middle - rect().center());
    const int left = std::min(wanted.x(), screen.right() + 1 - width());
    const int top = std::min(wanted.y(), screen.bottom() + 1 - height());
    move(std::max(left, screen.left()), std::max(top, screen.top()));
    create();
    if (below != nullptr) {
        windowHandle()->setTransientParent(below->windowHandle());
    }
    if (focusWidget() == nullptr) {
        default_->setFocus();
    }
    show();
    activateWindow();
}

void BoxWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        finish(escapeCode_);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pressDefault();
        break;
    default:
        if (!pressMnemonic(event->text().toUpper())) {
            QWidget::keyPressEvent(event);
        }
    }
}

// Enter presses the button that has the focus, else the default one.
void BoxWindow::pressDefault() {
    auto* focused = qobject_cast<QPushButton*>(focusWidget());
    QPushButton* button = focused != nullptr ? focused : default_;
    if (button != nullptr) {
        button->click();
    }
}

// A mnemonic works without Alt too where nothing is typed.
bool BoxWindow::pressMnemonic(const QString& key) {
    for (QPushButton* button : foot_->findChildren<QPushButton*>()) {
        if (!key.isEmpty() && mnemonicOf(button->text()) == key.front()) {
            button->click();
            return true;
        }
    }
    return false;
}

void BoxWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the box leaves the screen when run() comes back
    finish(escapeCode_);
}

void BoxWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), look::kCalmInk);
    const int border = px(1.5);
    painter.fillRect(rect().adjusted(border, border, -border, -border), look::kPanel);
    const int line = std::max(1, px(1));
    if (head_ != nullptr) {
        painter.fillRect(head_->geometry(), look::kAccentWash);
        painter.fillRect(border, head_->geometry().bottom() + 1 - line, width() - 2 * border, line,
                         look::kBorder);
    }
    painter.fillRect(foot_->geometry(), look::kGround);
    painter.fillRect(border, foot_->y(), width() - 2 * border, line, look::kBorder);
}

void BoxWindow::mousePressEvent(QMouseEvent* event) {
    grip_ = event->pos();
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr) {
        windowHandle()->startSystemMove();
    }
}

// Where the window system moves no windows itself.
void BoxWindow::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        move(pos() + event->pos() - grip_);
    }
}

} // namespace quendal
