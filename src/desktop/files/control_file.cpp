#include "desktop/files/control_file.h"

#include "desktop/files/text_bytes.h"
#include "host/host_control.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isKeyCharacter(char c) {
    const char u = upper(c);
    return (u >= 'A' && u <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
}

bool isControlCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte == 0x7F || (byte < 0x20 && c != '\t' && c != '\n' && c != '\r');
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isComment(std::string_view text) {
    return text.empty() || text.front() == ';' || text.front() == '#';
}

// Cuts the next line off; "\r\n", "\n" and "\r" end one.
std::string_view takeLine(std::string_view& rest) {
    const std::size_t end = rest.find_first_of("\r\n");
    const std::string_view line = rest.substr(0, end);
    if (end == std::string_view::npos) {
        rest = {};
    } else {
        rest.remove_prefix(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
    }
    return line;
}

// The text without quotes and without a comment behind it; nullopt when a quote isn't closed or
// something stands behind it.
std::optional<std::string> valueOf(std::string_view text) {
    if (!text.empty() && text.front() == '"') {
        const std::size_t end = text.find('"', 1);
        if (end == std::string_view::npos || !isComment(trimmed(text.substr(end + 1)))) {
            return std::nullopt;
        }
        return std::string(text.substr(1, end - 1));
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool behindBlank = i == 0 || kBlanks.find(text[i - 1]) != std::string_view::npos;
        if (behindBlank && (text[i] == ';' || text[i] == '#')) {
            text = trimmed(text.substr(0, i));
            break;
        }
    }
    return std::string(text);
}

class ControlParser {
  public:
    explicit ControlParser(const ControlVisitor& visit) : visit_(visit) {}

    // False: the line belongs in no control file; fault_ says why.
    bool takeLine(std::string_view line) {
        ++number_;
        line = trimmed(line);
        if (isComment(line)) {
            return true;
        }
        if (line.front() == '[') {
            return takeSection(line);
        }
        if (section_.empty()) {
            return refuse("steht vor dem ersten Abschnitt");
        }
        return takeKey(line) || section_ != kControlSection;
    }

    bool found() const { return found_; }
    const std::string& fault() const { return fault_; }

  private:
    bool takeSection(std::string_view line) {
        const std::size_t end = line.find(']');
        if (end == std::string_view::npos || !isComment(trimmed(line.substr(end + 1)))) {
            return refuse("ist kein Abschnitt");
        }
        section_ = controlKeyName(trimmed(line.substr(1, end - 1)));
        found_ = found_ || section_ == kControlSection;
        section_ += section_.empty() ? "?" : ""; // a section without a name is one nevertheless
        return true;
    }

    bool takeKey(std::string_view line) {
        const std::size_t sign = line.find('=');
        const std::string_view key = trimmed(line.substr(0, sign));
        if (sign == std::string_view::npos || key.empty() ||
            !std::all_of(key.begin(), key.end(), isKeyCharacter)) {
            return refuse("ist kein Schlüssel der Form NAME = Text");
        }
        const std::optional<std::string> value = valueOf(trimmed(line.substr(sign + 1)));
        if (!value) {
            return refuse("hat ein Anführungszeichen ohne Gegenstück");
        }
        visit_({.line = number_, .section = section_, .key = controlKeyName(key), .text = *value});
        return true;
    }

    bool refuse(std::string_view why) {
        fault_ = "Zeile " + std::to_string(number_) + " ";
        fault_ += why;
        return false;
    }

    const ControlVisitor& visit_;
    std::string section_; // in capitals; empty before the first
    bool found_ = false;
    int number_ = 0;
    std::string fault_;
};

} // namespace

std::string controlKeyName(std::string_view key) {
    std::string name(key);
    std::transform(name.begin(), name.end(), name.begin(), upper);
    return name;
}

bool readControlFile(std::string_view bytes, const ControlVisitor& visit, std::string& fault) {
    if (bytes.size() > kControlFileLimit) {
        fault = "die Datei ist größer als 1 MB";
        return false;
    }
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    if (std::any_of(bytes.begin(), bytes.end(), isControlCharacter) || !isUtf8(bytes)) {
        fault = "die Datei ist kein Text in UTF-8";
        return false;
    }
    ControlParser parser(visit);
    while (!bytes.empty()) {
        if (!parser.takeLine(takeLine(bytes))) {
            fault = parser.fault();
            return false;
        }
    }
    if (!parser.found()) {
        fault = "der Abschnitt [" + std::string(kControlSection) + "] fehlt";
    }
    return parser.found();
}

std::optional<ControlKeys> parseControlFile(std::string_view bytes, std::string& fault) {
    ControlKeys keys;
    const auto keep = [&keys](const ControlEntry& entry) {
        if (entry.section == kControlSection && !entry.text.empty()) {
            keys.emplace(entry.key, entry.text);
        }
    };
    return readControlFile(bytes, keep, fault) ? std::optional(std::move(keys)) : std::nullopt;
}

} // namespace quendal
