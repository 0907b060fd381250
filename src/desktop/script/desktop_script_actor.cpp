#include "desktop/script/desktop_script_actor.h"

#include "desktop/script/synthetic_input.h"
#include "desktop/windows/desktop_window_system.h"
#include "desktop/windows/widget_peer.h"
#include "host/buttons.h"
#include "host/labels.h"
#include "host/log.h"
#include "host/menu.h"
#include "host/pictures.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

#include <map>

namespace quendal {

namespace {

// A place in the scale units of a control (null: of the form) on its widget.
QPointF pixelAt(const FormWindow& window, const Control* control, const QWidget& widget,
                Point place) {
    if (const auto* box = dynamic_cast<const PictureBox*>(control)) {
        const Size units = surfaceScale(*box);
        return {place.x * widget.width() / units.width, place.y * widget.height() / units.height};
    }
    return QPointF(place.x, place.y) * window.scale();
}

} // namespace

QWidget* DesktopScriptActor::widgetOf(const Control& control) const {
    const FormWindow* window = windows_.windowOf(control.form());
    const WidgetPeer* peer = window == nullptr ? nullptr : window->peerOf(control);
    return peer == nullptr ? nullptr : peer->widget();
}

QWidget* DesktopScriptActor::targetOf(const Control& control) const {
    const FormWindow* window = windows_.windowOf(control.form());
    const WidgetPeer* peer = window == nullptr ? nullptr : window->peerOf(control);
    return peer == nullptr ? nullptr : peer->focusTarget();
}

void DesktopScriptActor::click(Control& control) {
    // In the middle of a bar there is nothing to press; its first button stands for it.
    const bool bar = control.kind() == ControlKind::CmdBar;
    if (QWidget* widget = bar ? targetOf(control) : widgetOf(control)) {
        clickMiddle(*widget);
    }
}

void DesktopScriptActor::type(clt_TermInput& input, const std::string& text) {
    const QPointer<QLineEdit> edit = qobject_cast<QLineEdit*>(widgetOf(input));
    if (edit == nullptr) {
        return;
    }
    clickMiddle(*edit);
    if (edit != nullptr && !edit->text().isEmpty()) {
        edit->selectAll();
        pressKey(*edit, Qt::Key_Backspace);
    }
    for (const QChar& character : QString::fromStdString(text)) {
        if (edit != nullptr) {
            typeText(*edit, character);
        }
    }
}

void DesktopScriptActor::key(Form& form, Control* control, Key key, const std::string& character) {
    if (control != nullptr) {
        control->setFocus();
    }
    FormWindow* window = windows_.windowOf(form);
    if (window == nullptr) {
        return;
    }
    switch (key) {
    case Key::Enter:
        pressKey(*window, Qt::Key_Return, QStringLiteral("\r"));
        break;
    case Key::Escape:
        pressKey(*window, Qt::Key_Escape);
        break;
    case Key::Tab:
        pressKey(*window, Qt::Key_Tab, QStringLiteral("\t"));
        break;
    case Key::Other:
        typeText(*window, QString::fromStdString(character));
        break;
    }
}

void DesktopScriptActor::chooseTab(TabControl& tabs, int page) {
    if (auto* bar = qobject_cast<QTabBar*>(targetOf(tabs))) {
        clickAt(*bar, QRectF(bar->tabRect(page)).center());
    }
}

// With the keyboard in the open list: from its top down to the item, then Enter.
void DesktopScriptActor::chooseItem(ListBox& list, int item) {
    const QPointer<QComboBox> combo = qobject_cast<QComboBox*>(widgetOf(list));
    if (combo == nullptr) {
        return;
    }
    clickMiddle(*combo);
    QWidget& view = *combo->view();
    pressKey(view, Qt::Key_Home);
    for (int i = 0; i < item; ++i) {
        pressKey(view, Qt::Key_Down);
    }
    pressKey(view, Qt::Key_Return, QStringLiteral("\r"));
}

void DesktopScriptActor::check(CheckBox& box, bool on) {
    if (box.checked() != on) {
        click(box);
    }
}

void DesktopScriptActor::mouse(Form& form, Control* control, Point place, MouseButton button) {
    const FormWindow* window = windows_.windowOf(form);
    if (window == nullptr) {
        return;
    }
    QWidget* widget = control == nullptr ? &window->content() : widgetOf(*control);
    if (widget != nullptr) {
        clickAt(*widget, pixelAt(*window, control, *widget, place),
                button == MouseButton::Right ? Qt::RightButton : Qt::LeftButton);
    }
}

// The menu is opened in one of two ways and walked with the keyboard.
void DesktopScriptActor::walkMenu(Menu& item,
                                  const std::function<void(QMenuBar& bar, QAction& opener)>& open) {
    const FormWindow* window = windows_.windowOf(item.form());
    const Menu* head = item.parent() == nullptr ? &item : item.parent();
    QAction* opener = window == nullptr ? nullptr : window->actionOf(head->name());
    auto* bar = window == nullptr ? nullptr : window->findChild<QMenuBar*>();
    if (opener == nullptr || bar == nullptr) {
        return;
    }
    open(*bar, *opener);
    QMenu* menu = opener->menu<QMenu*>();
    const QAction* wanted = window->actionOf(item.name());
    while (menu->isVisible() && menu->activeAction() != wanted) {
        const QAction* before = menu->activeAction();
        pressKey(*menu, Qt::Key_Down);
        if (menu->activeAction() == before) {
            return;
        }
    }
    pressKey(*menu, Qt::Key_Return, QStringLiteral("\r"));
}

void DesktopScriptActor::menu(Menu& item) {
    walkMenu(item, [](QMenuBar& bar, QAction& opener) {
        clickAt(bar, QRectF(bar.actionGeometry(&opener)).center());
    });
}

void DesktopScriptActor::menuByKeys(Menu& item) {
    walkMenu(item,
             [](QMenuBar& bar, QAction& opener) { pressMnemonic(*bar.window(), opener.text()); });
}

void DesktopScriptActor::stroke(Form& form, Stroke stroke) {
    static const std::map<Stroke, Qt::Key> kKeys{{Stroke::Left, Qt::Key_Left},
                                                 {Stroke::Right, Qt::Key_Right},
                                                 {Stroke::Up, Qt::Key_Up},
                                                 {Stroke::Down, Qt::Key_Down},
                                                 {Stroke::Backspace, Qt::Key_Backspace}};
    if (FormWindow* window = windows_.windowOf(form)) {
        pressKey(*window, kKeys.at(stroke));
    }
}

void DesktopScriptActor::hold(double seconds) {
    QEventLoop standing;
    QTimer::singleShot(static_cast<int>(seconds * 1000), &standing, &QEventLoop::quit);
    standing.exec(QEventLoop::ExcludeUserInputEvents);
}

void DesktopScriptActor::close(Form& form) {
    if (FormWindow* window = windows_.windowOf(form)) {
        window->close();
    }
}

void DesktopScriptActor::command(ctl_CmdBar& bar, const std::string& command) {
    const QWidget* widget = widgetOf(bar);
    auto* face =
        widget == nullptr ? nullptr : widget->findChild<QWidget*>(QString::fromStdString(command));
    if (face != nullptr) {
        clickMiddle(*face);
    } else {
        bar.userCommand(command); // from outside, as there is no button for it
    }
}

void DesktopScriptActor::command(ctl_Executor& executor, const std::string& command) {
    executor.userCommand(command);
}

bool DesktopScriptActor::screenshot(Form& form, const std::string& file) {
    FormWindow* window = windows_.windowOf(form);
    if (window == nullptr) {
        return false;
    }
    const char* format = file.ends_with(".ppm") ? "PPM" : "PNG";
    const bool written = window->grab().save(QString::fromStdString(file), format);
    if (!written) {
        logLine("screenshot not written: " + file);
    }
    return written;
}

} // namespace quendal
