#include "shell/session/session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quendal {
namespace {

TEST(CommonLogarithm, IsTheLogarithmToTheBaseTen) {
    EXPECT_EQ(hLog10(1), 0.0);
    EXPECT_NEAR(hLog10(1000), 3.0, 1e-14);
    EXPECT_NEAR(hLog10(1e-7), -7.0, 1e-14);
    EXPECT_EQ(hLog10(2), std::log(2.0) / std::log(10.0));
}

TEST(CommonLogarithm, IsZeroWhereThereIsNone) {
    EXPECT_EQ(hLog10(0), 0.0);
    EXPECT_EQ(hLog10(-0.0), 0.0);
    EXPECT_EQ(hLog10(-3), 0.0);
    EXPECT_EQ(hLog10(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

struct TruthRow {
    const char* text;
    bool truth;
    bool understood;
};

class Truth : public testing::TestWithParam<TruthRow> {};

TEST_P(Truth, OfATeachersText) {
    bool understood = !GetParam().understood;
    EXPECT_EQ(hBoolText(GetParam().text, &understood), GetParam().truth);
    EXPECT_EQ(understood, GetParam().understood);
    EXPECT_EQ(hBoolText(GetParam().text), GetParam().truth);
}

INSTANTIATE_TEST_SUITE_P(Texts, Truth,
                         testing::Values(TruthRow{"", false, false}, TruthRow{"1", true, true},
                                         TruthRow{"0", false, true}, TruthRow{"-1", true, true},
                                         TruthRow{" 2 ", true, true}, TruthRow{"0,5", true, true},
                                         TruthRow{"0.0", false, true}, TruthRow{"true", true, true},
                                         TruthRow{"TRUE", true, true}, TruthRow{"Wahr", true, true},
                                         TruthRow{" wahr ", true, true},
                                         TruthRow{"false", false, true},
                                         TruthRow{"Falsch", false, true},
                                         TruthRow{"x", false, false}, TruthRow{"ja", false, false},
                                         TruthRow{"truefalse", false, false},
                                         TruthRow{"1x", false, false}));

TEST(Session, StartsFromItsDefaults) {
    session().SessionConcentration = 0.6;
    session().SessionRequiredPoints.Split("1,2", ',');
    session().SessionRestart = true;
    session().GridShuffle[3][2] = 7;
    resetSession();
    EXPECT_EQ(session().SessionConcentration, 1.0);
    EXPECT_TRUE(session().SessionRequiredPoints.items().empty());
    EXPECT_FALSE(session().SessionRestart);
    EXPECT_FALSE(session().SessionDemo);
    EXPECT_FALSE(session().SessionNoHelp);
    EXPECT_FALSE(session().SessionCalcTermDirect);
    EXPECT_EQ(session().ParticleBackColor, kBlack);
    EXPECT_EQ(session().GridShuffle[3][2], 0);
    EXPECT_EQ(session().SessionMySeries, nullptr);
}

TEST(Session, ShowsItsVariablesUnderTheirNames) {
    resetSession();
    session().SessionRequiredPoints.Split("0,1,5", ',');
    FieldTable table;
    session().describe(table);
    EXPECT_EQ(table.find("SessionConcentration"), FieldValue(1.0));
    EXPECT_EQ(table.find("SessionRequiredPoints"), FieldValue(std::string("0,1,5")));
    EXPECT_EQ(table.find("SessionBusy"), FieldValue(false));
    EXPECT_EQ(table.find("NoSuchThing"), std::nullopt);
    resetSession();
}

} // namespace
} // namespace quendal
