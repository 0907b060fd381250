#include "host/number_service.h"

#include "host/number_text.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace quendal {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNan = std::numeric_limits<double>::quiet_NaN();

struct TextRow {
    double value;
    const char* text;
    const char* classic;
};

const TextRow kTexts[] = {
    {0, "0", " 0"},
    {-0.0, "0", " 0"},
    {1, "1", " 1"},
    {-1, "-1", "-1"},
    {0.8, "0,8", " .8"},
    {-0.5, "-0,5", "-.5"},
    {0.005, "0,005", " .005"},
    {10.5, "10,5", " 10.5"},
    {0.1 + 0.2, "0,3", " .3"},
    {1.4 * 0.01, "0,014", " .014"},
    {0.01 - 0.001, "0,009", " .009"},
    {1.0 / 3, "0,333333333333333", " .333333333333333"},
    {0.0001, "0,0001", " .0001"},
    {0.00001, "1E-05", " 1E-05"},
    {1e-7, "1E-07", " 1E-07"},
    {1.99526231496888e-10, "1,99526231496888E-10", " 1.99526231496888E-10"},
    {-2.5e-12, "-2,5E-12", "-2.5E-12"},
    {123456789012345.0, "123456789012345", " 123456789012345"},
    {1e15, "1E+15", " 1E+15"},
    {1234567890123456.0, "1,23456789012346E+15", " 1.23456789012346E+15"},
    {1e100, "1E+100", " 1E+100"},
    {std::numeric_limits<double>::max(), "1,79769313486232E+308", " 1.79769313486232E+308"},
    {std::numeric_limits<double>::denorm_min(), "4,94065645841247E-324", " 4.94065645841247E-324"},
    {kInfinity, "inf", " inf"},
    {-kInfinity, "-inf", "-inf"},
    {kNan, "nan", " nan"},
};

TEST(NumberService, DefaultTextForm) {
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(NumberService().text(row.value), row.text);
    }
}

TEST(NumberService, ClassicTextForm) {
    for (const TextRow& row : kTexts) {
        EXPECT_EQ(NumberService::classicText(row.value), row.classic);
    }
}

TEST(NumberService, PointTextIgnoresTheLocale) {
    EXPECT_EQ(NumberService::pointText(0.8), "0.8");
    EXPECT_EQ(NumberService::pointText(1), "1");
    EXPECT_EQ(NumberService::pointText(1.4), "1.4");
    EXPECT_EQ(NumberService(DecimalSign::Point).text(0.8), "0.8");
    EXPECT_EQ(NumberService(DecimalSign::Point).text(1e-7), "1E-07");
}

struct FormatRow {
    double value;
    int places;
    const char* text;
};

const FormatRow kFormats[] = {
    {0, 0, "0"},
    {0, 3, "0,000"},
    {-0.0, 3, "0,000"},
    {-std::log10(1.0), 3, "0,000"},
    {-0.0004, 3, "0,000"},
    {-0.0006, 3, "-0,001"},
    {0.01, 3, "0,010"},
    {7, 3, "7,000"},
    {1, 0, "1"},
    // Halves go to the even neighbour of the decimal value, whatever the binary one is.
    {0.0005, 3, "0,000"},
    {0.0015, 3, "0,002"},
    {0.0025, 3, "0,002"},
    {0.0035, 3, "0,004"},
    {-0.0015, 3, "-0,002"},
    {2.675, 2, "2,68"},
    {2.665, 2, "2,66"},
    {1.005, 2, "1,00"},
    {1.015, 2, "1,02"},
    {0.5, 0, "0"},
    {1.5, 0, "2"},
    {2.5, 0, "2"},
    {0.50001, 0, "1"},
    {0.0025000001, 3, "0,003"},
    {0.9995, 3, "1,000"},
    {0.9985, 3, "0,998"},
    {9.9996, 3, "10,000"},
    {999.9996, 3, "1000,000"},
    {0.4, 0, "0"},
    {0.04, 0, "0"},
    {0.6, 0, "1"},
    {13.5228787452803, 2, "13,52"},
    {13.5228787452803, 3, "13,523"},
    {1234567.891, 1, "1234567,9"},
    {1.0 / 3, 15, "0,333333333333333"},
    {100.0 / 3, 15, "33,333333333333300"},
    {1e20, 2, "100000000000000000000,00"},
    {123456789012345678.0, 0, "123456789012346000"},
    {1e-300, 3, "0,000"},
    {1e-15, 15, "0,000000000000001"},
    {1.5, -3, "2"},
    {1.5, 99, "1,500000000000000"},
    {kNan, 3, "nan"},
    {kInfinity, 3, "inf"},
    {-kInfinity, 3, "-inf"},
};

TEST(NumberService, Format) {
    for (const FormatRow& row : kFormats) {
        EXPECT_EQ(NumberService().Format(row.value, row.places), row.text)
            << row.value << " to " << row.places;
    }
    EXPECT_EQ(NumberService(DecimalSign::Point).Format(0.01, 3), "0.010");
}

TEST(NumberService, FormatOfTheLargestNumberIsWhole) {
    const std::string text = NumberService().Format(std::numeric_limits<double>::max(), 2);
    EXPECT_EQ(text.size(), 312U);
    EXPECT_EQ(text.substr(0, 16), "1797693134862320");
    EXPECT_EQ(text.substr(309), ",00");
}

TEST(NumberService, FormatOfThousandthsIsExact) {
    for (int thousandths = -30'000; thousandths <= 30'000; thousandths += 7) {
        const int magnitude = std::abs(thousandths);
        std::string digits = std::to_string(1000 + magnitude % 1000).substr(1);
        const std::string expected =
            (thousandths < 0 ? "-" : "") + std::to_string(magnitude / 1000) + "," + digits;
        ASSERT_EQ(NumberService().Format(thousandths / 1000.0, 3), expected);
    }
}

// Against arithmetic on whole numbers: ten-thousandths rounded to thousandths.
TEST(NumberService, FormatRoundsHalvesToEven) {
    for (long tenths = 0; tenths <= 200'000; tenths += 5) {
        long rounded = tenths / 10;
        const long rest = tenths % 10;
        rounded += rest > 5 || (rest == 5 && rounded % 2 == 1) ? 1 : 0;
        ASSERT_EQ(NumberService().Format(static_cast<double>(tenths) / 10'000.0, 3),
                  NumberService().Format(static_cast<double>(rounded) / 1000.0, 3))
            << tenths;
    }
}

struct PictureRow {
    double value;
    const char* picture;
    const char* text;
};

const PictureRow kPictures[] = {
    {0.8, "0.0", "0,8"},
    {1, "0.0", "1,0"},
    {0.875, "#0.00", "0,88"},
    {0.865, "#0.00", "0,86"},
    {-0.0, "#0.00", "0,00"},
    {0.0004, "#0.000", "0,000"},
    {12.3456, "#0.000", "12,346"},
    {2.5, "#0", "2"},
    {1.25, "", "1"},
    {1, "#0.0000000000000000000", "1,000000000000000"},
};

TEST(NumberService, Pictures) {
    for (const PictureRow& row : kPictures) {
        EXPECT_EQ(NumberService().picture(row.value, row.picture), row.text) << row.picture;
    }
    EXPECT_EQ(NumberService(DecimalSign::Point).picture(0.8, "0.0"), "0.8");
}

struct ParseRow {
    const char* text;
    double value;
};

const ParseRow kNumbers[] = {
    {"0", 0},
    {"7", 7},
    {"0,01", 0.01},
    {"0.01", 0.01},
    {"0.010", 0.01},
    {"1.0", 1},
    {" .005", 0.005},
    {",5", 0.5},
    {"5,", 5},
    {"5.", 5},
    {"  1,5  ", 1.5},
    {"\t2\t", 2},
    {"+3", 3},
    {"-3,25", -3.25},
    {"1E-07", 1e-7},
    {"1e3", 1000},
    {"1,99526231496888E-10", 1.99526231496888e-10},
    {"2E+2", 200},
    {"1,995*10^-09", 1.995e-9},
    {"1*10^-07", 1e-7},
    {"2*10^3", 2000},
    {"10^-2", 0.01},
    {"10^+2", 100},
    {"-2^2", -4},
    {"2^3^2", 512},
    {"2*3*4", 24},
    {"2 * 10 ^ -1", 0.2},
    {"2*-3", -6},
    {"4^0,5", 2},
    {"2^-1*8", 4},
    {"0^0", 1},
    {"1E-400", 0},
    {"0,000", 0},
};

TEST(NumberService, ParseVariantReads) {
    for (const DecimalSign sign : {DecimalSign::Comma, DecimalSign::Point}) {
        for (const ParseRow& row : kNumbers) {
            const auto value = NumberService(sign).ParseVariant(row.text);
            ASSERT_TRUE(value) << row.text;
            EXPECT_DOUBLE_EQ(*value, row.value) << row.text;
            EXPECT_DOUBLE_EQ(NumberService(sign).Parse(row.text), row.value) << row.text;
        }
    }
}

const char* const kNoNumbers[] = {
    "",
    " ",
    "abc",
    "1a",
    "a1",
    "2+3",
    "2-3",
    "4/2",
    "(2)",
    "2*",
    "*2",
    "2^",
    "^2",
    "2**3",
    "2^^3",
    "--3",
    "+-3",
    "- 3",
    "1 2",
    "1,2,3",
    "1.2.3",
    "1,000.5",
    "E5",
    "1E",
    "1E+",
    "1E5E5",
    ",",
    ".",
    "-",
    "+",
    "0x10",
    "inf",
    "nan",
    "1E999",
    "10^999",
    "0^-1",
    "10^10^10",
    "-8^0,5x",
    "\xC2\xB5",
    "1\n",
    "1;2",
    "10^",
    "10^-",
    "1,5 mol",
    "2*10^3*",
    "\xE2\x88\x92"
    "3",
};

TEST(NumberService, ParseVariantRefuses) {
    for (const char* text : kNoNumbers) {
        EXPECT_FALSE(NumberService().ParseVariant(text)) << text;
        EXPECT_TRUE(std::isnan(NumberService().Parse(text))) << text;
    }
    EXPECT_FALSE(NumberService().ParseVariant(std::string_view("1\0", 2)));
    EXPECT_FALSE(NumberService().ParseVariant(std::string(100'000, '1')));
    EXPECT_FALSE(NumberService().ParseVariant(std::string(100'000, '^')));
}

TEST(NumberService, NothingEqualsTheNumberOfAnUnreadableText) {
    const double value = NumberService().Parse("abc");
    EXPECT_FALSE(value == 0);
    EXPECT_FALSE(value == value);
}

TEST(NumberService, TextsReadBackTheSame) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-30, 30);
    for (int i = 0; i < 20'000; ++i) {
        const NumberService numbers(i % 2 == 0 ? DecimalSign::Comma : DecimalSign::Point);
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        const std::string text = numbers.text(value);
        ASSERT_EQ(numbers.text(numbers.Parse(text)), text);
        ASSERT_EQ(numbers.Parse(NumberService::classicText(value)), numbers.Parse(text));
        const std::string formatted = numbers.Format(value, 3);
        ASSERT_EQ(numbers.Format(numbers.Parse(formatted), 3), formatted) << text;
    }
}

const ParseRow kLeading[] = {
    {"", 0},
    {"abc", 0},
    {" 3", 3},
    {"3abc", 3},
    {"2,5", 2},
    {"2.5", 2.5},
    {"1e1", 10},
    {"1E-1x", 0.1},
    {"-2", -2},
    {"+2", 2},
    {".5", 0.5},
    {"-.5", -0.5},
    {"5.", 5},
    {".", 0},
    {"-", 0},
    {"- 3", 0},
    {"1e", 1},
    {"1e+", 1},
    {"1 2", 1},
    {"\t 4 ", 4},
    {"9", 9},
    {"--3", 0},
    {"true", 0},
    {"1e999", kInfinity},
    {"-1e999", -kInfinity},
    {"1e-999", 0},
    {"1e99999999999999999999", kInfinity},
};

TEST(LeadingNumber, ReadsWhatTheTextBeginsWith) {
    for (const ParseRow& row : kLeading) {
        EXPECT_EQ(leadingNumber(row.text), row.value) << row.text;
    }
    EXPECT_EQ(leadingNumber(std::string(1 << 20, '\xFF')), 0);
    EXPECT_EQ(leadingNumber(std::string(1 << 20, '9')), kInfinity);
}

TEST(ScanNumber, TellsAboveTheRangeFromBelow) {
    const std::string zeros(400, '0');
    EXPECT_EQ(scanNumber("1" + zeros, DecimalSigns::Point).value, kInfinity);
    EXPECT_EQ(scanNumber("0." + zeros + "1", DecimalSigns::Point).value, 0);
    EXPECT_DOUBLE_EQ(scanNumber("1" + zeros + "E-400", DecimalSigns::Point).value, 1);
    EXPECT_EQ(scanNumber("1" + zeros + "E-800", DecimalSigns::Point).value, 0);
    EXPECT_EQ(scanNumber("0." + zeros + "1E+800", DecimalSigns::Point).value, kInfinity);
    EXPECT_EQ(scanNumber("0E999", DecimalSigns::Point).value, 0);
    EXPECT_EQ(scanNumber("1E-99999999999999999999", DecimalSigns::Point).value, 0);
}

TEST(ScanNumber, LeavesWhatIsNoPartOfTheNumber) {
    EXPECT_EQ(scanNumber("1,5*2", DecimalSigns::PointOrComma).length, 3U);
    EXPECT_EQ(scanNumber("1,5*2", DecimalSigns::Point).length, 1U);
    EXPECT_EQ(scanNumber("1E*2", DecimalSigns::Point).length, 1U);
    EXPECT_FALSE(scanNumber("-1", DecimalSigns::Point));
    EXPECT_FALSE(scanNumber(" 1", DecimalSigns::Point));
}

TEST(Rounding, ToDecimals) {
    EXPECT_EQ(roundDecimals(0.0085, 3), std::nearbyint(8.5) / 1000);
    EXPECT_EQ(roundDecimals(0.009, 3), 0.009);
    EXPECT_EQ(roundDecimals(2.5, 0), 2);
    EXPECT_EQ(roundDecimals(-3.5, 0), -4);
    EXPECT_EQ(roundDecimals(1234.5678, 2), 1234.57);
}

TEST(Rounding, ToInt) {
    EXPECT_EQ(roundToInt(0.5), 0);
    EXPECT_EQ(roundToInt(1.5), 2);
    EXPECT_EQ(roundToInt(-2.5), -2);
    EXPECT_EQ(roundToInt(4.999), 5);
    EXPECT_EQ(roundToInt(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(roundToInt(-kInfinity), std::numeric_limits<int>::min());
    EXPECT_EQ(roundToInt(kNan), 0);
}

} // namespace
} // namespace quendal
