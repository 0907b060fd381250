#include "monkey/session_settings.h"

#include "monkey/monkey_words.h"
#include "shell/single_forms.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr const char* kScreens[] = {"1366x768",  "1366x768", "1366x768", "1024x768",
                                    "1920x1080", "800x600",  "640x480",  "3840x2160"};
constexpr const char* kLocks[] = {"MODUS", "MODUS_ANI", "MODUS_DEMO", "MODUS_CALC"};
constexpr const char* kKeys[] = {"CON", "CALC", "POINTS", "HELP", "CON", "CALC", "POINTS", "FRITZ"};
constexpr const char* kNames[] = {"Mia", "Jörg Müller", "x", "\"Max\"", "😀", "1"};

// What a teacher means to do, and what can go wrong in a file.
std::string teacherText(Chance& chance) {
    constexpr const char* kSensible[] = {"1", "2", "3", "4", "5", "wahr", "falsch"};
    return chance.hit(0.6) ? chance.pick(kSensible) : anyTeacherText(chance);
}

std::string keyLine(const char* key, Chance& chance) {
    return std::string("control ") + key + " " + scriptWord(teacherText(chance));
}

void addTeacherKeys(std::vector<std::string>& lines, Chance& chance, bool locks) {
    for (int i = chance.between(1, 4); i > 0; --i) {
        const bool lock = locks && chance.hit(0.25);
        lines.push_back(keyLine(lock ? chance.pick(kLocks) : chance.pick(kKeys), chance));
    }
}

std::string lensLine(Chance& chance) {
    constexpr const char* kEdges[] = {"SourceLeft", "SourceTop", "SourceRight", "SourceBottom"};
    std::string line = "form frm_AppMagnify";
    for (const char* which : {"ShowWater", "ShowAcid"}) {
        line += std::string(" ") + which + (chance.hit(0.5) ? " true" : " false");
    }
    for (const char* edge : kEdges) {
        line += std::string(" ") + edge + " " + std::to_string(chance.between(-50, 1500));
    }
    return line;
}

std::string stageLine(Chance& chance) {
    constexpr const char* kScenes[] = {"0", "1", "3", "4", "5",  "6",
                                       "7", "0", "7", "2", "-1", "99"};
    return std::string("form frm_AppIntro Scene ") + chance.pick(kScenes);
}

} // namespace

Mood anyMood(Chance& chance) {
    const double share = chance.unit();
    return share < 0.5 ? Mood::Diligent : share < 0.8 ? Mood::Playful : Mood::Wild;
}

bool playsAlone(std::string_view form) {
    const auto forms = singleForms();
    return std::any_of(forms.begin(), forms.end(),
                       [&](const SingleForm& one) { return form == one.name; });
}

std::vector<std::string> anySettings(Chance& chance, std::string_view form) {
    std::vector<std::string> lines;
    lines.push_back("seed " + std::to_string(chance.below(1000000)));
    lines.push_back(std::string("size ") + chance.pick(kScreens));
    if (chance.hit(0.3)) {
        lines.push_back("sound " + std::to_string(chance.between(-1, 5)));
    }
    if (chance.hit(0.2)) {
        lines.emplace_back("locale point");
    }
    if (chance.hit(0.7)) {
        lines.push_back("name " + scriptWord(chance.pick(kNames)));
    } else {
        lines.push_back("user " + scriptWord(anyText(chance)));
    }
    if (chance.hit(0.4)) {
        addTeacherKeys(lines, chance, form.empty());
    }
    if (playsAlone(form)) {
        lines.push_back(form == "frm_AppIntro" ? stageLine(chance) : lensLine(chance));
    }
    return lines;
}

} // namespace quendal
