// The workbench of chloride with silver ions apart from its tutor.
#include "case_fixture.h"

#include "particles/species.h"

namespace quendal::test {
namespace {

constexpr Color kPlain{153, 204, 204};

class SilverForm : public SilverTest {
  protected:
    void fill(int millilitres) {
        bench().vVol = 10 + millilitres;
        bench().vSourceVol = {10, millilitres};
        bench().hCalcPH();
    }
    bool calcIsDue() { return bench().but_Calc.bordercolor() == Color{192, 255, 192}; }
    void land() {
        while (bench().vDrops.COUNT() > 0) {
            bench().hXEvents();
        }
    }
};

TEST_F(SilverForm, KnowsItsSalt) {
    open();
    EXPECT_EQ(bench().vPKL, 9.7);
    EXPECT_EQ(bench().lab_KLInfo.term(), "Hinweis: KµL(AgCl) = 10^-9.7 (mol²)/(  L²)");
    EXPECT_EQ(bench().lab_KLInfo.container(), &bench().ctl_Frame2);
}

TEST_F(SilverForm, TheModelFillsItsFields) {
    open(1.0);
    fill(1);
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(bench().vAcidVol, 0.01);
    EXPECT_EQ(bench().vAcidMol, 0.01);
    EXPECT_EQ(bench().vBaseConc, 1.0);
    EXPECT_EQ(bench().vBaseVol, 0.001);
    EXPECT_EQ(bench().vBaseMol, 0.001);
    EXPECT_DOUBLE_EQ(bench().vConc, 0.009 / 0.011); // of the chloride that is left
    EXPECT_NEAR(bench().vSilverIon, 2.4387e-10, 5e-15);
    EXPECT_NEAR(bench().vPotential, 0.23284, 5e-6);
    EXPECT_EQ(bench().vPotentialText, "0,23");
    EXPECT_EQ(bench().vPotentialNow, 0.23);
    EXPECT_EQ(bench().vSilverExcess, 0);
    fill(11);
    EXPECT_EQ(bench().vCase, 4);
    EXPECT_EQ(bench().vConc, 1.0); // restored
    EXPECT_NEAR(bench().vSilverExcess, 0.001, 1e-12);
    EXPECT_NEAR(bench().vSilverIon, 0.001 / 0.021, 1e-12);
    EXPECT_EQ(bench().vPotentialText, "0,72");
    fill(10);
    EXPECT_EQ(bench().vCase, 3);
    EXPECT_EQ(bench().vConc, 1.0);
    EXPECT_NEAR(bench().vSilverIon, 1.41254e-5, 5e-11);
    EXPECT_EQ(bench().vPotentialText, "0,51");
    EXPECT_NEAR(bench().vSilverExcess, 0.001, 1e-12); // of its own section only
}

TEST_F(SilverForm, WithoutSilverThereIsNoPotential) {
    open(0.8);
    fill(0);
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(bench().vConc, 0.8);
    EXPECT_EQ(bench().vPotential, 0);
    EXPECT_EQ(bench().vSilverIon, 0);
    EXPECT_EQ(bench().vPotentialText, "0,00");
    fill(3);
    const double potential = bench().vPotential;
    EXPECT_GT(potential, 0.2);
    fill(0);
    EXPECT_EQ(bench().vPotential, potential); // the last one stays
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(bench().vConc, 0.8);
}

TEST_F(SilverForm, TheStrongestSampleMissesItsEquivalencePoint) {
    open(1.4);
    fill(14);
    EXPECT_EQ(bench().vCase, 4);
    EXPECT_NEAR(bench().vSilverExcess, 1.7e-18, 0.1e-18);
    EXPECT_EQ(bench().vPotentialText, "-0,15");
}

TEST_F(SilverForm, ParticlesDontDecide) {
    open(1.0);
    addBase(4);
    EXPECT_EQ(bench().vMolecules.COUNT(), 0);
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(bench().vPhNow, 0.25);
}

TEST_F(SilverForm, WritesItsTaskSheet) {
    open(1.2);
    EXPECT_EQ(bench().name(), "frm_AppMainSilver");
    EXPECT_EQ(bench().caption(), "Morvik // Quendal - Potentiometrie");
    expectTaskSheet("Natriumchlorid-Lösung  (c = 1.2 mol/L)", "Silbernitrat-Lösung",
                    "das Potential");
    EXPECT_EQ(bench().lab_pHName.term(), "Potential:");
    EXPECT_EQ(bench().frm_CalcDirect.text(), "Potential ausrechnen");
    EXPECT_EQ(session().SessionMySeries->name, "Meine pH-Rechnungen");
    EXPECT_EQ(bench().but_phCompare.text(), "pH-Kurve anzeigen");
}

TEST_F(SilverForm, OpensItsOwnCurveAndHelp) {
    open(0.6);
    expectCurveAndHelp("potsilber06", "silver.rtf");
}

TEST_F(SilverForm, ListsItsSpecies) {
    open();
    expectSpecies({{"Ag+", kSilver}, {"Na+", kSodium}, {"Cl-", kChloride}, {"NO3-", kNitrate}});
    for (const char* name : {"pic_Bilanz", "lab_Bilanz", "lab_BilanzCount"}) {
        EXPECT_FALSE(visible(name, 4)) << name;
    }
}

TEST_F(SilverForm, CountsParticlesAndNeverMarksTraces) {
    open(0.8);
    int x = 2;
    for (const auto& [kind, count] : {std::pair{kSilver, 1}, std::pair{kSodium, 8},
                                      std::pair{kChloride, 3}, std::pair{kNitrate, 6}}) {
        for (int n = 0; n < count; ++n) {
            bench().vMolecules.CREATE(kind, x += 5, kind == kSilver ? 2 : 80);
        }
    }
    bench().vMolecules.CREATE(kSilverChloride, 50, 90); // in no line
    bench().vCalm = false;
    for (const int ml : {0, 7, 8, 9}) {
        addBase(ml);
        const char* lines[] = {"1 mmol", "8 mmol", "3 mmol", "6 mmol"};
        for (int line = 0; line < 4; ++line) {
            EXPECT_EQ(bench().lab_BilanzCount(line).term(), lines[line]) << ml;
        }
    }
}

TEST_F(SilverForm, TheLiquidKeepsItsColour) {
    open(1.0);
    for (const int ml : {0, 1, 10, 20}) {
        addBase(ml);
        EXPECT_EQ(session().ParticleBackColor, kPlain);
        EXPECT_EQ(bench().pic_Water.backcolor(), kPlain);
    }
}

TEST_F(SilverForm, LeavesTheSignOfChlorideAsItIs) {
    keepsTheSignOfChloride();
}

TEST_F(SilverForm, PipetteAndBuretteGiveTheirPairs) {
    open(0.6);
    int first = 0;
    later([&] { first = bench().vDrops.ITEM(1).SORT(); });
    bench().but_Add_Click(0);
    EXPECT_EQ(first, kChloride);
    EXPECT_EQ(bench().vVol, 10);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kChloride), 6);
    EXPECT_EQ(bench().vMolecules.COUNTSORT(kSodium), 6);
    bench().but_Add_Click(1);
    ASSERT_EQ(bench().vDrops.COUNT(), 2);
    EXPECT_EQ(bench().vDrops.ITEM(1).SORT(), kNitrate);
    EXPECT_EQ(bench().vDrops.ITEM(2).SORT(), kSilver);
    EXPECT_DOUBLE_EQ(bench().vDrops.ITEM(1).PosX + 4, bench().vDrops.ITEM(2).PosX);
    land();
    EXPECT_EQ(bench().vVol, 11); // only the silver counts
    EXPECT_EQ(bench().vSourceVol[1], 1);
}

TEST_F(SilverForm, ACalculationWithoutSilverAddsTheFirstMillilitre) {
    session().SessionRequiredPoints.Split("0,2", ',');
    open(1.0);
    addBase(0);
    bench().but_Calc_Click();
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_FALSE(bench().frm_CalcDirect.visible());
    EXPECT_FALSE(visible("frm_Calc"));
    land();
    bench().but_Calc_Click();
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
    EXPECT_TRUE(bench().txt_Ph.hasFocus());
}

TEST_F(SilverForm, TheFirstMillilitreOfADemoIsAskedFor) {
    open(1.0, true);
    addBase(0);
    host.boxes.answers = {BoxAnswer::No};
    bench().but_Calc_Click();
    EXPECT_EQ(host.boxes.shown.size(), 1U);
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_FALSE(visible("frm_Calc"));
    land();
    bench().but_Calc_Click();
    EXPECT_TRUE(visible("frm_Calc"));
}

TEST_F(SilverForm, TheStartIsNeverDue) {
    session().SessionRequiredPoints.Split("0,1,2", ',');
    open(1.0);
    bench().but_Add_Click(0);
    EXPECT_FALSE(calcIsDue());
    bench().but_Add_Click(1);
    EXPECT_TRUE(host.boxes.shown.empty());
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_TRUE(calcIsDue());
    land();
    bench().but_Add_Click(1); // from the first mL on the list holds
    EXPECT_EQ(bench().sClicks, 1);
    EXPECT_EQ(lastBox().text, "Nach der Vorgabe soll dieser Punkt gerechnet werden!");
    session().SessionMySeries->Data.Add(1, 0.23);
    bench().but_Add_Click(1);
    EXPECT_EQ(bench().sClicks, 2);
    EXPECT_TRUE(calcIsDue());
}

class SilverAnswer : public SilverForm, public testing::WithParamInterface<AnswerCase> {};

// 0.249 V at 4 mL, of which two decimals count.
TEST_P(SilverAnswer, CountsTwoDecimals) {
    open(1.0);
    addBase(4);
    bench().lab_pH.setText("?");
    judges(GetParam(), 0.25,
           "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen "
           "Schritt für Schritt helfen?");
    EXPECT_EQ(bench().lab_pH.text(), "?"); // only the tutor writes it
}

INSTANTIATE_TEST_SUITE_P(All, SilverAnswer,
                         testing::Values(AnswerCase{"0,25", true}, AnswerCase{"0.249", true},
                                         AnswerCase{"0,254", true}, AnswerCase{"0,26", false},
                                         AnswerCase{"0,24", false}, AnswerCase{"", false}));

TEST_F(SilverForm, NoAnswerIsRightInTheFirstSection) {
    open(1.0);
    addBase(4);
    bench().but_Calc_Click();
    bench().vCase = 1;
    bench().txt_Ph.userTyped("0,25");
    bench().but_CalcDone.userClicked();
    EXPECT_EQ(bench().vWrong, 1);
    EXPECT_TRUE(bench().frm_CalcDirect.visible());
}

TEST_F(SilverForm, AGuidedPointIsShownInVolt) {
    beginPoint(1.0, 10);
    goTo(12);
    std::string caption;
    later([&] {
        caption = host.windows.top()->caption();
        host.windows.userClosed(*host.windows.top());
    });
    answerRight(12);
    EXPECT_EQ(bench().lab_pH.text(), "0,51 V");
    EXPECT_EQ(caption, "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf");
}

TEST_F(SilverForm, TheMagnifyingGlassComesWithTheFirstClickOnTheBurette) {
    session().SessionRequiredPoints.Split("1", ',');
    open(1.0);
    EXPECT_EQ(bench().but_ShowMag.text(), "Löslichkeitsgleichgewicht ansehen");
    EXPECT_FALSE(bench().but_ShowMag.visible());
    bench().but_Add_Click(0);
    EXPECT_FALSE(bench().but_ShowMag.visible());
    bench().but_Add_Click(1);
    EXPECT_TRUE(bench().but_ShowMag.visible());
    land();
    bench().but_ShowMag.setVisible(false);
    bench().but_Add_Click(1); // refused: the point is pending
    EXPECT_FALSE(bench().but_ShowMag.visible());
    addBase(20);
    bench().but_Add_Click(1); // refused: the beaker is full
    EXPECT_FALSE(bench().but_ShowMag.visible());
}

TEST_F(SilverForm, TellsItsFields) {
    open(1.0);
    addBase(11);
    EXPECT_EQ(number("vCase"), 4);
    EXPECT_EQ(std::get<double>(field("vPKL")), 9.7);
    EXPECT_EQ(std::get<double>(field("vSilverExcess")), bench().vSilverExcess);
    EXPECT_EQ(std::get<double>(field("vSilverIon")), bench().vSilverIon);
    EXPECT_EQ(std::get<double>(field("vPotential")), bench().vPotential);
    EXPECT_EQ(std::get<double>(field("vPotentialNow")), 0.72);
    EXPECT_EQ(std::get<std::string>(field("vPotentialText")), "0,72");
}

} // namespace
} // namespace quendal::test
