// The weak acid's workbench apart from its tutor.
#include "case_fixture.h"

#include "particles/species.h"

#include <cmath>

namespace quendal::test {
namespace {

constexpr Color kPlain{153, 204, 204};

class WeakForm : public WeakTest {
  protected:
    // The beaker, whatever could come of it.
    void fill(int volume, int fromBurette, int acid, int hydroxide) {
        bench().vVol = volume;
        bench().vSourceVol = {10, fromBurette};
        bench().vMolecules.DATABASE_DatabaseClear();
        put(kAceticAcid, acid);
        put(kHydroxide, hydroxide);
    }
    std::string amount(int line) { return bench().lab_BilanzCount(line).term(); }
};

TEST_F(WeakForm, KnowsItsAcid) {
    open();
    EXPECT_EQ(bench().vPKs, 4.76);
    EXPECT_EQ(bench().lab_Step0.text(), "Schwache Säure mit  pKs = 4,76");
    EXPECT_EQ(bench().lab_Step0.container(), &bench().ctl_Frame2);
    EXPECT_EQ(bench().vCase, 0);
}

TEST_F(WeakForm, TheModelFillsItsFields) {
    open(1.0);
    fill(14, 4, 6, 0);
    bench().hCalcPH();
    EXPECT_EQ(bench().vCountHAc, 6);
    EXPECT_EQ(bench().vCountOH, 0);
    EXPECT_EQ(bench().vConc, 1.0);
    EXPECT_EQ(bench().vAcidVol, 0.01);
    EXPECT_EQ(bench().vAcidMol, 1.0 * 0.01);
    EXPECT_EQ(bench().vBaseConc, 1.0);
    EXPECT_EQ(bench().vBaseVol, 0.004);
    EXPECT_EQ(bench().vBaseMol, 0.004);
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_NEAR(bench().vPh, 4.58391, 5e-6);
    EXPECT_EQ(bench().vPhText, "4,584");
    EXPECT_EQ(bench().vPhNow, 4.584);
    EXPECT_EQ(bench().vPOH, 0);
}

TEST_F(WeakForm, ExcessTakesThePlaceOfTheConcentration) {
    open(1.0);
    fill(21, 11, 0, 1);
    bench().hCalcPH();
    EXPECT_EQ(bench().vCase, 4);
    EXPECT_EQ(bench().vCountOH, 1);
    EXPECT_NEAR(bench().vConc, 0.001 / 0.021, 1e-12);
    EXPECT_EQ(bench().vAcidMol, 0.01); // taken before
    EXPECT_EQ(bench().vExcess, 0.001); // rounded
    EXPECT_NEAR(bench().vPOH, 1.3222, 5e-5);
    EXPECT_EQ(bench().vPhText, "12,678");
    fill(20, 10, 0, 0);
    bench().hCalcPH();
    EXPECT_EQ(bench().vCase, 3);
    EXPECT_EQ(bench().vConc, 1.0);
    EXPECT_NEAR(bench().vPOH, 1.3222, 5e-5); // nobody else writes it
    EXPECT_EQ(bench().vExcess, 0.001);
}

TEST_F(WeakForm, AnExcessFromBeforeIsRoundedAgain) {
    open(1.0);
    for (const int acid : {10, 5, 0}) {
        fill(20, 10, acid, 0);
        bench().vExcess = 0.0125;
        bench().hCalcPH();
        EXPECT_EQ(bench().vExcess, 0.012) << acid; // halves to the even digit
    }
}

TEST_F(WeakForm, AnEmptyBeakerKeepsItsLastPh) {
    open(0.8);
    fill(0, 0, 3, 2);
    bench().vPh = 5;
    bench().vPhText = "x";
    bench().vPhNow = 6;
    bench().vExcess = 0.0125;
    bench().vCase = 4;
    bench().hCalcPH();
    EXPECT_EQ(bench().vCountHAc, 3);
    EXPECT_EQ(bench().vCountOH, 2);
    EXPECT_EQ(bench().vConc, 0.8);
    EXPECT_EQ(bench().vAcidMol, 0.8 * 0.01);
    EXPECT_EQ(bench().vBaseMol, 0);
    EXPECT_EQ(bench().vPh, 5);
    EXPECT_EQ(bench().vPhText, "x");
    EXPECT_EQ(bench().vPhNow, 6);
    EXPECT_EQ(bench().vExcess, 0.0125);
    EXPECT_EQ(bench().vCase, 4);
}

TEST_F(WeakForm, ABufferWithoutBaseEndsBeforeTheRounding) {
    open(1.0);
    fill(10, 0, 5, 0);
    bench().vPh = 5;
    bench().vPhText = "x";
    bench().vPhNow = 6;
    bench().vExcess = 0.0125;
    bench().hCalcPH();
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(bench().vPh, 5);
    EXPECT_EQ(bench().vPhText, "x");
    EXPECT_EQ(bench().vPhNow, 6);
    EXPECT_EQ(bench().vExcess, 0.0125);
    EXPECT_TRUE(host.boxes.shown.empty());
}

TEST_F(WeakForm, HydroxideAgainstTheAmountsIsReadAsAStrongAcid) {
    open(1.0);
    fill(20, 10, 0, 1);
    bench().vExcess = 1;
    bench().hCalcPH();
    EXPECT_EQ(bench().vCase, 4);
    EXPECT_EQ(bench().vPh, 7.0);
    EXPECT_EQ(bench().vConc, 0);
    EXPECT_EQ(bench().vExcess, 0);
    fill(15, 5, 0, 1);
    bench().hCalcPH();
    EXPECT_EQ(bench().vCase, 4);
    EXPECT_NEAR(bench().vPh, std::log10(3.0), 1e-12);
    EXPECT_EQ(bench().vExcess, 0.005);
    EXPECT_EQ(bench().vPOH, 0);
}

TEST_F(WeakForm, GivesTheLastPhOfAnotherPointWhereItHasNone) {
    open(1.0);
    addBase(4);
    EXPECT_EQ(bench().vPhNow, 4.584);
    fill(10, 0, 5, 0);
    bench().hThinkDo();
    EXPECT_EQ(bench().vPhNow, 4.584);
}

TEST_F(WeakForm, WritesItsTaskSheet) {
    open(0.8);
    EXPECT_EQ(bench().name(), "frm_AppMainWeak");
    EXPECT_EQ(bench().caption(), "Morvik // Quendal - Schwache Säure mit starker Base");
    expectTaskSheet("Essigsäure  (c = 0.8 mol/L)", "Natronlauge", "den pH-Wert");
    EXPECT_EQ(bench().lab_pHName.term(), "pH Wert:");
    EXPECT_EQ(bench().frm_CalcDirect.text(), "pH-Wert ausrechnen");
    EXPECT_EQ(session().SessionMySeries->name, "Meine pH-Rechnungen");
}

TEST_F(WeakForm, OpensItsOwnCurveAndHelp) {
    open(1.2);
    expectCurveAndHelp("phschwach12", "weak.rtf");
}

TEST_F(WeakForm, ListsItsSpecies) {
    open();
    expectSpecies({{"H3O+", kHydronium},
                   {"Na+", kSodium},
                   {"HAc", kAceticAcid},
                   {"Ac-", kAcetate},
                   {"OH-", kHydroxide}});
}

struct BalanceCase {
    int ml;
    const char* lines[5];
};

class WeakBalance : public WeakForm, public testing::WithParamInterface<BalanceCase> {};

TEST_P(WeakBalance, CountsParticlesAndMarksTraces) {
    open(0.8);
    addBase(GetParam().ml);
    for (int line = 0; line < 5; ++line) {
        EXPECT_EQ(amount(line), GetParam().lines[line]) << line;
    }
}

INSTANTIATE_TEST_SUITE_P(
    AroundTheEquivalencePoint, WeakBalance,
    testing::Values(BalanceCase{0, {"0 mmol", "0 mmol", "8 mmol", "0 mmol", "~~ 0 mmol"}},
                    BalanceCase{3, {"0 mmol", "3 mmol", "5 mmol", "3 mmol", "~~ 0 mmol"}},
                    BalanceCase{8, {"~~ 0 mmol", "8 mmol", "0 mmol", "8 mmol", "~~ 0 mmol"}},
                    BalanceCase{9, {"~~ 0 mmol", "9 mmol", "0 mmol", "8 mmol", "1 mmol"}}));

TEST_F(WeakForm, ColoursTheLiquidByItsPh) {
    open(0.6);
    bench().hThinkDo();
    EXPECT_EQ(session().ParticleBackColor, kPlain); // still empty
    addBase(0);
    EXPECT_EQ(session().ParticleBackColor, blend(kPlain, 60, {255, 150, 150}));
    addBase(5);
    EXPECT_EQ(session().ParticleBackColor, blend(kPlain, 60, {255, 150, 150}));
    addBase(6);
    EXPECT_EQ(session().ParticleBackColor, blend(kPlain, 50, {150, 150, 255}));
    fill(16, 6, 0, 1); // exactly 7 in a beaker against its amounts only
    bench().hThinkDo();
    EXPECT_EQ(session().ParticleBackColor, blend(kPlain, 30, {150, 255, 150}));
    EXPECT_EQ(bench().pic_Water.backcolor(), session().ParticleBackColor);
}

TEST_F(WeakForm, LeavesTheSignOfChlorideAsItIs) {
    keepsTheSignOfChloride();
}

TEST_F(WeakForm, ThePipetteGivesOneParticlePerMillimole) {
    open(1.2);
    bench().but_Add_Click(0);
    EXPECT_EQ(bench().vVol, 10);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kAceticAcid), 12);
    EXPECT_EQ(bench().vMolecules.COUNT(), 12);
    bench().hThinkDo();
    EXPECT_EQ(bench().vCase, 1);
    bench().but_Add_Click(1);
    ASSERT_EQ(bench().vDrops.COUNT(), 2);
    EXPECT_EQ(bench().vDrops.ITEM(1).SORT(), kSodium);
    EXPECT_EQ(bench().vDrops.ITEM(2).SORT(), kHydroxide);
    EXPECT_EQ(bench().sClicks, 1);
}

TEST_F(WeakForm, ACalculationWaitsForTheParticles) {
    open(1.0);
    addBase(3);
    bench().but_Add_Click(1);
    bench().but_Calc_Click();
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kAceticAcid), 6);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kHydroxide), 0);
    EXPECT_EQ(bench().vPhNow, 4.584);
}

class WeakAnswer : public WeakForm, public testing::WithParamInterface<AnswerCase> {};

// 4.584 at 4 mL: three decimals count.
TEST_P(WeakAnswer, CountsThreeDecimals) {
    open(1.0);
    addBase(4);
    judges(GetParam(), 4.584,
           "Der von Dir errechnete pH-Wert ist leider falsch! Soll ich Dir beim Errechnen Schritt "
           "für Schritt helfen?");
    if (GetParam().right) {
        EXPECT_EQ(bench().lab_pH.text(), "4,584");
    }
}

INSTANTIATE_TEST_SUITE_P(All, WeakAnswer,
                         testing::Values(AnswerCase{"4,584", true}, AnswerCase{"4.5843", true},
                                         AnswerCase{"4,585", false}, AnswerCase{"4,583", false},
                                         AnswerCase{"4,58", false}, AnswerCase{"", false}));

TEST_F(WeakForm, AWrongAnswerLeadsToTheTutor) {
    open(1.0);
    addBase(4);
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped("4,58");
    host.boxes.answers = {BoxAnswer::Yes};
    bench().but_CalcDone.userClicked();
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_EQ(bench().vMismatch, 0);
}

TEST_F(WeakForm, TheFirstPointIsTheSampleAlone) {
    session().SessionRequiredPoints.Split("0,1", ',');
    open(1.0);
    addBase(0);
    bench().but_Add_Click(1);
    EXPECT_EQ(lastBox().text, "Nach der Vorgabe soll dieser Punkt gerechnet werden!");
    EXPECT_EQ(bench().sClicks, 0);
    bench().but_Calc_Click();
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
}

TEST_F(WeakForm, TheComparisonKeepsItsCaption) {
    open(1.0);
    addBase(4);
    const std::string before = dialogphCompare().caption();
    closeNextDialog();
    bench().but_phCompare.userClicked();
    EXPECT_EQ(dialogphCompare().caption(), before);
}

TEST_F(WeakForm, TheMagnifyingGlassIsThereFromTheStart) {
    open();
    EXPECT_TRUE(bench().but_ShowMag.visible());
    EXPECT_EQ(bench().but_ShowMag.text(), "Säure-Base-Gleichgewicht ansehen");
    EXPECT_EQ(bench().but_ShowMag.pictureIcon(), "Ico\\20\\Computer\\Signs\\Search.ico");
    EXPECT_EQ(bench().but_ShowMag.container(), &bench().frm_Holder);
    EXPECT_FALSE(bench().pic_Magnify.visible());
}

TEST_F(WeakForm, TellsItsFields) {
    open(1.0);
    addBase(11);
    EXPECT_EQ(number("vCountOH"), 1);
    EXPECT_EQ(number("vCountHAc"), 0);
    EXPECT_EQ(number("vCase"), 4);
    EXPECT_EQ(std::get<double>(field("vPKs")), 4.76);
    EXPECT_EQ(std::get<double>(field("vPh")), bench().vPh);
    EXPECT_EQ(std::get<double>(field("vPOH")), bench().vPOH);
    EXPECT_EQ(std::get<double>(field("vExcess")), 0.001);
    EXPECT_EQ(std::get<std::string>(field("vPhText")), "12,678");
}

} // namespace
} // namespace quendal::test
