#include "strong_fixture.h"

#include "particles/species.h"

#include <cmath>

namespace quendal::test {
namespace {

class WorkbenchFrame : public BenchTest {
  protected:
    void put(int kind, int count) {
        for (int n = 0; n < count; ++n) {
            bench().vMolecules.CREATE(kind, 10 + 4 * n, 50);
        }
    }
    std::string amount(int line) { return bench().lab_BilanzCount(line).term(); }
    Color color(int line) {
        EXPECT_EQ(bench().lab_Bilanz(line).textColor(), bench().lab_BilanzCount(line).textColor());
        return bench().lab_Bilanz(line).textColor();
    }
};

TEST_F(WorkbenchFrame, TheEmptyBeakerNamesTheSample) {
    open(0.8);
    bench().hThinkDo();
    EXPECT_EQ(amount(0), "0 mmol");
    EXPECT_EQ(amount(1), "0 mmol");
    EXPECT_EQ(amount(2), "8 mmol");
    EXPECT_EQ(amount(3), "0 mmol");
    EXPECT_EQ(amount(4), "~~ 0 mmol");
    EXPECT_EQ(color(0), palette(8));
    EXPECT_EQ(color(2), palette(0));
    EXPECT_EQ(bench().vCount[kHydrogenChloride], 8);
    EXPECT_FALSE(bench().pic_Water.visible());
}

struct BalanceCase {
    int base; // mL
    const char* hydronium;
    const char* hydroxide;
};

class BalanceTrace : public WorkbenchFrame, public testing::WithParamInterface<BalanceCase> {};

TEST_P(BalanceTrace, MarksWhatIsSmallButNotNothing) {
    open(0.8);
    put(kHydronium, 2);
    put(kChloride, 8);
    put(kHydroxide, 1);
    bench().vCalm = false; // nothing reacts
    addBase(GetParam().base);
    EXPECT_EQ(amount(0), GetParam().hydronium);
    EXPECT_EQ(amount(1), "0 mmol");
    EXPECT_EQ(amount(2), "0 mmol");
    EXPECT_EQ(amount(3), "8 mmol");
    EXPECT_EQ(amount(4), GetParam().hydroxide);
    EXPECT_EQ(color(0), palette(0));
    EXPECT_EQ(color(1), palette(8));
    EXPECT_EQ(color(2), palette(8));
    EXPECT_EQ(color(3), palette(0));
}

INSTANTIATE_TEST_SUITE_P(AroundTheEquivalencePoint, BalanceTrace,
                         testing::Values(BalanceCase{0, "2 mmol", "~~ 1 mmol"},
                                         BalanceCase{7, "2 mmol", "~~ 1 mmol"},
                                         BalanceCase{8, "~~ 2 mmol", "~~ 1 mmol"},
                                         BalanceCase{9, "~~ 2 mmol", "1 mmol"}));

TEST_F(WorkbenchFrame, ALineComesBackFromGrey) {
    open();
    bench().hThinkDo();
    EXPECT_EQ(color(1), palette(8));
    put(kSodium, 1);
    bench().hThinkDo();
    EXPECT_EQ(color(1), palette(0));
    EXPECT_EQ(amount(1), "1 mmol");
    EXPECT_EQ(bench().vCount[kSodium], 1);
}

TEST_F(WorkbenchFrame, ShowsTheVolumes) {
    open(0.8);
    addBase(7);
    EXPECT_EQ(bench().lab_Vol(0).term(), "0,010 L");
    EXPECT_EQ(bench().lab_Vol(1).term(), "0,007 L");
    EXPECT_EQ(bench().lab_Vol(2).term(), "0.8 mol/L");
}

TEST_F(WorkbenchFrame, TheVolumesFollowTheLocale) {
    host.numbers.setDecimalSign(DecimalSign::Point);
    open(1.0);
    addBase(12);
    EXPECT_EQ(bench().lab_Vol(1).term(), "0.012 L");
    EXPECT_EQ(bench().lab_Vol(2).term(), "1 mol/L");
}

TEST_F(WorkbenchFrame, ColoursTheLiquidByItsPh) {
    open(0.6);
    const Color base{153, 204, 204};
    addBase(5);
    EXPECT_EQ(session().ParticleBackColor, blend(base, 60, {255, 150, 150}));
    addBase(6);
    EXPECT_EQ(session().ParticleBackColor, blend(base, 30, {150, 255, 150}));
    EXPECT_EQ(bench().vPhNow, 7.0);
    addBase(7);
    EXPECT_EQ(session().ParticleBackColor, blend(base, 50, {150, 150, 255}));
    EXPECT_EQ(bench().pic_Water.backcolor(), session().ParticleBackColor);
}

TEST_F(WorkbenchFrame, GivesThePresentPhToThreePlaces) {
    open();
    addBase(0);
    EXPECT_EQ(bench().vPhNow, 0.0);
    EXPECT_FALSE(std::signbit(bench().vPhNow));
    addBase(1);
    EXPECT_EQ(bench().vPhNow, 0.087);
    addBase(20);
    EXPECT_EQ(bench().vPhNow, 13.523);
}

TEST_F(WorkbenchFrame, BearsAVolumeBelowZero) {
    open(1.4);
    put(kHydronium, 14);
    put(kChloride, 14);
    bench().vVol = -4;
    bench().vSourceVol[0] = -4;
    for (int frame = 0; frame < 50; ++frame) {
        bench().hThinkDo();
    }
    EXPECT_FALSE(bench().pic_Water.visible());
    EXPECT_TRUE(std::isfinite(bench().vPhNow));
    addBase(0);
    EXPECT_TRUE(bench().pic_Water.visible());
}

TEST_F(WorkbenchFrame, EachHydrogenChlorideGetsItsWater) {
    open();
    put(kHydrogenChloride, 3);
    bench().vCalm = false;
    bench().hThinkDo();
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kWater), 0);
    bench().vCalm = true;
    bench().hThinkDo();
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kWater), 3);
}

TEST_F(WorkbenchFrame, WaterWithoutTaskFadesOutAndAllElseFadesIn) {
    open();
    put(kWater, 2);
    bench().vMolecules.CREATE(kSodium, 80, 80).Fade = 95;
    bench().vMolecules.ITEM(1).Fade = 98;
    bench().vMolecules.ITEM(2).Fade = -3;
    const auto shy = bench().vMolecules.share(3);
    bench().hThinkDo();
    EXPECT_EQ(bench().vMolecules.ITEM(1).Fade, 99);
    EXPECT_EQ(bench().vMolecules.ITEM(2).Fade, 1);
    EXPECT_EQ(shy->Fade, 85);
    bench().hThinkDo();
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kWater), 1);
    EXPECT_EQ(shy->Fade, 75); // also the one that moved into the gap
    for (int frame = 0; frame < 10; ++frame) {
        bench().hThinkDo();
    }
    EXPECT_LE(shy->Fade, 0);
}

TEST_F(WorkbenchFrame, AFrameTurnIsPaced) {
    open();
    bench().hXEvents();
    EXPECT_DOUBLE_EQ(host.clock.slept, 0.02);
    bench().hWait(0.05);
    EXPECT_DOUBLE_EQ(host.clock.slept, 0.08);
    session().SessionRestart = true;
    bench().hXEvents();
    bench().hWait(5);
    EXPECT_DOUBLE_EQ(host.clock.slept, 0.08);
}

TEST_F(WorkbenchFrame, TheStreamGrowsAndFades) {
    open();
    addBase(0);
    bench().vDrops.CREATE(kHydroxide, 50, 0);
    for (int frame = 1; frame <= 12; ++frame) {
        bench().hThinkDo();
        EXPECT_EQ(bench().vStreamFade, std::min(100, 10 * frame));
    }
    bench().vDrops.REMOVE(1);
    for (int frame = 1; frame <= 12; ++frame) {
        bench().hThinkDo();
        EXPECT_EQ(bench().vStreamFade, std::max(0, 100 - 10 * frame));
    }
}

} // namespace
} // namespace quendal::test
