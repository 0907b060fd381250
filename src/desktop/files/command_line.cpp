#include "desktop/files/command_line.h"

#include "desktop/services/product.h"

#include <algorithm>
#include <cstddef>

namespace quendal {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool needsQuotes(std::string_view argument) {
    return argument.empty() || argument.find_first_of(" \t\r\n\"") != std::string_view::npos;
}

std::string quoted(std::string_view argument) {
    std::string text = "\"";
    for (const char c : argument) {
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    return text + '"';
}

// Reads one quoted stretch; `at` stands behind the opening quote and ends behind the closing one.
void takeQuoted(std::string_view text, std::size_t& at, std::string& word) {
    while (at < text.size() && text[at] != '"') {
        const bool escape = text[at] == '\\' && at + 1 < text.size() &&
                            (text[at + 1] == '"' || text[at + 1] == '\\');
        at += escape ? 1 : 0;
        word += text[at++];
    }
    ++at;
}

std::string takeWord(std::string_view text, std::size_t& at) {
    std::string word;
    while (at < text.size() && kBlanks.find(text[at]) == std::string_view::npos) {
        if (text[at] == '"') {
            takeQuoted(text, ++at, word);
        } else {
            word += text[at++];
        }
    }
    return word;
}

struct ValueOption {
    std::string_view name;
    std::string CommandLine::*field;
};

constexpr ValueOption kValueOptions[] = {{"--data", &CommandLine::dataFolder},
                                         {"--control", &CommandLine::controlFile},
                                         {"--report", &CommandLine::reportFile},
                                         {"--check-control", &CommandLine::checkedFile}};

// The value that stands behind `sign` in the word itself, or else the next word, unless that is an
// option; empty without either.
std::string takeValue(const std::vector<std::string>& words, std::size_t& at, std::size_t sign) {
    if (sign != std::string_view::npos) {
        return words[at].substr(sign + 1);
    }
    return at + 1 < words.size() && words[at + 1].substr(0, 2) != "--" ? words[++at] : "";
}

bool takeTour(const std::vector<std::string>& words, std::size_t& at, CommandLine& line) {
    const std::string_view word = words[at];
    const std::size_t sign = word.find('=');
    if (word.substr(0, sign) != "--tour") {
        return false;
    }
    line.tour = true;
    line.tourFolder = takeValue(words, at, sign);
    return true;
}

// Takes the option at `at` with its value; false when the word is no option with a value.
bool takeValueOption(const std::vector<std::string>& words, std::size_t& at, CommandLine& line) {
    const std::string_view word = words[at];
    const std::size_t sign = word.find('=');
    const std::string_view name = word.substr(0, sign);
    const auto* option =
        std::find_if(std::begin(kValueOptions), std::end(kValueOptions),
                     [name](const ValueOption& known) { return known.name == name; });
    if (option == std::end(kValueOptions)) {
        return false;
    }
    line.check = line.check || option->field == &CommandLine::checkedFile;
    std::string value = takeValue(words, at, sign);
    if (value.empty()) {
        line.faults.push_back("Der Option " + std::string(name) + " fehlt ihr Wert.");
    } else {
        line.*(option->field) = std::move(value);
    }
    return true;
}

} // namespace

std::string joinArguments(const std::vector<std::string>& arguments) {
    std::string text;
    for (const std::string& argument : arguments) {
        text += text.empty() ? "" : " ";
        text += needsQuotes(argument) ? quoted(argument) : argument;
    }
    return text;
}

std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> words;
    std::size_t at = text.find_first_not_of(kBlanks);
    while (at < text.size()) {
        words.push_back(takeWord(text, at));
        at = text.find_first_not_of(kBlanks, std::min(at, text.size()));
    }
    return words;
}

CommandLine parseCommandLine(std::string_view text) {
    CommandLine line;
    const std::vector<std::string> words = splitArguments(text);
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (word == "--help" || word == "-h") {
            line.help = true;
        } else if (word == "--version") {
            line.version = true;
        } else if (!takeTour(words, at, line) && !takeValueOption(words, at, line)) {
            line.faults.push_back("Die Option " + quoted(word) +
                                  " gibt es nicht; --help zeigt, was es gibt.");
        }
    }
    return line;
}

std::string helpText() {
    return R"(Quendal: Titrationen verstehen, ansehen und selbst rechnen.

Aufruf: quendal [Optionen]

  --data ORDNER     Ordner mit Bildern, Kurven, Hilfetexten und Tönen
  --control DATEI   Steuerdatei der Lehrkraft (INI-Datei mit dem Abschnitt
                    [QUENDAL_CONTROL]); was das System festlegt, geht vor
  --report DATEI    Datei, an die Fortschritt und Ergebnisse angehängt werden,
                    eine JSON-Zeile je Ereignis
  --tour [ORDNER]   spielt eine ganze Aufgabe von selbst: auf dem Bildschirm
                    oder, ohne Bildschirm und wenn ein Ordner genannt ist, als
                    PNG-Bilder in diesen Ordner (sonst nach quendal-tour)
  --check-control DATEI
                    sagt, was eine Steuerdatei festlegt und was darin nicht
                    stimmt, und endet: mit 0, wenn alles verstanden ist, mit 1
                    bei Fundstellen, mit 2, wenn sie sich nicht lesen lässt
  --help            zeigt diesen Text
  --version         zeigt die Version

Ohne --control liest das Programm quendal/control.ini im Ordner für
Einstellungen des Systems (etwa /etc/xdg) und in dem des Benutzers (~/.config).
Ohne --report schreibt es nach quendal/reports.jsonl im Datenordner des
Benutzers (~/.local/share). Namen mit Leerzeichen stehen in Anführungszeichen.
)";
}

std::string versionText() {
    return std::string(kProductName) + " " + kProductVersion + " (" + kProductLicence + ")\n";
}

} // namespace quendal
