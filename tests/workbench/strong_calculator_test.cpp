#include "strong_fixture.h"

namespace quendal::test {
namespace {

class StrongCalculator : public BenchTest {};

struct LinesCase {
    DecimalSign sign;
    int base;
    const char* total;
    const char* conc; // of the excess
};

class CalculatorLines : public StrongCalculator, public testing::WithParamInterface<LinesCase> {
  protected:
    std::vector<std::string> linesOf(int index) {
        control<ctl_Button>("but_CalcPH", index).onClick();
        return host.calculator.offered;
    }
};

TEST_P(CalculatorLines, MixTheRightTermWithWrongOnes) {
    using Lines = std::vector<std::string>;
    const LinesCase& row = GetParam();
    host.numbers.setDecimalSign(row.sign);
    session().SessionCalcTerm = true;
    begin(1.0, row.base);
    stepButton(dueStep()).userClicked(); // a check gives the concentration of the excess
    const std::string conc = row.conc;
    for (const int step : {3, 6, 8, 9, 10, 11}) {
        input(step).setText("t" + std::to_string(step));
    }
    EXPECT_EQ(linesOf(10),
              (Lines{"(t6 - t3)/" + std::string(row.total), "t8/t9", "t9/t8", "(10^-14)^0.5"}));
    EXPECT_EQ(linesOf(11), (Lines{"14-" + conc, "t10 - 14", "14 -t3", "-log(" + conc + ")"}));
    EXPECT_EQ(linesOf(12),
              (Lines{"-log(" + conc + ")", "14 -t11", "-log((10^-14)^0.5)", "t10* -log(10)"}));
    EXPECT_EQ(linesOf(2), Lines{});
    session().SessionCalcTerm = false;
    EXPECT_EQ(linesOf(10), Lines{});
}

INSTANTIATE_TEST_SUITE_P(
    All, CalculatorLines,
    testing::Values(LinesCase{DecimalSign::Comma, 5, "0,015", "0,333333333333333"},
                    LinesCase{DecimalSign::Point, 5, "0.015", "0.333333333333333"},
                    LinesCase{DecimalSign::Comma, 10, "0,02", "1E-07"},
                    LinesCase{DecimalSign::Point, 10, "0.02", "1E-07"},
                    LinesCase{DecimalSign::Comma, 15, "0,025", "0,2"},
                    LinesCase{DecimalSign::Point, 15, "0.025", "0.2"}));

struct PowerCase {
    double value;
    const char* text;
};

class PowerNotation : public StrongCalculator, public testing::WithParamInterface<PowerCase> {};

TEST_P(PowerNotation, KeepsFiveCharactersOfTheMantissa) {
    begin(1.0, 5);
    host.calculator.values = {GetParam().value};
    control<ctl_Button>("but_CalcPH", 10).onClick();
    EXPECT_EQ(input(10).text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(All, PowerNotation,
                         testing::Values(PowerCase{1e-7, "1*10^-07"},
                                         PowerCase{1.23456789e-9, "1,234*10^-09"},
                                         PowerCase{-2.5e-10, "-2,5*10^-10"},
                                         PowerCase{1.5e20, "1,5*10^+20"},
                                         PowerCase{0.3333333, "0,333"}, PowerCase{2.0, "2,000"},
                                         PowerCase{-0.0, "0,000"}));

TEST_F(StrongCalculator, TheCalculatorsResultGoesToItsInput) {
    begin(1.0, 5);
    host.calculator.values = {1e-7, 0.47712, 3.25};
    control<ctl_Button>("but_CalcPH", 11).onClick();
    EXPECT_EQ(input(11).text(), "0,000"); // power notation is step 10's alone
    control<ctl_Button>("but_CalcPH", 12).onClick();
    EXPECT_EQ(input(12).text(), "0,477");
    control<ctl_Button>("but_CalcPH", 2).onClick();
    EXPECT_EQ(bench().txt_Ph.text(), "3,250");
    control<ctl_Button>("but_CalcPH", 12).onClick(); // aborted
    EXPECT_EQ(input(12).text(), "0,477");
    const Rect& holder = bench().frm_Holder.place();
    const Rect& balance = bench().frm_Bilanz.place();
    EXPECT_EQ(host.calculator.place.x, 15 * (holder.left + balance.left));
    EXPECT_EQ(host.calculator.place.y, 15 * (holder.top + balance.top - 50));
}

} // namespace
} // namespace quendal::test
