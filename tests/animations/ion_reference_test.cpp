// The shipped form of the ions' rules against the plain one.
#include "animations/ion_field.h"
#include "animations/ion_reference.h"
#include "host/random_source.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quendal::test {
namespace {

constexpr double W = IonField::kWidth;
constexpr double H = IonField::kHeight;
constexpr Current kModes[] = {Current::Off, Current::Direct, Current::Reversed,
                              Current::AlternatingA, Current::AlternatingB};
constexpr int kCounts[] = {10, 20, 40};

class Dice final : public RandomSource {
  public:
    using RandomSource::RandomSource;
    void Randomize() override {}
};

reference::PlainIons plainCopy(const IonField& field) {
    reference::PlainIons plain;
    plain.ionCount = field.IonCount;
    plain.mode = static_cast<int>(field.Mode);
    plain.fastIons = field.FastIons;
    plain.leftPlate = field.LeftPlate;
    plain.rightPlate = field.RightPlate;
    for (std::size_t i = 1; i <= 40; ++i) {
        const Ion& ion = field.Ions[i];
        plain.ion[i] = {ion.X,         ion.Y,      ion.Negative, ion.Active,
                        ion.Deposited, ion.AtLeft, ion.AtRight,  ion.Rest};
    }
    return plain;
}

Ion shippedForm(const reference::PlainIon& ion) {
    return {ion.x,         ion.y,      ion.negative, ion.active,
            ion.deposited, ion.atLeft, ion.atRight,  ion.rest};
}

template <class T, std::size_t n>
T anyOf(Dice& dice, const T (&values)[n]) {
    return values[static_cast<std::size_t>(dice.next() * n)];
}

void populate(IonField& field, Dice& dice) {
    field.setUp([&] { return dice.next(); });
    const bool crowded = dice.next() < 0.3; // around one electrode or the other
    const double middle = dice.next() * W;
    for (std::size_t i = 1; i <= 40; ++i) {
        Ion& ion = field.Ions[i];
        ion.X = crowded ? middle + dice.next() * 80 - 40 : dice.next() * W;
        ion.Y = dice.next() * H;
        ion.Active = dice.next() < 0.9;
        if (dice.next() < 0.2) {
            ion.Deposited = true;
            ion.AtLeft = dice.next() < 0.5;
            ion.AtRight = !ion.AtLeft;
            ion.Rest = std::floor(dice.next() * 5 * static_cast<double>(i));
            ion.X = ion.AtLeft ? field.LeftPlate : field.RightPlate;
        }
    }
}

TEST(IonReference, StepsAreTheSame) {
    Dice dice(7);
    IonField field;
    int settled = 0;
    int left = 0;
    for (int round = 0; round < 3000; ++round) {
        populate(field, dice);
        const std::uint64_t seed = static_cast<std::uint64_t>(round) + 1;
        Dice own(seed);
        Dice plainDice(seed);
        reference::PlainIons plain = plainCopy(field);
        plain.rand = [&] { return plainDice.next(); };
        for (int steps = 0; steps < 8; ++steps) {
            field.Mode = anyOf(dice, kModes);
            field.IonCount = anyOf(dice, kCounts);
            field.FastIons = dice.next() < 0.5;
            plain.mode = static_cast<int>(field.Mode);
            plain.ionCount = field.IonCount;
            plain.fastIons = field.FastIons;
            const auto before = field.Ions;
            field.step([&] { return own.next(); });
            plain.step();
            for (std::size_t i = 1; i <= 40; ++i) {
                ASSERT_EQ(field.Ions[i], shippedForm(plain.ion[i])) << round << ", ion " << i;
                settled += !before[i].Deposited && field.Ions[i].Deposited ? 1 : 0;
                left += before[i].Deposited && !field.Ions[i].Deposited ? 1 : 0;
            }
        }
        ASSERT_EQ(own.next(), plainDice.next()) << "other random numbers taken, round " << round;
    }
    // Both happen often enough to be tested.
    EXPECT_GT(settled, 1000);
    EXPECT_GT(left, 1000);
}

TEST(IonReference, LongRunsFromTheStartOfALessonAreTheSame) {
    Dice dice(7);
    IonField field;
    for (const Current mode : kModes) {
        field.setUp([&] { return dice.next(); });
        field.Mode = mode;
        field.IonCount = 40;
        reference::PlainIons plain = plainCopy(field);
        Dice own(3);
        Dice plainDice(3);
        plain.rand = [&] { return plainDice.next(); };
        for (int steps = 0; steps < 2000; ++steps) {
            field.step([&] { return own.next(); });
            plain.step();
        }
        for (std::size_t i = 1; i <= 40; ++i) {
            ASSERT_EQ(field.Ions[i], shippedForm(plain.ion[i]));
        }
    }
}

} // namespace
} // namespace quendal::test
