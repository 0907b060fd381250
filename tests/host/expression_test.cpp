#include "host/expression.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal {
namespace {

struct ValueRow {
    const char* text;
    double value;
};

const ValueRow kValues[] = {
    {"1", 1},
    {" 1 + 2 ", 3},
    {"1-2-3", -4},
    {"8/4/2", 1},
    {"2+3*4", 14},
    {"(2+3)*4", 20},
    {"2*-3", -6},
    {"2--3", 5},
    {"-2^2", -4},
    {"(-2)^2", 4},
    {"2^3^2", 512},
    {"2^-1", 0.5},
    {"2^-2^2", 0.0625},
    {"+5", 5},
    {"--5", 5},
    {"4,76", 4.76},
    {".005", 0.005},
    {",5", 0.5},
    {" .005 - .001", 0.004},
    {"1E-07", 1e-7},
    {"1,995E+2", 199.5},
    {"2e3", 2000},
    {"1,995*10^-09", 1.995e-9},
    {"log(10)", 1},
    {"LOG (100)", 2},
    {"-log(1E-07)", 7},
    {"log(log(10^10))", 1},
    {"10^(-9,7)", std::pow(10.0, -9.7)},
    {"0^0", 1},
    {"(-8)^3", -512},
    {"1E-400", 0},
    {"\t7\t", 7},
};

TEST(Expression, Values) {
    for (const ValueRow& row : kValues) {
        const ExpressionResult result = evaluateExpression(row.text);
        ASSERT_TRUE(result) << row.text << ": " << faultText(result.fault);
        EXPECT_DOUBLE_EQ(result.value, row.value) << row.text;
    }
}

// The lines that the forms offer, with the texts of a learner put in. Some don't balance.
const ValueRow kOffered[] = {
    {"(0,012 - 0,01)/0,022", 0.002 / 0.022},
    {"0,002/0,022", 0.002 / 0.022},
    {"(10^-14)^0.5", 1e-7},
    {"14-0,0909090909090909", 14 - 0.0909090909090909},
    {"0,091 - 14", 0.091 - 14},
    {"14 -0,01", 13.99},
    {"14 -", 14},
    {" - 14", -14},
    {"-log(0,0909090909090909)", -std::log10(0.0909090909090909)},
    {"-log((10^-14)^0.5)", 7},
    {"1*10^-07* -log(10)", -1e-7},
    {"1/2*(4,76 - log(0,8))", 0.5 * (4.76 - std::log10(0.8))},
    {"14 + log((0,012-0,01)/(0,01 + 0,012))", 14 + std::log10(0.002 / 0.022)},
    {"14 - 1/2*(14-4,76 - log(0,01/(0,01 + 0,01)))", 14 - 0.5 * (9.24 - std::log10(0.5))},
    {"4,76-log(( .01- .005)/  .005)", 4.76},
    {"1/2*(14-(4,76-log(0,5)", 0.5 * (14 - (4.76 - std::log10(0.5)))},
    {"14-1/2*(14-(4,76-log(0,5)", 14 - 0.5 * (14 - (4.76 - std::log10(0.5)))},
    {"14 - 1/2*(14- 4,76 -log(0,01/(0,01 + 0,01)))", 14 - 0.5 * (9.24 - std::log10(0.5))},
    {"1/2*(4,76 - log(0,0476190476190476)", 0.5 * (4.76 - std::log10(0.0476190476190476))},
    {"0,8 - (10^(-9,7))^0.5", 0.8 - std::sqrt(std::pow(10.0, -9.7))},
    {"(0,012 - 0,01/(0,01+0,012)", 0.012 - 0.01 / 0.022},
    {"10^(-9,7) /0,5", std::pow(10.0, -9.7) / 0.5},
    {"0,5*10^(-9,7) /", 0.5 * std::pow(10.0, -9.7)},
    {"0,8-0,059*log(1/(2,000*10^-10))", 0.8 - 0.059 * -std::log10(2e-10)},
    {"12,50 / 111*349,8", 12.5 / 111 * 349.8},
    {"0,46+1,95+2,39", 4.8},
};

TEST(Expression, OfferedLines) {
    for (const ValueRow& row : kOffered) {
        const ExpressionResult result = evaluateExpression(row.text);
        ASSERT_TRUE(result) << row.text << ": " << faultText(result.fault);
        EXPECT_NEAR(result.value, row.value, 1e-12 * std::fabs(row.value)) << row.text;
    }
}

const ValueRow kUnfinished[] = {
    {"2+", 2}, {"2+3*", 5}, {"2*(3+4", 14}, {"2*(3+", 6},  {"((((1", 1},   {"log(10", 1},
    {"2^", 2}, {"2+-", 2},  {"2 * / ", 2},  {"(2*3)-", 6}, {"log((10", 1}, {"3 -  ", 3},
};

TEST(Expression, UnfinishedTextsCount) {
    for (const ValueRow& row : kUnfinished) {
        const ExpressionResult result = evaluateExpression(row.text);
        ASSERT_TRUE(result) << row.text;
        EXPECT_DOUBLE_EQ(result.value, row.value) << row.text;
    }
}

struct FaultRow {
    const char* text;
    ExpressionFault fault;
};

const FaultRow kFaults[] = {
    {"", ExpressionFault::Empty},
    {"   ", ExpressionFault::Empty},
    {"-", ExpressionFault::Empty},
    {" / ", ExpressionFault::Empty},
    {"2 3", ExpressionFault::Syntax},
    {"2(3)", ExpressionFault::Syntax},
    {"(2)(3)", ExpressionFault::Syntax},
    {"(2)3", ExpressionFault::Syntax},
    {"2log(3)", ExpressionFault::Syntax},
    {"log 10", ExpressionFault::Syntax},
    {"log", ExpressionFault::Syntax},
    {"log()", ExpressionFault::Syntax},
    {"()", ExpressionFault::Syntax},
    {"(", ExpressionFault::Syntax},
    {"2*(", ExpressionFault::Syntax},
    {"1)", ExpressionFault::Syntax},
    {"(1))", ExpressionFault::Syntax},
    {"(2+)", ExpressionFault::Syntax},
    {"*2", ExpressionFault::Syntax},
    {"* -log(10)", ExpressionFault::Syntax},
    {"( - )/0,011", ExpressionFault::Syntax},
    {"2**3", ExpressionFault::Syntax},
    {"2*/3", ExpressionFault::Syntax},
    {"1,2,3", ExpressionFault::Syntax},
    {"1E", ExpressionFault::Syntax},
    {"abc", ExpressionFault::Syntax},
    {"2+x", ExpressionFault::Syntax},
    {"ln(2)", ExpressionFault::Syntax},
    {"inf", ExpressionFault::Syntax},
    {"1/0 x", ExpressionFault::Syntax},
    {"\xC3\xA4", ExpressionFault::Syntax},
    {"1/0", ExpressionFault::DivisionByZero},
    {"0/0", ExpressionFault::DivisionByZero},
    {"1/(2-2)", ExpressionFault::DivisionByZero},
    {"0^-1", ExpressionFault::DivisionByZero},
    {"1/0+log(0)", ExpressionFault::DivisionByZero},
    {"log(0)", ExpressionFault::LogarithmRange},
    {"log(-1)", ExpressionFault::LogarithmRange},
    {"log(0)/0", ExpressionFault::LogarithmRange},
    {"10^999", ExpressionFault::Range},
    {"-10^999", ExpressionFault::Range},
    {"1E999", ExpressionFault::Range},
    {"1E300*1E300", ExpressionFault::Range},
    {"1E300*1E300-1E300*1E300", ExpressionFault::Range},
    {"1/(1E300*1E300)", ExpressionFault::Range},
    {"log(1E999)", ExpressionFault::Range},
    {"(-8)^0,5", ExpressionFault::Range},
    {"10^-(1E300*1E300)", ExpressionFault::Range},
};

TEST(Expression, Faults) {
    for (const FaultRow& row : kFaults) {
        const ExpressionResult result = evaluateExpression(row.text);
        EXPECT_EQ(result.fault, row.fault) << row.text << " gives " << result.value;
        EXPECT_FALSE(faultText(result.fault).empty());
    }
    EXPECT_EQ(evaluateExpression(std::string_view("1\0+1", 4)).fault, ExpressionFault::Syntax);
    EXPECT_EQ(faultText(ExpressionFault::None), "");
    EXPECT_EQ(faultText(ExpressionFault::DivisionByZero), "Durch 0 kann man nicht teilen");
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

TEST(Expression, LengthAndDepthAreBounded) {
    EXPECT_EQ(evaluateExpression(repeated("(", 200) + "1").value, 1);
    EXPECT_EQ(evaluateExpression(repeated("(", 201) + "1").fault, ExpressionFault::Syntax);
    EXPECT_EQ(evaluateExpression(repeated("(1)+", 240) + "1").value, 241);
    EXPECT_TRUE(evaluateExpression(repeated("1^", 499) + "11"));
    EXPECT_TRUE(evaluateExpression(repeated("-", 999) + "1"));
    EXPECT_TRUE(evaluateExpression(std::string(999, ' ') + "1"));
    EXPECT_EQ(evaluateExpression(std::string(1000, ' ') + "1").fault, ExpressionFault::Syntax);
    EXPECT_EQ(evaluateExpression(std::string(1 << 20, '(')).fault, ExpressionFault::Syntax);
}

} // namespace
} // namespace quendal
