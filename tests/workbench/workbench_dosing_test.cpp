#include "strong_fixture.h"

#include "particles/species.h"
#include "shell/forms/frm_AppResource.h"

namespace quendal::test {
namespace {

constexpr Color kNowLight{192, 255, 192};
constexpr Color kNowDark{0, 128, 0};
constexpr const char* kPending = "Nach der Vorgabe soll dieser Punkt gerechnet werden!";
constexpr const char* kDemoQuestion =
    "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick auf 'DEMO' "
    "ansehen sollte. Wollen Sie das Zutropfen abbrechen?";

class WorkbenchDosing : public BenchTest {
  protected:
    void require(const char* points) { session().SessionRequiredPoints.Split(points, ','); }
    bool calcIsDue() {
        const bool due = bench().but_Calc.bordercolor() == kNowLight;
        EXPECT_EQ(bench().but_Calc.bordercolor2(), due ? kNowDark : host.graphics.buttonColor);
        return due;
    }
    // Frames until nothing falls.
    void land() {
        while (bench().vDrops.COUNT() > 0) {
            bench().hXEvents();
        }
    }
};

struct SampleCase {
    double concentration;
    int pairs;
};

class Pipette : public WorkbenchDosing, public testing::WithParamInterface<SampleCase> {};

TEST_P(Pipette, GivesTenMillilitresAtAnyConcentration) {
    open(GetParam().concentration);
    bench().but_Add_Click(0);
    EXPECT_EQ(bench().vVol, 10);
    EXPECT_EQ(bench().vSourceVol[0], 10);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kHydronium), GetParam().pairs);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kChloride), GetParam().pairs);
    EXPECT_FALSE(bench().vPipShown);
    EXPECT_TRUE(bench().vBurShown);
    EXPECT_TRUE(bench().vBurReady);
    EXPECT_EQ(bench().vBurY, -bench().vBurGap);
    EXPECT_EQ(bench().vTaskStep, 1);
    EXPECT_TRUE(bench().vCalm);
    EXPECT_FALSE(session().SessionBusy);
    EXPECT_TRUE(bench().but_Calc.visible());
    EXPECT_TRUE(bench().ctl_Button2.visible());
    EXPECT_TRUE(bench().ctl_Button3.visible());
    bench().but_Add_Click(1);
    land();
    EXPECT_EQ(bench().vVol, 11);
    EXPECT_EQ(bench().vSourceVol[1], 1);
}

INSTANTIATE_TEST_SUITE_P(All, Pipette,
                         testing::Values(SampleCase{0.6, 6}, SampleCase{0.8, 8},
                                         SampleCase{1.0, 10}, SampleCase{1.2, 12},
                                         SampleCase{1.4, 14}));

TEST_F(WorkbenchDosing, ThePipetteEmptiesFrameByFrame) {
    host.graphics.addPicture("frame", 60, 300);
    for (int frame = 1; frame <= 12; ++frame) {
        appResource().pic_AblasserBuffer.load(frame).setPicture(host.graphics.LoadPicture("frame"));
    }
    open();
    int highest = 0;
    bool backwards = false;
    host.clock.onSleep = [&] {
        backwards |= bench().sPipFrame < highest - 1; // the stream may hold the last frame back
        highest = std::max(highest, bench().sPipFrame);
    };
    bench().but_Add_Click(0);
    EXPECT_EQ(highest, 12);
    EXPECT_FALSE(backwards);
    EXPECT_EQ(bench().vPipY, -1000);
}

TEST_F(WorkbenchDosing, OnlyTheHydroxideOfAPairCountsItsMillilitre) {
    open();
    addBase(0);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().vDrops.COUNT(), 2);
    EXPECT_EQ(bench().vDrops.COUNTSORT(kSodium), 1);
    EXPECT_EQ(bench().vDrops.COUNTSORT(kHydroxide), 1);
    EXPECT_DOUBLE_EQ(bench().vDrops.ITEM(1).PosX + 4, bench().vDrops.ITEM(2).PosX);
    land();
    EXPECT_EQ(bench().vVol, 11);
    EXPECT_EQ(bench().vSourceVol[1], 1);
    EXPECT_EQ(bench().sClicks, 1);
}

TEST_F(WorkbenchDosing, ADropFallsOneSecond) {
    open();
    addBase(0);
    bench().vSource = 1;
    bench().vDrops.CREATE(kHydroxide, 50, 0);
    const double start = host.clock.now = 5;
    bench().hThinkDo();
    EXPECT_EQ(bench().vDrops.ITEM(1).BornAt, start);
    const double height = bench().pic_Bowl.place().height;
    const double reach = (height - height * 10 / 35 + 5) * 100 / height;
    host.clock.now = start + 0.5;
    bench().hThinkDo();
    EXPECT_NEAR(bench().vDrops.ITEM(1).PosY, reach / 2, 1e-9);
    host.clock.now = start + 0.999;
    bench().hThinkDo();
    EXPECT_EQ(bench().vVol, 10);
    host.clock.now = start + 1;
    bench().hThinkDo();
    EXPECT_EQ(bench().vVol, 11);
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kHydroxide), 1);
}

TEST_F(WorkbenchDosing, RefusesWhileACalculationIsOpenOrDosingRuns) {
    open();
    addBase(3);
    bench().but_Calc_Click();
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 3);
    startCalculation();
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 3);
    control<Control>("frm_Calc").setVisible(false);
    session().SessionBusy = true;
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 3);
    session().SessionBusy = false;
    bench().vUnload = true;
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 3);
}

TEST_F(WorkbenchDosing, AClickDuringDosingIsDropped) {
    open();
    addBase(0);
    for (int n = 0; n < 5; ++n) {
        later([this] {
            bench().but_Add_Click(1);
            bench().but_Calc_Click();
        });
    }
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
}

TEST_F(WorkbenchDosing, APendingPointRefusesAndChangesNothing) {
    require("0,1,5");
    open();
    addBase(0);
    bench().but_Add_Click(1);
    EXPECT_EQ(lastBox().text, kPending);
    EXPECT_EQ(bench().sClicks, 0);
    session().SessionMySeries->Data.Add(0, 0);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_TRUE(calcIsDue());
    land();
    bench().but_Add_Click(1);
    EXPECT_EQ(lastBox().text, kPending);
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_EQ(host.boxes.shown.size(), 2U);
}

TEST_F(WorkbenchDosing, ARequiredVolumeIsAWholeItemOfTheList) {
    require("11,20");
    open();
    addBase(1);
    bench().but_Add_Click(1); // 1 and 2 aren't 11 and 20
    EXPECT_EQ(bench().sClicks, 2);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_FALSE(calcIsDue());
}

TEST_F(WorkbenchDosing, APointAheadIsNeitherPendingNorDue) {
    require("5");
    open();
    addBase(4);
    session().SessionMySeries->Data.Add(5, 1);
    bench().but_Add_Click(1);
    EXPECT_FALSE(calcIsDue());
    land();
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 6);
}

TEST_F(WorkbenchDosing, WithoutRequiredPointsEverythingMayBeAdded) {
    open();
    bench().but_Add_Click(0);
    EXPECT_FALSE(calcIsDue());
    for (int click = 1; click <= 20; ++click) {
        bench().but_Add_Click(1);
        EXPECT_FALSE(calcIsDue());
        land();
    }
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().vVol, 30);
    EXPECT_EQ(bench().vSourceVol[1], 20);
    EXPECT_EQ(bench().vTaskStep, 3);
    EXPECT_FALSE(bench().vBurShown);
    EXPECT_FALSE(bench().vBurReady);
    EXPECT_EQ(bench().vBurY, -1000);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().vVol, 30);
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
}

TEST_F(WorkbenchDosing, DropsInTheAirCountAgainstTheLimit) {
    open();
    addBase(18);
    bench().vDrops.CREATE(kHydroxide, 50, 0);
    bench().vDrops.CREATE(kHydroxide, 50, 0);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().vDrops.COUNTSORT(kSodium), 0);
    EXPECT_TRUE(bench().vBurShown);
}

TEST_F(WorkbenchDosing, ThePipetteMarksTheCalculationOfARequiredStart) {
    require("0,1");
    open();
    bench().but_Add_Click(0);
    EXPECT_TRUE(calcIsDue());
}

TEST_F(WorkbenchDosing, ADemoWarnsBeforeTheFirstMillilitreUntilItGoesOn) {
    open(1.0, true);
    addBase(0);
    host.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Yes, BoxAnswer::No};
    bench().but_Add_Click(1);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 0);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_EQ(host.boxes.shown.size(), 3U);
    EXPECT_EQ(lastBox().text, kDemoQuestion);
    EXPECT_EQ(lastBox().kind, "yesno");
    EXPECT_TRUE(calcIsDue()); // in a demo always
}

TEST_F(WorkbenchDosing, ADemoWithACalculatedStartDoesNotWarnThere) {
    open(1.0, true);
    addBase(0);
    session().SessionMySeries->Data.Add(0, 0);
    bench().but_Add_Click(1);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().sClicks, 1);
}

TEST_F(WorkbenchDosing, ADemoWarnsOnceAtTheEquivalencePointAndOnceBehindIt) {
    open(1.0, true);
    addBase(10);
    host.boxes.answers = {BoxAnswer::Yes};
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 10);
    bench().but_Add_Click(1); // the same question isn't asked twice
    EXPECT_EQ(bench().sClicks, 11);
    EXPECT_EQ(host.boxes.shown.size(), 1U);
    land();
    host.boxes.answers = {BoxAnswer::No};
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 12);
    EXPECT_EQ(host.boxes.shown.size(), 2U);
    land();
    bench().but_Add_Click(1);
    EXPECT_EQ(host.boxes.shown.size(), 2U);
}

TEST_F(WorkbenchDosing, ADemoIgnoresRequiredPoints) {
    require("0,1,2,3,4,5");
    open(1.0, true);
    addBase(3);
    bench().but_Add_Click(1);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().sClicks, 4);
}

struct RestartCase {
    double concentration;
    int afterTurns;
};

class RestartWhilePipetting : public WorkbenchDosing,
                              public testing::WithParamInterface<RestartCase> {};

TEST_P(RestartWhilePipetting, EndsTheDosingSoonAndLeavesNothingBusy) {
    open(GetParam().concentration);
    for (int turn = 0; turn < GetParam().afterTurns; ++turn) {
        later([] {});
    }
    later([this] { bench().mnu_FileNew.userClicked(); });
    const double start = host.clock.now;
    bench().but_Add_Click(0);
    EXPECT_FALSE(session().SessionBusy);
    EXPECT_LT(host.clock.now - start, 0.02 * (GetParam().afterTurns + 2));
    bench().hThinkDo(); // the frames behind it bear a volume below 0
    EXPECT_LE(bench().vVol, 10);
}

INSTANTIATE_TEST_SUITE_P(Moments, RestartWhilePipetting,
                         testing::Values(RestartCase{0.6, 0}, RestartCase{1.4, 0},
                                         RestartCase{1.4, 1}, RestartCase{1.4, 20},
                                         RestartCase{1.0, 150}));

TEST_F(WorkbenchDosing, AClickOnTheGlassGoesToTheOneThatIsReady) {
    open();
    bench().vPipReady = false;
    bench().pic_Above.userClicked();
    EXPECT_EQ(bench().vVol, 0);
    bench().vPipShown = false;
    bench().pic_Above.userClicked();
    EXPECT_EQ(bench().sClicks, 0);
    addBase(0);
    bench().pic_Above.userClicked();
    EXPECT_EQ(bench().sClicks, 1);
    land();
    bench().ctl_Button3.setVisible(true);
    bench().ctl_Button3.userClicked();
    EXPECT_EQ(bench().sClicks, 2);
}

TEST_F(WorkbenchDosing, ACalculationWaitsUntilTheDropHasLanded) {
    open();
    addBase(4);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().vVol, 14);
    bench().but_Calc_Click();
    EXPECT_EQ(bench().vVol, 15);
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
}

} // namespace
} // namespace quendal::test
