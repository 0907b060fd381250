// The keys by which a teacher controls the start dialog, and what a set of them comes to, told in
// German to the teacher.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quendal {

struct ExerciseRow;
enum class StartTab;

struct TeacherKeyRow {
    const char* name;
    const char* values; // what may stand there, in German
};

// All keys in the order in which the start dialog reads them.
std::span<const TeacherKeyRow> teacherKeyTable();

// What the list of concentrations offers, in its order.
inline constexpr std::array<const char*, 5> kConcentrationTexts = {"0.6", "0.8", "1.0", "1.2",
                                                                   "1.4"};

// Keys in capitals with their texts; one that isn't set is missing or empty.
using TeacherKeys = std::map<std::string, std::string>;

// What the start dialog makes of the keys.
struct TeacherEffect {
    bool tabLocked = false;
    StartTab tab{};                       // that can't be left, when tabLocked
    std::vector<const ExerciseRow*> left; // exercises that can still be opened
    bool concentrationFixed = false;
    int concentrationIndex = 2;   // in kConcentrationTexts
    std::optional<bool> calcTerm; // empty: the learner chooses
    std::optional<bool> needPoints;
};
TeacherEffect teacherEffect(const TeacherKeys& keys);

struct TeacherKeyAccount {
    const TeacherKeyRow* key;
    bool set = false;
    std::string holds;   // German: what the learner finds; empty when there is nothing to say
    std::string finding; // German: what isn't understood or has no effect; empty for none
};

// One account a key, in the order of the table.
std::vector<TeacherKeyAccount> teacherAccounts(const TeacherKeys& keys);

} // namespace quendal
