#include "shell/frm_DialogStartup.h"

#include "animations/frm_AppIntro.h"
#include "shell/exercise_table.h"
#include "shell_fixture.h"

#include <algorithm>

namespace quendal::test {
namespace {

class DialogStartup : public ShellTest {
  protected:
    DialogStartup() { host.control.UserName = "Mia"; }

    // Shows the dialog, lets `act` run while it is open, and closes it by its window if need be.
    void show(const std::function<void(frm_DialogStartup&)>& act) {
        frm_DialogStartup dialog;
        later([&] { act(dialog); });
        later([&] { host.windows.userClosed(dialog); });
        host.windows.ShowModal(dialog);
        host.windows.events.clear();
        result = dialog.Result;
    }

    static std::vector<std::string> visibleButtons(frm_DialogStartup& dialog, StartTab tab) {
        std::vector<std::string> names;
        for (const ExerciseRow& row : exerciseTable()) {
            if (row.tab == tab && (dialog.*row.button).visible()) {
                names.push_back((dialog.*row.button).name());
            }
        }
        return names;
    }

    int result = 0;
};

TEST_F(DialogStartup, StartsFreeWithoutTeacherKeys) {
    show([](frm_DialogStartup& dialog) {
        EXPECT_EQ(dialog.SSTab1.tab(), 0);
        EXPECT_EQ(dialog.lst_Mol.text(), "1.0");
        EXPECT_TRUE(dialog.lst_Mol.enabled());
        for (CheckBox* box :
             {&dialog.opt_CalcTerm, &dialog.opt_NeedCalc, &dialog.opt_EnableSounds}) {
            EXPECT_TRUE(box->checked());
            EXPECT_TRUE(box->enabled());
        }
        EXPECT_EQ(visibleButtons(dialog, StartTab::Animations).size(), 7U);
        EXPECT_EQ(visibleButtons(dialog, StartTab::Demos).size(), 7U);
        EXPECT_EQ(visibleButtons(dialog, StartTab::Tasks).size(), 6U);
        for (const int tab : {3, 1, 2, 0}) {
            dialog.SSTab1.userChose(tab);
            EXPECT_EQ(dialog.SSTab1.tab(), tab);
        }
        EXPECT_EQ(dialog.MovieGridColor, (Color{220, 220, 220}));
        EXPECT_EQ(dialog.pic_Movie(0).backcolor(), kWhite);
        EXPECT_NE(dialog.Label5.text().find("lernen: \r\rLernanimationen zeigen:\r- die"),
                  std::string::npos);
    });
    EXPECT_EQ(result, 3);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_TRUE(logged.empty());
}

TEST_F(DialogStartup, AsksForANameOnce) {
    host.control.UserName.clear();
    host.boxes.inputs = {"  Mia Muster \t"};
    show([](frm_DialogStartup&) {});
    EXPECT_EQ(host.control.UserName, "Mia Muster");
    ASSERT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(host.boxes.shown[0].text, "Gib Deinen Namen ein:");
    EXPECT_EQ(host.boxes.shown[0].title, "Name?");
    EXPECT_EQ(host.boxes.shown[0].extra, "lerner");
    show([](frm_DialogStartup&) {});
    EXPECT_EQ(host.boxes.shown.size(), 1U);
}

TEST_F(DialogStartup, TakesTheLoginForANameThatIsCancelledOrBlank) {
    for (const char* answer : {"", "   "}) {
        host.control.UserName.clear();
        host.boxes.inputs = {answer};
        show([](frm_DialogStartup&) {});
        EXPECT_EQ(host.control.UserName, "lerner");
    }
}

TEST_F(DialogStartup, ReadsTheTeachersKeysOncePerDialog) {
    show([this](frm_DialogStartup& dialog) {
        EXPECT_TRUE(dialog.Activated);
        host.control.keys["CON"] = "5";
        dialog.Form_Activate();
        EXPECT_EQ(dialog.lst_Mol.text(), "1.0");
    });
    show([](frm_DialogStartup& dialog) { EXPECT_EQ(dialog.lst_Mol.text(), "1.4"); });
}

TEST_F(DialogStartup, IsLockedToTheTeachersTab) {
    host.control.keys["MODUS"] = "3";
    show([](frm_DialogStartup& dialog) {
        EXPECT_EQ(dialog.ForcedTab, 3);
        EXPECT_TRUE(dialog.TabLocked);
        EXPECT_EQ(dialog.SSTab1.tab(), 3);
        EXPECT_EQ(visibleButtons(dialog, StartTab::Tasks).size(), 6U);
        dialog.SSTab1.userChose(0);
        EXPECT_EQ(dialog.SSTab1.tab(), 3);
    });
    EXPECT_TRUE(host.boxes.shown.empty());
}

TEST_F(DialogStartup, IsNarrowedToTheTeachersExercise) {
    using Names = std::vector<std::string>;
    struct Row {
        const char* mode;
        const char* key;
        const char* value;
        StartTab tab;
        Names left;
    };
    for (const Row& row :
         std::vector<Row>{{"3", "MODUS_CALC", "2", StartTab::Tasks, {"but_CunductoWeak"}},
                          {"3", "MODUS_CALC", "4", StartTab::Tasks, {"ctl_Button3"}},
                          {"3", "MODUS_CALC", "7", StartTab::Tasks, {}},
                          {"3", "MODUS_CALC", "4.5", StartTab::Tasks, {}},
                          {"2", "MODUS_DEMO", "5", StartTab::Demos, {"ctl_Button15"}},
                          {"2", "MODUS_DEMO", "3abc", StartTab::Demos, {"Ctl_Button18"}},
                          {"1", "MODUS_ANI", "1", StartTab::Animations, {"but_IntroLeit"}},
                          {"1", "MODUS_ANI", "4", StartTab::Animations, {}},
                          {"1", "MODUS_ANI", "5", StartTab::Animations, {"ctl_Button1"}},
                          {"1", "MODUS_ANI", "8", StartTab::Animations, {"ctl_Button12"}}}) {
        host.control.keys = {{"MODUS", row.mode}, {row.key, row.value}};
        logged.clear();
        show([&](frm_DialogStartup& dialog) {
            EXPECT_EQ(visibleButtons(dialog, row.tab), row.left) << row.key << row.value;
            EXPECT_TRUE(dialog.TabLocked);
        });
        EXPECT_EQ(logged.size(), row.left.empty() ? 1U : 0U);
    }
}

TEST_F(DialogStartup, LocksTheIntroductionForAnotherMode) {
    for (const char* mode : {"7", "9", "2.5", "1e1"}) {
        host.control.keys = {{"MODUS", mode}, {"MODUS_ANI", "1"}, {"MODUS_CALC", "2"}};
        logged.clear();
        show([](frm_DialogStartup& dialog) {
            EXPECT_TRUE(dialog.TabLocked);
            EXPECT_EQ(dialog.ForcedTab, 0);
            dialog.SSTab1.userChose(3);
            EXPECT_EQ(dialog.SSTab1.tab(), 0);
            EXPECT_EQ(visibleButtons(dialog, StartTab::Tasks).size(), 6U);
            dialog.ctl_Button5.userClicked();
        });
        EXPECT_EQ(result, 3);
        EXPECT_EQ(logged.size(), 1U) << mode;
    }
}

TEST_F(DialogStartup, TakesNoModeThatIsNoNumber) {
    for (const char* mode : {"abc", "0"}) {
        host.control.keys = {{"MODUS", mode}, {"MODUS_ANI", "1"}, {"MODUS_CALC", "2"}};
        show([](frm_DialogStartup& dialog) {
            EXPECT_FALSE(dialog.TabLocked);
            EXPECT_EQ(visibleButtons(dialog, StartTab::Animations).size(), 7U);
            EXPECT_EQ(visibleButtons(dialog, StartTab::Tasks).size(), 6U);
        });
    }
    EXPECT_EQ(logged.size(), 1U); // "abc" is worth a line, "0" is plain
}

TEST_F(DialogStartup, TakesTheTeachersConcentration) {
    host.control.keys["CON"] = "5";
    show([](frm_DialogStartup& dialog) {
        EXPECT_EQ(dialog.lst_Mol.text(), "1.4");
        EXPECT_FALSE(dialog.lst_Mol.enabled());
    });
    EXPECT_EQ(session().SessionConcentration, 1.4);
}

TEST_F(DialogStartup, KeepsItsConcentrationForAnAbsurdKey) {
    for (const char* text : {"9", "abc", "0", "-3", "1e999"}) {
        host.control.keys["CON"] = text;
        logged.clear();
        show([](frm_DialogStartup& dialog) {
            EXPECT_EQ(dialog.lst_Mol.text(), "1.0");
            EXPECT_FALSE(dialog.lst_Mol.enabled());
        });
        EXPECT_EQ(logged.size(), 1U) << text;
        EXPECT_EQ(session().SessionConcentration, 1.0);
    }
}

TEST_F(DialogStartup, TakesTheTeachersOptions) {
    struct Row {
        const char* text;
        bool truth;
        std::size_t lines;
    };
    for (const Row& row : {Row{"0", false, 0}, Row{"1", true, 0}, Row{"WAHR", true, 0},
                           Row{"falsch", false, 0}, Row{"x", false, 1}}) {
        for (const char* key : {"CALC", "POINTS"}) {
            host.control.keys = {{key, row.text}};
            logged.clear();
            show([&](frm_DialogStartup& dialog) {
                const bool calc = std::string(key) == "CALC";
                CheckBox& told = calc ? dialog.opt_CalcTerm : dialog.opt_NeedCalc;
                CheckBox& other = calc ? dialog.opt_NeedCalc : dialog.opt_CalcTerm;
                EXPECT_EQ(told.checked(), row.truth);
                EXPECT_FALSE(told.enabled());
                EXPECT_TRUE(other.enabled());
            });
            EXPECT_EQ(logged.size(), row.lines) << row.text;
        }
    }
}

TEST_F(DialogStartup, HasNoUseForTheHelpKeyYet) {
    host.control.keys["HELP"] = "0";
    show([](frm_DialogStartup&) {});
    EXPECT_FALSE(session().SessionNoHelp);
    EXPECT_TRUE(logged.empty());
}

TEST_F(DialogStartup, ShowsAStoredSoundModeAndLocksIt) {
    struct Row {
        int mode;
        bool checked;
        bool enabled;
        int after;
    };
    for (const Row& row : {Row{0, true, true, 3}, Row{1, true, false, 3}, Row{2, false, false, 2},
                           Row{3, true, false, 3}, Row{7, true, true, 3}}) {
        host.soundOptions.Mode = row.mode;
        show([&](frm_DialogStartup& dialog) {
            EXPECT_EQ(dialog.opt_EnableSounds.checked(), row.checked) << row.mode;
            EXPECT_EQ(dialog.opt_EnableSounds.enabled(), row.enabled) << row.mode;
        });
        EXPECT_EQ(host.soundOptions.Mode, row.after) << row.mode;
    }
}

TEST_F(DialogStartup, SilencesTheProgramAndShowsItTheNextTime) {
    show([](frm_DialogStartup& dialog) {
        dialog.SSTab1.userChose(3);
        dialog.opt_EnableSounds.userChecked(false);
    });
    EXPECT_EQ(host.soundOptions.Mode, 2);
    show([](frm_DialogStartup& dialog) {
        EXPECT_FALSE(dialog.opt_EnableSounds.checked());
        EXPECT_FALSE(dialog.opt_EnableSounds.enabled());
    });
}

TEST_F(DialogStartup, WritesTheSettingsWhenItCloses) {
    struct Row {
        int index;
        double concentration;
        const char* points;
    };
    for (const Row& row : {Row{0, 0.6, "0,1,3,5,6,7,12"}, Row{1, 0.8, "0,1,4,7,8,9,16"},
                           Row{2, 1.0, "0,1,5,9,10,11,20"}, Row{3, 1.2, "0,1,6,11,12,13,20"},
                           Row{4, 1.4, "0,1,7,13,14,15,20"}}) {
        show([&](frm_DialogStartup& dialog) {
            dialog.SSTab1.userChose(3);
            dialog.lst_Mol.userChose(row.index);
            dialog.opt_CalcTerm.userChecked(false);
            dialog.ctl_Button3.userClicked();
        });
        EXPECT_EQ(result, 1);
        EXPECT_EQ(session().SessionConcentration, row.concentration);
        EXPECT_FALSE(session().SessionDemo);
        EXPECT_TRUE(session().SessionNeedCalc);
        EXPECT_FALSE(session().SessionCalcTerm);
        StringList expected;
        expected.Split(row.points, ',');
        EXPECT_EQ(session().SessionRequiredPoints.items(), expected.items());
    }
    EXPECT_FALSE(session().SessionRequiredPoints.Contains("2"));
    EXPECT_TRUE(session().SessionRequiredPoints.Contains("20"));
}

TEST_F(DialogStartup, LeavesTheRequiredPointsEmptyWhenTheyAreFree) {
    show([](frm_DialogStartup& dialog) {
        dialog.SSTab1.userChose(3);
        dialog.opt_NeedCalc.userChecked(false);
        dialog.ctl_Button3.userClicked();
    });
    EXPECT_FALSE(session().SessionNeedCalc);
    EXPECT_TRUE(session().SessionRequiredPoints.items().empty());
}

TEST_F(DialogStartup, RunsADemoAtOneMoleALitre) {
    host.control.keys["CON"] = "5";
    show([](frm_DialogStartup& dialog) {
        dialog.SSTab1.userChose(2);
        dialog.ctl_Button15.userClicked();
    });
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(session().SessionDemo);
    EXPECT_EQ(session().SessionConcentration, 1.0);
    EXPECT_TRUE(session().SessionRequiredPoints.Contains("11"));
}

TEST_F(DialogStartup, ClampsWhatStandsInTheList) {
    struct Row {
        const char* text;
        double concentration;
    };
    for (const Row& row : {Row{"0.1", 0.6}, Row{"-5", 0.6}, Row{"9", 1.4}, Row{"1,2", 1.2},
                           Row{"keine Zahl", 0.6}, Row{"", 0.6}}) {
        show([&](frm_DialogStartup& dialog) { dialog.lst_Mol.setText(row.text); });
        EXPECT_EQ(session().SessionConcentration, row.concentration) << row.text;
    }
}

TEST_F(DialogStartup, EndsTheProgramAtAConcentrationWithoutAList) {
    EXPECT_THROW(show([](frm_DialogStartup& dialog) { dialog.lst_Mol.setText("0.7"); }),
                 ProcessEnded);
    ASSERT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(host.boxes.shown[0].text, "Etwas Grauenvolles ist passier!");
    EXPECT_EQ(host.boxes.shown[0].title, "");
}

TEST_F(DialogStartup, LeavesTheDemoFlagToTheButtonThatEnds) {
    for (const bool demo : {true, false}) {
        session().SessionDemo = demo;
        show([](frm_DialogStartup& dialog) { dialog.ctl_Button5.userClicked(); });
        EXPECT_EQ(result, 3);
        EXPECT_EQ(session().SessionDemo, demo);
    }
}

TEST_F(DialogStartup, SwitchesItsTimerOff) {
    frm_DialogStartup dialog;
    dialog.tmr_Startup.setEnabled(true);
    later([&] { host.windows.userClosed(dialog); });
    host.windows.ShowModal(dialog);
    EXPECT_FALSE(dialog.tmr_Startup.enabled());
}

TEST_F(DialogStartup, PlaysAnAnimationOnTopAndStaysOpen) {
    frm_DialogStartup dialog;
    std::vector<std::int32_t> scenes;
    // The dialog's timer has no work of its own. One scene asks before it goes.
    dialog.tmr_Startup.onTimer = [&] {
        if (auto* stage = dynamic_cast<frm_AppIntro*>(host.windows.top())) {
            scenes.push_back(stage->Scene);
            stage->userKey(Key::Escape);
        }
    };
    later([&] {
        dialog.tmr_Startup.setEnabled(true);
        for (const ExerciseRow& row : exerciseTable()) {
            if (row.tab == StartTab::Animations) {
                scenes.clear();
                dialog.SSTab1.userChose(static_cast<int>(row.tab));
                (dialog.*row.button).userClicked();
                ASSERT_FALSE(scenes.empty()) << row.caption;
                EXPECT_EQ(scenes.front(), row.number);
                EXPECT_EQ(host.windows.top(), &dialog);
                EXPECT_EQ(dialog.Result, frm_DialogStartup::kEndProgram);
            }
        }
        host.windows.userClosed(dialog);
    });
    host.windows.ShowModal(dialog);
    EXPECT_FALSE(session().SessionDemo);
}

TEST_F(DialogStartup, HasAButtonForEachKeyOfATab) {
    for (const StartTab tab : {StartTab::Animations, StartTab::Demos, StartTab::Tasks}) {
        std::vector<int> keys;
        for (const ExerciseRow& row : exerciseTable()) {
            if (row.tab == tab) {
                keys.push_back(row.key);
            }
        }
        EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
        EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end());
    }
}

// Each control lies inside what holds it and no two of one page cover each other.
TEST_F(DialogStartup, HasAPlaceForEverything) {
    show([](frm_DialogStartup& dialog) {
        for (const Control* one : dialog.controls()) {
            const Control* holder = one->container();
            const Size room = holder == nullptr
                                  ? dialog.designSize()
                                  : Size{holder->place().width, holder->place().height};
            EXPECT_GE(one->place().left, 0) << one->name();
            EXPECT_LE(one->place().right(), room.width) << one->name();
            EXPECT_LE(one->place().bottom(), room.height) << one->name();
            EXPECT_GT(one->place().width, 0) << one->name();
            for (const Control* other : dialog.controls()) {
                const bool seen = one->visible() && other->visible();
                const bool together = seen && one != other && other->container() == holder &&
                                      other->page() == one->page();
                const bool apart = one->place().right() <= other->place().left ||
                                   other->place().right() <= one->place().left ||
                                   one->place().bottom() <= other->place().top ||
                                   other->place().bottom() <= one->place().top;
                EXPECT_TRUE(!together || apart) << one->name() << " " << other->name();
            }
        }
    });
}

} // namespace
} // namespace quendal::test
