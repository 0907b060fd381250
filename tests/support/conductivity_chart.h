// A chart as the conductometric forms show it, for tests, benchmarks and pictures: 10 mmol of
// hydrochloric acid in 100 mL, with sodium hydroxide of 1 mol/L.
#pragma once

#include "host/chart.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quendal::test {

struct IonRow {
    const char* name;
    double conductivity; // mS cm²/mmol, at infinite dilution
    double first;        // mmol at 0 mL
    double step;         // mmol per mL
    double least;        // mmol
    double most;         // mmol
    Color colour;
    Marker marker;
};

inline constexpr double kEquivalence = 10; // mL
inline constexpr std::array<IonRow, 4> kIons{{
    {"H3O+", 350, 10, -1, 0, 10, palette(12), Marker::TriangleDown},
    {"Cl-", 76, 10, 0, 10, 10, palette(2), Marker::Square},
    {"Na+", 50, 0, 1, 0, 20, palette(9), Marker::Diamond},
    {"OH-", 199, -10, 1, 0, 10, palette(1), Marker::Triangle},
}};

inline double conductivityOf(const IonRow& ion, double volume) {
    const double amount = std::clamp(ion.first + ion.step * volume, ion.least, ion.most);
    return amount * ion.conductivity / (volume + 100);
}

inline double totalConductivity(double volume) {
    double sum = 0;
    for (const IonRow& ion : kIons) {
        sum += conductivityOf(ion, volume);
    }
    return sum;
}

class ConductivityChart {
  public:
    explicit ConductivityChart(ChartDocument& document)
        : document_(document), mine_(document.AddView("Mein Graph")) {
        document_.xTitle = "V(NaOH) in mL";
        document_.yTitle = "G in mS/cm";
        addSeries("Gesamtleitwert", "gesamt", kBlack, Marker::FilledCircle);
        for (const IonRow& ion : kIons) {
            addSeries(ion.name, ion.name, ion.colour, ion.marker);
        }
        for (ChartSeries* series : references_) {
            own_.push_back(&addOwn(*series));
        }
        mine_.ShowOnly({own_.begin(), own_.end()});
        mine_.KeepRoomFor({0, totalConductivity(0)});
        mine_.emptyNote = "Hier entsteht Dein Graph aus den Punkten, die Du berechnest.";
        drawReferences();
    }

    ChartView& mine() { return mine_; }
    ChartView& all() { return document_.View(); }

    // The first `count` points of the learner, one each mL, and the fitted lines when they straddle
    // the equivalence.
    void calculate(int count) {
        const bool straddled = count > kEquivalence + 1;
        for (std::size_t i = 0; i < own_.size(); ++i) {
            ChartSeries& series = *own_[i];
            series.Data = {};
            for (int volume = 0; volume < count; ++volume) {
                series.Data.Add(volume, std::round(valueOf(i, volume) * 100) / 100);
            }
            series.Style.LineVisible = !straddled;
            series.fittedLines.clear();
            if (straddled) {
                fit(series);
            }
        }
    }

  private:
    static double valueOf(std::size_t series, double volume) {
        return series == 0 ? totalConductivity(volume) : conductivityOf(kIons[series - 1], volume);
    }

    void addSeries(const char* name, const char* shortName, Color colour, Marker marker) {
        ChartSeries& series = document_.AddSeries(1, name);
        series.shortName = shortName;
        series.Style = {.MarkerStyle = marker, .Colour = colour};
        references_.push_back(&series);
    }

    ChartSeries& addOwn(const ChartSeries& reference) {
        ChartSeries& series = document_.AddSeries(1, "Meine " + reference.name);
        series.shortName = reference.shortName;
        series.Style = reference.Style;
        series.Style.MarkerVisible = true;
        return series;
    }

    void drawReferences() {
        for (std::size_t i = 0; i < references_.size(); ++i) {
            for (int step = 0; step <= 200; ++step) {
                const double volume = step / 10.0;
                references_[i]->Data.Add(volume, 0.93 * valueOf(i, volume)); // ions in company
            }
        }
    }

    static void fit(ChartSeries& series) {
        const int before = static_cast<int>(kEquivalence) + 1;
        for (const auto& line : {fitLine(series.Data, 1, before),
                                 fitLine(series.Data, before + 2, series.Data.Count())}) {
            if (line) {
                series.fittedLines.push_back(*line);
            }
        }
    }

    ChartDocument& document_;
    ChartView& mine_;
    std::vector<ChartSeries*> references_;
    std::vector<ChartSeries*> own_;
};

} // namespace quendal::test
