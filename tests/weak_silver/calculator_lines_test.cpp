// The lines that the popup calculator offers on both forms, what it makes of them, and where its
// result goes.
#include "case_fixture.h"

#include "host/expression.h"

#include <sstream>

namespace quendal::test {
namespace {

using Lines = std::vector<std::string>;

struct LinesCase {
    double concentration;
    int ml;
    int index;
    Lines lines;
};

struct ResultCase {
    int ml;
    int index;
    Lines results;
};

// On one of the two forms.
template <class Test>
class CalculatorLines : public Test {
  protected:
    void beginWithLines(double concentration, int ml, bool demo = false) {
        session().SessionCalcTerm = true;
        this->beginPoint(concentration, ml, demo);
    }
    // Inputs hold names instead of numbers, so that a line tells where it took what from.
    void nameInputs() {
        for (const int step : {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12}) {
            this->input(step).setText("t" + std::to_string(step));
        }
    }
    Lines linesOf(int index) {
        this->template control<ctl_Button>("but_CalcPH", index).onClick();
        return this->host.calculator.offered;
    }
    // What the calculator makes of the lines: six digits, or its word.
    Lines resultsOf(int index) {
        Lines results;
        for (const std::string& line : linesOf(index)) {
            const ExpressionResult result = evaluateExpression(line);
            std::ostringstream text;
            text << result.value;
            results.push_back(result ? text.str() : faultText(result.fault));
        }
        return results;
    }
    void spells(const LinesCase& row) {
        beginWithLines(row.concentration, row.ml);
        nameInputs();
        EXPECT_EQ(linesOf(row.index), row.lines);
        session().SessionCalcTerm = false;
        EXPECT_EQ(linesOf(row.index), Lines{});
    }
    void works(const ResultCase& row) {
        beginWithLines(0.8, row.ml, true);
        this->stepButton(this->dueStep()).userClicked(); // fills in all that is right
        EXPECT_EQ(resultsOf(row.index), row.results);
    }
};

class WeakLines : public CalculatorLines<WeakTest> {};
class SilverLines : public CalculatorLines<SilverTest> {};

class WeakLine : public WeakLines, public testing::WithParamInterface<LinesCase> {};
class SilverLine : public SilverLines, public testing::WithParamInterface<LinesCase> {};

TEST_P(WeakLine, IsSpelledAsItIs) {
    spells(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, WeakLine,
    testing::Values(
        LinesCase{0.8, 3, 8, {"t6-t3", "t3-t6", "t3/t6", "t6/t3"}},
        LinesCase{0.8, 3, 9, {"0,01 + 0,003", "0,01 - 0,003", "t2 + t4"}},
        LinesCase{0.8,
                  3,
                  10,
                  {"(0,008-0,003 ) / 0,003", "(t6-t3) / (0,013)", "(t6) / (0,01 + 0,003)",
                   "t6/ (0,013)"}},
        LinesCase{0.8,
                  3,
                  11,
                  {"1/2*(14-(4,76-log(t10)", "-log(0,8)", "14-1/2*(14-(4,76-log(t10)", "14-4,538"}},
        LinesCase{
            0.8,
            0,
            12,
            {"1/2*(4,76 - log(0,8))", "14 - 1/2*(14-4,76-log(0,8))", "14 - 2,428", "-log(t1)"}},
        LinesCase{0.8,
                  3,
                  12,
                  {"1/2*(4,76 - log(0,8))", "14 - 1/2*(14- 4,76-log(0,8))",
                   "4,76-log(( .008- .003) /  .003)", "4,76-log(t10)"}},
        LinesCase{0.8,
                  8,
                  12,
                  {"1/2*(4,76 - log(0,8)", "14 - 1/2*(14- 4,76 -log(0,008/(0,01 + 0,008)))",
                   "14 - 9,204", "4,76-log(t10)"}},
        LinesCase{0.6,
                  20,
                  12,
                  {"1/2*(4,76 - log(0,466666666666667)", "14 - 1/2*(14-4,76-log(t10))", "14 - t11",
                   "14+log(0,466666666666667)"}},
        // The concentration of the excess has taken the field.
        LinesCase{0.6,
                  20,
                  11,
                  {"1/2*(14-(4,76-log(t10)", "-log(0,466666666666667)", "14-1/2*(14-(4,76-log(t10)",
                   "14-13,669"}},
        LinesCase{1.4, 0, 9, {"0,01 + 0", "0,01 - 0", "t2 + t4"}},
        LinesCase{1.4,
                  0,
                  10,
                  {"(0,014-0 ) / 0", "(t6-t3) / (0,01)", "(t6) / (0,01 + 0)", "t6/ (0,01)"}}));

TEST_P(SilverLine, IsSpelledAsItIs) {
    spells(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, SilverLine,
    testing::Values(
        LinesCase{0.8, 3, 8, {"t3-t6", "t6-t3", "0,8 - (10^(-9,7))^0.5", "t2+t4"}},
        LinesCase{0.8, 3, 9, {"t2+t4", "t3-t6", "t2+t4"}},
        LinesCase{
            0.8, 3, 10, {"(0,008 - 0,003)/(0,01+0,003)", "t8 / t9", "t9 / t8", "(t6 - t3/(t2+t4)"}},
        LinesCase{0.8, 3, 11, {"10^(-9,7) /t10", "t10*10^(-9,7) /", "0,8-0,059*log(1/(t10))"}},
        LinesCase{0.8,
                  3,
                  12,
                  {"0,8-0,059*log(1/(t10))", "0,8-0,059*log(1/(t11))", "0,059-0,8*log(1/(t10))"}},
        LinesCase{1.4,
                  15,
                  10,
                  {"(0,014 - 0,015)/(0,01+0,015)", "t8 / t9", "t9 / t8", "(t6 - t3/(t2+t4)"}},
        LinesCase{1.0, 10, 11, {"10^(-9,7) /t10", "t10*10^(-9,7) /", "0,8-0,059*log(1/(t10))"}}));

TEST_F(WeakLines, TheDirectInputHasLinesThatNobodySwitchesOn) {
    beginWithLines(0.8, 3);
    EXPECT_EQ(linesOf(2), Lines{});
    session().SessionCalcTermDirect = true;
    session().SessionCalcTerm = false;
    EXPECT_EQ(linesOf(2), (Lines{"1/2*(4,76 - log(0,8))", "14 + log((0,003-0,008)/(0,01 + 0,003))",
                                 "14 - 1/2*(14-4,76 - log(0,003/(0,01 + 0,003)))",
                                 "4,76-log(( .008- .003)/  .003)"}));
    EXPECT_EQ(linesOf(10), Lines{});
}

TEST_F(SilverLines, TheDirectInputHasNoLines) {
    session().SessionCalcTermDirect = true;
    beginWithLines(0.8, 3);
    EXPECT_EQ(linesOf(2), Lines{});
}

TEST_F(WeakLines, NumbersFollowTheLocaleButForTheClassicOnes) {
    host.numbers.setDecimalSign(DecimalSign::Point);
    beginWithLines(0.8, 3);
    nameInputs();
    EXPECT_EQ(linesOf(12), (Lines{"1/2*(4,76 - log(0.8))", "14 - 1/2*(14- 4,76-log(0.8))",
                                  "4,76-log(( .008- .003) /  .003)", "4,76-log(t10)"}));
    EXPECT_EQ(linesOf(9)[0], "0.01 + 0.003");
    EXPECT_EQ(linesOf(11)[3], "14-4.538");
}

constexpr const char* kUnreadable = "Das kann ich nicht lesen";
constexpr const char* kNothing = "Da steht noch nichts";
constexpr const char* kDivision = "Durch 0 kann man nicht teilen";
constexpr const char* kLogarithm = "log gibt es nur über 0";

class WeakResult : public WeakLines, public testing::WithParamInterface<ResultCase> {};
class SilverResult : public SilverLines, public testing::WithParamInterface<ResultCase> {};

TEST_P(WeakResult, IsANumberOrAWord) {
    session().SessionCalcTermDirect = true;
    works(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, WeakResult,
    testing::Values(ResultCase{0, 2, {"2.42846", kLogarithm, kLogarithm, kDivision}},
                    ResultCase{0, 8, {"-0.008", "0.008", kDivision, "0"}},
                    ResultCase{0, 9, {"0.01", "0.01", "1.01"}},
                    ResultCase{0, 10, {kDivision, "-0.8", "0", "0"}},
                    ResultCase{0, 11, {kUnreadable, "0.09691", kUnreadable, "11.572"}},
                    ResultCase{0, 12, {"2.42846", "9.33154", "11.572", "0.09691"}},
                    ResultCase{3, 2, {"2.42846", kLogarithm, "9.06159", "4.53815"}},
                    ResultCase{3, 8, {"-0.005", "0.005", "2.66667", "0.375"}},
                    ResultCase{3, 9, {"0.013", "0.007", "1.01"}},
                    ResultCase{3, 10, {"1.66667", "-0.384615", "0.230769", "0.230769"}},
                    ResultCase{3, 11, {"4.73097", "0.09691", "9.26903", "9.462"}},
                    ResultCase{3, 12, {"2.42846", "9.33154", "4.53815", "4.53806"}},
                    ResultCase{8, 2, {"2.42846", kLogarithm, "9.20391", kLogarithm}},
                    ResultCase{8, 8, {"0", "0", "1", "1"}},
                    ResultCase{8, 9, {"0.018", "0.002", "1.01"}},
                    ResultCase{8, 10, {"0", "0", "0.444444", "0.444444"}},
                    ResultCase{8, 11, {"4.44369", "0.09691", "9.55631", "4.796"}},
                    ResultCase{8, 12, {"2.42846", "9.20391", "4.796", "5.11262"}},
                    ResultCase{11, 2, {"2.80255", "13.1549", "9.23959", kLogarithm}},
                    ResultCase{11, 8, {"0.003", "-0.003", "0.727273", "1.375"}},
                    ResultCase{11, 9, {"0.021", "-0.001", "1.01"}},
                    ResultCase{11, 10, {"-0.272727", "0.142857", "0.52381", "0.52381"}},
                    ResultCase{11, 11, {"4.19767", "0.845098", "9.80233", "0.845"}},
                    ResultCase{11, 12, {"2.80255", "8.95767", "13.15", "13.1549"}}));

TEST_P(SilverResult, IsANumberOrAWord) {
    works(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    All, SilverResult,
    testing::Values(ResultCase{3, 8, {"0.005", "-0.005", "0.799986", "1.01"}},
                    ResultCase{3, 9, {"1.01", "0.005", "1.01"}},
                    ResultCase{3, 10, {"0.384615", "0.384615", "2.6", "-0.00492079"}},
                    ResultCase{3, 11, {"5.1825e-10", "7.68176e-11", "0.775542"}},
                    ResultCase{3, 12, {"0.775542", "0.25218", "-0.272631"}},
                    ResultCase{8, 8, {"0", "0", "0.799986", "1.01"}},
                    ResultCase{8, 9, {"1.01", "0", "1.01"}},
                    ResultCase{8, 10, {"0", "0", kUnreadable, "7.92079e-05"}},
                    ResultCase{8, 11, {"1.41308e-15", "2.81731e-15", "0.51384"}},
                    ResultCase{8, 12, {"0.51384", "0.51384", "-3.82113"}},
                    ResultCase{11, 8, {"-0.003", "0.003", "0.799986", "1.01"}},
                    ResultCase{11, 9, {"1.01", "-0.003", "1.01"}},
                    ResultCase{11, 10, {"-0.142857", "0.142857", "7", "0.00307921"}},
                    ResultCase{11, 11, {"1.39529e-09", "2.85323e-11", "0.750165"}},
                    ResultCase{11, 12, {"0.750165", kUnreadable, "-0.616731"}}));

// A learner without help hasn't filled in what the lines quote.
TEST_F(WeakLines, QuotedInputsMayBeEmpty) {
    beginWithLines(0.8, 3);
    EXPECT_EQ(linesOf(9)[2], " + ");
    EXPECT_EQ(resultsOf(9)[2], kNothing);
    EXPECT_EQ(resultsOf(8), (Lines{kNothing, kNothing, kNothing, kNothing}));
    EXPECT_EQ(resultsOf(10), (Lines{"1.66667", kUnreadable, kUnreadable, kUnreadable}));
    EXPECT_EQ(resultsOf(12), (Lines{"2.42846", "9.33154", "4.53815", kUnreadable}));
}

TEST_F(SilverLines, QuotedInputsMayBeEmpty) {
    beginWithLines(0.8, 3);
    EXPECT_EQ(resultsOf(8), (Lines{kNothing, kNothing, "0.799986", kNothing}));
    EXPECT_EQ(resultsOf(10), (Lines{"0.384615", kNothing, kNothing, kUnreadable}));
    EXPECT_EQ(resultsOf(11), (Lines{"1.99526e-10", kUnreadable, kUnreadable}));
    EXPECT_EQ(resultsOf(12), (Lines{kUnreadable, kUnreadable, kUnreadable}));
}

TEST_F(WeakLines, ResultsGoToTheirInputs) {
    beginWithLines(0.8, 3);
    for (const int index : {9, 10, 11, 12}) {
        host.calculator.values = {index + 1e-9};
        linesOf(index);
        EXPECT_EQ(input(index).text(), std::to_string(index) + ",000");
    }
    EXPECT_EQ(bench().txt_Ph.text(), "");
    for (const int index : {2, 8}) {
        host.calculator.values = {index + 0.5};
        linesOf(index);
        EXPECT_EQ(bench().txt_Ph.text(), std::to_string(index) + ",500");
    }
    EXPECT_EQ(input(8).text(), "");
    linesOf(12); // aborted
    EXPECT_EQ(input(12).text(), "12,000");
    host.calculator.values = {4.5e-10};
    linesOf(11); // no power notation here
    EXPECT_EQ(input(11).text(), "0,000");
}

TEST_F(SilverLines, ResultsGoToTheirInputs) {
    beginWithLines(0.8, 3);
    for (const int index : {8, 9, 10, 12}) {
        host.calculator.values = {2e-9};
        linesOf(index);
        EXPECT_EQ(input(index).text(), "0,000") << index;
    }
    host.calculator.values = {0.25};
    linesOf(2);
    EXPECT_EQ(bench().txt_Ph.text(), "0,250");
}

struct PowerCase {
    double value;
    const char* text;
};

class SilverPower : public SilverLines, public testing::WithParamInterface<PowerCase> {};

TEST_P(SilverPower, IsWrittenWithMantissaAndExponent) {
    beginWithLines(0.8, 3);
    host.calculator.values = {GetParam().value};
    linesOf(11);
    EXPECT_EQ(input(11).text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(All, SilverPower,
                         testing::Values(PowerCase{2e-9, "2*10^-09"},
                                         PowerCase{2.43872e-10, "2,438*10^-10"},
                                         PowerCase{1.4125e-5, "1,412*10^-05"},
                                         PowerCase{0.047619, "0,048"}, PowerCase{0, "0,000"}));

TEST_F(WeakLines, OnlyTheDueStepHasItsCalculator) {
    beginWithLines(1.2, 13);
    for (const int step : {3, 6, 7, 10}) {
        goTo(step);
        EXPECT_EQ(visible("but_CalcPH", 10), step == 10);
    }
    takeHelp(*helpAt(10));
    for (const int step : {8, 9, 10, 11, 12}) {
        goTo(step);
        EXPECT_FALSE(visible("but_CalcPH", 8)); // never shown
        for (const int index : {9, 10, 11, 12}) {
            EXPECT_EQ(visible("but_CalcPH", index), index == step) << index << " at " << step;
        }
    }
}

} // namespace
} // namespace quendal::test
