#include "shell/teacher_keys.h"

#include "shell/exercise_table.h"
#include "shell_fixture.h"

#include <algorithm>

namespace quendal::test {
namespace {

const TeacherKeyAccount& accountOf(const std::vector<TeacherKeyAccount>& accounts,
                                   const std::string& key) {
    return *std::find_if(accounts.begin(), accounts.end(),
                         [&key](const TeacherKeyAccount& one) { return one.key->name == key; });
}

TeacherKeyAccount account(const TeacherKeys& keys, const std::string& key) {
    return accountOf(teacherAccounts(keys), key);
}

// What a learner finds in the dialog with the keys of a teacher.
struct Found {
    bool tabLocked = false;
    int tab = 0;
    std::vector<std::string> left;
    std::string concentration;
    bool concentrationFixed = false;
    std::optional<bool> calcTerm;
    std::optional<bool> needPoints;
};

std::optional<bool> forced(const CheckBox& box) {
    return box.enabled() ? std::nullopt : std::optional(box.checked());
}

class TeacherKeysTest : public ShellTest {
  protected:
    TeacherKeysTest() { host.control.UserName = "Mia"; }

    Found dialogWith(const TeacherKeys& keys) {
        host.control.keys = {keys.begin(), keys.end()};
        logged.clear();
        Found found;
        frm_DialogStartup dialog;
        later([&] {
            found = look(dialog);
            host.windows.userClosed(dialog);
        });
        host.windows.ShowModal(dialog);
        return found;
    }

    static Found look(frm_DialogStartup& dialog) {
        Found found{.tabLocked = dialog.TabLocked,
                    .tab = dialog.ForcedTab,
                    .left = {},
                    .concentration = dialog.lst_Mol.text(),
                    .concentrationFixed = !dialog.lst_Mol.enabled(),
                    .calcTerm = forced(dialog.opt_CalcTerm),
                    .needPoints = forced(dialog.opt_NeedCalc)};
        for (const ExerciseRow& row : exerciseTable()) {
            const bool reached = !dialog.TabLocked || static_cast<int>(row.tab) == dialog.ForcedTab;
            if (reached && (dialog.*row.button).visible()) {
                found.left.push_back((dialog.*row.button).text());
            }
        }
        return found;
    }

    static std::string shown(const TeacherKeys& keys) {
        std::string text;
        for (const auto& [key, value] : keys) {
            text += key + "=" + value + " ";
        }
        return text;
    }

    // The effect that is told is the one that the dialog shows, and what the dialog logs as not
    // understood is told as a finding.
    void expectTheSame(const TeacherKeys& keys) {
        const Found found = dialogWith(keys);
        const TeacherEffect effect = teacherEffect(keys);
        EXPECT_EQ(effect.tabLocked, found.tabLocked) << shown(keys);
        EXPECT_EQ(static_cast<int>(effect.tab), found.tab) << shown(keys);
        std::vector<std::string> left;
        for (const ExerciseRow* row : effect.left) {
            left.emplace_back(row->caption);
        }
        EXPECT_EQ(left, found.left) << shown(keys);
        EXPECT_EQ(kConcentrationTexts.at(static_cast<std::size_t>(effect.concentrationIndex)),
                  found.concentration)
            << shown(keys);
        EXPECT_EQ(effect.concentrationFixed, found.concentrationFixed) << shown(keys);
        EXPECT_EQ(effect.calcTerm, found.calcTerm) << shown(keys);
        EXPECT_EQ(effect.needPoints, found.needPoints) << shown(keys);
        for (const std::string& line : logged) {
            const bool told = std::any_of(
                keys.begin(), keys.end(), [&line, accounts = teacherAccounts(keys)](auto& pair) {
                    return line.find(" " + pair.first + " = ") != std::string::npos &&
                           !accountOf(accounts, pair.first).finding.empty();
                });
            EXPECT_TRUE(told) << line;
        }
    }
};

const std::vector<std::string> kTexts = {"",     "0",
                                         "1",    "2",
                                         "3",    "4",
                                         "5",    "6",
                                         "7",    "8",
                                         "9",    "-1",
                                         " 3",   "3 ",
                                         "3abc", "2,5",
                                         "2.5",  "0.6",
                                         "0,8",  "1.0",
                                         "1.4",  "1e1",
                                         "abc",  "  ",
                                         "wahr", "Falsch",
                                         "TRUE", "false",
                                         "ja",   "1e999",
                                         "-2",   "+2",
                                         "0x2",  "99999999999999999999"};

TEST_F(TeacherKeysTest, TellWhatTheDialogDoesForEveryText) {
    for (const TeacherKeyRow& row : teacherKeyTable()) {
        for (const std::string& text : kTexts) {
            expectTheSame({{row.name, text}});
        }
    }
}

TEST_F(TeacherKeysTest, TellWhatTheDialogDoesForEveryPairOfModeAndExercise) {
    for (const std::string& mode : kTexts) {
        for (const char* key : {"MODUS_ANI", "MODUS_DEMO", "MODUS_CALC"}) {
            for (const std::string& text : kTexts) {
                expectTheSame({{"MODUS", mode}, {key, text}});
            }
        }
    }
}

TEST_F(TeacherKeysTest, ListTheConcentrationsOfTheDialog) {
    const frm_DialogStartup dialog;
    EXPECT_EQ(dialog.lst_Mol.items(),
              std::vector<std::string>(kConcentrationTexts.begin(), kConcentrationTexts.end()));
}

TEST(TeacherAccounts, HaveNothingToFindInWhatIsPlain) {
    for (const TeacherKeys& keys :
         {TeacherKeys{}, TeacherKeys{{"MODUS", "0"}}, TeacherKeys{{"MODUS", "1"}},
          TeacherKeys{{"MODUS", "2"}, {"MODUS_DEMO", "7"}, {"CON", "1"}, {"CALC", "wahr"}},
          TeacherKeys{{"MODUS", "3"}, {"MODUS_CALC", "0"}, {"POINTS", "0"}}}) {
        for (const TeacherKeyAccount& one : teacherAccounts(keys)) {
            EXPECT_EQ(one.finding, "") << one.key->name;
        }
    }
}

TEST(TeacherAccounts, SayWhyAKeyHasNoEffect) {
    EXPECT_NE(
        account({{"MODUS", "2"}, {"MODUS_CALC", "4"}}, "MODUS_CALC").finding.find("MODUS = 3"),
        std::string::npos);
    EXPECT_NE(account({{"HELP", "0"}}, "HELP").finding.find("keine Wirkung"), std::string::npos);
}

TEST(TeacherAccounts, KnowTheSlipOfAConcentrationInPlaceOfItsNumber) {
    EXPECT_NE(account({{"CON", "0,8"}}, "CON").finding.find("ist es 2."), std::string::npos);
    EXPECT_NE(account({{"CON", "1.0"}}, "CON").finding.find("ist es 3."), std::string::npos);
    EXPECT_NE(account({{"CON", "1.4"}}, "CON").holds.find("0.6 mol/L"), std::string::npos);
    EXPECT_NE(account({{"CON", "2.7"}}, "CON").finding.find("zu 3 gerundet"), std::string::npos);
}

TEST(TeacherAccounts, NameTheExerciseThatIsLeft) {
    EXPECT_NE(account({{"MODUS", "3"}, {"MODUS_CALC", "5"}}, "MODUS_CALC")
                  .holds.find("Schwache Säure mit starker Base"),
              std::string::npos);
    const TeacherKeyAccount none = account({{"MODUS", "1"}, {"MODUS_ANI", "4"}}, "MODUS_ANI");
    EXPECT_NE(none.holds.find("alle Übungen ausgeblendet"), std::string::npos);
    EXPECT_NE(none.finding.find("1, 2, 3, 5, 6, 7, 8"), std::string::npos);
}

} // namespace
} // namespace quendal::test
