// The four forms apart from texts and calculations: controls, volumes, liquid, drops.
#include "conducto_fixture.h"

#include "particles/species.h"
#include "shell/forms/frm_DialogHelp.h"

#include <set>

namespace quendal::test {
namespace {

class ConductoForm : public ConductoTest {};

class EveryForm : public ConductoForm, public testing::WithParamInterface<Titration> {};

TEST_P(EveryForm, TellsADemosLearnerWhatToDo) {
    openForm(GetParam(), 1.0, true);
    EXPECT_EQ(bench().lab_Step(1).text(),
              "Klick auf                                ,um dir den Rechenweg demonstrieren zu "
              "lassen");
    EXPECT_EQ(bench().but_Calc.text(), "Demo");
    EXPECT_EQ(bench().ctl_Button2.text(), "Demo");
    EXPECT_FALSE(bench().frm_Score.visible());
}

TEST_P(EveryForm, OpensTheHelpOnConductivity) {
    openForm(GetParam());
    for (const bool menu : {false, true}) {
        std::string file;
        later([&] {
            file = dynamic_cast<frm_DialogHelp&>(*host.windows.top()).FileName;
            host.windows.userClosed(*host.windows.top());
        });
        if (menu) {
            bench().mnu_HelpText.userClicked();
        } else {
            bench().but_Help.userClicked();
        }
        EXPECT_EQ(file, "lf.rtf");
    }
}

TEST_P(EveryForm, HasTheControlsOfItsKind) {
    const Titration one = GetParam();
    openForm(one);
    const bool strongBaseOnAcid = one == Titration::Strong || one == Titration::Log;
    EXPECT_EQ(bench().findControl("ctl_Executor") != nullptr, strongBaseOnAcid);
    EXPECT_EQ(bench().findControl("but_AddPoint") != nullptr, one == Titration::Log);
    EXPECT_EQ(bench().findControl("but_CalcPH", 1), nullptr);
    EXPECT_EQ(bench().findControl("but_CalcPH", 6) != nullptr, one != Titration::Log);
    EXPECT_EQ(bench().findControl("but_ShowMag"), nullptr);
    EXPECT_EQ(bench().findControl("opt_CalcStore"), nullptr);
    EXPECT_EQ(bench().findControl("but_CalcStep", 8), nullptr);
    EXPECT_FALSE(bench().frm_Reading.visible());
    EXPECT_EQ(calculator(2).pictureIcon(), "Ico\\16\\Business\\Office\\Calculator.ico");
    EXPECT_EQ(calculator(0).container(), &bench().frm_CalcDirect);
    EXPECT_EQ(bench().pic_Graph.container(), &bench().frm_Graph);
    std::set<int> inputs;
    for (int step = 0; step <= 13; ++step) {
        if (bench().findControl("txt_Calc", step) != nullptr) {
            inputs.insert(step);
        }
    }
    EXPECT_EQ(inputs, one == Titration::Log ? (std::set{1, 2, 4}) : (std::set{1, 2, 3, 4, 5, 6}));
}

TEST_P(EveryForm, TellsItsFields) {
    openForm(GetParam());
    calculate(1);
    FieldTable table;
    bench().describe(table);
    EXPECT_TRUE(flag("BreakOpen"));
    EXPECT_EQ(number("BreakIndex"), 0);
    EXPECT_EQ(field("LastVolume"), FieldValue{1.0});
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(table.find("IonValues", i),
                  FieldValue{bench().IonValues[static_cast<std::size_t>(i)]});
    }
    EXPECT_FALSE(table.find("IonValues", 6).has_value());
}

TEST_P(EveryForm, ShowsTheWaterBeforeThePipetteHasRun) {
    openForm(GetParam());
    const Rect& bowl = bench().pic_Bowl.place();
    bench().hThinkDo();
    EXPECT_TRUE(bench().pic_Water.visible());
    EXPECT_DOUBLE_EQ(bench().pic_Water.place().height, bowl.height * 90 / 140);
    EXPECT_EQ(bench().vVol, 0);
    for (const int ml : {0, 5, 20}) {
        addBase(ml);
        const Rect& water = bench().pic_Water.place();
        EXPECT_DOUBLE_EQ(water.height, bowl.height * (100 + ml) / 140) << ml;
        EXPECT_DOUBLE_EQ(water.bottom(), bowl.bottom()) << ml;
        EXPECT_EQ(bench().liquidVolume(), 10 + ml);
    }
}

// Where the numbers of the scale stand, whatever lies around them as light.
class ScaleSurface final : public Surface {
  public:
    double ScaleWidth() const override { return 312; }
    double ScaleHeight() const override { return 400; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {}
    void Line(Point, Point, Color, double) override { ++lines; }
    void Box(Point, Point, Color) override {}
    void Circle(Point, double, Color) override {}
    void Polygon(std::span<const Point>, Color) override {}
    void Text(Point, std::string_view text, const FontSpec&, Color) override {
        if (numbers.empty() || numbers.back() != text) {
            numbers.emplace_back(text);
        }
    }
    void Copy(const PicturePtr&, Point) override {}
    void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}

    int lines = 0;
    Texts numbers;
};

TEST_P(EveryForm, HasAScaleToAHundredAndFortyMillilitres) {
    openForm(GetParam());
    ScaleSurface glass;
    bench().pic_Glass.attachSurface(&glass);
    bench().Form_Resize();
    bench().pic_Glass.attachSurface(nullptr);
    EXPECT_EQ(glass.numbers,
              (Texts{"0 mL", "20 mL", "40 mL", "60 mL", "80 mL", "100 mL", "120 mL", "140 mL"}));
    EXPECT_GE(glass.lines, 36);
}

INSTANTIATE_TEST_SUITE_P(All, EveryForm, testing::ValuesIn(kTitrations));

TEST_F(ConductoForm, OnlySilverTellsTheWholeVolumeAndItsWaterToo) {
    for (const Titration one : kTitrations) {
        openForm(one, 0.8);
        bench().hThinkDo();
        const bool silver = one == Titration::Silver;
        EXPECT_EQ(term("lab_Vol", 2), silver ? "0,090 L" : "0.8 mol/L");
        addBase(0);
        EXPECT_EQ(term("lab_Vol", 2), silver ? "0,100 L" : "0.8 mol/L");
        addBase(7);
        EXPECT_EQ(term("lab_Vol", 0), "0,010 L");
        EXPECT_EQ(term("lab_Vol", 1), "0,007 L");
        EXPECT_EQ(term("lab_Vol", 2), silver ? "0,107 L" : "0.8 mol/L");
    }
}

struct BalanceCase {
    Titration titration;
    std::vector<SpeciesLine> lines;
};

class BalanceOf : public ConductoForm, public testing::WithParamInterface<BalanceCase> {};

TEST_P(BalanceOf, ListsItsSpecies) {
    openForm(GetParam().titration);
    expectSpecies(GetParam().lines);
    for (int line = static_cast<int>(GetParam().lines.size()); line < 5; ++line) {
        EXPECT_FALSE(visible("lab_Bilanz", line)) << line;
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, BalanceOf,
    testing::Values(
        BalanceCase{
            Titration::Strong,
            {{"H3O+", kHydronium}, {"Na+", kSodium}, {"Cl-", kChloride}, {"OH-", kHydroxide}}},
        BalanceCase{
            Titration::Log,
            {{"H3O+", kHydronium}, {"Na+", kSodium}, {"Cl-", kChloride}, {"OH-", kHydroxide}}},
        BalanceCase{Titration::Weak,
                    {{"H3O+", kHydronium},
                     {"HAc", kAceticAcid},
                     {"Ac-", kAcetate},
                     {"Na+", kSodium},
                     {"OH-", kHydroxide}}},
        BalanceCase{Titration::Silver,
                    {{"Ag+", kSilver}, {"Cl-", kChloride}, {"NO3-", kNitrate}, {"Na+", kSodium}}}));

struct TraceCase {
    int ml;
    const char* hydronium;
    const char* hydroxide;
};

class TraceMark : public ConductoForm, public testing::WithParamInterface<TraceCase> {};

// 0.6 mol/L: the equivalence lies at 6 mL.
TEST_P(TraceMark, GoesBySpecies) {
    for (const Titration one : {Titration::Strong, Titration::Weak, Titration::Log}) {
        openForm(one, 0.6);
        addBase(GetParam().ml);
        const int last = one == Titration::Weak ? 4 : 3;
        EXPECT_EQ(bench().lab_BilanzCount(0).term(), GetParam().hydronium) << nameOf(one);
        EXPECT_EQ(bench().lab_BilanzCount(last).term(), GetParam().hydroxide) << nameOf(one);
        EXPECT_EQ(bench().lab_BilanzCount(1).term(), "0 mmol") << nameOf(one);
    }
}

INSTANTIATE_TEST_SUITE_P(All, TraceMark,
                         testing::Values(TraceCase{5, "0 mmol", "~~ 0 mmol"},
                                         TraceCase{6, "~~ 0 mmol", "~~ 0 mmol"},
                                         TraceCase{7, "~~ 0 mmol", "0 mmol"}));

struct SignCase {
    Titration titration;
    bool afterwards;
};

class ChlorideSignOf : public ConductoForm, public testing::WithParamInterface<SignCase> {};

TEST_P(ChlorideSignOf, IsHiddenWhileOpenAndOnSomeFormsFromThenOn) {
    ASSERT_FALSE(session().PlainChloride);
    openForm(GetParam().titration);
    EXPECT_TRUE(session().PlainChloride);
    close();
    EXPECT_EQ(session().PlainChloride, GetParam().afterwards);
}

INSTANTIATE_TEST_SUITE_P(All, ChlorideSignOf,
                         testing::Values(SignCase{Titration::Strong, false},
                                         SignCase{Titration::Log, false},
                                         SignCase{Titration::Weak, true},
                                         SignCase{Titration::Silver, true}));

// (153, 204, 204) with 60 % of (255, 150, 150), 30 % of (150, 255, 150), 50 % of (150, 150, 255).
constexpr Color kPlain{153, 204, 204};
constexpr Color kReddish{214, 172, 172};
constexpr Color kGreenish{152, 219, 188};
constexpr Color kBluish{152, 177, 230};

struct ColourCase {
    Titration titration;
    double concentration;
    int ml;
    Color colour;
};

class LiquidColour : public ConductoForm, public testing::WithParamInterface<ColourCase> {};

TEST_P(LiquidColour, GoesByThePhOfTheStrongAcid) {
    openForm(GetParam().titration, GetParam().concentration);
    bench().hThinkDo();
    EXPECT_EQ(bench().pic_Water.backcolor(), kPlain);
    addBase(GetParam().ml);
    EXPECT_EQ(bench().pic_Water.backcolor(), GetParam().colour);
    EXPECT_EQ(session().ParticleBackColor, GetParam().colour);
}

INSTANTIATE_TEST_SUITE_P(All, LiquidColour,
                         testing::Values(ColourCase{Titration::Strong, 1.0, 0, kReddish},
                                         ColourCase{Titration::Strong, 1.0, 9, kReddish},
                                         ColourCase{Titration::Strong, 1.0, 10, kGreenish},
                                         ColourCase{Titration::Strong, 1.0, 11, kBluish},
                                         ColourCase{Titration::Strong, 0.6, 6, kGreenish},
                                         ColourCase{Titration::Strong, 1.4, 13, kReddish},
                                         ColourCase{Titration::Log, 1.0, 9, kReddish},
                                         ColourCase{Titration::Log, 1.0, 10, kGreenish},
                                         ColourCase{Titration::Log, 1.0, 20, kBluish},
                                         ColourCase{Titration::Weak, 1.0, 1, kPlain},
                                         ColourCase{Titration::Weak, 1.0, 20, kPlain},
                                         ColourCase{Titration::Silver, 1.0, 0, kPlain},
                                         ColourCase{Titration::Silver, 1.0, 10, kPlain}));

struct DropsCase {
    Titration titration;
    int first;              // kind of the pipette's first drop
    std::vector<int> kinds; // of the drops that are in the beaker when it is empty
    int left;               // kinds of the burette's pair
    int right;
};

class Drops : public ConductoForm, public testing::WithParamInterface<DropsCase> {};

TEST_P(Drops, AreThoseOfTheSolutions) {
    const DropsCase& row = GetParam();
    openForm(row.titration, 0.6);
    int first = 0;
    later([&] { first = bench().vDrops.ITEM(1).SORT(); });
    bench().vCalm = false; // nothing reacts and no water comes
    bench().but_Add_Click(0);
    EXPECT_EQ(first, row.first);
    EXPECT_EQ(bench().vVol, 10);
    EXPECT_EQ(bench().vSourceVol[0], 10);
    for (const int kind : row.kinds) {
        EXPECT_EQ(bench().vMolecules.COUNTSORT(kind), 6) << "kind " << kind;
    }
    bench().but_Add_Click(1);
    ASSERT_EQ(bench().vDrops.COUNT(), 2);
    EXPECT_EQ(bench().vDrops.ITEM(1).SORT(), row.left);
    EXPECT_EQ(bench().vDrops.ITEM(2).SORT(), row.right);
    while (bench().vDrops.COUNT() > 0) {
        bench().hXEvents();
    }
    EXPECT_EQ(bench().vVol, 11);
    EXPECT_EQ(bench().vSourceVol[1], 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, Drops,
    testing::Values(
        DropsCase{Titration::Strong, kHydronium, {kHydronium, kChloride}, kSodium, kHydroxide},
        DropsCase{Titration::Log, kHydronium, {kHydronium, kChloride}, kSodium, kHydroxide},
        DropsCase{Titration::Weak, kAceticAcid, {kAceticAcid}, kSodium, kHydroxide},
        DropsCase{Titration::Silver, kChloride, {kChloride, kSodium}, kNitrate, kSilver}));

struct CommandCase {
    const char* text;
    bool clicks;
};

class ExecutorCommand : public ConductoForm, public testing::WithParamInterface<CommandCase> {
  protected:
    void execute() { control<ctl_Executor>("ctl_Executor").userCommand(GetParam().text); }
};

TEST_P(ExecutorCommand, ClicksThePipetteInAnyLetterCase) {
    for (const Titration one : {Titration::Strong, Titration::Log}) {
        openForm(one, 0.6);
        execute();
        EXPECT_EQ(bench().vVol, GetParam().clicks ? 10 : 0) << nameOf(one);
    }
}

TEST_P(ExecutorCommand, DoesNothingOnceThePipetteIsGone) {
    openForm(Titration::Strong, 0.6);
    addBase(3);
    execute();
    EXPECT_EQ(bench().sClicks, 3);
    EXPECT_EQ(bench().vDrops.COUNT(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, ExecutorCommand,
                         testing::Values(CommandCase{"PIPETTE", true}, CommandCase{"pipette", true},
                                         CommandCase{"PiPetTe", true},
                                         CommandCase{"PIPETTE ", false},
                                         CommandCase{"PIPETTE();", false},
                                         CommandCase{"BÜRETTE", false}, CommandCase{"", false}));

} // namespace
} // namespace quendal::test
