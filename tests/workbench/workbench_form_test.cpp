#include "strong_fixture.h"

#include <stdexcept>

namespace quendal::test {
namespace {

constexpr const char* kDue = "Ico\\16\\Abstract\\Arrows\\Black Compact Right.ico";
constexpr const char* kDone = "Ico\\16\\Computer\\Signs\\OK.ico";

class WorkbenchForm : public BenchTest {};

TEST_F(WorkbenchForm, GivesVolumesInLitres) {
    open();
    bench().vVol = 17;
    bench().vSourceVol = {10, 7, 3, 2};
    EXPECT_EQ(bench().hGetVol(-1), 0.017);
    EXPECT_EQ(bench().hGetVol(0), 0.010);
    EXPECT_EQ(bench().hGetVol(1), 0.007);
    EXPECT_EQ(bench().hGetVol(3), 0.002);
    EXPECT_THROW(bench().hGetVol(4), std::out_of_range);
    EXPECT_THROW(bench().hGetVol(-2), std::out_of_range);
}

TEST_F(WorkbenchForm, EveryVolumeOfTheBuretteIsAWholeX) {
    open();
    for (int ml = 0; ml <= 20; ++ml) {
        bench().vSourceVol[1] = ml;
        EXPECT_EQ(bench().titrantMl(), ml);
    }
}

TEST_F(WorkbenchForm, ShowsAndHidesTheMainControls) {
    open();
    bench().but_Calc.setVisible(true);
    bench().ctl_Button2.setVisible(true);
    bench().ctl_Button3.setVisible(true);
    bench().hHideMainControls();
    const Control* all[] = {&bench().ctl_Button2, &bench().ctl_Button3, &bench().but_Calc,
                            &bench().but_Help, &bench().but_phCompare};
    for (const Control* control : all) {
        EXPECT_FALSE(control->visible()) << control->name();
    }
    bench().hShowMainControls();
    for (const Control* control : all) {
        const bool shown = control != &bench().ctl_Button2 && control != &bench().but_Calc;
        EXPECT_EQ(control->visible(), shown) << control->name();
    }
}

TEST_F(WorkbenchForm, MarksTheTaskSheet) {
    open();
    for (const int line : {0, 1, 2, 3}) {
        bench().hTaskList(line);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(bench().lab_Step(i).textColor(), palette(i == line ? 0 : 8)) << line << i;
            EXPECT_EQ(bench().pic_Step(i).visible(), i <= line) << line << i;
            if (i <= line) {
                EXPECT_EQ(bench().pic_Step(i).pictureIcon(), i == line ? kDue : kDone);
            }
        }
        EXPECT_EQ(bench().lab_Step1.textColor(), palette(line == 1 ? 0 : 8));
        EXPECT_EQ(bench().ctl_Button1.visible(), line == 0);
        EXPECT_EQ(bench().vTaskStep, line);
    }
}

TEST_F(WorkbenchForm, PlacesTheGlassInItsPicture) {
    open();
    bench().pic_BowlOuter.setPlace(0, 0, 312, 400);
    bench().Form_Resize();
    EXPECT_EQ(bench().pic_Bowl.place(), (Rect{20, 60, 272, 320}));
}

TEST_F(WorkbenchForm, LeavesTheGlassWhereItIsWhenItsSizeWouldBeNegative) {
    open();
    const Rect before = bench().pic_Bowl.place();
    for (const Rect& small : {Rect{0, 0, 30, 400}, Rect{0, 0, 312, 70}, Rect{0, 0, 0, 0}}) {
        bench().pic_BowlOuter.setPlace(small);
        bench().Form_Resize();
        EXPECT_EQ(bench().pic_Bowl.place(), before);
    }
    addBase(3);
    bench().hThinkDo();
}

TEST_F(WorkbenchForm, LiquidAndScaleAgree) {
    open();
    addBase(0);
    const Rect& bowl = bench().pic_Bowl.place();
    for (const int base : {0, 5, 20}) {
        addBase(base);
        const Rect& water = bench().pic_Water.place();
        EXPECT_DOUBLE_EQ(water.height, bowl.height * (10 + base) / 35.0);
        EXPECT_DOUBLE_EQ(water.bottom(), bowl.bottom());
        EXPECT_EQ(water.width, bowl.width);
        EXPECT_TRUE(bench().pic_Water.visible());
    }
}

TEST_F(WorkbenchForm, RunsItsMainLoopUntilItIsLeft) {
    session().SessionConcentration = 1.0;
    frm_AppMainStrong form;
    for (int turn = 0; turn < 5; ++turn) {
        later([&] { EXPECT_FALSE(form.tmr_Unload.enabled()); });
    }
    later([&] { form.mnu_FileQuit.userClicked(); });
    host.windows.ShowModal(form);
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.vUnload); // its timer has cleared it
    EXPECT_FALSE(session().SessionRestart);
    EXPECT_GE(host.clock.slept, 2 * 0.02);
}

TEST_F(WorkbenchForm, BeginningAnewAsksForARestart) {
    open();
    bench().mnu_FileNew.userClicked();
    EXPECT_TRUE(session().SessionRestart);
    EXPECT_TRUE(bench().vUnload);
}

TEST_F(WorkbenchForm, TheCloseBoxEndsTheProcessAtOnce) {
    open();
    later([&] { host.windows.userClosed(bench()); });
    EXPECT_THROW(bench().but_Add_Click(0), ProcessEnded);
    EXPECT_TRUE(host.app.shutDown);
}

TEST_F(WorkbenchForm, OpensTheDirectInputWithTheFocusInIt) {
    open();
    addBase(5);
    bench().but_Calc_Click();
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(bench().txt_Ph.hasFocus());
    bench().txt_Ph.userTyped("3");
    bench().but_Calc_Click(); // open already: nothing changes
    EXPECT_EQ(bench().txt_Ph.text(), "3");
}

TEST_F(WorkbenchForm, ReturnInTheDirectInputPressesDone) {
    open();
    addBase(5);
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped("0,48");
    EXPECT_TRUE(bench().userKey(Key::Enter));
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 2"});
    EXPECT_EQ(bench().vPoints, 1);
    EXPECT_EQ(lastBox().title, "Punktberechnung");
    EXPECT_EQ(lastBox().text, "Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt");
    EXPECT_EQ(bench().lab_punktegerechnet.text(), "1");
    EXPECT_DOUBLE_EQ(session().SessionMySeries->Data.Y(1), 0.477);
}

TEST_F(WorkbenchForm, AWrongDirectAnswerStaysOpenWhenHelpIsDeclined) {
    open();
    addBase(5);
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped("3");
    bench().but_CalcDone.userClicked();
    EXPECT_EQ(lastBox().kind, "yesno");
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_EQ(bench().vWrong, 1);
    EXPECT_EQ(bench().Lab_Vallmista.text(), "1");
    EXPECT_EQ(host.sounds.played, std::vector<std::string>{"signal 1"});
    EXPECT_TRUE(host.control.progress.empty());
}

TEST_F(WorkbenchForm, JudgesNumbersAndCountsThem) {
    open();
    EXPECT_TRUE(bench().hUnequal("", 1, 3));
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_TRUE(bench().hUnequal("abc", 1, 3));
    EXPECT_EQ(lastBox().kind, "ok");
    EXPECT_EQ(lastBox().text, "Deine Eingabe enthält unzulässige Zeichen!");
    EXPECT_EQ(bench().vMismatch, 0);
    EXPECT_TRUE(bench().hUnequal("2", 1, 3));
    EXPECT_EQ(bench().vMismatch, 1);
    EXPECT_FALSE(bench().hUnequal("1,0001", 1, 3));
    EXPECT_TRUE(bench().hUnequal("1,0001", 1, -1));
    EXPECT_EQ(bench().vMismatch, 2);
}

} // namespace
} // namespace quendal::test
