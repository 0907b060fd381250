// The curves of the conductivity titrations as the program reads them.
#include "data_curve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace quendal {
namespace {

constexpr int kSeries = 5;
constexpr int kPoints = 201;

// A beaker of 100 mL with 10 mL of sample; amounts in mmol, and as many millilitres of reagent.
struct Beaker {
    double sample = 0;
    double added = 0;
    double volume() const { return 100.0 + added; } // mL
    double sampleLeft() const { return std::max(0.0, sample - added); }
    double reagentLeft() const { return std::max(0.0, added - sample); }
};

// The sums that a learner calculates with limiting conductivities, in mS/cm.
double learnersStrongAcid(const Beaker& b) {
    return (349.8 * b.sampleLeft() + 76.4 * b.sample + 50.1 * b.added + 198.6 * b.reagentLeft()) /
           b.volume();
}

double learnersWeakAcid(const Beaker& b) {
    if (b.added == 0.0) {
        return 349.8 * std::pow(10.0, -0.5 * (4.76 - std::log10(b.sample / b.volume())));
    }
    return (40.9 * std::min(b.sample, b.added) + 50.1 * b.added + 198.6 * b.reagentLeft()) /
           b.volume();
}

double learnersSilver(const Beaker& b) {
    return (76.4 * b.sampleLeft() + 50.1 * b.sample + 71.5 * b.added + 61.9 * b.reagentLeft()) /
           b.volume();
}

struct Form {
    const char* stem;
    const char* reagent;
    std::array<const char*, 4> ions;
    double (*learners)(const Beaker&);
    std::pair<double, double> above; // learners' totals by the curve's, from 2 mL on
    std::pair<double, double> start; // the same at 0 mL
};

constexpr Form kStrong{.stem = "lf-strong-",
                       .reagent = "V(NaOH)",
                       .ions = {"H3O+", "Cl-", "Na+", "OH-"},
                       .learners = learnersStrongAcid,
                       .above = {1.07, 1.21},
                       .start = {1.07, 1.11}};
constexpr Form kWeak{.stem = "lf-weak-",
                     .reagent = "V(NaOH)",
                     .ions = {"H3O+", "Ac-", "Na+", "OH-"},
                     .learners = learnersWeakAcid,
                     .above = {1.08, 1.28},
                     .start = {0.86, 0.88}};
constexpr Form kSilver{.stem = "lf-silver-",
                       .reagent = "V(AgNO3)",
                       .ions = {"Cl-", "Na+", "NO3-", "Ag+"},
                       .learners = learnersSilver,
                       .above = {1.15, 1.30},
                       .start = {1.14, 1.22}};

struct ConductivityFile {
    Form form;
    int sample; // mmol, which are tenths of mol/L
};

std::string fileName(const ConductivityFile& file) {
    const std::string digits = (file.sample < 10 ? "0" : "") + std::to_string(file.sample);
    return file.form.stem + digits + ".crv";
}

void expectFiveSeriesOnTheGrid(const DataCurve& file) {
    ASSERT_TRUE(file.fault.empty()) << file.fault;
    ASSERT_EQ(file.document.seriesCount(), kSeries);
    for (int s = 1; s <= kSeries; ++s) {
        const SeriesData& data = file.document.Series(s).Data;
        ASSERT_EQ(data.Count(), kPoints);
        for (int i = 1; i <= kPoints; ++i) {
            EXPECT_EQ(data.X(i), (i - 1) / 10.0);
        }
    }
}

class ConductivityData : public testing::TestWithParam<ConductivityFile> {
  protected:
    void SetUp() override { expectFiveSeriesOnTheGrid(file_); }

    double value(int series, int point) const {
        return file_.document.Series(series).Data.Y(point);
    }
    // The learner's total by that of the curve.
    double ratio(int millilitres) const {
        const Beaker beaker{.sample = 1.0 * GetParam().sample, .added = 1.0 * millilitres};
        return GetParam().form.learners(beaker) / value(1, 1 + 10 * millilitres);
    }

    DataCurve file_{fileName(GetParam())};
};

TEST_P(ConductivityData, NamesItsAxesAndItsSeries) {
    EXPECT_EQ(file_.document.xTitle, std::string(GetParam().form.reagent) + " in mL");
    EXPECT_EQ(file_.document.yTitle, "Leitwert G in mS/cm");
    EXPECT_EQ(file_.document.Series(1).name, "Leitwerte gesamt");
    for (int ion = 0; ion < 4; ++ion) {
        EXPECT_EQ(file_.document.Series(ion + 2).name,
                  std::string("Leitwerte ") + GetParam().form.ions.at(ion));
    }
}

// Each of the five numbers is rounded to four decimals.
TEST_P(ConductivityData, HasTheSumOfItsIonsAsTotal) {
    for (int i = 1; i <= kPoints; ++i) {
        const double sum = value(2, i) + value(3, i) + value(4, i) + value(5, i);
        EXPECT_NEAR(value(1, i), sum, 2.6e-4) << "point " << i;
    }
}

TEST_P(ConductivityData, LiesUnderTheLearnersSumsAsItsNotesSay) {
    const auto& [start, above] = std::pair(GetParam().form.start, GetParam().form.above);
    EXPECT_GT(ratio(0), start.first);
    EXPECT_LT(ratio(0), start.second);
    for (int millilitres = 2; millilitres <= 20; ++millilitres) {
        EXPECT_GT(ratio(millilitres), above.first) << millilitres << " mL";
        EXPECT_LT(ratio(millilitres), above.second) << millilitres << " mL";
    }
}

std::vector<ConductivityFile> allFiles() {
    std::vector<ConductivityFile> files;
    for (const Form& form : {kStrong, kWeak, kSilver}) {
        for (const int sample : {6, 8, 10, 12, 14}) {
            files.push_back({.form = form, .sample = sample});
        }
    }
    return files;
}

INSTANTIATE_TEST_SUITE_P(Files, ConductivityData, testing::ValuesIn(allFiles()),
                         [](const auto& row) {
                             std::string name = fileName(row.param);
                             name.resize(name.find('.'));
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

class ExponentData : public testing::Test {
  protected:
    void SetUp() override { expectFiveSeriesOnTheGrid(file_); }
    double value(int series, int millilitres) const {
        return file_.document.Series(series).Data.Y(1 + 10 * millilitres);
    }
    DataCurve file_{"lf-ph.crv"};
};

TEST_F(ExponentData, NamesItsAxesAndItsSeries) {
    EXPECT_EQ(file_.document.xTitle, "V(NaOH) in mL");
    EXPECT_EQ(file_.document.yTitle, "pH bzw. pOH");
    const std::array names{"pH- bzw. pOH-Werte", "pH-Werte", "pCl-Werte", "pNa-Werte", "pOH-Werte"};
    for (int i = 0; i < kSeries; ++i) {
        EXPECT_EQ(file_.document.Series(i + 1).name, names.at(i));
    }
}

TEST_F(ExponentData, ShowsPhBeforeTheEquivalencePointAndPohBehindIt) {
    for (int millilitres = 0; millilitres <= 20; ++millilitres) {
        EXPECT_EQ(value(1, millilitres), value(millilitres <= 10 ? 2 : 5, millilitres));
        EXPECT_LE(value(1, millilitres), 7.0);
    }
}

// The learner calculates with concentrations, the curve with activities.
TEST_F(ExponentData, LiesATenthAboveTheLearnersPoints) {
    for (int millilitres = 0; millilitres <= 20; ++millilitres) {
        if (millilitres != 10) {
            const double concentration = std::abs(10.0 - millilitres) / (100.0 + millilitres);
            const double above = value(1, millilitres) + std::log10(concentration);
            EXPECT_GT(above, 0.10) << millilitres << " mL";
            EXPECT_LT(above, 0.125) << millilitres << " mL";
        }
    }
}

} // namespace
} // namespace quendal
