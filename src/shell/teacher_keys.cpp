#include "shell/teacher_keys.h"

#include "host/number_service.h"
#include "shell/exercise_table.h"
#include "shell/session/session.h"
#include "shell/teacher_control.h"

#include <algorithm>
#include <iterator>

namespace quendal {

namespace {

constexpr TeacherKeyRow kKeys[] = {
    {"MODUS", "1 (Lernanimationen), 2 (Klick-Demos), 3 (Selbst rechnen), 0 (nichts gesperrt)"},
    {"MODUS_ANI", "1, 2, 3, 5, 6, 7, 8, 0 (alle)"},
    {"MODUS_DEMO", "1 bis 7, 0 (alle)"},
    {"MODUS_CALC", "1 bis 6, 0 (alle)"},
    {"CON", "1 bis 5"},
    {"CALC", "wahr oder falsch"},
    {"POINTS", "wahr oder falsch"},
    {"HELP", "nichts"},
};

constexpr const char* kTabNames[] = {"Kurze Einführung", "Lernanimationen", "Klick-Demos",
                                     "Selbst rechnen"};

struct ExerciseKey {
    std::string_view name;
    StartTab tab;
};
constexpr ExerciseKey kExerciseKeys[] = {{"MODUS_ANI", StartTab::Animations},
                                         {"MODUS_DEMO", StartTab::Demos},
                                         {"MODUS_CALC", StartTab::Tasks}};

std::string textOf(const TeacherKeys& keys, std::string_view key) {
    const auto found = keys.find(std::string(key));
    return found != keys.end() ? found->second : std::string();
}

std::string quotedName(std::string_view name) {
    return "„" + std::string(name) + "“";
}

std::string trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

// The number is written out in full and nothing stands behind it.
bool isPlainNumber(std::string_view text) {
    const std::string word = trimmed(text);
    const auto whole = NumberService().ParseVariant(word);
    return whole && *whole == leadingNumber(word);
}

std::string onlyTheBeginning(std::string_view text) {
    return isPlainNumber(text) ? std::string()
                               : "Gelesen wird nur die Zahl am Anfang: " +
                                     NumberService::pointText(leadingNumber(text)) + ".";
}

void refuse(TeacherKeyAccount& account, const char* why) {
    account.finding = std::string(why) + " Erlaubt: " + account.key->values + ".";
}

// What a number key says that doesn't count; "0" is a teacher's plain way to say so.
void tellUncounted(const std::string& text, TeacherKeyAccount& account) {
    if (!text.empty() && trimmed(text) != "0") {
        refuse(account, "Das ist keine Nummer; der Schlüssel zählt nicht.");
    }
}

void tellMode(const std::string& text, const TeacherEffect& effect, TeacherKeyAccount& account) {
    if (!effect.tabLocked) {
        account.holds = "Alle vier Reiter des Startdialogs lassen sich öffnen.";
        tellUncounted(text, account);
        return;
    }
    account.holds = "Nur der Reiter " + quotedName(kTabNames[static_cast<int>(effect.tab)]) +
                    " lässt sich öffnen.";
    if (effect.tab == StartTab::Introduction) {
        account.holds += " Keine Übung ist zu erreichen.";
        refuse(account, "Diese Nummer hat kein Reiter.");
    } else {
        account.finding = onlyTheBeginning(text);
    }
}

void tellNarrowed(const std::string& text, const TeacherEffect& effect,
                  TeacherKeyAccount& account) {
    if (!countingNumber(text)) {
        account.holds = "Auf diesem Reiter bleiben alle Übungen.";
        tellUncounted(text, account);
    } else if (effect.left.empty()) {
        account.holds = "Auf diesem Reiter sind alle Übungen ausgeblendet.";
        refuse(account, "Diese Nummer hat keine Übung.");
    } else {
        account.holds =
            "Auf diesem Reiter bleibt nur " + quotedName(effect.left.front()->caption) + ".";
        account.finding = onlyTheBeginning(text);
    }
}

void tellExercise(const ExerciseKey& key, const std::string& text, const TeacherEffect& effect,
                  TeacherKeyAccount& account) {
    if (effect.tabLocked && effect.tab == key.tab) {
        tellNarrowed(text, effect, account);
    } else if (!text.empty()) {
        account.finding = "Der Schlüssel hat keine Wirkung: Er wird nur gelesen, wenn MODUS = " +
                          std::to_string(static_cast<int>(key.tab)) + " ist.";
    }
}

// A concentration in place of its number in the list is the slip that is easy to make.
std::string meantConcentration(const std::string& text) {
    std::string number = trimmed(text);
    std::replace(number.begin(), number.end(), ',', '.');
    const auto* const item =
        std::find(kConcentrationTexts.begin(), kConcentrationTexts.end(), number);
    return item == kConcentrationTexts.end()
               ? std::string()
               : "Erwartet wird ein Platz in der Liste, keine Konzentration; für " + number +
                     " mol/L ist es " +
                     std::to_string(std::distance(kConcentrationTexts.begin(), item) + 1) + ".";
}

std::string doubtsOfPlace(const std::string& text) {
    const double number = leadingNumber(text);
    if (number != roundToInt(number)) {
        return "Die Zahl ist keine ganze; sie wird zu " + std::to_string(roundToInt(number)) +
               " gerundet.";
    }
    return onlyTheBeginning(text);
}

void tellConcentration(const std::string& text, const TeacherEffect& effect,
                       TeacherKeyAccount& account) {
    if (text.empty()) {
        account.holds = "Die Konzentration lässt sich frei wählen.";
        return;
    }
    const std::string chosen =
        kConcentrationTexts[static_cast<std::size_t>(effect.concentrationIndex)];
    account.holds = "Aufgaben laufen mit " + chosen +
                    " mol/L; die Liste ist gesperrt. Klick-Demos laufen immer mit 1.0 mol/L.";
    account.finding = meantConcentration(text);
    if (!account.finding.empty()) {
        return;
    }
    if (concentrationIndex(text, kConcentrationTexts.size())) {
        account.finding = doubtsOfPlace(text);
    } else {
        refuse(account, "Diesen Platz hat die Liste der Konzentrationen nicht.");
    }
}

struct TruthTexts {
    const char* open;
    const char* on;
    const char* off;
};
constexpr TruthTexts kCalcTexts = {
    "Ob der Rechner Formelzeilen anbietet, lässt sich frei wählen.",
    "Der Rechner bietet Formelzeilen an; das Kästchen ist gesperrt.",
    "Der Rechner öffnet sich ohne Formelzeilen; das Kästchen ist gesperrt. Nur bei den "
    "Leitfähigkeiten von Salzsäure und Chlorid bietet er sie immer an."};
constexpr TruthTexts kPointsTexts = {
    "Ob Sollstellen gerechnet werden müssen, lässt sich frei wählen.",
    "Die Sollstellen müssen gerechnet werden; das Kästchen ist gesperrt.",
    "Keine Stelle muss gerechnet werden; das Kästchen ist gesperrt."};

void tellTruth(const TruthTexts& texts, const std::string& text, TeacherKeyAccount& account) {
    if (text.empty()) {
        account.holds = texts.open;
        return;
    }
    bool understood = false;
    account.holds = hBoolText(text, &understood) ? texts.on : texts.off;
    if (!understood) {
        refuse(account, "Das ist weder wahr noch falsch und gilt als falsch.");
    }
}

TeacherKeyAccount accountOf(const TeacherKeyRow& row, const TeacherKeys& keys,
                            const TeacherEffect& effect) {
    const std::string_view name = row.name;
    const std::string text = textOf(keys, name);
    TeacherKeyAccount account{.key = &row, .set = !text.empty(), .holds = {}, .finding = {}};
    const auto* const exercise =
        std::find_if(std::begin(kExerciseKeys), std::end(kExerciseKeys),
                     [name](const ExerciseKey& key) { return key.name == name; });
    if (exercise != std::end(kExerciseKeys)) {
        tellExercise(*exercise, text, effect, account);
    } else if (name == "MODUS") {
        tellMode(text, effect, account);
    } else if (name == "CON") {
        tellConcentration(text, effect, account);
    } else if (name == "CALC") {
        tellTruth(kCalcTexts, text, account);
    } else if (name == "POINTS") {
        tellTruth(kPointsTexts, text, account);
    } else if (!text.empty()) {
        account.finding = "Der Schlüssel ist nur vorgesehen und hat keine Wirkung: Die Hilfe des "
                          "Tutors bleibt erreichbar.";
    }
    return account;
}

std::vector<const ExerciseRow*> reachable(const TeacherEffect& effect,
                                          std::optional<double> number) {
    std::vector<const ExerciseRow*> left;
    for (const ExerciseRow& row : exerciseTable()) {
        if (!effect.tabLocked ||
            (row.tab == effect.tab && (!number || *number == static_cast<double>(row.key)))) {
            left.push_back(&row);
        }
    }
    return left;
}

} // namespace

std::span<const TeacherKeyRow> teacherKeyTable() {
    return kKeys;
}

TeacherEffect teacherEffect(const TeacherKeys& keys) {
    TeacherEffect effect;
    const auto mode = forcedMode(textOf(keys, "MODUS"));
    effect.tabLocked = mode.has_value();
    effect.tab = static_cast<StartTab>(mode ? mode->tab : 0);
    effect.left =
        reachable(effect, mode ? countingNumber(textOf(keys, mode->exerciseKey)) : std::nullopt);
    if (const std::string text = textOf(keys, "CON"); !text.empty()) {
        effect.concentrationFixed = true;
        effect.concentrationIndex = concentrationIndex(text, kConcentrationTexts.size())
                                        .value_or(effect.concentrationIndex);
    }
    if (const std::string text = textOf(keys, "CALC"); !text.empty()) {
        effect.calcTerm = hBoolText(text);
    }
    if (const std::string text = textOf(keys, "POINTS"); !text.empty()) {
        effect.needPoints = hBoolText(text);
    }
    return effect;
}

std::vector<TeacherKeyAccount> teacherAccounts(const TeacherKeys& keys) {
    const TeacherEffect effect = teacherEffect(keys);
    std::vector<TeacherKeyAccount> accounts;
    for (const TeacherKeyRow& row : kKeys) {
        accounts.push_back(accountOf(row, keys, effect));
    }
    return accounts;
}

} // namespace quendal
