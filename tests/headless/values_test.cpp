#include "script/values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quendal {
namespace {

TEST(Values, ReadAsTheScriptsTellThem) {
    EXPECT_EQ(valueText(FieldValue()), "");
    EXPECT_EQ(valueText(FieldValue(true)), "true");
    EXPECT_EQ(valueText(FieldValue(false)), "false");
    EXPECT_EQ(valueText(FieldValue(std::int64_t{-12})), "-12");
    EXPECT_EQ(valueText(FieldValue(std::string("pH"))), "pH");
    EXPECT_EQ(valueText(FieldValue(Color{192, 255, 10})), "#c0ff0a");
}

TEST(Values, NumbersHaveFifteenDigitsAndAPoint) {
    EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(numberText(1e-7), "1E-07");
    EXPECT_EQ(numberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(numberText(1e15), "1E+15");
    EXPECT_EQ(numberText(123456789012345), "123456789012345");
    EXPECT_EQ(numberText(std::numeric_limits<double>::quiet_NaN()), "NAN");
    EXPECT_EQ(numberText(-std::numeric_limits<double>::infinity()), "-INF");
}

TEST(Values, PlainNumbersAreReadWhole) {
    EXPECT_EQ(plainNumber("-1.5E-3"), -1.5e-3);
    EXPECT_EQ(plainNumber("+2"), 2);
    for (const char* text :
         {"", " 1", "1 ", "1,5", "inf", "nan", "0x10", "1e", "+-1", "--1", "e"}) {
        EXPECT_FALSE(plainNumber(text)) << text;
    }
}

TEST(Values, EqualityIsOfNumbersElseOfTexts) {
    EXPECT_TRUE(sameValue("1", "1.0"));
    EXPECT_TRUE(sameValue("0.3", "0.30000000000000004"));
    EXPECT_FALSE(sameValue("0.3", "0.300001"));
    EXPECT_FALSE(sameValue("0,80", "0,8"));
    EXPECT_TRUE(sameValue("a\r\nb", "a\nb"));
    EXPECT_FALSE(sameValue("a", "A"));
    EXPECT_FALSE(sameValue("", "0"));
}

TEST(Values, NearnessTakesTheComma) {
    EXPECT_TRUE(nearValue("7,01", 7, 0.01));
    EXPECT_TRUE(nearValue("0.3", 0.1, 0.2));
    EXPECT_FALSE(nearValue("7.02", 7, 0.01));
    EXPECT_FALSE(nearValue("sieben", 7, 100));
}

TEST(Values, PatternsMayEndInAStar) {
    EXPECT_TRUE(fitsPattern("anything", "*"));
    EXPECT_TRUE(fitsPattern("", "*"));
    EXPECT_TRUE(fitsPattern("Das ist\r\nfalsch", "Das ist\n*"));
    EXPECT_TRUE(fitsPattern("genau", "genau"));
    EXPECT_FALSE(fitsPattern("genau so", "genau"));
    EXPECT_FALSE(fitsPattern("nicht", "genau*"));
}

TEST(Values, SoundsAreNamedByTheEndOfTheirPath) {
    EXPECT_TRUE(namesSound("signal 1", "signal 1"));
    EXPECT_TRUE(namesSound("sounds\\ex.wav", "/data/sounds/ex.wav"));
    EXPECT_TRUE(namesSound("ex.wav", "data/sounds\\ex.wav"));
    EXPECT_FALSE(namesSound("x.wav", "data/sounds/ex.wav"));
    EXPECT_FALSE(namesSound("", "correct"));
}

} // namespace
} // namespace quendal
