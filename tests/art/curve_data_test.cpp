// The curves of the data folder as the program reads them, and where a learner's points lie to
// them.
#include "data_curve.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace quendal {
namespace {

// Amounts in mmol: with reagents of 1 mol/L one millilitre is one millimole.
struct Beaker {
    int sample = 0;
    int added = 0;
    double volume() const { return 10.0 + added; } // mL
};

// The approximations that a learner calculates with, in concentrations instead of activities.
double learnersStrongAcidPh(Beaker beaker) {
    const double excess = (beaker.added - beaker.sample) / beaker.volume(); // mol/L of base
    if (excess == 0.0) {
        return 7.0;
    }
    return excess < 0.0 ? -std::log10(-excess) : 14.0 + std::log10(excess);
}

double learnersWeakAcidPh(Beaker beaker) {
    const auto [sample, added] = beaker;
    if (added == 0) {
        return 0.5 * (4.76 - std::log10(sample / beaker.volume()));
    }
    if (added < sample) {
        return 4.76 - std::log10(static_cast<double>(sample - added) / added);
    }
    if (added == sample) {
        return 14.0 - 0.5 * (14.0 - 4.76 - std::log10(added / beaker.volume()));
    }
    return 14.0 + std::log10((added - sample) / beaker.volume());
}

double learnersPotential(Beaker beaker) {
    const auto [sample, added] = beaker;
    double lgSilver = -0.5 * 9.7;
    if (added < sample) {
        lgSilver = -9.7 - std::log10((sample - added) / beaker.volume());
    } else if (added > sample) {
        lgSilver = std::log10((added - sample) / beaker.volume());
    }
    return 0.8 + 0.059 * lgSilver;
}

struct Family {
    const char* stem;
    const char* xTitle;
    const char* yTitle;
    const char* series;
    std::pair<double, double> range; // of all values
    double (*learners)(Beaker);
    int firstPoint; // mL; the learner has no formula for a beaker without silver
    double nearest; // all of the learner's points are farther off than this
    double farthest;
    double spread; // and one of them at least so far: the curve isn't the learner's formula
};

constexpr Family acid(const char* stem, std::pair<double, double> range, double (*learners)(Beaker),
                      double farthest) {
    return {.stem = stem,
            .xTitle = "V(NaOH) in mL",
            .yTitle = "pH-Wert",
            .series = "pH-Wert",
            .range = range,
            .learners = learners,
            .firstPoint = 0,
            .nearest = 0.0,
            .farthest = farthest,
            .spread = 0.1};
}

constexpr Family kStrongAcid = acid("phstark", {-0.1, 13.6}, learnersStrongAcidPh, 0.2);
constexpr Family kWeakAcid = acid("phschwach", {2.3, 13.6}, learnersWeakAcidPh, 0.15);
constexpr Family kSilver{.stem = "potsilber",
                         .xTitle = "V(AgNO3) in mL",
                         .yTitle = "Potential E in V",
                         .series = "Potential",
                         .range = {0.22, 0.77},
                         .learners = learnersPotential,
                         .firstPoint = 1,
                         .nearest = 0.004,
                         .farthest = 0.02,
                         .spread = 0.015};

struct Curve {
    Family family;
    int sample; // mmol, which are tenths of mol/L
};

std::string fileName(const Curve& curve) {
    const std::string digits = (curve.sample < 10 ? "0" : "") + std::to_string(curve.sample);
    return curve.family.stem + digits + ".crv";
}

class CurveData : public testing::TestWithParam<Curve> {
  protected:
    void SetUp() override { ASSERT_TRUE(file_.fault.empty()) << file_.fault; }

    const SeriesData& data() const { return document_.Series(1).Data; }
    double distance(int millilitres) const {
        const Beaker beaker{.sample = GetParam().sample, .added = millilitres};
        return std::abs(data().Y(1 + 10 * millilitres) - GetParam().family.learners(beaker));
    }

    DataCurve file_{fileName(GetParam())};
    const ChartDocument& document_ = file_.document;
};

TEST_P(CurveData, NamesItsAxesAndItsSeries) {
    EXPECT_EQ(document_.xTitle, GetParam().family.xTitle);
    EXPECT_EQ(document_.yTitle, GetParam().family.yTitle);
    ASSERT_EQ(document_.seriesCount(), 1);
    EXPECT_EQ(document_.Series(1).name, GetParam().family.series);
}

TEST_P(CurveData, HasAPointEveryTenthOfAMillilitre) {
    ASSERT_EQ(data().Count(), 201);
    for (int i = 0; i <= 200; ++i) {
        EXPECT_EQ(data().X(i + 1), i / 10.0);
    }
}

TEST_P(CurveData, RisesInItsRange) {
    for (int i = 2; i <= data().Count(); ++i) {
        EXPECT_GT(data().Y(i), data().Y(i - 1)) << data().X(i) << " mL";
    }
    EXPECT_GT(data().Y(1), GetParam().family.range.first);
    EXPECT_LT(data().Y(201), GetParam().family.range.second);
}

TEST_P(CurveData, LiesCloseToTheLearnersPointsButIsntTheirFormula) {
    const Family& family = GetParam().family;
    double farthest = 0.0;
    for (int millilitres = family.firstPoint; millilitres <= 20; ++millilitres) {
        EXPECT_GT(distance(millilitres), family.nearest) << millilitres << " mL";
        EXPECT_LT(distance(millilitres), family.farthest) << millilitres << " mL";
        farthest = std::max(farthest, distance(millilitres));
    }
    EXPECT_GT(farthest, family.spread);
}

std::vector<Curve> allCurves() {
    std::vector<Curve> curves;
    for (const Family& family : {kStrongAcid, kWeakAcid, kSilver}) {
        for (const int sample : {6, 8, 10, 12, 14}) {
            curves.push_back({.family = family, .sample = sample});
        }
    }
    return curves;
}

INSTANTIATE_TEST_SUITE_P(Files, CurveData, testing::ValuesIn(allCurves()), [](const auto& row) {
    const std::string name = fileName(row.param);
    return name.substr(0, name.find('.'));
});

} // namespace
} // namespace quendal
