// The models against values worked out in whole numbers.
#include "conducto/conductivity.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quendal::test {
namespace {

using Model = PointValues (*)(double, double);

struct WorkedCase {
    Model model;
    double concentration;
    double ml;
    std::array<double, 4> ions;
    double total; // as values 2, 1, 3, 4 add up in this order, the last bit included
};

class Worked : public testing::TestWithParam<WorkedCase> {};

TEST_P(Worked, IsExact) {
    const WorkedCase& row = GetParam();
    const PointValues point = row.model(row.concentration, row.ml);
    EXPECT_EQ(point.ionValues, row.ions);
    EXPECT_EQ(point.ionTotal, row.total);
    EXPECT_EQ(point.titrantMl, row.ml);
    EXPECT_EQ(point.totalMl, row.ml + 100);
}

INSTANTIATE_TEST_SUITE_P(
    Strong, Worked,
    testing::Values(
        WorkedCase{strongConductivity, 1.0, 0, {34.98, 7.64, 0, 0}, 42.62},
        WorkedCase{strongConductivity, 1.0, 1, {31.17, 7.56, 0.5, 0}, 39.230000000000004},
        WorkedCase{strongConductivity, 1.0, 10, {0, 6.95, 4.55, 0}, 11.5},
        // The rounded sum would be 13.64.
        WorkedCase{strongConductivity, 1.0, 11, {0, 6.88, 4.96, 1.79}, 13.629999999999999},
        WorkedCase{strongConductivity, 1.0, 20, {0, 6.37, 8.35, 16.55}, 31.27},
        // The minimum of 0.6 mol/L lies at 6 mL.
        WorkedCase{strongConductivity, 0.6, 5, {3.33, 4.37, 2.39, 0}, 10.09},
        WorkedCase{strongConductivity, 0.6, 6, {0, 4.32, 2.84, 0}, 7.16},
        WorkedCase{strongConductivity, 0.6, 7, {0, 4.28, 3.28, 1.86}, 9.42},
        WorkedCase{strongConductivity, 1.2, 4, {26.91, 8.82, 1.93, 0}, 37.660000000000004},
        WorkedCase{strongConductivity, 1.2, 6, {19.8, 8.65, 2.84, 0}, 31.290000000000003},
        WorkedCase{strongConductivity, 1.4, 14, {0, 9.38, 6.15, 0}, 15.530000000000001}));

INSTANTIATE_TEST_SUITE_P(
    Weak, Worked,
    testing::Values(
        WorkedCase{weakConductivity, 1.0, 0, {0.46, 0, 0, 0}, 0.46},
        // The acid's own ions are gone at one stroke.
        WorkedCase{weakConductivity, 1.0, 1, {0, 0.4, 0.5, 0}, 0.9},
        WorkedCase{weakConductivity, 1.0, 5, {0, 1.95, 2.39, 0}, 4.34},
        WorkedCase{weakConductivity, 1.0, 10, {0, 3.72, 4.55, 0}, 8.27},
        WorkedCase{weakConductivity, 1.0, 20, {0, 3.41, 8.35, 16.55}, 28.310000000000002},
        WorkedCase{weakConductivity, 1.4, 0, {0.55, 0, 0, 0}, 0.55},
        WorkedCase{weakConductivity, 1.4, 13, {0, 4.71, 5.76, 0}, 10.469999999999999},
        WorkedCase{weakConductivity, 1.4, 14, {0, 5.02, 6.15, 0}, 11.17},
        WorkedCase{weakConductivity, 1.4, 15, {0, 4.98, 6.53, 1.73}, 13.240000000000002},
        // 2.045: halves go to the even hundredth.
        WorkedCase{weakConductivity, 0.6, 20, {0, 2.04, 8.35, 23.17}, 33.56}));

INSTANTIATE_TEST_SUITE_P(
    Silver, Worked,
    testing::Values(
        WorkedCase{silverConductivity, 1.0, 0, {7.64, 5.01, 0, 0}, 12.649999999999999},
        WorkedCase{silverConductivity, 1.0, 10, {0, 4.55, 6.5, 0}, 11.05},
        WorkedCase{silverConductivity, 1.0, 15, {0, 4.36, 9.33, 2.69}, 16.380000000000003},
        // 4.175, 2.505 and 5.845 are such halves too.
        WorkedCase{silverConductivity, 1.0, 20, {0, 4.18, 11.92, 5.16}, 21.26},
        WorkedCase{silverConductivity, 0.6, 20, {0, 2.5, 11.92, 7.22}, 21.64},
        WorkedCase{silverConductivity, 1.4, 20, {0, 5.84, 11.92, 3.1}, 20.86},
        WorkedCase{silverConductivity, 1.4, 3, {8.16, 6.81, 2.08, 0}, 17.049999999999997},
        WorkedCase{silverConductivity, 1.4, 12, {1.36, 6.26, 7.66, 0}, 15.280000000000001},
        WorkedCase{silverConductivity, 1.4, 14, {0, 6.15, 8.78, 0}, 14.93}));

INSTANTIATE_TEST_SUITE_P(
    Logarithms, Worked,
    testing::Values(WorkedCase{strongLogarithms, 1.0, 0, {0.1, 1, 0, 0}, 1.1},
                    WorkedCase{strongLogarithms, 1.0, 0.5, {0.09, 1.02, 0, 0}, 1.11},
                    WorkedCase{strongLogarithms, 1.0, 1, {0.09, 1.05, 0, 0}, 1.1400000000000001},
                    WorkedCase{strongLogarithms, 1.0, 5, {0.05, 1.32, 0, 0}, 1.37},
                    // From 1/109, not from the 0.01 that is shown.
                    WorkedCase{strongLogarithms, 1.0, 9, {0.01, 2.04, 0, 0}, 2.05},
                    WorkedCase{strongLogarithms, 1.0, 9.999, {0, 5.04, 0, 0}, 5.04},
                    WorkedCase{strongLogarithms, 1.0, 10, {0, 0, 0, 0}, 0},
                    WorkedCase{strongLogarithms, 1.0, 10.001, {0, 0, 0, 5.04}, 5.04},
                    WorkedCase{strongLogarithms, 1.0, 11, {0, 0, 0.01, 2.05}, 2.0599999999999996},
                    WorkedCase{strongLogarithms, 1.0, 12.5, {0, 0, 0.02, 1.65}, 1.67},
                    WorkedCase{strongLogarithms, 1.0, 20, {0, 0, 0.08, 1.08}, 1.1600000000000001},
                    WorkedCase{
                        strongLogarithms, 1.0, 1000, {0, 0, 0.9, 0.05}, 0.9500000000000001}));

// An ion of a form: its limiting conductivity in tenths of mS cm²/mmol, and how many mmol of it
// there are with `sample` mmol from the pipette and `reagent` mmol from the burette.
struct IonRow {
    int conductivity;
    int (*amount)(int sample, int reagent);
};

int sampleLeft(int sample, int reagent) {
    return sample > reagent ? sample - reagent : 0;
}
int reagentLeft(int sample, int reagent) {
    return reagent > sample ? reagent - sample : 0;
}
int sampleAlways(int sample, int /*reagent*/) {
    return sample;
}
int reagentAlways(int /*sample*/, int reagent) {
    return reagent;
}
int none(int /*sample*/, int /*reagent*/) {
    return 0;
}
int formed(int sample, int reagent) {
    return sample < reagent ? sample : reagent;
}

struct FormRow {
    const char* name;
    Model model;
    std::array<IonRow, 4> ions;
};

const FormRow kForms[] = {
    {"Strong",
     strongConductivity,
     {{{3498, sampleLeft}, {764, sampleAlways}, {501, reagentAlways}, {1986, reagentLeft}}}},
    {"Weak",
     weakConductivity,
     {{{3498, none}, {409, formed}, {501, reagentAlways}, {1986, reagentLeft}}}},
    {"Silver",
     silverConductivity,
     {{{764, sampleLeft}, {501, sampleAlways}, {715, reagentAlways}, {619, reagentLeft}}}},
};

// G = n / V * lambda in hundredths, halves to the even one.
int hundredths(int amount, int conductivity, int volume) {
    const int dividend = amount * conductivity * 10;
    const int whole = dividend / volume;
    const int twice = 2 * (dividend % volume);
    const bool up = twice > volume || (twice == volume && whole % 2 == 1);
    return whole + (up ? 1 : 0);
}

// Concentrations in tenths of mol/L, which are the mmol of 10 mL.
constexpr int kSamples[] = {6, 8, 10, 12, 14};
constexpr int kLastMl = 20;

class EveryPoint : public testing::TestWithParam<FormRow> {
  protected:
    // Calls check(sample, ml, point) for each.
    template <class Check>
    void each(Check check) {
        for (const int sample : kSamples) {
            for (int ml = 0; ml <= kLastMl; ++ml) {
                SCOPED_TRACE(std::to_string(sample) + " mmol, " + std::to_string(ml) + " mL");
                check(sample, ml, GetParam().model(sample / 10.0, ml));
            }
        }
    }
};

TEST_P(EveryPoint, HasEachIonsShareToTwoDecimals) {
    each([](int sample, int ml, const PointValues& point) {
        for (std::size_t i = 0; i < 4; ++i) {
            const IonRow& ion = GetParam().ions[i];
            const bool acidAlone = GetParam().model == weakConductivity && i == 0 && ml == 0;
            if (!acidAlone) {
                const int share = hundredths(ion.amount(sample, ml), ion.conductivity, ml + 100);
                EXPECT_EQ(point.ionValues[i], share / 100.0) << "ion " << i;
            }
        }
        const auto& v = point.ionValues;
        EXPECT_EQ(point.ionTotal, v[1] + v[0] + v[2] + v[3]);
    });
}

TEST_P(EveryPoint, AsksForWholeAmounts) {
    each([](int sample, int ml, const PointValues& point) {
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(point.ionAmounts[i], GetParam().ions[i].amount(sample, ml)) << "ion " << i;
        }
        EXPECT_EQ(point.totalMl, ml + 100);
    });
}

INSTANTIATE_TEST_SUITE_P(All, EveryPoint, testing::ValuesIn(kForms),
                         [](const auto& row) { return row.param.name; });

// c(H3O+) of a weak acid is the root of c(HAc) times Ks, here with pKs 4.76.
TEST(Conductivity, TheAcidAloneConductsALittle) {
    for (const int sample : kSamples) {
        const double hydronium = std::sqrt(sample / 100.0 * std::pow(10, -4.76));
        const double shown = std::round(hydronium * 349.8 * 100) / 100;
        EXPECT_EQ(weakConductivity(sample / 10.0, 0).ionValues[0], shown) << sample;
    }
}

struct ChoiceCase {
    double concentration;
    double ml;
    bool reagentLeft;
};

class Choice : public testing::TestWithParam<ChoiceCase> {};

TEST_P(Choice, EqualAmountsCountAsTheSample) {
    const ChoiceCase& row = GetParam();
    for (const Model model :
         {strongConductivity, weakConductivity, silverConductivity, strongLogarithms}) {
        EXPECT_EQ(model(row.concentration, row.ml).caseNumber(), row.reagentLeft ? 2 : 1);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Choice,
                         testing::Values(ChoiceCase{1.0, 0, false}, ChoiceCase{1.0, 9.999, false},
                                         ChoiceCase{1.0, 10, false}, ChoiceCase{1.0, 10.001, true},
                                         ChoiceCase{0.6, 7, true}, ChoiceCase{1.2, 11, false},
                                         // 1.4 / 10 * 100 is 13.999999999999998.
                                         ChoiceCase{1.4, 14, true}));

struct AmountCase {
    double ml;
    std::array<double, 4> amounts;
};

class LogAmounts : public testing::TestWithParam<AmountCase> {};

TEST_P(LogAmounts, AreFreeOfBinaryResidues) {
    EXPECT_EQ(strongLogarithms(1.0, GetParam().ml).ionAmounts, GetParam().amounts);
}

INSTANTIATE_TEST_SUITE_P(
    All, LogAmounts,
    testing::Values(AmountCase{0, {10, 0, 0, 0}}, AmountCase{9.9, {0.1, 0, 0, 0}},
                    AmountCase{9.99, {0.01, 0, 0, 0}}, AmountCase{10, {0, 0, 0, 0}},
                    AmountCase{12.5, {0, 0, 2.5, 0}}, AmountCase{10.3, {0, 0, 0.3, 0}}));

struct RoundingCase {
    double value;
    double rounded;
};

class TwoDecimals : public testing::TestWithParam<RoundingCase> {};

TEST_P(TwoDecimals, AreWhatTheTextTells) {
    EXPECT_EQ(twoDecimals(GetParam().value), GetParam().rounded);
}

INSTANTIATE_TEST_SUITE_P(All, TwoDecimals,
                         testing::Values(RoundingCase{0, 0}, RoundingCase{2.345, 2.34},
                                         RoundingCase{2.355, 2.36}, RoundingCase{34.9849, 34.98},
                                         RoundingCase{0.004999, 0}, RoundingCase{-1.006, -1.01},
                                         RoundingCase{1234567.891, 1234567.89}));

} // namespace
} // namespace quendal::test
