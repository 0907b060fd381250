#include "desktop/windows/form_window.h"

#include "desktop/windows/look.h"
#include "desktop/windows/widget_peer.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <map>

namespace quendal {

namespace {

constexpr double kMenuText = 14;
constexpr double kLeastScale = 0.1; // of a window that is next to nothing
constexpr double kMenuGuess = 30;   // height of a menu bar in design px, before it is measured

// Takes the presses that no control wants to the form.
class Content final : public QWidget {
  public:
    explicit Content(FormWindow& window) : QWidget(&window), window_(window) {}

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (Form* form = window_.form()) {
            const FormWindow::Visit visit(window_);
            const QPointF at = event->position() / window_.scale();
            const bool right = event->button() == Qt::RightButton;
            form->Form_MouseDown(at.x(), at.y(), right ? MouseButton::Right : MouseButton::Left);
        }
    }

  private:
    FormWindow& window_;
};

Key keyOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Tab:
        return Key::Tab;
    default:
        return Key::Other;
    }
}

// Widgets keep what they have measured in the style.
void restyle(QWidget& widget) {
    QEvent restyled(QEvent::StyleChange);
    QApplication::sendEvent(&widget, &restyled);
}

bool isModifier(const QKeyEvent& event) {
    return event.key() == Qt::Key_Shift || event.key() == Qt::Key_Control ||
           event.key() == Qt::Key_Alt || event.key() == Qt::Key_Meta ||
           event.key() == Qt::Key_AltGr;
}

} // namespace

FormWindow::FormWindow(Form& form, FormWindowOwner& owner, double mostScale)
    : QWidget(nullptr), form_(&form), owner_(owner), content_(new Content(*this)),
      live_(new LiveText(this)), room_(*this, *content_), mostScale_(mostScale) {
    setObjectName(QString::fromStdString(form.name()));
    setWindowTitle(QString::fromStdString(form.caption()));
    setFocusPolicy(Qt::NoFocus); // a click on the ground leaves the focus where it is
    makeMenus();
    makeZoomKeys();
    makePeers();
}

FormWindow::~FormWindow() {
    // The widgets go before the peers that they call.
    delete content_;
}

WidgetPeer* FormWindow::peerOf(const Control& control) const {
    const auto found = std::find_if(peers_.begin(), peers_.end(),
                                    [&](const auto& peer) { return peer->control() == &control; });
    return found == peers_.end() ? nullptr : found->get();
}

QAction* FormWindow::actionOf(const std::string& menuName) const {
    return menuBar_ == nullptr ? nullptr
                               : menuBar_->findChild<QAction*>(QString::fromStdString(menuName));
}

void FormWindow::makeMenus() {
    if (form_->menus().empty()) {
        return;
    }
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    std::map<const Menu*, QMenu*> menus;
    for (Menu* entry : form_->menus()) {
        const QString text = QString::fromStdString(entry->text());
        if (entry->parent() == nullptr) {
            QMenu* menu = menuBar_->addMenu(text);
            menu->menuAction()->setObjectName(QString::fromStdString(entry->name()));
            menus[entry] = menu;
            continue;
        }
        QAction* action = menus.at(entry->parent())->addAction(text);
        action->setParent(menuBar_);
        action->setObjectName(QString::fromStdString(entry->name()));
        connect(action, &QAction::triggered, this, [this, entry] {
            if (form_ != nullptr) {
                const Visit visit(*this);
                entry->userClicked();
            }
        });
    }
}

void FormWindow::makePeers() {
    for (Control* control : form_->controls()) {
        if (control->peer() == nullptr) {
            if (auto peer = makePeer(*control, *this)) {
                peers_.push_back(std::move(peer));
            }
        }
    }
    for (const auto& peer : peers_) {
        peer->refreshPlace();
        for (QWidget* target : peer->focusTargets()) {
            target->removeEventFilter(this);
            target->installEventFilter(this);
        }
    }
    stack();
}

// Back to front as the form has them.
void FormWindow::stack() {
    for (const Control* control : form_->controls()) {
        if (const WidgetPeer* peer = peerOf(*control)) {
            peer->widget()->raise();
        }
    }
}

void FormWindow::adopt() {
    if (form_ == nullptr) {
        return;
    }
    const auto unseen = [](const Control* control) {
        return control->peer() == nullptr && control->kind() != ControlKind::Executor;
    };
    if (std::any_of(form_->controls().begin(), form_->controls().end(), unseen)) {
        makePeers();
        for (const auto& peer : peers_) {
            peer->refresh();
        }
    }
}

void FormWindow::containerChanged(const Control& container) {
    for (const auto& peer : peers_) {
        if (peer->control() != nullptr && peer->control()->container() == &container) {
            peer->refreshVisibility();
        }
    }
}

// With and without the shift key, and those of the number pad.
void FormWindow::makeZoomKeys() {
    struct ZoomKey {
        const char* keys;
        int steps;
    };
    for (const ZoomKey& key : {ZoomKey{"Ctrl++", 1}, ZoomKey{"Ctrl+=", 1}, ZoomKey{"Ctrl+-", -1},
                               ZoomKey{"Ctrl+0", 0}}) {
        auto* shortcut = new QShortcut(QKeySequence(QString(key.keys)), this);
        connect(shortcut, &QShortcut::activated, this, [this, steps = key.steps] {
            if (form_ != nullptr) {
                const Visit visit(*this);
                owner_.zoomAsked(steps);
            }
        });
    }
}

int FormWindow::menuHeight() const {
    return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height();
}

QSize FormWindow::sizeAt(double scale) const {
    if (menuBar_ != nullptr) {
        menuBar_->setFont(look::font(kMenuText, scale));
    }
    const Size design = form_->designSize();
    return {static_cast<int>(std::ceil(design.width * scale)),
            static_cast<int>(std::ceil(design.height * scale)) + menuHeight()};
}

double FormWindow::fit(double menu) const {
    const Size design = form_->designSize();
    if (form_->scalesItself()) {
        return 1;
    }
    return std::min({mostScale_, width() / design.width, (height() - menu) / design.height});
}

double FormWindow::zoomed(double menu) const {
    // What stands at a place of its own goes by the window beneath, which is zoomed already.
    const bool own = form_->scalesItself() || form_->wantedPlace().width > 0;
    return askedScale_ > 0 ? askedScale_ : fit(menu) * (own ? 1 : look::zoom());
}

void FormWindow::setScale(double scale) {
    look::setScale(*this, scale);
    if (scale == scale_ && scaled_) {
        return;
    }
    scale_ = scale;
    scaled_ = true;
    for (QWidget* widget : content_->findChildren<QWidget*>()) {
        restyle(*widget);
    }
}

void FormWindow::arrangeMenus(double scale) {
    if (menuBar_ == nullptr) {
        return;
    }
    const QFont font = look::font(kMenuText, scale);
    menuBar_->setFont(font);
    for (QMenu* menu : menuBar_->findChildren<QMenu*>()) {
        menu->setFont(font);
    }
    restyle(*menuBar_);
    menuBar_->setGeometry(0, 0, width(), menuHeight());
    menuBar_->raise(); // what is scrolled goes beneath
}

void FormWindow::arrange() {
    if (form_ == nullptr) {
        return;
    }
    // The height of the menu bar depends on the scale and the scale on what it leaves.
    const double guess = menuBar_ == nullptr ? 0 : kMenuGuess * fit(kMenuGuess);
    look::setScale(*this, zoomed(guess));
    arrangeMenus(zoomed(guess));
    const int top = menuHeight();
    setScale(std::max(kLeastScale, zoomed(top)));
    const QRect below(0, top, width(), std::max(1, height() - top));
    // At its usual scale the content fits; a pixel of rounding must not call for a scroll bar.
    const bool larger = scale_ > fit(top);
    room_.arrange(below, larger ? sizeAt(scale_) - QSize(0, top) : QSize(1, 1));
    for (const auto& peer : peers_) {
        peer->refresh();
    }
    if (const QWidget* focused = focusWidget(); content_->isAncestorOf(focused)) {
        reveal(*focused); // a larger scale has moved it
    }
    QToolTip::setFont(look::font(look::kTextSize, scale_));
    // A form that scales itself makes do with whatever there is.
    const Size design = form_->scalesItself() ? Size{} : form_->designSize();
    const Visit visit(*this);
    owner_.innerSize(*form_, {std::max(design.width, content_->width() / scale_),
                              std::max(design.height, content_->height() / scale_)});
}

void FormWindow::release() {
    for (const auto& peer : peers_) {
        peer->detach();
    }
    form_ = nullptr;
    hide();
}

void FormWindow::showFocus() {
    const Control* focused = form_ == nullptr ? nullptr : form_->focus();
    WidgetPeer* peer = focused == nullptr ? nullptr : peerOf(*focused);
    QWidget* target = peer == nullptr ? this : peer->focusTarget();
    target->setFocus(Qt::OtherFocusReason);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form decides, and hides its window itself
    const QWidget* modal = QApplication::activeModalWidget();
    if (form_ != nullptr && (modal == nullptr || modal == this)) {
        const Visit visit(*this);
        owner_.closeAsked(*form_);
    }
}

void FormWindow::wheelEvent(QWheelEvent* event) {
    room_.scrollBy(event->pixelDelta().isNull() ? -event->angleDelta() / 2 : -event->pixelDelta());
}

void FormWindow::reveal(const QWidget& widget) {
    room_.reveal(QRect(widget.mapTo(content_, QPoint(0, 0)), widget.size()));
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    // What a control's widget left over was offered already, in the event filter.
    const QWidget* focused = focusWidget();
    const bool mine = focused == nullptr || focused == this;
    event->setAccepted(mine && offerKey(nullptr, this, *event));
}

void FormWindow::speak() {
    if (form_ != nullptr) {
        live_->say(QString::fromStdString(form_->announced()));
    }
}

QAccessible::Role FormWindow::spokenRole() const {
    const bool whole = form_ == nullptr || form_->windowState() == WindowState::Maximised;
    return whole ? QAccessible::Window : QAccessible::Dialog;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::FocusIn) {
        return false;
    }
    auto* widget = static_cast<QWidget*>(watched);
    const auto found = std::find_if(peers_.begin(), peers_.end(), [widget](const auto& peer) {
        const auto targets = peer->focusTargets();
        return std::find(targets.begin(), targets.end(), widget) != targets.end();
    });
    WidgetPeer* peer = found == peers_.end() ? nullptr : found->get();
    if (event->type() == QEvent::KeyPress) {
        return offerKey(peer, widget, *static_cast<QKeyEvent*>(event));
    }
    if (peer != nullptr) {
        reveal(*widget);
        peer->noticeFocus();
    }
    return false;
}

bool FormWindow::offerKey(WidgetPeer* peer, QWidget* at, const QKeyEvent& key) {
    if (form_ == nullptr || isModifier(key) ||
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
        return false;
    }
    const Visit visit(*this);
    if (key.key() == Qt::Key_Backtab) {
        form_->focusNext(true);
        return true;
    }
    const QString text = key.text();
    const bool prints = !text.isEmpty() && text.front().isPrint();
    const bool used = passKey(peer, at, keyOf(key), prints ? text.toStdString() : std::string());
    return used || form_ == nullptr;
}

bool FormWindow::passKey(WidgetPeer* peer, QWidget* at, Key key, const std::string& character) {
    // Asking for the control's own way acts at once, so the form has its say before.
    const bool own = peer != nullptr && peer->focusTargets().size() > 1;
    if (!own) {
        return form_->userKey(key, character);
    }
    if (form_->Form_KeyDown(key) || form_ == nullptr) {
        return true;
    }
    if (const std::optional<bool> used = peer->ownKey(at, key, character)) {
        return *used;
    }
    return form_->userKey(key, character);
}

} // namespace quendal
