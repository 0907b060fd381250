#include "script/step_reader.h"

#include "host/utf8.h"
#include "script/expect_reader.h"
#include "script/values.h"

#include <algorithm>

namespace quendal {

namespace {

using Read = std::optional<StepKind>;

std::optional<double> seconds(const Words& words, std::size_t index, double otherwise) {
    if (index >= words.size()) {
        return otherwise;
    }
    const auto value = plainNumber(words[index]);
    return value && *value >= 0 ? value : std::nullopt;
}

bool isOneCharacter(const std::string& text) {
    return !text.empty() && utf8Length(text, 0) == text.size();
}

// Steps that are told by a control and perhaps one word more.
template <class Make>
Read withControl(const Words& words, Make&& make) {
    const auto control = parseControlName(words[0]);
    return control ? Read(make(*control)) : std::nullopt;
}

Read readClick(const Words& words) {
    return withControl(words, [](const ControlName& c) { return ClickStep{c}; });
}

Read readType(const Words& words) {
    return withControl(words, [&](const ControlName& c) { return TypeStep{c, words[1]}; });
}

Read readChoose(const Words& words) {
    return withControl(words, [&](const ControlName& c) { return ChooseStep{c, words[1]}; });
}

Read readCommand(const Words& words) {
    return withControl(words, [&](const ControlName& c) { return CommandStep{c, words[1]}; });
}

Read readCheck(const Words& words) {
    if (words[1] != "on" && words[1] != "off") {
        return std::nullopt;
    }
    return withControl(words, [&](const ControlName& c) { return CheckStep{c, words[1] == "on"}; });
}

Read readKey(const Words& words) {
    KeyStep step;
    if (words[0] == "ENTER") {
        step.key = Key::Enter;
    } else if (words[0] == "ESC") {
        step.key = Key::Escape;
    } else if (words[0] == "TAB") {
        step.key = Key::Tab;
    } else if (isOneCharacter(words[0])) {
        step.character = words[0];
    } else {
        return std::nullopt;
    }
    if (words.size() == 2) {
        step.control = parseControlName(words[1]);
        if (!step.control) {
            return std::nullopt;
        }
    }
    return step;
}

Read readMouse(const Words& words) {
    const auto x = plainNumber(words[1]);
    const auto y = plainNumber(words[2]);
    const std::string button = words.size() == 4 ? words[3] : "left";
    if (!x || !y || (button != "left" && button != "right")) {
        return std::nullopt;
    }
    return withControl(words, [&](const ControlName& c) {
        return MouseStep{c, {*x, *y}, button == "left" ? MouseButton::Left : MouseButton::Right};
    });
}

Read readAnswer(const Words& words) {
    using Kind = BoxReply::Kind;
    static const std::map<std::string, Kind> kPlain{
        {"yes", Kind::Yes}, {"no", Kind::No}, {"ok", Kind::Ok}, {"cancel", Kind::Cancel}};
    if (const auto plain = kPlain.find(words[0]); plain != kPlain.end()) {
        return words.size() == 1 ? Read(AnswerStep{{plain->second, {}, 0}}) : std::nullopt;
    }
    if (words.size() != 2) {
        return std::nullopt;
    }
    if (words[0] == "text") {
        return AnswerStep{{Kind::Text, words[1], 0}};
    }
    if (words[0] == "value" && NumberService().ParseVariant(words[1])) {
        return AnswerStep{{Kind::Value, words[1], 0}};
    }
    const int preset = words[0] == "preset" ? wholeNumber(words[1]).value_or(0) : 0;
    return preset >= 1 ? Read(AnswerStep{{Kind::Preset, {}, preset}}) : std::nullopt;
}

Read readWait(const Words& words) {
    const auto time = seconds(words, 0, 0);
    return time ? Read(WaitStep{*time}) : std::nullopt;
}

Read readHold(const Words& words) {
    const auto time = seconds(words, 0, 0);
    return time ? Read(HoldStep{*time}) : std::nullopt;
}

Read readSettle(const Words& words) {
    const auto time = seconds(words, 0, SettleStep{}.seconds);
    return time ? Read(SettleStep{*time}) : std::nullopt;
}

Read readUntil(const Words& words) {
    const std::size_t length = words[1] == "~=" ? 4 : 3;
    if (words.size() < length || words.size() > length + 1) {
        return std::nullopt;
    }
    const auto condition = readCondition({words.begin(), words.begin() + std::ptrdiff_t(length)});
    const auto time = seconds(words, length, UntilStep{}.seconds);
    return condition && time ? Read(UntilStep{*condition, *time}) : std::nullopt;
}

Read readPrint(const Words& words) {
    const auto thing = parseThing(words[0]);
    return thing ? Read(PrintStep{*thing}) : std::nullopt;
}

struct StepRow {
    const char* command;
    std::size_t least; // words behind the command
    std::size_t most;
    Read (*read)(const Words& words);
};

constexpr std::size_t kAny = 1000;

const StepRow kSteps[] = {
    {"start", 0, 0, [](const Words&) { return Read(StartStep{}); }},
    {"click", 1, 1, readClick},
    {"type", 2, 2, readType},
    {"key", 1, 2, readKey},
    {"choose", 2, 2, readChoose},
    {"check", 2, 2, readCheck},
    {"mouse", 3, 4, readMouse},
    {"menu", 1, 1, [](const Words& words) { return Read(MenuStep{words[0]}); }},
    {"close", 0, 0, [](const Words&) { return Read(CloseStep{}); }},
    {"command", 2, 2, readCommand},
    {"answer", 1, 2, readAnswer},
    {"wait", 1, 1, readWait},
    {"hold", 1, 1, readHold},
    {"settle", 0, 1, readSettle},
    {"until", 3, 5, readUntil},
    {"print", 1, 1, readPrint},
    {"expect", 1, kAny, readExpect},
    {"dump", 0, 0, [](const Words&) { return Read(DumpStep{}); }},
    {"screenshot", 1, 1, [](const Words& words) { return Read(ScreenshotStep{words[0]}); }},
};

} // namespace

bool readStep(const Words& words, StepKind& step, std::string& fault) {
    const auto* row = std::find_if(std::begin(kSteps), std::end(kSteps),
                                   [&](const StepRow& r) { return words[0] == r.command; });
    if (row == std::end(kSteps)) {
        fault = "unknown command";
        return false;
    }
    const Words arguments(words.begin() + 1, words.end());
    const bool fits = arguments.size() >= row->least && arguments.size() <= row->most;
    auto read = fits ? row->read(arguments) : std::nullopt;
    if (!read) {
        fault = "malformed \"" + words[0] + "\"";
        return false;
    }
    step = std::move(*read);
    return true;
}

} // namespace quendal
