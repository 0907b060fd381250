// What the script player sees and hears, and what it prints of it.
#include "host/control.h"
#include "host/expression.h"
#include "host/form.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "script/script_actor.h"
#include "script/script_player.h"
#include "script/values.h"

namespace quendal {

void ScriptPlayer::print(const PrintStep& print, const ScriptStep& step) {
    const auto value = readThing(print.thing, stage_, witness_);
    if (!value) {
        take(Verdict::unknown("there is no " + print.thing.text), step);
        return;
    }
    transcript_.write(
        Transcript::line("print").add("thing", print.thing.text).add("value", valueText(*value)));
}

void ScriptPlayer::dump() {
    const Form* top = CoreLib().Windows.top();
    if (top == nullptr) {
        return;
    }
    for (const Control* control : top->controls()) {
        FieldTable table;
        control->describe(table);
        JsonLine properties;
        for (const std::string& name : table.names()) {
            properties.add(name, valueText(*table.find(name)));
        }
        transcript_.write(Transcript::line("control")
                              .add("form", top->name())
                              .add("name", control->fullName())
                              .addRaw("properties", properties.text()));
    }
}

void ScriptPlayer::takeScreenshot(const std::string& file) {
    Form* top = CoreLib().Windows.top();
    const bool taken = top != nullptr && actor_.screenshot(*top, file);
    transcript_.write(
        Transcript::line("screenshot").add("file", file).addRaw("taken", taken ? "true" : "false"));
}

Verdict ScriptPlayer::checkReply(const BoxEvent& event,
                                 const std::optional<BoxReply>& reply) const {
    if (!reply) {
        return Verdict::impossible("the " + std::string(boxKindName(event.kind)) + " box " +
                                   jsonText(event.title) + " " + jsonText(event.text) +
                                   " came with no answer waiting");
    }
    if (reply->kind != BoxReply::Kind::Preset) {
        return {};
    }
    const auto line = static_cast<std::size_t>(reply->preset - 1);
    if (line >= event.presets.size()) {
        return Verdict::impossible("the calculator offers no line " +
                                   std::to_string(reply->preset));
    }
    const ExpressionResult result = evaluateExpression(event.presets[line]);
    return result ? Verdict{}
                  : Verdict::impossible("the calculator says \"" + faultText(result.fault) +
                                        "\" to " + jsonText(event.presets[line]));
}

BoxReply ScriptPlayer::boxOpened(const BoxEvent& event) {
    witness_.add(event);
    const auto reply = answers_.take(event);
    JsonLine line = Transcript::line("box");
    line.add("kind", boxKindName(event.kind)).add("title", event.title).add("text", event.text);
    if (event.kind == BoxKind::Input) {
        line.add("proposal", event.proposal);
    }
    if (event.kind == BoxKind::Calculator) {
        line.add("presets", event.presets);
    }
    line.addRaw("answer", reply ? jsonText(answerText(*reply)) : "null");
    transcript_.write(line);
    take(checkReply(event, reply), *last_);
    return reply.value_or(BoxReply{BoxReply::Kind::Cancel, {}, 0});
}

void ScriptPlayer::soundPlayed(const std::string& name) {
    witness_.sounds.push_back(name);
    transcript_.write(Transcript::line("sound").add("name", name));
}

void ScriptPlayer::addReport(std::vector<std::string> words) {
    transcript_.write(Transcript::line("report").add("report", words));
    witness_.reports.push_back({std::move(words)});
}

void ScriptPlayer::progressReported(int points, int wrong) {
    addReport({"progress", std::to_string(points), std::to_string(wrong)});
}

void ScriptPlayer::resultReported(int score, double mark, const std::string& markText) {
    addReport({"result", std::to_string(score), numberText(mark), markText});
}

void ScriptPlayer::formShown(const Form& form) {
    stage_.shown(form);
    transcript_.write(
        Transcript::line("shown").add("form", form.name()).add("caption", form.caption()));
}

void ScriptPlayer::formClosed(const Form& form) {
    stage_.closed(form);
    transcript_.write(Transcript::line("closed").add("form", form.name()));
}

} // namespace quendal
