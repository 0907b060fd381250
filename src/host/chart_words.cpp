#include "host/chart_words.h"

#include "host/chart.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/term_markup.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

// With as few decimals as needed, at most two.
std::string words(double value) {
    const NumberService own;
    const NumberService& numbers = rootsInstalled() ? CoreLib().NumberService : own;
    return numbers.text(roundDecimals(value, 2));
}

std::string countOf(int points) {
    return points == 0   ? "noch kein Punkt"
           : points == 1 ? "1 Punkt"
                         : std::to_string(points) + " Punkte";
}

// The second of the two neighbours that are farthest apart; points are in order of x.
int steepest(const SeriesData& data) {
    int found = 2;
    for (int i = 3; i <= data.Count(); ++i) {
        if (std::abs(data.Y(i) - data.Y(i - 1)) > std::abs(data.Y(found) - data.Y(found - 1))) {
            found = i;
        }
    }
    return found;
}

std::string seriesWords(const ChartSeries& series) {
    SeriesData data = series.Data;
    data.Sort();
    const int count = data.Count();
    std::string text = plainTerm(series.name) + ": " + countOf(count);
    if (count > 0) {
        text += ", zuletzt " + words(data.Y(count)) + " bei " + words(data.X(count));
    }
    if (count > 2) {
        const int jump = steepest(data);
        text += ", größter Sprung von " + words(data.Y(jump - 1)) + " auf " + words(data.Y(jump)) +
                " zwischen " + words(data.X(jump - 1)) + " und " + words(data.X(jump));
    }
    return text + ".";
}

// Empty for axes without titles, as they are without a curve that names them.
std::string axesWords(const ChartDocument& document) {
    const std::string x = plainTerm(document.xTitle);
    const std::string y = plainTerm(document.yTitle);
    if (x.empty()) {
        return y.empty() ? "" : "Senkrecht " + y + ".";
    }
    return "Waagerecht " + x + (y.empty() ? "." : ", senkrecht " + y + ".");
}

} // namespace

std::string chartWords(const ChartView& view) {
    const std::vector<const ChartSeries*> shown = view.shown();
    const bool empty = std::all_of(shown.begin(), shown.end(),
                                   [](const ChartSeries* s) { return s->Data.Count() == 0; });
    if (empty) {
        return view.emptyNote;
    }
    std::string text = axesWords(view.document());
    for (const ChartSeries* series : shown) {
        text += (text.empty() ? "" : " ") + seriesWords(*series);
    }
    return text;
}

} // namespace quendal
