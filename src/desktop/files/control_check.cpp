#include "desktop/files/control_check.h"

#include "desktop/files/control_file.h"
#include "desktop/files/nearest_word.h"
#include "desktop/files/text_bytes.h"
#include "host/host_control.h"
#include "shell/teacher_control.h"
#include "shell/teacher_keys.h"

#include <algorithm>
#include <fstream>
#include <vector>

namespace quendal {

namespace {

constexpr std::size_t kWidth = 80; // characters a line
// More findings than a teacher can use are counted only.
constexpr std::size_t kShownFindings = 20;

std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

// Breaks at blanks; every line begins with `indent` blanks.
std::string wrapped(std::string_view text, std::size_t indent) {
    std::string lines;
    std::string line(indent, ' ');
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        const bool first = line.size() == indent;
        if (!first && characters(line) + 1 + characters(word) > kWidth) {
            lines += line + '\n';
            line.assign(indent, ' ');
        } else if (!first) {
            line += ' ';
        }
        line += word;
    }
    return lines + line + '\n';
}

std::string sectionName() {
    return "[" + std::string(kControlSection) + "]";
}

bool isKnown(std::string_view key) {
    const auto table = teacherKeyTable();
    return std::any_of(table.begin(), table.end(),
                       [key](const TeacherKeyRow& row) { return key == row.name; });
}

std::string knownKeys(const char* between) {
    std::string list;
    for (const TeacherKeyRow& row : teacherKeyTable()) {
        list += (list.empty() ? "" : between) + std::string(row.name);
    }
    return list;
}

class Findings {
  public:
    // `line` 0 for what concerns the whole file.
    void add(int line, const std::string& text) {
        found_.push_back({line, line == 0 ? text : "Zeile " + std::to_string(line) + ": " + text});
    }
    std::size_t count() const { return found_.size(); }

    // From the top of the file to its end.
    std::string text() const {
        std::vector<Finding> sorted = found_;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const Finding& a, const Finding& b) { return a.line < b.line; });
        std::string text;
        for (std::size_t i = 0; i < std::min(sorted.size(), kShownFindings); ++i) {
            text += wrapped(sorted[i].text, 2);
        }
        return sorted.size() <= kShownFindings
                   ? text
                   : text + "  und " + std::to_string(sorted.size() - kShownFindings) +
                         " weitere.\n";
    }

  private:
    struct Finding {
        int line;
        std::string text;
    };
    std::vector<Finding> found_;
};

// Follows the reader line by line and keeps what the program keeps.
class KeyCollector {
  public:
    explicit KeyCollector(Findings& findings) : findings_(findings) {}

    void take(const ControlEntry& entry) {
        if (entry.section != kControlSection) {
            takeForeign(entry);
        } else if (!isKnown(entry.key)) {
            takeUnknown(entry);
        } else if (!entry.text.empty()) {
            takeKnown(entry);
        }
    }

    const TeacherKeys& keys() const { return keys_; }
    int lineOf(const std::string& key) const { return lines_.at(key); }

  private:
    void takeForeign(const ControlEntry& entry) {
        if (isKnown(entry.key)) {
            findings_.add(entry.line, entry.key + " steht unter [" + shownText(entry.section) +
                                          "] und zählt dort nicht; es gehört unter " +
                                          sectionName() + ".");
        }
    }

    void takeUnknown(const ControlEntry& entry) {
        std::vector<std::string_view> names;
        for (const TeacherKeyRow& row : teacherKeyTable()) {
            names.emplace_back(row.name);
        }
        const std::string_view meant = nearestWord(entry.key, names);
        findings_.add(entry.line,
                      "Den Schlüssel " + shownText(entry.key) + " gibt es nicht; er zählt nicht. " +
                          (meant.empty() ? "Es gibt " + knownKeys(", ") + "."
                                         : "Gemeint ist wohl " + std::string(meant) + "."));
    }

    void takeKnown(const ControlEntry& entry) {
        if (keys_.emplace(entry.key, entry.text).second) {
            lines_.emplace(entry.key, entry.line);
            return;
        }
        findings_.add(entry.line, entry.key + " steht schon in Zeile " +
                                      std::to_string(lines_.at(entry.key)) +
                                      "; die erste gilt, diese zählt nicht.");
    }

    Findings& findings_;
    TeacherKeys keys_;
    std::map<std::string, int> lines_;
};

std::string told(const std::vector<TeacherKeyAccount>& accounts, const KeyCollector& collector,
                 bool set) {
    std::string text;
    for (const TeacherKeyAccount& account : accounts) {
        const std::string key = account.key->name;
        if (account.set == set && !account.holds.empty()) {
            text += "  " + key;
            text += set ? " = " + shownText(collector.keys().at(key)) + "\n" : "\n";
            text += wrapped(account.holds, 6);
        }
    }
    return text;
}

std::string paragraph(const char* heading, const std::string& text) {
    return text.empty() ? std::string() : "\n" + std::string(heading) + "\n" + text;
}

std::string closing(std::size_t findings) {
    if (findings == 0) {
        return "\nAlles verstanden.\n";
    }
    return findings == 1 ? "\nEine Fundstelle.\n"
                         : "\n" + std::to_string(findings) + " Fundstellen.\n";
}

std::string title(std::string_view name) {
    return "Steuerdatei „" + repairedUtf8(name) + "“\n";
}

// What a teacher can do about a file that is refused; empty when the reason says it all.
std::string remedy(std::string_view bytes) {
    if (bytes.size() > kControlFileLimit) {
        return {};
    }
    const std::string_view start = bytes.substr(0, 2);
    if (start == "\xFF\xFE" || start == "\xFE\xFF") {
        return "Sie sieht nach UTF-16 aus. Speichern Sie sie im Editor als UTF-8.";
    }
    if (!isUtf8(bytes)) {
        return "In Zeile " + std::to_string(lineOfForeignByte(bytes)) +
               " steht das erste fremde Zeichen, oft ein Umlaut in einem anderen Zeichensatz. "
               "Speichern Sie sie im Editor als UTF-8.";
    }
    return "Eine Steuerdatei beginnt mit der Zeile " + sectionName() +
           "; darunter steht je Zeile ein Schlüssel, etwa MODUS = 3.";
}

ControlCheck refused(std::string_view bytes, std::string_view name, const std::string& fault,
                     Findings& findings) {
    findings.add(0, "Die ganze Datei zählt nicht: " + fault + ".");
    ControlCheck check{.verdict = ControlVerdict::Findings, .report = title(name)};
    check.report += paragraph("Was nicht stimmt:", findings.text());
    if (const std::string help = remedy(bytes); !help.empty()) {
        check.report += "\n" + wrapped(help, 0);
    }
    check.report += "\n" + wrapped("Quendal verhält sich, als gäbe es die Datei nicht: Sie sperrt "
                                   "nichts und gibt nichts vor.",
                                   0);
    check.report += closing(findings.count());
    return check;
}

ControlCheck unreadable(const std::filesystem::path& path, std::string_view why) {
    return {.verdict = ControlVerdict::Unreadable,
            .report = title(path.string()) + "\n" +
                      wrapped("Sie lässt sich nicht lesen: " + std::string(why) +
                                  ". Quendal verhält sich, als gäbe es sie nicht.",
                              0)};
}

// At most one byte more than a control file may have.
std::string firstBytes(std::istream& file) {
    std::string bytes(kControlFileLimit + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

} // namespace

ControlCheck checkControlText(std::string_view bytes, std::string_view name) {
    Findings findings;
    KeyCollector collector(findings);
    std::string fault;
    const auto take = [&collector](const ControlEntry& entry) { collector.take(entry); };
    if (!readControlFile(bytes, take, fault)) {
        return refused(bytes, name, fault, findings);
    }
    const auto accounts = teacherAccounts(collector.keys());
    for (const TeacherKeyAccount& account : accounts) {
        if (!account.finding.empty()) {
            const std::string key = account.key->name;
            findings.add(collector.lineOf(key), key + " = " + shownText(collector.keys().at(key)) +
                                                    ". " + account.finding);
        }
    }
    return {
        .verdict = findings.count() == 0 ? ControlVerdict::Understood : ControlVerdict::Findings,
        .report = title(name) + paragraph("Was sie festlegt:", told(accounts, collector, true)) +
                  paragraph("Was sie offen lässt:", told(accounts, collector, false)) +
                  paragraph("Was nicht stimmt:", findings.text()) + closing(findings.count())};
}

ControlCheck checkControlFile(const std::filesystem::path& path) {
    std::error_code trouble;
    const auto status = std::filesystem::status(path, trouble);
    if (!std::filesystem::exists(status)) {
        return unreadable(path, "es gibt sie nicht");
    }
    if (!std::filesystem::is_regular_file(status)) { // a pipe or a device would never end
        return unreadable(path, "das ist keine Datei");
    }
    std::ifstream file(path, std::ios::binary);
    const std::string bytes = firstBytes(file);
    if (file.bad() || !file.is_open()) {
        return unreadable(path, "das Recht dazu fehlt, oder der Datenträger hat einen Fehler");
    }
    return checkControlText(bytes, path.string());
}

} // namespace quendal
