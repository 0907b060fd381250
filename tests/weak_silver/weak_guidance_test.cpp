// The weak acid's guided calculation: which steps come, what is seen at them, what is right there.
#include "case_fixture.h"

#include "particles/species.h"

namespace quendal::test {

namespace {

constexpr unsigned kAcid = inCase(1);
constexpr unsigned kBuffer = inCase(2);
constexpr unsigned kBase = inCase(3);
constexpr unsigned kExcess = inCase(4);
constexpr unsigned kWithBase = kBuffer | kBase | kExcess;

const std::vector<ViewRow> kView{
    {1, "lab_CalcStep(0)", "1. Stoffmenge vorgelegte  Säure"},
    {1, "lab_Calc(0)", "nµV(HAc) = cµV(HAc) * VµV(HAc)"},
    {1, "lab_Calc(1)", "cµV(HAc) ="},
    {2, "lab_Calc(3)", "VµV(HAc) ="},
    {3, "lab_CalcStep(0)", "1. Stoffmenge vorgelegte  Säure"},
    {3, "lab_Calc(5)", "nµV(HAc) = {1} * {2}", kAnyCase, "vDetailAcid"},
    {3, "lab_Calc(6)", "nµV(HAc) ="},
    {4, "lab_CalcStep(1)", "2. Stoffmenge der zugetropften Base"},
    {4, "lab_Calc(15)", "nµZ(OH) = cµZ(OH) * VµZ(OH)"},
    {4, "lab_Calc(14)", "cµZ(OH) ="},
    {5, "lab_Calc(12)", "VµZ(OH) ="},
    {6, "lab_CalcStep(1)", "2. Stoffmenge der zugetropften Base"},
    {6, "lab_Calc(10)", "nµZ(OH) = {4} * {5}", kAnyCase, "vDetailBase"},
    {6, "lab_Calc(9)", "nµZ(OH) ="},
    {7, "lab_CalcStep(2)", "Welcher Fall liegt vor - ist für den pH entscheidend?", kAcid},
    {7, "lab_CalcStep(2)", "3. Welcher Fall liegt vor - ist für den pH entscheidend?", kWithBase},
    {7, "opt_Calc(0)", "(Fast) nur HAc"},
    {7, "opt_Calc(1)", "HAc neben Ac-"},
    {7, "opt_Calc(2)", "(Fast) nur Ac-"},
    {7, "opt_Calc(3)", "Wichtig nur OH- "},
    {7, "lab_optCalc(0)", "nµZ(OH) = 0", kAnyCase, "vDetailCase"},
    {7, "lab_optCalc(1)", "0 < nµZ(OH) < nµV(HAc)", kAnyCase, "vDetailCase"},
    {7, "lab_optCalc(2)", "nµZ(OH) = nµV(HAc)", kAnyCase, "vDetailCase"},
    {7, "lab_optCalc(3)", "nµZ(OH) > nµV(HAc)", kAnyCase, "vDetailCase"},

    {12, "lab_CalcStep(3)", "1. Es liegt (fast) nur schwache Säure vor", kAcid},
    {12, "lab_Calc(16)", "Der pH-Wert für eine schwache Säure", kAcid, "vDetailStart"},
    {12, "lab_Calc(28)", "berechnet sich wie folgt:", kAcid, "vDetailStart"},
    {12, "lab_Calc(19)", "pH = (1)/(2)*(pKs-log(cµV(HAc)))", kAcid, "vDetailStart"},
    {12, "lab_Calc(1)", "cµV(HAc) =", kAcid, "vDetailStart"},
    {12, "txt_Calc(1)", "", kAcid, "vDetailStart"},
    {12, "lab_Calc(2)", "mol / L", kAcid, "vDetailStart"},

    {8, "lab_CalcStep(3)", "4. HAc und Ac- liegen nebeneinander vor", kBuffer},
    {8, "lab_Calc(16)", "n(HAc) =  nµV(HAc) - nµZ(OH) ", kBuffer},
    {8, "lab_Calc(17)", "n(HAc) =", kBuffer},
    {8, "txt_Calc(8)", "", kWithBase},
    {8, "lab_Calc(18)", "mol", kWithBase},
    {9, "lab_Calc(28)", "n(Ac-) = nµZ(OH) ", kBuffer},
    {9, "lab_Calc(20)", "n(Ac-)", kBuffer},
    {9, "lab_Calc(21)", "mol", kBuffer},
    {9, "txt_Calc(9)", "", kWithBase},
    {10, "lab_CalcStep(3)", "4. HAc und Ac- liegen nebeneinander vor", kBuffer},
    {10, "lab_Calc(19)", "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)", kBuffer, "vDetailConc"},
    {10, "lab_Calc(22)", "n(HAc)/n(Ac-) =", kBuffer},
    {10, "txt_Calc(10)", "", kWithBase},
    {12, "lab_CalcStep(4)", "5. pH-Wert berechnen", kWithBase},
    {12, "lab_Calc(27)", "pH = pKs - log(n(HAc) / n(Ac-))", kBuffer, "vDetailFinal"},

    {8, "lab_CalcStep(3)", "4. Es liegt nur schwache Base Ac- vor", kBase},
    {8, "lab_Calc(16)", "n(Ac-) = nµZ(OH-)", kBase},
    {8, "lab_Calc(17)", "n(Ac-) =", kBase},
    {9, "lab_Calc(28)", "V(gesamt) = VµV(HAc) + VµZ(OH)", kBase},
    {9, "lab_Calc(20)", "V(gesamt) =", kBase | kExcess},
    {9, "lab_Calc(21)", " L", kBase | kExcess},
    {10, "lab_CalcStep(3)", "4. Es liegt nur schwache Base Ac- vor", kBase},
    {10, "lab_Calc(19)", "c(Ac-) = (n(Ac-))/(V(gesamt)", kBase, "vDetailConc"},
    {10, "lab_Calc(22)", "c(Ac-) = ", kBase},
    {10, "lab_Calc(25)", " mol/L", kBase | kExcess},
    {12, "lab_Calc(27)", "pH = 14 - (1)/(2) * (14 - pKs - log(c(Ac-)))", kBase, "vDetailFinal"},

    {8, "lab_CalcStep(3)", "4. Konzentration der OH- Ionen berechnen", kExcess},
    {8, "lab_Calc(16)", "n(OH-) = nµZ(OH) - nµV(HAc)", kExcess},
    {8, "lab_Calc(17)", "n(OH-) =", kExcess},
    {10, "lab_CalcStep(3)", "4. Konzentration der OH- Ionen berechnen", kExcess},
    {10, "lab_Calc(19)", "c(OH-) = (n(OH-))/(V(gesamt))", kExcess, "vDetailConc"},
    {10, "lab_Calc(22)", "c(OH-) =", kExcess},
    {11, "lab_CalcStep(4)", "5. pOH-Wert berechnen", kExcess},
    {11, "lab_Calc(27)", "pOH = -log(OH-)", kExcess, "vDetailFinal"},
    {11, "lab_Calc(26)", "pOH =", kExcess},
    {11, "txt_Calc(11)", "", kExcess},
    {12, "lab_CalcStep(4)", "5. pH-Wert berechnen", kExcess},
    {12, "lab_Calc(23)", "pH ="},
};

int caseOf(double concentration, int ml) {
    const int equivalence = equivalenceMl(concentration);
    if (ml == 0) {
        return 1;
    }
    return ml < equivalence ? 2 : ml == equivalence ? 3 : 4;
}

std::map<int, Asked> asked(double concentration, int ml) {
    const double acid = concentration * 0.01;
    const double base = ml / 1000.0;
    const double volume = (10 + ml) / 1000.0;
    std::map<int, Asked> all = askedAmounts(concentration, ml);
    switch (caseOf(concentration, ml)) {
    case 1:
        all[12] = {(4.76 - lg(concentration)) * 0.5, 2};
        break;
    case 2:
        all[8] = {acid - base};
        all[9] = {base};
        all[10] = {(acid - base) / base, 3};
        all[12] = {4.76 - lg((acid - base) / base), 2};
        break;
    case 3:
        all[8] = {base};
        all[9] = {volume};
        all[10] = {base / volume, 3};
        all[12] = {14.0 - (14.0 - 4.76 - lg(base / volume)) * 0.5, 2};
        break;
    default:
        all[8] = {base - acid, 3};
        all[9] = {volume, 3};
        all[10] = {(base - acid) / volume, 3};
        all[11] = {-lg((base - acid) / volume), 2};
        all[12] = {14.0 - -lg((base - acid) / volume), 2};
    }
    return all;
}

} // namespace

const Lesson& weakLesson() {
    static const Lesson lesson{
        .view = kView,
        .help = {{3, "vDetailAcid", 1, 1, 3},
                 {6, "vDetailBase", 4, 4, 6},
                 {7, "vDetailCase", 7},
                 {10, "vDetailConc", 8, 8, 10},
                 {12, "vDetailStart", 12, 0, 0, kAcid},
                 {12, "vDetailFinal", 12, 0, 0, kBuffer | kBase}},
        .calculators = {9, 10, 11, 12},
        .solveChoice = "Das ist leider immer noch falsch! Soll ich das Richtige anklicken?",
        .caseOf = caseOf,
        .asked = asked};
    return lesson;
}

namespace {

class WeakGuidance : public WeakTest {};

class WeakWalk : public WeakGuidance, public testing::WithParamInterface<WalkCase> {};

TEST_P(WeakWalk, GoesThroughItsStepsAndShowsWhatBelongsToThem) {
    walkPoint(GetParam());
}

// Once the choice has been helped with too.
const std::vector<int> kHelpedConc{7, 10, 8, 9, 10};

std::vector<int> helpedConcTo(std::vector<int> tail) {
    tail.insert(tail.begin(), kHelpedConc.begin(), kHelpedConc.end());
    return helpedTo(tail);
}

INSTANTIATE_TEST_SUITE_P(All, WeakWalk,
                         testing::Values(WalkCase{1.0, 0, false, {7, 12}},
                                         WalkCase{0.6, 0, false, {7, 12}},
                                         WalkCase{1.4, 0, true, {7, 7, 12, 12}},
                                         WalkCase{1.0, 1, false, {3, 6, 7, 10, 12}},
                                         WalkCase{1.0, 3, false, {3, 6, 7, 10, 12}},
                                         WalkCase{1.4, 5, false, {3, 6, 7, 10, 12}},
                                         WalkCase{0.8, 3, true, helpedConcTo({12, 12})},
                                         WalkCase{1.0, 10, false, {3, 6, 7, 10, 12}},
                                         WalkCase{1.4, 14, false, {3, 6, 7, 10, 12}},
                                         WalkCase{1.4, 14, true, helpedConcTo({12, 12})},
                                         WalkCase{1.0, 11, false, {3, 6, 7, 10, 11, 12}},
                                         WalkCase{0.6, 20, false, {3, 6, 7, 10, 11, 12}},
                                         WalkCase{1.2, 13, true, helpedConcTo({11, 12})}));

class EveryWeakPoint : public WeakGuidance, public testing::WithParamInterface<TaskPoint> {};

TEST_P(EveryWeakPoint, EndsOnTheCurveOfTheModel) {
    endPoint(GetParam());
    EXPECT_EQ(bench().lab_pH.text(), rightText(12));
}

INSTANTIATE_TEST_SUITE_P(All, EveryWeakPoint, everyPoint(0));

TEST_F(WeakGuidance, NothingOfTheFrameIsSeenBeforeTheStart) {
    open();
    EXPECT_FALSE(visible("frm_Calc"));
    EXPECT_EQ(seen(), Seen{});
    EXPECT_EQ(heading(0), "1. Stoffmenge vorgelegte  Säure");
    EXPECT_EQ(heading(1), "2. Stoffmenge der zugetropften Base");
    EXPECT_EQ(heading(2), "3. Welcher Fall liegt vor - ist für den pH entscheidend!!");
    EXPECT_EQ(heading(3), "4. Konzentration berechnen");
    EXPECT_EQ(heading(4), "5. pH-Wert berechnen");
    EXPECT_EQ(stepButton(1).text(), "Weiter!");
    EXPECT_EQ(stepButton(12).text(), "&Fertig");
    EXPECT_EQ(stepButton(13).text(), "'one' - Klick");
    EXPECT_EQ(bench().findControl("txt_Calc", 7), nullptr);
}

TEST_F(WeakGuidance, StartsOverTheTaskWithNothingChosen) {
    beginPoint(1.0, 3);
    goTo(12);
    startCalculation();
    EXPECT_EQ(dueStep(), 3);
    EXPECT_EQ(checkedOptions(), "");
    for (const int step : {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12}) {
        EXPECT_EQ(input(step).text(), "") << step;
    }
    EXPECT_TRUE(visible("frm_Calc"));
    EXPECT_FALSE(bench().but_Help.visible());
    EXPECT_FALSE(bench().but_phCompare.visible());
    EXPECT_EQ(bench().findControl("frm_Calc"), bench().controls().back());
    for (int step = 1; step <= 12; ++step) {
        EXPECT_EQ(stepButton(step).text(), "Weiter!");
        EXPECT_EQ(reached(step), step == 3) << step;
    }
}

TEST_F(WeakGuidance, TheFocusFollowsTheSteps) {
    beginPoint(1.0, 3);
    EXPECT_TRUE(input(3).hasFocus());
    goTo(7);
    EXPECT_TRUE(stepButton(7).hasFocus());
    goTo(10);
    EXPECT_TRUE(input(10).hasFocus());
}

TEST_F(WeakGuidance, KeepingTheSampleStartsAtTheBase) {
    keepsTheSample();
}

TEST_F(WeakGuidance, TheConcentrationOfThePureAcidIsGivenWithItsFormula) {
    beginPoint(1.4, 0);
    goTo(12);
    takeHelp(*helpAt(12));
    EXPECT_EQ(input(1).text(), "1,4");
    EXPECT_GT(input(1).place().top, control<Control>("lab_Calc", 19).place().top);
    EXPECT_LT(input(1).place().top, input(12).place().top);
    EXPECT_EQ(input(1).place().top, control<Control>("lab_Calc", 1).place().top);
}

TEST_F(WeakGuidance, WithoutBaseTheChoiceStandsAtTheHead) {
    beginPoint(1.0, 0);
    const double alone = control<Control>("lab_CalcStep", 2).place().top;
    bench().frm_CalcDirect.setVisible(false);
    control<Control>("frm_Calc").setVisible(false);
    addBase(3);
    startCalculation();
    EXPECT_GT(control<Control>("lab_CalcStep", 2).place().top, alone + 200);
}

// The particles say that all acid is there, the burette says that base has been added.
TEST_F(WeakGuidance, APointThatHasNotReactedWaitsForItsParticles) {
    open(1.0);
    addBase(5);
    bench().vCalm = false;
    bench().vMolecules.DATABASE_DatabaseClear();
    put(kAceticAcid, 10);
    bench().hThinkDo();
    ASSERT_EQ(bench().vCase, 1);
    startCalculation();
    answer(3, "0,01");
    answer(6, "0,005");
    choose(0);
    EXPECT_EQ(dueStep(), 8);
    for (int step = 1; step <= 13; ++step) {
        EXPECT_FALSE(stepButton(step).visible()) << step;
    }
    bench().hThinkDo(); // nothing has changed yet
    EXPECT_FALSE(stepButton(10).visible());
    settle(5);
    bench().hThinkDo();
    EXPECT_EQ(bench().vCase, 2);
    EXPECT_EQ(dueStep(), 10);
    EXPECT_TRUE(stepButton(10).visible());
    EXPECT_TRUE(input(10).visible());
    EXPECT_FALSE(input(8).visible());
    EXPECT_EQ(heading(3), "4. HAc und Ac- liegen nebeneinander vor");
    answer(10, "1");
    EXPECT_EQ(dueStep(), 12);
}

TEST_F(WeakGuidance, ASettledFrameIsNotLaidOutAgain) {
    beginPoint(1.0, 5);
    input(3).userTyped("0,0");
    for (int frame = 0; frame < 5; ++frame) {
        bench().hThinkDo();
    }
    EXPECT_EQ(input(3).text(), "0,0");
    EXPECT_EQ(dueStep(), 3);
}

TEST_F(WeakGuidance, ATextThatIsNoNumberIsToldOfWhereRoundingDecides) {
    beginPoint(1.0, 3);
    answer(3, "x");
    EXPECT_EQ(host.boxes.shown.size(), 1U); // exact steps don't speak of characters
    goTo(6);
    host.boxes.shown.clear();
    answer(6, "x");
    ASSERT_EQ(host.boxes.shown.size(), 2U);
    EXPECT_EQ(host.boxes.shown[0].text, "Deine Eingabe enthält unzulässige Zeichen!");
    EXPECT_EQ(bench().vMismatch, 0);
    answer(6, "0,0031");
    EXPECT_EQ(bench().vMismatch, 1);
    EXPECT_EQ(dueStep(), 6);
}

} // namespace
} // namespace quendal::test
