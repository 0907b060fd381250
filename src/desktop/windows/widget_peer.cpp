#include "desktop/windows/widget_peer.h"

#include "desktop/windows/form_window.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"
#include "host/form.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/term_markup.h"

#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quendal {

namespace {

// Marks the peer as telling its widget something, also when a handler of the widget is nested.
class Telling {
  public:
    explicit Telling(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Telling() { flag_ = before_; }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

  private:
    bool& flag_;
    bool before_;
};

// On a tab control only what stands on the chosen page is shown.
bool onShownPage(const Control& control) {
    const auto* tabs = dynamic_cast<const TabControl*>(control.container());
    return tabs == nullptr || control.page() < 0 || tabs->tab() == control.page();
}

} // namespace

QRect pixelRect(const Rect& place, double scale) {
    const auto edge = [scale](double at) { return static_cast<int>(std::lround(at * scale)); };
    const int left = edge(place.left);
    const int top = edge(place.top);
    return {left, top, std::max(0, edge(place.right()) - left),
            std::max(0, edge(place.bottom()) - top)};
}

QColor groundOf(const Control& control) {
    const Control* container = control.container();
    if (container == nullptr) {
        return look::kGround;
    }
    if (const auto* panel = dynamic_cast<const ctl_Pannel*>(container)) {
        return look::toQColor(panel->backcolor());
    }
    if (const auto* picture = dynamic_cast<const PictureBox*>(container);
        picture != nullptr && !picture->overlay()) {
        return look::toQColor(picture->backcolor());
    }
    if (const auto* frame = dynamic_cast<const ctl_Frame*>(container);
        (frame != nullptr && !frame->plain()) || container->kind() == ControlKind::TabControl) {
        return look::kPanel;
    }
    return groundOf(*container);
}

QString spokenName(const Control& control) {
    if (!control.accessibleName().empty()) {
        return QString::fromStdString(control.accessibleName());
    }
    switch (control.kind()) {
    case ControlKind::TermLabel:
        return QString::fromStdString(plainTerm(control.text()));
    case ControlKind::CmdBar:
        return QStringLiteral("Schaltflächen");
    case ControlKind::Title: {
        const auto& title = static_cast<const ctl_Title&>(control);
        const bool both = !title.title().empty() && !title.text().empty();
        return shownText(title.title() + (both ? ": " : "") + title.text()).simplified();
    }
    case ControlKind::TermInput:
    case ControlKind::ListBox:
        return {}; // the text is the value; what it means stands beside it
    default:
        return withoutMnemonic(shownText(control.text())).simplified();
    }
}

WidgetPeer::WidgetPeer(Control& control, FormWindow& window) : control_(&control), window_(window) {
    control.attachPeer(this);
}

WidgetPeer::~WidgetPeer() {
    detach();
}

void WidgetPeer::setWidget(QWidget* widget) {
    widget_ = widget;
    widget->setObjectName(QString::fromStdString(control_->fullName()));
}

double WidgetPeer::scale() const {
    return window_.scale();
}
IconLibrary& WidgetPeer::icons() const {
    return window_.icons();
}

void WidgetPeer::detach() {
    if (control_ != nullptr) {
        if (control_->peer() == this) {
            control_->attachPeer(nullptr);
        }
        control_ = nullptr;
    }
}

void WidgetPeer::report(const std::function<void()>& tell) {
    if (telling_ || control_ == nullptr) {
        return;
    }
    const FormWindow::Visit visit(window_);
    tell();
    // Whatever the logic made of it, the widget shows the control as it is now.
    if (control_ != nullptr && widget_ != nullptr) {
        apply(Aspect::Value);
    }
}

void WidgetPeer::changed(Aspect aspect) {
    // While the widget itself reports that it got the focus, there is nothing to tell it.
    if (control_ != nullptr && widget_ != nullptr && !(telling_ && aspect == Aspect::Focus)) {
        apply(aspect);
    }
}

void WidgetPeer::apply(Aspect aspect) {
    const Telling telling(telling_);
    switch (aspect) {
    case Aspect::Visible:
        refreshVisibility();
        break;
    case Aspect::Place:
        refreshPlace();
        break;
    case Aspect::Focus:
        if (control_->hasFocus() && focusTarget() != nullptr) {
            focusTarget()->setFocus(Qt::OtherFocusReason);
            // The program asks for this number: what is typed now takes the place of an old one.
            if (auto* input = qobject_cast<QLineEdit*>(focusTarget())) {
                input->selectAll();
            }
        }
        break;
    case Aspect::Order:
        control_->form().controls().back() == control_ ? widget_->raise() : widget_->lower();
        break;
    case Aspect::Enabled:
        applyEnabled();
        showAspect(aspect);
        break;
    case Aspect::Text:
        applySpoken();
        showAspect(aspect);
        break;
    case Aspect::Spoken: // nothing of it is seen
        applySpoken();
        break;
    default:
        showAspect(aspect);
    }
}

void WidgetPeer::refresh() {
    if (control_ == nullptr || widget_ == nullptr) {
        return;
    }
    const Telling telling(telling_);
    refreshPlace();
    applyEnabled();
    applySpoken();
    show();
    refreshVisibility();
}

// Setting what stands there already would be told to a screen reader as news.
void WidgetPeer::applySpoken() {
    const QString name = spokenName(*control_);
    if (widget_->accessibleName() != name) {
        widget_->setAccessibleName(name);
    }
    const QString description = shownText(control_->description());
    if (widget_->accessibleDescription() != description) {
        widget_->setAccessibleDescription(description);
    }
    widget_->setToolTip(QString::fromStdString(control_->toolTip()));
}

// A control may be moved into another container at any time.
void WidgetPeer::standInContainer() {
    const Control* container = control_->container();
    const auto* outer =
        container == nullptr ? nullptr : dynamic_cast<WidgetPeer*>(container->peer());
    QWidget* parent = outer == nullptr ? &window_.content() : outer->widget();
    if (widget_->parentWidget() != parent) {
        const bool hidden = widget_->isHidden();
        widget_->setParent(parent);
        widget_->setVisible(!hidden);
    }
}

void WidgetPeer::refreshPlace() {
    const Telling telling(telling_);
    standInContainer();
    const QRect place = pixelRect(control_->place(), scale());
    if (widget_->geometry() != place) {
        widget_->setGeometry(place);
        placed();
    }
}

void WidgetPeer::refreshVisibility() {
    if (control_ == nullptr || widget_ == nullptr) {
        return;
    }
    const bool visible = control_->visible() && onShownPage(*control_);
    if (visible == !widget_->isHidden()) {
        return;
    }
    const Telling telling(telling_);
    if (!visible) {
        keepFocusFromMoving();
    }
    widget_->setVisible(visible);
}

void WidgetPeer::applyEnabled() {
    if (!control_->enabled()) {
        keepFocusFromMoving();
    }
    widget_->setEnabled(control_->enabled());
}

// Qt hands the focus to the next widget when its owner goes; the form decides that itself.
void WidgetPeer::keepFocusFromMoving() {
    const QWidget* focused = window_.focusWidget();
    if (focused != nullptr && (focused == widget_ || widget_->isAncestorOf(focused))) {
        window_.setFocus(Qt::OtherFocusReason);
    }
}

void WidgetPeer::noticeFocus() {
    if (control_ != nullptr && !telling_ && !control_->hasFocus() && control_->takesFocus()) {
        const Telling telling(telling_);
        control_->form().setFocusTo(control_);
    }
}

} // namespace quendal
