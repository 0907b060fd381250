#include "desktop/boxes/desktop_message_box.h"

#include "desktop/boxes/box_sign.h"
#include "desktop/boxes/box_window.h"
#include "desktop/boxes/wrapped_text.h"
#include "desktop/pictures/icon_library.h"
#include "desktop/script/synthetic_input.h"
#include "desktop/services/observer_link.h"
#include "desktop/windows/look.h"
#include "desktop/windows/text_fit.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quendal {

namespace {

constexpr double kTextWidth = 420; // design px, at most
constexpr double kTextHeight = 440;
constexpr double kLeastWidth = 250;
constexpr double kSignSize = 36;
constexpr double kInputWidth = 360;
constexpr int kLongestInput = 200; // characters
constexpr double kTextSize = 14;

enum Code { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// The sign on the left, the text on the right of it.
void fillBody(BoxWindow& box, QWidget* sign, const std::string& text) {
    auto* row = new QHBoxLayout;
    row->setSpacing(box.px(16));
    if (sign != nullptr) {
        row->addWidget(sign, 0, Qt::AlignTop);
    }
    auto* words = new WrappedText(shownText(text), look::font(kTextSize, box.scale()),
                                  {box.px(kTextWidth), box.px(kTextHeight)}, &box);
    words->setObjectName("text");
    row->addWidget(words, 1, Qt::AlignVCenter | Qt::AlignLeft);
    box.body().addLayout(row);
    box.body().addSpacing(0);
    box.setMinimumWidth(box.px(kLeastWidth));
    box.setAccessibleDescription(shownText(text));
}

QLineEdit& addInput(BoxWindow& box, const std::string& proposal, const QString& name) {
    auto* input = new QLineEdit(&box);
    input->setObjectName("input");
    input->setFont(look::font(kTextSize, box.scale()));
    input->setMaxLength(kLongestInput);
    input->setTextMargins(box.px(5), 0, box.px(5), 0);
    input->setText(shownText(proposal).left(kLongestInput));
    input->selectAll();
    input->setMinimumWidth(box.px(kInputWidth));
    input->setAccessibleName(name);
    box.body().addWidget(input);
    input->setFocus();
    return *input;
}

const char* buttonFor(BoxReply::Kind kind) {
    switch (kind) {
    case BoxReply::Kind::Yes:
        return "button6";
    case BoxReply::Kind::No:
        return "button7";
    case BoxReply::Kind::Cancel:
        return "button2";
    default:
        return "button1";
    }
}

void answer(BoxWindow& box, const BoxReply& reply) {
    if (auto* input = box.findChild<QLineEdit*>("input");
        input != nullptr && reply.kind == BoxReply::Kind::Text) {
        clickMiddle(*input);
        input->selectAll();
        pressKey(*input, Qt::Key_Backspace);
        typeText(*input, QString::fromStdString(reply.text));
    }
    if (auto* button = box.findChild<QPushButton*>(buttonFor(reply.kind)); button != nullptr) {
        clickMiddle(*button);
    }
}

void addCodeButton(BoxWindow& box, const QString& text, int code) {
    box.addButton(text, code).setObjectName("button" + QString::number(code));
}

} // namespace

// The icon as large as a sign; null when the library has none.
QLabel* DesktopMessageBox::iconLabel(BoxWindow& box, const std::string& icon) {
    const double scale = box.scale() * kSignSize / IconLibrary::designSize(icon);
    const QPixmap picture =
        icon.empty() ? QPixmap() : icons_.pixmap(icon, scale, box.devicePixelRatioF());
    if (picture.isNull()) {
        return nullptr;
    }
    auto* label = new QLabel(&box); // the box owns it
    label->setPixmap(picture);
    return label;
}

int DesktopMessageBox::show(BoxWindow& box, const BoxEvent& event) {
    if (link_.observer == nullptr) {
        return box.run();
    }
    const BoxReply reply = link_.observer->boxOpened(event);
    return box.run([&box, reply] { answer(box, reply); });
}

void DesktopMessageBox::showWithOk(BoxKind kind, const std::string& text, const std::string& title,
                                   BoxSign sign) {
    BoxWindow box(shownText(title), boxScale());
    fillBody(box, new BoxSignView(sign, box.px(kSignSize), &box), text);
    addCodeButton(box, "&OK", kOk);
    box.setEscapeCode(kOk);
    show(box, {.kind = kind, .title = title, .text = text});
}

void DesktopMessageBox::Ok(const std::string& text, const std::string& title) {
    showWithOk(BoxKind::Ok, text, title, BoxSign::Info);
}

void DesktopMessageBox::Info(const std::string& text, const std::string& title) {
    showWithOk(BoxKind::Info, text, title, BoxSign::Info);
}

BoxAnswer DesktopMessageBox::YesNo(const std::string& text, const std::string& title) {
    BoxWindow box(shownText(title), boxScale());
    fillBody(box, new BoxSignView(BoxSign::Question, box.px(kSignSize), &box), text);
    addCodeButton(box, "&Ja", kYes);
    addCodeButton(box, "&Nein", kNo);
    box.setEscapeCode(kNo);
    const int code = show(box, {.kind = BoxKind::YesNo, .title = title, .text = text});
    return code == kYes ? BoxAnswer::Yes : BoxAnswer::No;
}

std::string DesktopMessageBox::Input(const std::string& prompt, const std::string& title,
                                     const std::string& proposal) {
    BoxWindow box(shownText(title), boxScale());
    fillBody(box, nullptr, prompt);
    const QLineEdit& input = addInput(box, proposal, shownText(prompt));
    addCodeButton(box, "&OK", kOk);
    addCodeButton(box, "&Abbrechen", kCancel);
    box.setEscapeCode(kCancel);
    const BoxEvent event{
        .kind = BoxKind::Input, .title = title, .text = prompt, .proposal = proposal};
    return show(box, event) == kOk ? input.text().toStdString() : std::string();
}

void DesktopMessageBox::Alarm(const std::string& text, const std::string& title,
                              const std::string& icon) {
    BoxWindow box(shownText(title), boxScale());
    fillBody(box, iconLabel(box, icon), text);
    addCodeButton(box, "&OK", kOk);
    box.setEscapeCode(kOk);
    show(box, {.kind = BoxKind::Alarm, .title = title, .text = text});
}

} // namespace quendal
