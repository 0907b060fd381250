// A script, read and checked: what the program is started with, and what the learner does then.
#pragma once

#include "host/control.h"
#include "host/host_observer.h"
#include "host/number_service.h"
#include "script/thing.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace quendal {

// One form that is played alone, in place of the whole program.
struct SingleFormSetting {
    int line = 0;
    std::string name;
    std::vector<std::pair<std::string, std::string>> fields; // name and value
};

// The lines before "start".
struct ScriptSettings {
    std::uint64_t seed = 1;
    std::map<std::string, std::string> control; // teacher keys, in capitals
    std::string user = "schueler";
    std::string name;        // empty: the name box asks for it
    std::string data;        // data folder, empty: the program's own
    std::string controlFile; // that --control names; only the desktop reads one
    std::string report;      // file for reports, empty: one that is thrown away; on the desktop
    Size screen{1366, 768};
    int sound = 0; // SoundOptions.Mode
    DecimalSign sign = DecimalSign::Comma;
    std::optional<SingleFormSetting> form;
};

enum class Relation { Equal, Unequal, Near };

struct Condition {
    Thing thing;
    Relation relation = Relation::Equal;
    std::string value;
    double nearTo = 0;    // Near
    double tolerance = 0; // Near
};

enum class Record { Box, Sound, Report };

// What the learner does.
struct ClickStep {
    ControlName control;
};
struct TypeStep {
    ControlName control;
    std::string text;
};
struct KeyStep {
    Key key = Key::Other;
    std::string character; // Key::Other
    std::optional<ControlName> control;
};
struct ChooseStep {
    ControlName control;
    std::string choice;
};
struct CheckStep {
    ControlName control;
    bool on = false;
};
struct MouseStep {
    ControlName control;
    Point place;
    MouseButton button = MouseButton::Left;
};
struct MenuStep {
    std::string name;
};
struct CloseStep {};
struct CommandStep {
    ControlName control;
    std::string command;
};

// How the script goes on.
struct StartStep {};
struct AnswerStep {
    BoxReply reply;
};
struct WaitStep {
    double seconds = 0;
};
struct SettleStep {
    double seconds = 300;
};
struct UntilStep {
    Condition condition;
    double seconds = 60;
};

// The windows stand still for so many seconds of the real clock.
struct HoldStep {
    double seconds = 0;
};

// What it looks at.
struct PrintStep {
    Thing thing;
};
struct ExpectStep {
    Condition condition;
};
struct ExpectBoxStep {
    BoxKind kind = BoxKind::Ok;
    std::string title;
    std::string text;
};
struct ExpectNoneStep {
    Record what = Record::Box;
};
struct ExpectPresetsStep {
    std::vector<std::string> lines;
};
struct ExpectSoundStep {
    std::string name;
};
struct ExpectReportStep {
    std::vector<std::string> words; // as SeenReport::words
};
struct ExpectFormStep {
    std::string name;
};
struct ExpectEndedStep {};
struct DumpStep {};
struct ScreenshotStep {
    std::string file;
};

using StepKind = std::variant<ClickStep, TypeStep, KeyStep, ChooseStep, CheckStep, MouseStep,
                              MenuStep, CloseStep, CommandStep, StartStep, AnswerStep, WaitStep,
                              SettleStep, UntilStep, PrintStep, ExpectStep, ExpectBoxStep,
                              ExpectNoneStep, ExpectPresetsStep, ExpectSoundStep, ExpectReportStep,
                              ExpectFormStep, ExpectEndedStep, DumpStep, ScreenshotStep, HoldStep>;

struct ScriptStep {
    int line = 0;     // from 1
    std::string text; // the line as it stands in the file
    StepKind what;
};

struct Script {
    std::string file; // as it was named, for messages
    ScriptSettings settings;
    std::vector<ScriptStep> steps; // with one StartStep, before which only answers stand
};

struct ScriptFault {
    int line = 0; // 0: the file as a whole
    std::string message;
};

// nullopt, and the first fault, when the text is no script. Never fails otherwise, for any bytes.
std::optional<Script> parseScript(std::string_view text, ScriptFault& fault);

// The same from a file of at most 16 MB, with its name in the script.
std::optional<Script> loadScript(const std::string& file, ScriptFault& fault);

// The kind of a box as a script writes it.
const char* boxKindName(BoxKind kind);

} // namespace quendal
