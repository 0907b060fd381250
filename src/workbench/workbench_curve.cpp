// The reference curve and the learner's series on it.
#include "workbench/workbench.h"

#include "host/chart.h"
#include "host/file_service.h"
#include "host/log.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr const char* kFallbackCurve = "ph.crv";

// "phstark" and 0.8 give "phstark08.crv", whatever the locale's decimal sign.
std::string curveName(const WorkbenchVariant& variant) {
    const std::string stem(variant.curveStem);
    if (!variant.curveByConcentration) {
        return stem + ".crv";
    }
    std::string digits = CoreLib().NumberService.picture(session().SessionConcentration, "0.0");
    std::erase(digits, ',');
    std::erase(digits, '.');
    return stem + digits + ".crv";
}

} // namespace

void Workbench::openCurve() {
    ChartDocuments& documents = session().SessionChartFactory->Documents();
    while (documents.Count() >= 1) {
        documents.Close(1, -1, 0, 0);
    }
    const std::string folder = HostApp().PathService.DataPath();
    const std::string name = curveName(variant_);
    const bool found = CoreLib().FileService.FileExists(folder + name);
    ChartDocument& curve = documents.Open(folder + (found ? name : kFallbackCurve), 0, 0, 0);
    if (!found) {
        logLine("Kurve " + folder + name + ": Die Datei fehlt.");
        CoreLib().MessageBox.Ok(
            "Die Datei '" + name +
                "' wurde nicht gefunden - zum Vergleich Deiner Werte kann ich daher leider nur die "
                "Standard-pH-Kurver zu Rate ziehen!",
            "");
    }
    session().SessionCurve = &curve;
    session().SessionCurveSeries = &curve.Series(1);
    session().SessionChartView = &curve.Axes(1);
    ChartSeries& mine = addLearnersSeries(curve);
    session().SessionMySeries = &mine;
    session().SessionChartView->SetActiveSeries(curve.indexOf(mine), -1);
}

ChartSeries& Workbench::addLearnersSeries(ChartDocument& curve) {
    ChartSeries& mine = curve.AddSeries(1, std::string(variant_.seriesName));
    mine.Axes = curve.Series(1).Axes;
    mine.Style = {.LineVisible = false,
                  .MarkerVisible = true,
                  .MarkerStyle = Marker::FilledCircle,
                  .MarkerSize = 6,
                  .MarkerSetting = 8,
                  .Colour = palette(12)};
    return mine;
}

} // namespace quendal
