#include "shell/teacher_control.h"

#include "host/log.h"
#include "shell/required_points.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quendal {
namespace {

TEST(ModeKey, CountsByItsLeadingNumber) {
    struct Row {
        const char* text;
        std::optional<double> number;
    };
    for (const Row& row :
         {Row{"", std::nullopt}, Row{"0", std::nullopt}, Row{"abc", std::nullopt},
          Row{"x3", std::nullopt}, Row{"3", 3.0}, Row{" 3", 3.0}, Row{"3abc", 3.0}, Row{"2,5", 2.0},
          Row{"2.5", 2.5}, Row{"1e1", 10.0}, Row{"-1", -1.0}, Row{"9", 9.0}}) {
        EXPECT_EQ(countingNumber(row.text), row.number) << row.text;
    }
}

TEST(ModeKey, ForcesATab) {
    struct Row {
        const char* text;
        int tab;
        const char* key;
    };
    for (const Row& row :
         {Row{"1", 1, "MODUS_ANI"}, Row{"2", 2, "MODUS_DEMO"}, Row{"3", 3, "MODUS_CALC"},
          Row{" 3", 3, "MODUS_CALC"}, Row{"3abc", 3, "MODUS_CALC"}, Row{"2,5", 2, "MODUS_DEMO"},
          Row{"2.5", 0, ""}, Row{"1e1", 0, ""}, Row{"9", 0, ""}, Row{"-2", 0, ""}}) {
        const auto mode = forcedMode(row.text);
        ASSERT_TRUE(mode.has_value()) << row.text;
        EXPECT_EQ(mode->tab, row.tab) << row.text;
        EXPECT_STREQ(mode->exerciseKey, row.key) << row.text;
    }
    for (const char* text : {"", "0", "abc", "  "}) {
        EXPECT_FALSE(forcedMode(text).has_value()) << text;
    }
}

TEST(ConcentrationKey, IsRoundedToAPlaceInTheList) {
    struct Row {
        const char* text;
        std::optional<int> index;
    };
    for (const Row& row :
         {Row{"1", 0}, Row{"5", 4}, Row{" 3", 2}, Row{"3abc", 2}, Row{"2.5", 1}, Row{"3.5", 3},
          Row{"0.6", 0}, Row{"5.4", 4}, Row{"0", std::nullopt}, Row{"6", std::nullopt},
          Row{"9", std::nullopt}, Row{"-1", std::nullopt}, Row{"abc", std::nullopt},
          Row{"1e1", std::nullopt}, Row{"1e999", std::nullopt}, Row{"-1e999", std::nullopt},
          Row{"99999999999999999999", std::nullopt}}) {
        EXPECT_EQ(concentrationIndex(row.text, 5), row.index) << row.text;
    }
}

class TeacherLog : public testing::Test {
  protected:
    TeacherLog()
        : previous_(exchangeLogSink([this](std::string_view line) { lines.emplace_back(line); })) {}
    ~TeacherLog() override { exchangeLogSink(previous_); }
    std::vector<std::string> lines;

  private:
    LogSink previous_;
};

TEST_F(TeacherLog, NamesAWordThatIsNeitherTrueNorFalse) {
    EXPECT_TRUE(teacherTruth("CALC", "wahr"));
    EXPECT_FALSE(teacherTruth("CALC", "0"));
    EXPECT_TRUE(lines.empty());
    EXPECT_FALSE(teacherTruth("CALC", "x"));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("CALC = \"x\""), std::string::npos);
}

TEST_F(TeacherLog, ShowsOnlyTheBeginningOfALongText) {
    logTeacherKey("CON", std::string(1 << 20, 'z'), "zu lang");
    logTeacherKey("CON", std::string(39, 'z') + "äöü", "Umlaut am Ende");
    logTeacherKey("CON", "\x1b[31m\nrot", "gefärbt");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_LT(lines[0].size(), 100U);
    EXPECT_NE(lines[1].find(std::string(39, 'z') + "...\""), std::string::npos);
    EXPECT_NE(lines[2].find("\"?[31m?rot\""), std::string::npos);
}

TEST(RequiredPoints, BelongToTheExactConcentration) {
    EXPECT_STREQ(requiredPointsFor(0.6), "0,1,3,5,6,7,12");
    EXPECT_STREQ(requiredPointsFor(0.8), "0,1,4,7,8,9,16");
    EXPECT_STREQ(requiredPointsFor(1.0), "0,1,5,9,10,11,20");
    EXPECT_STREQ(requiredPointsFor(1.2), "0,1,6,11,12,13,20");
    EXPECT_STREQ(requiredPointsFor(1.4), "0,1,7,13,14,15,20");
    EXPECT_EQ(requiredPointsFor(0.7), nullptr);
    EXPECT_EQ(requiredPointsFor(0.60000000000000009), nullptr);
}

} // namespace
} // namespace quendal
