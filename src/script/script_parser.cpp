#include "script/script.h"
#include "script/script_words.h"
#include "script/step_reader.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace quendal {

namespace {

constexpr std::size_t kMostBytes = 16U << 20;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

class ScriptReader {
  public:
    // False after a fault.
    bool readLine(std::string_view line) {
        ++number_;
        line = trimmed(line);
        if (line.empty() || line.front() == '#') {
            return true;
        }
        std::string why;
        const auto words = splitWords(line, why);
        return words ? readWords(*words, line) : refuse(why);
    }

    bool finish() {
        number_ = 0;
        return started_ || refuse("no \"start\"");
    }

    Script script;
    ScriptFault fault;

  private:
    bool readWords(const Words& words, std::string_view line) {
        if (isSetting(words[0])) {
            if (started_) {
                return refuse("\"" + words[0] + "\" stands behind \"start\"");
            }
            return readSetting(words, number_, script.settings) ||
                   refuse("malformed \"" + words[0] + "\"");
        }
        ScriptStep step{number_, std::string(line), {}};
        std::string why;
        if (!readStep(words, step.what, why)) {
            return refuse(why);
        }
        return takeStep(std::move(step), words[0]);
    }

    bool takeStep(ScriptStep step, const std::string& command) {
        const bool starts = std::holds_alternative<StartStep>(step.what);
        if (starts && started_) {
            return refuse("a second \"start\"");
        }
        if (!starts && !started_ && !std::holds_alternative<AnswerStep>(step.what)) {
            return refuse("\"" + command + "\" stands before \"start\"");
        }
        started_ = started_ || starts;
        script.steps.push_back(std::move(step));
        return true;
    }

    bool refuse(std::string message) {
        fault = {number_, std::move(message)};
        return false;
    }

    int number_ = 0;
    bool started_ = false;
};

// A relative folder that isn't there from the working folder may stand beside the script.
std::string foundBeside(const std::string& file, const std::string& folder) {
    namespace fs = std::filesystem;
    std::error_code fault;
    const fs::path beside = fs::path(file).parent_path() / folder;
    const bool wanted = !folder.empty() && !fs::is_directory(folder, fault);
    return wanted && fs::is_directory(beside, fault) ? beside.string() : folder;
}

} // namespace

std::optional<Script> parseScript(std::string_view text, ScriptFault& fault) {
    if (text.starts_with("\xef\xbb\xbf")) {
        text.remove_prefix(3);
    }
    ScriptReader reader;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (!reader.readLine(text.substr(0, end))) {
            fault = reader.fault;
            return std::nullopt;
        }
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    if (!reader.finish()) {
        fault = reader.fault;
        return std::nullopt;
    }
    return std::move(reader.script);
}

std::optional<Script> loadScript(const std::string& file, ScriptFault& fault) {
    std::ifstream stream(file, std::ios::binary);
    std::string text;
    text.assign(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad()) {
        fault = {0, "the file can't be read"};
        return std::nullopt;
    }
    if (text.size() > kMostBytes) {
        fault = {0, "the file is longer than 16 MB"};
        return std::nullopt;
    }
    auto script = parseScript(text, fault);
    if (script) {
        script->file = file;
        script->settings.data = foundBeside(file, script->settings.data);
    }
    return script;
}

} // namespace quendal
