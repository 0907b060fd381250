// A point at a volume that the learner types.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class AddPoint : public ConductoTest {
  protected:
    void openDemo(int ml) {
        openForm(Titration::Log, 1.0, true);
        addBase(ml);
    }
    frm_AppMainConductolog& form() { return static_cast<frm_AppMainConductolog&>(bench()); }
    void type(const std::string& text) {
        host.boxes.inputs = {text};
        form().but_AddPoint.userClicked();
    }
    void finish() {
        stepButton(7).userClicked();
        stepButton(6).userClicked();
        stepButton(6).userClicked();
    }
};

TEST_F(AddPoint, ProposesThePresentVolume) {
    for (const int ml : {0, 7, 20}) {
        openDemo(ml);
        host.boxes.shown.clear();
        type("");
        ASSERT_EQ(host.boxes.shown.size(), 1U);
        EXPECT_EQ(lastBox().kind, "input");
        EXPECT_EQ(lastBox().text, "Geben Sie das Volumen in Milliliter ein:");
        EXPECT_EQ(lastBox().title, "Anderen Punkt rechnen");
        EXPECT_EQ(lastBox().extra, std::to_string(ml));
        EXPECT_FALSE(form().AddPointActive);
        EXPECT_FALSE(visible("frm_Calc"));
    }
}

class RefusedVolume : public AddPoint, public testing::WithParamInterface<const char*> {};

TEST_P(RefusedVolume, GetsAWordAndNothingElse) {
    openDemo(4);
    type(GetParam());
    ASSERT_EQ(host.boxes.shown.size(), 2U);
    EXPECT_EQ(lastBox().kind, "ok");
    EXPECT_FALSE(lastBox().text.empty());
    EXPECT_FALSE(form().AddPointActive);
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_EQ(form().titrantMl(), 4);
}

INSTANTIATE_TEST_SUITE_P(All, RefusedVolume,
                         testing::Values("abc", "-1", "-0,001", "1000,1", "1e9", " ", "12 mL",
                                         "1;2", "nan", "inf"));

struct TypedCase {
    const char* text;
    double ml;
};

class TypedVolume : public AddPoint, public testing::WithParamInterface<TypedCase> {};

TEST_P(TypedVolume, ReplacesTheTitrantInTheCalculationAlone) {
    openDemo(4);
    const Rect water = bench().pic_Water.place();
    type(GetParam().text);
    EXPECT_TRUE(form().AddPointActive);
    EXPECT_DOUBLE_EQ(form().AddPointVolume, GetParam().ml / 1000);
    EXPECT_DOUBLE_EQ(form().titrantVolume(), GetParam().ml / 1000);
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_EQ(dueStep(), 1);
    bench().hThinkDo();
    EXPECT_EQ(term("lab_Vol", 1), "0,004 L");
    EXPECT_EQ(bench().vVol, 14);
    EXPECT_EQ(bench().hGetVol(1), 0.004);
    EXPECT_EQ(bench().pic_Water.place(), water);
    EXPECT_EQ(bench().pic_Water.backcolor(), (Color{214, 172, 172})); // of 4 mL
    stepButton(1).userClicked();
    EXPECT_EQ(input(1).text(), host.numbers.text(GetParam().ml + 100));
}

INSTANTIATE_TEST_SUITE_P(All, TypedVolume,
                         testing::Values(TypedCase{"12,5", 12.5}, TypedCase{"12.5", 12.5},
                                         TypedCase{" 12,5 ", 12.5}, TypedCase{"0", 0},
                                         TypedCase{"1000", 1000}, TypedCase{"1,25*10^1", 12.5}));

TEST_F(AddPoint, TheSecondClickOnDoneEndsIt) {
    openDemo(4);
    type("12,5");
    stepButton(7).userClicked();
    stepButton(6).userClicked();
    EXPECT_EQ(stepButton(6).text(), "&Fertig");
    EXPECT_TRUE(form().AddPointActive);
    EXPECT_EQ(bench().vLastVol, 12.5);
    stepButton(6).userClicked();
    EXPECT_FALSE(form().AddPointActive);
    EXPECT_EQ(form().titrantMl(), 4);
    EXPECT_TRUE(bench().ctl_Button3.visible());
    startCalculation();
    stepButton(1).userClicked();
    EXPECT_EQ(input(1).text(), "104");
}

TEST_F(AddPoint, TypedNothingDoesNothing) {
    openDemo(4);
    type("12,5");
    finish();
    bench().hThinkDo();
    type("");
    EXPECT_FALSE(form().AddPointActive);
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_EQ(form().titrantMl(), 4);
}

class Refused : public AddPoint {
  protected:
    // Neither the click on the button nor its routine asks for a volume.
    void expectRefused() {
        host.boxes.shown.clear();
        host.boxes.inputs = {"12,5"};
        form().but_AddPoint_Click();
        EXPECT_TRUE(host.boxes.shown.empty());
        EXPECT_FALSE(form().AddPointActive);
        bench().hThinkDo();
        EXPECT_FALSE(form().but_AddPoint.enabled());
    }
    void expectTaken() {
        bench().hThinkDo();
        EXPECT_TRUE(form().but_AddPoint.enabled());
        type("12,5");
        EXPECT_TRUE(form().AddPointActive);
    }
};

TEST_F(Refused, BeforeThePipetteHasRun) {
    openForm(Titration::Log, 1.0, true);
    expectRefused();
    addBase(0);
    expectTaken();
}

TEST_F(Refused, WhileThePipetteRuns) {
    openDemo(0);
    bench().vPipShown = true;
    expectRefused();
    bench().vPipShown = false;
    bench().vVol = 0;
    expectRefused();
    bench().vVol = 10;
    expectTaken();
}

TEST_F(Refused, DuringDosing) {
    openDemo(3);
    session().SessionBusy = true;
    expectRefused();
    session().SessionBusy = false;
    expectTaken();
}

TEST_F(Refused, WhileACalculationIsOpen) {
    openDemo(3);
    startCalculation();
    expectRefused();
    finish();
    expectTaken();
}

TEST_F(Refused, WhileTheDirectInputIsOpen) {
    openDemo(3);
    bench().frm_CalcDirect.setVisible(true);
    expectRefused();
    bench().frm_CalcDirect.setVisible(false);
    expectTaken();
}

TEST_F(Refused, WhileTheFormIsAboutToGo) {
    openDemo(3);
    bench().vUnload = true;
    expectRefused();
    bench().vUnload = false;
    session().SessionRestart = true;
    host.boxes.shown.clear();
    form().but_AddPoint_Click();
    EXPECT_TRUE(host.boxes.shown.empty());
}

TEST_F(AddPoint, WaitsForWhatFalls) {
    openDemo(0);
    bench().sClicks = 3;
    bench().but_Add_Click(1);
    ASSERT_EQ(bench().vDrops.COUNT(), 2);
    form().but_AddPoint_Click();
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
    EXPECT_EQ(lastBox().extra, "1");
}

TEST_F(AddPoint, NothingElseStartsWhileTheBoxIsOpen) {
    openDemo(3);
    host.boxes.whileOpen = [this] {
        bench().but_Add_Click(1);
        form().but_AddPoint_Click();
        EXPECT_EQ(bench().sClicks, 3);
        EXPECT_EQ(host.boxes.shown.size(), 1U);
    };
    type("12,5");
    host.boxes.whileOpen = nullptr;
    EXPECT_TRUE(form().AddPointActive);
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
}

TEST_F(AddPoint, LeavingWhileTheBoxIsOpenStartsNothing) {
    openDemo(3);
    host.boxes.whileOpen = [this] { bench().vUnload = true; };
    type("12,5");
    EXPECT_FALSE(form().AddPointActive);
    EXPECT_FALSE(visible("frm_Calc"));
}

TEST_F(AddPoint, TellsItsFields) {
    openDemo(3);
    EXPECT_FALSE(flag("AddPointActive"));
    type("12,5");
    EXPECT_TRUE(flag("AddPointActive"));
    EXPECT_EQ(field("AddPointVolume"), FieldValue{0.0125});
}

} // namespace
} // namespace quendal::test
