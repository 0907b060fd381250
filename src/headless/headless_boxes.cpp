#include "headless/headless_boxes.h"

#include "host/expression.h"

namespace quendal {

namespace {

BoxReply ask(const Watchers& watchers, const BoxEvent& event) {
    return watchers.observer != nullptr ? watchers.observer->boxOpened(event)
                                        : BoxReply{BoxReply::Kind::Cancel, {}, 0};
}

BoxEvent box(BoxKind kind, const std::string& title, const std::string& text) {
    BoxEvent event;
    event.kind = kind;
    event.title = title;
    event.text = text;
    return event;
}

} // namespace

void HeadlessMessageBox::Ok(const std::string& text, const std::string& title) {
    ask(watchers_, box(BoxKind::Ok, title, text));
}

void HeadlessMessageBox::Info(const std::string& text, const std::string& title) {
    ask(watchers_, box(BoxKind::Info, title, text));
}

BoxAnswer HeadlessMessageBox::YesNo(const std::string& text, const std::string& title) {
    const BoxReply reply = ask(watchers_, box(BoxKind::YesNo, title, text));
    return reply.kind == BoxReply::Kind::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

std::string HeadlessMessageBox::Input(const std::string& prompt, const std::string& title,
                                      const std::string& proposal) {
    BoxEvent event = box(BoxKind::Input, title, prompt);
    event.proposal = proposal;
    const BoxReply reply = ask(watchers_, event);
    return reply.kind == BoxReply::Kind::Text ? reply.text : std::string();
}

void HeadlessMessageBox::Alarm(const std::string& text, const std::string& title,
                               const std::string& /*icon*/) {
    ask(watchers_, box(BoxKind::Alarm, title, text));
}

void HeadlessCalculator::ShowAbout() {
    ask(watchers_, box(BoxKind::About, product_.Title, {}));
}

std::optional<double> HeadlessCalculator::Show(int, int, double /*x*/, double /*y*/,
                                               const CalcPresets& presets) {
    BoxEvent event = box(BoxKind::Calculator, kCalculatorCaption, {});
    event.presets = presets.lines();
    const BoxReply reply = ask(watchers_, event);
    if (reply.kind == BoxReply::Kind::Value) {
        return numbers_.ParseVariant(reply.text);
    }
    const auto line = static_cast<std::size_t>(reply.preset - 1);
    if (reply.kind != BoxReply::Kind::Preset || line >= event.presets.size()) {
        return std::nullopt;
    }
    const ExpressionResult result = evaluateExpression(event.presets[line]);
    return result ? std::optional(result.value) : std::nullopt;
}

} // namespace quendal
