// What the ammeter of the conductivity lesson shows.
#include "animations/ion_field.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

constexpr Current kModes[] = {Current::Off, Current::Direct, Current::Reversed,
                              Current::AlternatingA, Current::AlternatingB};
constexpr int kCounts[] = {10, 20, 40};

class Needle : public testing::Test {
  protected:
    IonField field;
};

TEST_F(Needle, StandsUprightWithoutACurrent) {
    for (const int count : kCounts) {
        field.IonCount = count;
        field.DepositedCount = count / 2;
        field.FastIons = field.DoubleCharge = true;
        EXPECT_EQ(field.current(), 0);
        EXPECT_EQ(field.needleAngle(), -90);
    }
}

TEST_F(Needle, ShowsWhatTenIonsCarryUntilAllHaveSettled) {
    field.Mode = Current::Direct;
    field.IonCount = 10;
    EXPECT_DOUBLE_EQ(field.needleAngle(), 31.5 * 0.125 - 90);
    field.DepositedCount = 5;
    EXPECT_DOUBLE_EQ(field.needleAngle(), 31.5 * 0.0625 - 90);
    field.DepositedCount = 10;
    EXPECT_EQ(field.needleAngle(), -90);
}

TEST_F(Needle, GoesFarthestWithFortyFastDoublyChargedIons) {
    field.IonCount = 40;
    field.FastIons = field.DoubleCharge = true;
    field.Mode = Current::Direct;
    EXPECT_EQ(field.current(), 2);
    EXPECT_EQ(field.needleAngle(), 63 - 90);
    field.Mode = Current::Reversed;
    EXPECT_EQ(field.needleAngle(), -63 - 90);
    field.Mode = Current::AlternatingA;
    EXPECT_EQ(field.needleAngle(), 126 - 63 - 90);
}

TEST_F(Needle, KnowsEveryModeCountAndCondition) {
    for (const Current mode : kModes) {
        for (const int count : kCounts) {
            for (int conditions = 0; conditions < 4; ++conditions) {
                for (int settled = 0; settled <= count; ++settled) {
                    field.Mode = mode;
                    field.IonCount = count;
                    field.FastIons = conditions % 2 == 1;
                    field.DoubleCharge = conditions / 2 == 1;
                    field.DepositedCount = settled;
                    const double I = count / 80.0 * (conditions == 3 ? 4 : conditions == 0 ? 1 : 2);
                    const double free = double(count - settled) / count;
                    const double angles[] = {-90, 31.5 * free * I - 90, -31.5 * free * I - 90,
                                             63 * (free + 3) / 4 * I - 153,
                                             63 * (free + 3) / 4 * I - 153};
                    EXPECT_DOUBLE_EQ(field.current(), mode == Current::Off ? 0 : I);
                    EXPECT_NEAR(field.needleAngle(), angles[static_cast<int>(mode)], 1e-12);
                }
            }
        }
    }
}

// An alternating current keeps three quarters when all ions have settled.
TEST_F(Needle, KeepsMostOfAnAlternatingCurrent) {
    field.IonCount = 40;
    for (const Current mode : {Current::AlternatingA, Current::AlternatingB}) {
        field.Mode = mode;
        field.DepositedCount = 0;
        const double all = field.needleAngle() + 153;
        field.DepositedCount = 40;
        EXPECT_DOUBLE_EQ(field.needleAngle() + 153, 0.75 * all);
    }
}

} // namespace
} // namespace quendal::test
