#include "shell/forms/frm_DialogDone.h"

#include "shell_fixture.h"

namespace quendal::test {
namespace {

class DialogDone : public ShellTest {
  protected:
    // Shows a result of 1000 points less `helpUsed` times 5; `look` runs while it is open.
    void showWith(int helpUsed, std::function<void(frm_DialogDone&)> look) {
        frm_DialogDone dialog;
        dialog.Task = 1000;
        dialog.Points = 5;
        dialog.HelpUsed = helpUsed;
        dialog.Wrong = 7;
        dialog.Duration = 61;
        later([&] {
            look(dialog);
            dialog.bar_Buttons.userClicked();
        });
        host.windows.ShowModal(dialog);
        EXPECT_FALSE(dialog.shown());
    }
};

TEST_F(DialogDone, ShowsTheFigures) {
    showWith(2, [](frm_DialogDone& dialog) {
        EXPECT_EQ(dialog.lab_Task.text(), "1000");
        EXPECT_EQ(dialog.lab_Points.text(), "5");
        EXPECT_EQ(dialog.lab_HelpUsed.text(), "2 mal");
        EXPECT_EQ(dialog.lab_SolveUsed.text(), "0 mal");
        EXPECT_EQ(dialog.lab_Wrong.text(), "7 mal");
        EXPECT_EQ(dialog.lab_Duration.text(), "1 Minute/n und 1 Sekunden");
        EXPECT_EQ(dialog.ctl_Title1.title(), "Dein Ergebnis");
        EXPECT_EQ(dialog.ctl_Title1.text(), "Hier siehst Du, wie Du abgeschnitten hast");
    });
}

struct MarkCase {
    int helpUsed;
    int mark;
    const char* text;
    int mood;
    const char* picture;
    const char* sound;
    bool jumps;
};

class Marks : public DialogDone, public testing::WithParamInterface<MarkCase> {};

TEST_P(Marks, HaveTheirWordMoodPictureAndSound) {
    const MarkCase& expected = GetParam();
    host.graphics.addPicture(std::string("data/") + expected.picture, 20, 10);
    showWith(expected.helpUsed, [&](frm_DialogDone& dialog) {
        EXPECT_EQ(dialog.Mark, expected.mark);
        EXPECT_EQ(dialog.Score, 1000 - 5 * expected.helpUsed);
        EXPECT_EQ(dialog.lab_Mark.text(), expected.text);
        EXPECT_EQ(dialog.dra_Atom.Mood(), expected.mood);
        const bool hasPicture = *expected.picture != '\0';
        EXPECT_EQ(dialog.pic_Back.visible(), hasPicture);
        EXPECT_EQ(dialog.pic_Back.picture() != nullptr, hasPicture);
        EXPECT_EQ(dialog.tmr_Move.enabled(), expected.jumps);
    });
    EXPECT_EQ(host.sounds.played, std::vector<std::string>{expected.sound});
    ASSERT_EQ(host.control.results.size(), 1U);
    EXPECT_EQ(host.control.results[0].score, 1000 - 5 * expected.helpUsed);
    EXPECT_EQ(host.control.results[0].mark, expected.mark);
    EXPECT_EQ(host.control.results[0].markText, expected.text);
}

INSTANTIATE_TEST_SUITE_P(
    All, Marks,
    testing::Values(MarkCase{0, 1, "Sehr gut", 2, "win.gif", "result_good", true},
                    MarkCase{40, 2, "Gut", 2, "win_small.gif", "clapping", false},
                    MarkCase{70, 3, "Befriedigend", 1, "", "correct", false},
                    MarkCase{100, 4, "Ausreichend", 6, "", "say", false},
                    MarkCase{140, 5, "Mangelhaft", 5, "bad.gif", "wrong", false},
                    MarkCase{180, 6, "Ungenügend", 3, "bad.gif", "result_bad", false}));

TEST_F(DialogDone, RunsOnWithoutItsPicture) {
    showWith(0, [](frm_DialogDone& dialog) {
        EXPECT_TRUE(dialog.pic_Back.visible());
        EXPECT_EQ(dialog.pic_Back.picture(), nullptr);
    });
}

TEST_F(DialogDone, LetsTheMascotJumpFromItsFloor) {
    showWith(0, [this](frm_DialogDone& dialog) {
        const double floor = 4000 / 15.0;
        EXPECT_DOUBLE_EQ(dialog.dra_Atom.place().top, floor);
        // Up by 10, 9, 8 ... px a tick, once round at the top, down again and off the floor.
        std::vector<double> heights;
        for (int tick = 0; tick < 60; ++tick) {
            host.clock.now += 0.05;
            host.windows.DoEvents();
            heights.push_back(floor - dialog.dra_Atom.place().top);
        }
        EXPECT_NEAR(heights[0], 10, 1e-9);
        EXPECT_NEAR(heights[1], 19, 1e-9);
        EXPECT_NEAR(heights[9], 55, 1e-9);
        EXPECT_NEAR(heights[10], 54, 1e-9); // the speed 0 was passed over
        EXPECT_NEAR(heights[18], 10, 1e-9);
        EXPECT_NEAR(heights[19], 0, 1e-9);
        EXPECT_NEAR(heights[20], 0, 1e-9); // through the floor: the bounce
        EXPECT_NEAR(heights[21], 9, 1e-9);
        for (const double height : heights) {
            EXPECT_GE(height, -1e-9);
            EXPECT_LE(height, 55 + 1e-9);
        }
    });
}

TEST_F(DialogDone, StopsTheJumpWithItsWindow) {
    frm_DialogDone dialog;
    dialog.Task = 1000;
    dialog.Points = 5;
    later([&] { host.windows.userClosed(dialog); });
    host.windows.ShowModal(dialog);
    EXPECT_FALSE(dialog.tmr_Move.enabled());
    EXPECT_EQ(host.control.results.size(), 1U);
}

TEST_F(DialogDone, ClosesOnEscape) {
    frm_DialogDone dialog;
    later([&] { EXPECT_TRUE(dialog.userKey(Key::Escape)); });
    host.windows.ShowModal(dialog);
    EXPECT_FALSE(dialog.shown());
}

TEST_F(DialogDone, ShowsItsFieldsByName) {
    frm_DialogDone dialog;
    dialog.Wrong = 3;
    FieldTable table;
    dialog.describe(table);
    EXPECT_EQ(table.find("Wrong"), FieldValue(std::int64_t{3}));
    for (const char* name :
         {"Duration", "Task", "Points", "HelpUsed", "SolveUsed", "Mark", "Score"}) {
        EXPECT_TRUE(table.find(name).has_value()) << name;
    }
}

} // namespace
} // namespace quendal::test
