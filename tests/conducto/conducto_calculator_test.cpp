// The lines that the popup calculator offers, and where its result goes.
#include "conducto_fixture.h"

namespace quendal::test {
namespace {

class CalculatorTest : public ConductoTest {
  protected:
    // At 5 mL, with names in the inputs in place of numbers, so that a line tells what it took.
    void beginNamed(Titration titration, const char* volume = "105") {
        beginPoint(titration, 0.8, 5);
        answer(1, volume);
        for (int step = 2; step <= 6; ++step) {
            if (bench().findControl("txt_Calc", step) != nullptr) {
                input(step).setText("t" + std::to_string(step));
            }
        }
    }
    Texts linesOf(int index) {
        calculator(index).onClick();
        return host.calculator.offered;
    }
};

struct LinesCase {
    Titration titration;
    int index;
    Texts lines;
};

class Line : public CalculatorTest, public testing::WithParamInterface<LinesCase> {};

TEST_P(Line, IsSpelledAsItIs) {
    session().SessionCalcTerm = true;
    beginNamed(GetParam().titration);
    EXPECT_EQ(linesOf(GetParam().index), GetParam().lines);
}

const Texts kDirectLines{"-log(0,8)", "14 -", "-log((10^-14)^0.5)", "* -log(10)"};

INSTANTIATE_TEST_SUITE_P(Strong, Line,
                         testing::Values(LinesCase{Titration::Strong, 0, kDirectLines},
                                         LinesCase{Titration::Strong, 2, {"t2 / 105*349,8"}},
                                         LinesCase{Titration::Strong, 3, {"t3 / 105*76.4"}},
                                         LinesCase{Titration::Strong, 4, {"t4 / 105*50,1"}},
                                         LinesCase{Titration::Strong, 5, {"t5 / 105*198,6"}},
                                         LinesCase{Titration::Strong, 6, {""}}));

INSTANTIATE_TEST_SUITE_P(Weak, Line,
                         testing::Values(LinesCase{Titration::Weak, 0, kDirectLines},
                                         LinesCase{Titration::Weak, 2, {}},
                                         LinesCase{Titration::Weak, 3, {"t3 / 105*40,9"}},
                                         LinesCase{Titration::Weak, 4, {"t4 / 105*50,1"}},
                                         LinesCase{Titration::Weak, 5, {"t5 / 105*198,6"}},
                                         LinesCase{Titration::Weak, 6, {""}}));

INSTANTIATE_TEST_SUITE_P(Silver, Line,
                         testing::Values(LinesCase{Titration::Silver, 0, kDirectLines},
                                         LinesCase{Titration::Silver, 2, {"t2 / 105*76,4"}},
                                         LinesCase{Titration::Silver, 3, {"t3 / 105*50,1"}},
                                         LinesCase{Titration::Silver, 4, {"t4 / 105*71,5"}},
                                         LinesCase{Titration::Silver, 5, {"t5 / 105*61,9"}},
                                         LinesCase{Titration::Silver, 6, {""}}));

INSTANTIATE_TEST_SUITE_P(Log, Line,
                         testing::Values(LinesCase{Titration::Log, 0, kDirectLines},
                                         LinesCase{Titration::Log, 2, {"t2 / 105"}},
                                         LinesCase{Titration::Log, 3, {" / 105"}},
                                         LinesCase{Titration::Log, 4, {"t4 / 105"}},
                                         LinesCase{Titration::Log, 5, {" / 105"}}));

struct WishCase {
    Titration titration;
    int index;
    bool wanted;
    std::size_t lines;
};

class WishForLines : public CalculatorTest, public testing::WithParamInterface<WishCase> {};

TEST_P(WishForLines, CountsOnTheWeakFormAlone) {
    session().SessionCalcTerm = GetParam().wanted;
    beginNamed(GetParam().titration);
    EXPECT_EQ(linesOf(GetParam().index).size(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    All, WishForLines,
    testing::Values(
        WishCase{Titration::Strong, 0, false, 4}, WishCase{Titration::Strong, 2, false, 1},
        WishCase{Titration::Strong, 6, false, 1}, WishCase{Titration::Silver, 0, false, 4},
        WishCase{Titration::Silver, 2, false, 1}, WishCase{Titration::Silver, 5, false, 1},
        WishCase{Titration::Log, 2, false, 1}, WishCase{Titration::Log, 0, false, 4},
        WishCase{Titration::Weak, 0, false, 0}, WishCase{Titration::Weak, 0, true, 4},
        WishCase{Titration::Weak, 2, false, 0}, WishCase{Titration::Weak, 2, true, 0},
        WishCase{Titration::Weak, 3, false, 0}, WishCase{Titration::Weak, 3, true, 1},
        WishCase{Titration::Weak, 5, false, 0}, WishCase{Titration::Weak, 5, true, 1},
        WishCase{Titration::Weak, 6, false, 0}, WishCase{Titration::Weak, 6, true, 1}));

// The first row of the weak form asks for the other wish, which nothing sets.
TEST_F(CalculatorTest, TheFirstRowOfTheWeakFormHasAWishOfItsOwn) {
    session().SessionCalcTermDirect = true;
    beginNamed(Titration::Weak);
    EXPECT_EQ(linesOf(2), Texts{"t2 / 105*349,8"});
    EXPECT_EQ(linesOf(3), Texts{});
    EXPECT_EQ(linesOf(0), Texts{});
}

struct NumberCase {
    DecimalSign sign;
    const char* typed;
    const char* line;
};

class VolumeInLine : public CalculatorTest, public testing::WithParamInterface<NumberCase> {};

TEST_P(VolumeInLine, IsTheNumberThatWasRead) {
    host.numbers.setDecimalSign(GetParam().sign);
    beginNamed(Titration::Strong, GetParam().typed);
    EXPECT_EQ(linesOf(2), Texts{GetParam().line});
}

INSTANTIATE_TEST_SUITE_P(
    All, VolumeInLine,
    testing::Values(NumberCase{DecimalSign::Comma, "105,4", "t2 / 105,4*349,8"},
                    NumberCase{DecimalSign::Comma, "105.4", "t2 / 105,4*349,8"},
                    NumberCase{DecimalSign::Point, "105,4", "t2 / 105.4*349,8"},
                    NumberCase{DecimalSign::Comma, "1,05*10^2", "t2 / 105*349,8"},
                    // Not accepted, so nothing was copied.
                    NumberCase{DecimalSign::Comma, "15", "t2 / 0*349,8"}));

struct SumCase {
    Titration titration;
    Texts results;
    const char* line;
};

class SumLine : public CalculatorTest, public testing::WithParamInterface<SumCase> {};

TEST_P(SumLine, LeavesOutWhatIsNotWorkedOut) {
    session().SessionCalcTerm = true;
    beginNamed(GetParam().titration);
    for (int row = 2; row <= 5; ++row) {
        result(row).setText(GetParam().results[static_cast<std::size_t>(row - 2)]);
    }
    EXPECT_EQ(linesOf(6), Texts{GetParam().line});
}

INSTANTIATE_TEST_SUITE_P(
    All, SumLine,
    testing::Values(
        SumCase{Titration::Strong, {"1,00", "2,00", "3,00", "4,00"}, "1,00+2,00+3,00+4,00"},
        SumCase{Titration::Strong, {"Rechnen ->", "2,00", "Rechnen ->", "4,00"}, "2,00+4,00"},
        SumCase{Titration::Weak, {"1,00", "Rechnen ->", "3,00", "Rechnen ->"}, "1,00+3,00"},
        SumCase{Titration::Silver, {"Rechnen ->", "Rechnen ->", "Rechnen ->", "0,00"}, "0,00"}));

struct ResultCase {
    int index;
    double value;
    const char* text;
};

class CalculatedResult : public CalculatorTest, public testing::WithParamInterface<ResultCase> {};

TEST_P(CalculatedResult, GoesToItsPlaceAndNowhereElse) {
    const ResultCase& row = GetParam();
    for (const Titration one : {Titration::Strong, Titration::Weak, Titration::Silver}) {
        beginNamed(one);
        bench().frm_CalcDirect.setVisible(true);
        Texts amounts = inputs();
        Texts shares = results();
        const std::string direct = bench().txt_Ph.text();
        host.calculator.values = {row.value};
        calculator(row.index).onClick();
        if (row.index == 6) {
            amounts[5] = row.text;
            EXPECT_FALSE(input(6).hasFocus()); // not in view yet
        } else if (row.index != 0) {
            shares[static_cast<std::size_t>(row.index - 2)] = row.text;
        }
        EXPECT_EQ(inputs(), amounts);
        EXPECT_EQ(results(), shares);
        EXPECT_EQ(bench().txt_Ph.text(), row.index == 0 ? row.text : direct);
        calculator(row.index).onClick(); // aborted: all stays as it was
        EXPECT_EQ(inputs(), amounts);
        EXPECT_EQ(results(), shares);
        EXPECT_EQ(bench().txt_Ph.text(), row.index == 0 ? row.text : direct);
    }
}

INSTANTIATE_TEST_SUITE_P(All, CalculatedResult,
                         testing::Values(ResultCase{0, 42.6249, "42,625"},
                                         ResultCase{0, 0.46, "0,460"},
                                         ResultCase{2, 34.984, "34,98"},
                                         ResultCase{3, 7.645, "7,64"}, ResultCase{4, 7.655, "7,66"},
                                         ResultCase{5, 0, "0,00"}, ResultCase{5, -0.001, "0,00"},
                                         ResultCase{6, 42.625, "42,62"}, ResultCase{6, 5, "5,00"}));

TEST_F(CalculatorTest, TheResultOfARowLeadsToItsButton) {
    beginPoint(Titration::Silver, 0.8, 3);
    answer(1, "103");
    workOut(2, 3.71);
    EXPECT_TRUE(stepButton(2).hasFocus());
    answerSteps(pointOf(Titration::Silver, 0.8, 3), 2, 5);
    workOut(6, 9.68);
    EXPECT_TRUE(input(6).hasFocus());
}

// In two decimals a line gives what the row asks for.
TEST_F(CalculatorTest, TheResultsOfTheLogarithmsHaveTwoDecimals) {
    beginNamed(Titration::Log);
    for (const int row : {2, 3, 4, 5}) {
        host.calculator.values = {1.2345};
        calculator(row).onClick();
        EXPECT_EQ(result(row).text(), "1,23") << row;
    }
}

} // namespace
} // namespace quendal::test
