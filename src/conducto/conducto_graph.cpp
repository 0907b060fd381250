// The learner's graph on the form and the series that it is made of.
#include "conducto/conducto_workbench.h"

#include "host/chart.h"
#include "shell/session/session.h"

namespace quendal {

namespace {

constexpr int kSeries = 5;
constexpr double kLettering = 8.0; // points

} // namespace

// A file with fewer series than the total and four ions has nothing to say about their names.
ChartSeries& ConductoWorkbench::addLearnersSeries(ChartDocument& curve) {
    const bool complete = curve.seriesCount() >= kSeries;
    for (int index = 1; index <= kSeries; ++index) {
        const SeriesLook& look = lookOf(index);
        std::string name(look.name);
        if (complete) {
            ChartSeries& reference = curve.Series(index);
            name = reference.name;
            reference.Style.Colour = look.colour;
            reference.shortName = look.name;
        }
        Series[static_cast<std::size_t>(index)] = &addOwnSeries(curve, look, name);
    }
    showGraph(curve);
    if (complete) {
        compareShownOnly(curve);
    }
    return *Series[static_cast<std::size_t>(conducto_.mainSeries)];
}

const SeriesLook& ConductoWorkbench::lookOf(int index) const {
    return conducto_.series[static_cast<std::size_t>(index - 1)];
}

ChartSeries& ConductoWorkbench::addOwnSeries(ChartDocument& curve, const SeriesLook& look,
                                             const std::string& name) const {
    ChartSeries& mine = curve.AddSeries(1, "Meine " + name);
    mine.shortName = look.name;
    mine.Axes = curve.Series(1).Axes;
    mine.Style = {.LineVisible = true,
                  .MarkerVisible = true,
                  .MarkerStyle = look.marker,
                  .MarkerSize = 6,
                  .MarkerSetting = 8,
                  .Colour = look.colour};
    return mine;
}

// Those of `Series` that the form shows.
std::vector<const ChartSeries*> ConductoWorkbench::ownShown() const {
    std::vector<const ChartSeries*> shown;
    for (int index = 1; index <= kSeries; ++index) {
        if (lookOf(index).onForm) {
            shown.push_back(Series[static_cast<std::size_t>(index)]);
        }
    }
    return shown;
}

void ConductoWorkbench::showGraph(ChartDocument& curve) {
    graph_ = &curve.AddView("Mein Graph");
    graph_->emptyNote = "Hier entsteht Dein Graph aus den Punkten, die Du berechnest.";
    graph_->ShowOnly(ownShown());
    if (lookOf(1).onForm) {
        keepRoomForTotal();
    }
    graph_->RenderTo(pic_Graph, 0, 0, kLettering);
}

// The model's values lie above the curve, whose ions hinder each other.
void ConductoWorkbench::keepRoomForTotal() {
    constexpr double kLastPoint = 20; // mL
    for (const double volume : {0.0, kLastPoint}) {
        const PointValues point = conducto_.model(session().SessionConcentration, volume);
        graph_->KeepRoomFor({volume, point.ionTotal});
    }
}

// What the learner never sees on the form would only ask for an explanation in the comparison.
void ConductoWorkbench::compareShownOnly(ChartDocument& curve) const {
    std::vector<const ChartSeries*> compared;
    for (int index = 1; index <= kSeries; ++index) {
        if (lookOf(index).onForm) {
            compared.push_back(&curve.Series(index));
        }
    }
    const std::vector<const ChartSeries*> own = ownShown();
    compared.insert(compared.end(), own.begin(), own.end());
    curve.View().ShowOnly(std::move(compared));
}

void ConductoWorkbench::redrawGraph() {
    graph_->Redraw(0);
}

} // namespace quendal
