#include "animations/ion_field.h"
#include "host/random_source.h"

#include <gtest/gtest.h>

#include <cmath>
#include <deque>

namespace quendal::test {
namespace {

constexpr double W = IonField::kWidth;
constexpr double H = IonField::kHeight;
constexpr double r = IonField::kRadius;
constexpr Current kModes[] = {Current::Off, Current::Direct, Current::Reversed,
                              Current::AlternatingA, Current::AlternatingB};
constexpr Current kDirectModes[] = {Current::Direct, Current::Reversed};
constexpr int kCounts[] = {10, 20, 40};

class Dice final : public RandomSource {
  public:
    using RandomSource::RandomSource;
    void Randomize() override {}
};

class Ions : public testing::Test {
  protected:
    Ions() { field.setUp(chance); }

    Ion& ion(int number) { return field.Ions[static_cast<std::size_t>(number)]; }
    // All ions but the first leave the game.
    Ion& alone() {
        for (int number = 2; number <= 40; ++number) {
            ion(number).Active = false;
        }
        return ion(1);
    }
    // One step in which chance gives these numbers and then halves: a walk that stays.
    void step(std::deque<double> numbers = {}) {
        field.step([&] {
            if (numbers.empty()) {
                return 0.5;
            }
            const double first = numbers.front();
            numbers.pop_front();
            return first;
        });
        EXPECT_TRUE(numbers.empty());
    }

    Dice dice{7};
    IonField::Chance chance = [this] { return dice.next(); };
    IonField field;
};

TEST_F(Ions, KnowTheMeasuresOfTheirField) {
    EXPECT_EQ(field.LeftPlate, 71);
    EXPECT_EQ(field.RightPlate, 320); // 319.5, halves to the even number
    EXPECT_DOUBLE_EQ(r, 8.875);
    EXPECT_EQ(field.IonCount, 20);
    EXPECT_EQ(field.IonSlots, 40);
}

// Of many populations: all within the ranges, and the ranges are used.
void expectSpread(IonField& field, const std::function<void()>& populate, double top,
                  double bottom) {
    double least[2] = {1e9, 1e9};
    double most[2] = {-1e9, -1e9};
    for (int round = 0; round < 200; ++round) {
        populate();
        for (int number = 1; number <= 40; ++number) {
            const Ion& ion = field.Ions[static_cast<std::size_t>(number)];
            EXPECT_EQ(ion,
                      (Ion{.X = ion.X, .Y = ion.Y, .Negative = number % 2 == 0, .Active = true}));
            least[0] = std::min(least[0], ion.X);
            least[1] = std::min(least[1], ion.Y);
            most[0] = std::max(most[0], ion.X);
            most[1] = std::max(most[1], ion.Y);
        }
    }
    EXPECT_EQ(field.Ions[0], Ion{});
    EXPECT_GE(least[0], 71);
    EXPECT_LT(least[0], 71.5);
    EXPECT_LT(most[0], 320);
    EXPECT_GT(most[0], 319.5);
    EXPECT_GE(least[1], top);
    EXPECT_LT(least[1], top + 0.5);
    EXPECT_LT(most[1], bottom);
    EXPECT_GT(most[1], bottom - 0.5);
}

TEST_F(Ions, StartInTheUpperHalfBetweenTheElectrodes) {
    expectSpread(
        field, [&] { field.setUp(chance); }, 4 * r, H / 2 - 4 * r);
}

TEST_F(Ions, SpreadOverNearlyTheWholeHeight) {
    expectSpread(
        field, [&] { field.spread(chance); }, r, 0.8 * H - 3 * r);
}

TEST_F(Ions, TakeTwoNumbersEachAcrossBeforeDown) {
    double count = 0;
    field.setUp([&] { return count++ / 128; });
    EXPECT_EQ(count, 80);
    for (int number = 1; number <= 40; ++number) {
        EXPECT_EQ(ion(number).X, (2 * number - 2) / 128.0 * 249 + 71);
        EXPECT_EQ(ion(number).Y, (2 * number - 1) / 128.0 * (H * 0.5 - 8 * r) + 4 * r);
    }
}

TEST_F(Ions, SetUpForgetsWhatWasAndSpreadingKeepsTheSettings) {
    const auto change = [&] {
        field.IonCount = 40;
        field.Mode = Current::AlternatingB;
        field.FastIons = field.DoubleCharge = true;
        field.DepositedCount = 3;
        ion(5).Deposited = ion(5).AtLeft = true;
        ion(5).Rest = 20;
    };
    change();
    field.spread(chance);
    EXPECT_EQ(ion(5), (Ion{.X = ion(5).X, .Y = ion(5).Y, .Active = true}));
    EXPECT_EQ(field.IonCount, 40);
    EXPECT_EQ(field.Mode, Current::AlternatingB);
    EXPECT_TRUE(field.FastIons && field.DoubleCharge);
    change();
    field.setUp(chance);
    EXPECT_EQ(ion(5), (Ion{.X = ion(5).X, .Y = ion(5).Y, .Active = true}));
    EXPECT_EQ(field.IonCount, 20);
    EXPECT_EQ(field.Mode, Current::Off);
    EXPECT_FALSE(field.FastIons || field.DoubleCharge);
    EXPECT_EQ(field.DepositedCount, 0);
}

TEST_F(Ions, OnlyWalkAtRandomWithoutACurrent) {
    Ion& one = alone();
    one = {.X = 200, .Y = 50, .Active = true};
    step({0.75, 0.125});
    EXPECT_EQ(one, (Ion{.X = 200.5, .Y = 49.25, .Active = true}));
    one.Y = 150; // they don't rise either
    step();
    EXPECT_EQ(one.Y, 150);
}

struct Way {
    Current mode;
    bool negative;
    double sign; // where to
};

class Ways : public Ions, public testing::WithParamInterface<Way> {};

INSTANTIATE_TEST_SUITE_P(
    All, Ways,
    testing::Values(Way{Current::Direct, true, -1}, Way{Current::Direct, false, 1},
                    Way{Current::Reversed, true, 1}, Way{Current::Reversed, false, -1},
                    Way{Current::AlternatingA, true, -1}, Way{Current::AlternatingA, false, 1},
                    Way{Current::AlternatingB, true, 1}, Way{Current::AlternatingB, false, -1}));

TEST_P(Ways, GoWithTheCurrentAndRiseFromBelow) {
    field.Mode = GetParam().mode;
    for (const bool fast : {false, true}) {
        for (const int count : kCounts) {
            field.FastIons = fast;
            field.IonCount = count;
            for (int number = 1; number <= 40; ++number) {
                for (int other = 1; other <= 40; ++other) {
                    ion(other).Active = other == number;
                }
                Ion& moved = ion(number);
                const double share = double(number) / count;
                const double step = fast ? share * 4 + 1.5 : share * 1.5 + 0.5;
                moved = {.X = 200, .Y = 150, .Negative = GetParam().negative, .Active = true};
                this->step({0.5, 0.5, 0.25, 0.75});
                EXPECT_EQ(moved.X, 200 + GetParam().sign * (step + 0.05));
                EXPECT_DOUBLE_EQ(moved.Y, 150 - step - 0.15);
            }
        }
    }
}

TEST_P(Ways, TurnBackBehindTheElectrode) {
    field.Mode = GetParam().mode;
    Ion& one = alone();
    const double plate = GetParam().sign > 0 ? 320 : 71;
    one = {.X = plate + GetParam().sign * 10,
           .Y = 150,
           .Negative = GetParam().negative,
           .Active = true};
    step({0.5, 0.5, 0.25, 0.5});
    EXPECT_DOUBLE_EQ(one.X,
                     plate + GetParam().sign * (10 - 0.575) + (GetParam().sign > 0 ? 0.05 : -0.05));
}

TEST_P(Ways, SettleOnTheElectrodeInTheUpperHalfOnly) {
    field.Mode = GetParam().mode;
    Ion& one = alone();
    const bool right = GetParam().sign > 0;
    const double plate = right ? 320 : 71;
    const double start = plate - GetParam().sign * 0.6; // within reach after a pull of 0.575
    for (const double y : {r, H / 2, std::nextafter(H / 2, H), 0.9 * H}) {
        one = {.X = start, .Y = y, .Negative = GetParam().negative, .Active = true};
        step();
        EXPECT_EQ(one.Deposited, y <= H / 2) << y;
        EXPECT_EQ(one.AtLeft, one.Deposited && !right);
        EXPECT_EQ(one.AtRight, one.Deposited && right);
        EXPECT_EQ(one.Rest, 0);
    }
    one = {.X = plate - GetParam().sign * 1.5,
           .Y = 50,
           .Negative = GetParam().negative,
           .Active = true};
    step(); // still 0.825 off, more than a step of 0.575
    EXPECT_FALSE(one.Deposited);
}

TEST_P(Ways, CountTheirRestUpAndDown) {
    constexpr int kNumber = 7;
    alone().Active = false;
    Ion& moved = ion(kNumber);
    const bool right = GetParam().sign > 0;
    for (const bool fast : {false, true}) {
        field.FastIons = fast;
        field.Mode = GetParam().mode;
        moved = {.X = 200,
                 .Y = 50,
                 .Negative = GetParam().negative,
                 .Active = true,
                 .Deposited = true,
                 .AtLeft = !right,
                 .AtRight = right,
                 .Rest = 0};
        for (int steps = 1; steps <= 10; ++steps) {
            step(); // takes no numbers: the ion rests
            EXPECT_EQ(moved.Rest, std::min(steps * 5, kNumber * 5));
        }
        const Ion settled = moved;
        for (const Current mode : kModes) {
            field.Mode = mode;
            const bool forward = mode == Current::Direct || mode == Current::AlternatingA;
            const bool held = mode != Current::Off && (moved.Negative == forward) != right;
            moved = settled;
            step();
            EXPECT_EQ(moved.Rest, held ? 35 : fast ? 27 : 31);
            for (int steps = 2; steps <= 30; ++steps) {
                const bool sat = moved.Deposited;
                step();
                if (!held && sat) {
                    const int left = 35 - steps * (fast ? 8 : 4);
                    EXPECT_EQ(moved.Rest, std::max(left, 0));
                    EXPECT_EQ(moved.Deposited, left > 0);
                    EXPECT_EQ(moved.AtRight, right && left > 0);
                    EXPECT_EQ(moved.AtLeft, !right && left > 0);
                    EXPECT_EQ(moved.X, 200); // it leaves with the next step
                }
            }
            EXPECT_EQ(moved.Deposited && moved.X == 200, held);
        }
    }
}

TEST_F(Ions, PushEachOtherApart) {
    Ion& one = alone();
    Ion& two = ion(2);
    two.Active = true;
    field.IonCount = 10; // a step of 0.65 for the first one
    one = {.X = 200, .Y = 50, .Active = true};
    two = {.X = 210, .Y = 45, .Negative = true, .Active = true};
    field.step([numbers = std::deque<double>{0.5, 0.5, 0.1, 0.2, 0.3, 0.4, 0.5, 0.5}]() mutable {
        const double first = numbers.front();
        numbers.pop_front();
        return first;
    });
    EXPECT_DOUBLE_EQ(one.X, 200 - 0.1 * 0.65 / 2);
    EXPECT_DOUBLE_EQ(two.X, 210 + 0.2 * 0.65 / 2);
    EXPECT_DOUBLE_EQ(two.Y, 45 - 0.3 * 0.65 / 2);
    EXPECT_DOUBLE_EQ(one.Y, 50 + 0.4 * 0.65 / 2);
}

struct Meeting {
    const char* what;
    Ion one;
    Ion two;
    int number; // of the second
    bool pushed;
};

TEST_F(Ions, PushOnlyNeighboursOnShow) {
    const double near = 2 * r - 0.001;
    const Meeting meetings[] = {
        {"near", {.X = 200, .Y = 50}, {.X = 200 + near, .Y = 50 + near}, 10, true},
        {"apart across", {.X = 200, .Y = 50}, {.X = 200 + 2 * r, .Y = 50}, 10, false},
        {"apart down", {.X = 200, .Y = 50}, {.X = 200, .Y = 50 + 2 * r}, 10, false},
        {"not on show", {.X = 200, .Y = 50}, {.X = 205, .Y = 50}, 11, false},
        {"at the left wall", {.X = 4 * r - 0.01, .Y = 50}, {.X = 4 * r, .Y = 50}, 10, false},
        {"near the left wall", {.X = 4 * r + 0.01, .Y = 50}, {.X = 4 * r, .Y = 50}, 10, true},
        {"at the right wall", {.X = W - 4 * r + 0.01, .Y = 50}, {.X = 320, .Y = 50}, 10, false},
        {"near the right wall", {.X = W - 4 * r - 0.01, .Y = 50}, {.X = 320, .Y = 50}, 10, true},
        {"one on its electrode",
         {.X = 200, .Y = 50},
         {.X = 205, .Y = 50, .Deposited = true, .AtRight = true, .Rest = 50},
         10,
         true},
    };
    for (const Meeting& meeting : meetings) {
        Ion& one = alone();
        field.IonCount = 10;
        one = meeting.one;
        ion(meeting.number) = meeting.two;
        one.Active = ion(meeting.number).Active = true;
        step();
        const Ion& two = ion(meeting.number);
        EXPECT_EQ(one.X != meeting.one.X, meeting.pushed) << meeting.what;
        EXPECT_EQ(two.X != meeting.two.X, meeting.pushed) << meeting.what;
        EXPECT_EQ(one.Y != meeting.one.Y, meeting.pushed) << meeting.what;
        EXPECT_EQ(two.Y != meeting.two.Y, meeting.pushed) << meeting.what;
    }
}

TEST_F(Ions, AreHeldByTheWalls) {
    Ion& one = alone();
    for (const double x : {r, W - r}) {
        for (const double y : {r, H - r}) {
            one = {.X = x, .Y = y, .Active = true};
            step({x == r ? 0.0 : 0.999, y == r ? 0.0 : 0.999});
            EXPECT_EQ(one.X, x);
            EXPECT_EQ(one.Y, y);
        }
    }
}

// All slots move, also those that aren't on show.
TEST_F(Ions, OfAllSlotsMove) {
    field.IonCount = 10;
    for (int number = 1; number <= 40; ++number) {
        ion(number) = {.X = 200, .Y = 50, .Active = number != 33};
    }
    field.step([] { return 0.75; });
    for (int number = 1; number <= 40; ++number) {
        EXPECT_EQ(ion(number).X != 200, number != 33) << number;
    }
}

// What a learner sees.

int countSettled(const IonField& field) {
    int count = 0;
    for (int number = 1; number <= field.IonCount; ++number) {
        count += field.Ions[static_cast<std::size_t>(number)].Deposited ? 1 : 0;
    }
    return count;
}

TEST_F(Ions, AllSettleWithADirectCurrentAndComeOffWithoutOne) {
    for (const Current mode : kDirectModes) {
        for (const int count : kCounts) {
            field.setUp(chance);
            field.IonCount = count;
            field.Mode = mode;
            int steps = 0;
            while (countSettled(field) < count && ++steps < 2000) {
                field.step(chance);
            }
            EXPECT_LT(steps, 1200) << "a minute"; // the slowest one goes half a unit a step
            EXPECT_GT(steps, 100);
            field.Mode = Current::Off;
            for (int i = 0; i < 50; ++i) { // 40 * 5 / 4
                field.step(chance);
            }
            EXPECT_EQ(countSettled(field), 0);
        }
    }
}

TEST_F(Ions, StayWithinTheWallsUnlessTheySit) {
    field.IonCount = 40;
    for (int steps = 0; steps < 20000; ++steps) {
        field.Mode = kModes[static_cast<std::size_t>(steps / 100 % 5)];
        field.FastIons = steps / 500 % 2 == 1;
        const auto before = field.Ions;
        field.step(chance);
        for (int number = 1; number <= 40; ++number) {
            const Ion& one = ion(number);
            ASSERT_EQ(one.Deposited, one.AtLeft || one.AtRight);
            ASSERT_FALSE(one.AtLeft && one.AtRight);
            ASSERT_TRUE(one.Rest >= 0 && one.Rest <= number * 5);
            if (!one.Deposited && !before[static_cast<std::size_t>(number)].Deposited) {
                ASSERT_TRUE(one.X >= r && one.X <= W - r && one.Y >= r && one.Y <= H - r);
            }
        }
    }
}

} // namespace
} // namespace quendal::test
