#include "conducto/conducto_workbench.h"

#include "host/chart.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/forms/frm_DialogphCompare.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "workbench/command_text.h"
#include "workbench/liquid_color.h"
#include "workbench/strong_acid.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kEquivalence = 10; // mL for each mol/L of the sample

} // namespace

ConductoWorkbench::ConductoWorkbench(const ConductoVariant& variant)
    : Workbench(variant.bench), conducto_(variant), guidance_(*this) {
    design();
    designConducto();
}

// The start form comes last; whoever doesn't accept it has no task.
void ConductoWorkbench::Form_Load() {
    Workbench::Form_Load();
    const std::unique_ptr<StartForm> start = conducto_.makeStart();
    CoreLib().Windows.ShowModal(*start);
    if (!start->Accepted) {
        CoreLib().Windows.Unload(*this);
    }
}

// The liquid has the colour that an indicator would show, but there is nothing to be read off.
std::optional<Workbench::Reading> ConductoWorkbench::presentReading() {
    if (vVol == 0) {
        return std::nullopt;
    }
    if (!conducto_.colouredByPh) {
        return Reading{.shown = 0, .liquid = kPlainLiquid};
    }
    const PointValues point =
        strongAcidPoint(session().SessionConcentration, hGetVol(1), hGetVol(-1));
    return Reading{.shown = 0, .liquid = liquidColor(point.reading)};
}

PointValues ConductoWorkbench::hCalcPoint() {
    const PointValues point = conducto_.model(session().SessionConcentration, titrantMl());
    std::copy(point.ionValues.begin(), point.ionValues.end(), IonValues.begin() + 1);
    IonValues[5] = point.ionTotal;
    return point;
}

int ConductoWorkbench::presentCase() const {
    return conducto_.model(session().SessionConcentration, titrantMl()).caseNumber();
}

double ConductoWorkbench::directTarget() {
    return hCalcPoint().ionTotal;
}

void ConductoWorkbench::directPassed(double value) {
    hShowMainControls();
    addPoint(value, {IonValues[1], IonValues[2], IonValues[3], IonValues[4]});
}

void ConductoWorkbench::addPoint(double total, const std::array<double, 4>& ions) {
    pointIons_ = ions;
    hPointDone(total);
}

void ConductoWorkbench::obey(ctl_Executor& executor) {
    executor.onCommand = [this](const std::string& command) {
        if (upperCase(command) == "PIPETTE" && vPipShown) {
            clickGlass();
        }
    };
}

void ConductoWorkbench::calculationClosed() {
    hShowMainControls();
}

void ConductoWorkbench::but_phCompare_Click() {
    if (!BreakOpen) {
        dialogphCompare().ShowBreak = true;
        dialogphCompare().BreakIndex = BreakIndex;
    }
    Workbench::but_phCompare_Click();
}

void ConductoWorkbench::recordPoint(double reading) {
    const double volume = titrantMl();
    fillSeries(volume, reading, pointIons_);
    LastVolume = volume;
    redrawGraph();
}

void ConductoWorkbench::fillSeries(double volume, double total, const std::array<double, 4>& ions) {
    Series[1]->Data.Add(volume, total);
    for (std::size_t i = 0; i < ions.size(); ++i) {
        Series[i + 2]->Data.Add(volume, ions[i]);
    }
    openBreak(volume);
    if (!BreakOpen) {
        fitLines();
    }
}

// A point at the equivalence itself still belongs to the part before it.
void ConductoWorkbench::openBreak(double volume) {
    const double equivalence = kEquivalence * session().SessionConcentration;
    if (!BreakOpen || !LastVolume || volume <= equivalence || *LastVolume > equivalence) {
        return;
    }
    BreakOpen = false;
    BreakIndex = Series[1]->Data.Count() - 1;
    for (int i = 1; i <= 5; ++i) {
        Series[static_cast<std::size_t>(i)]->Style.LineVisible = false;
    }
}

// The first point behind the equivalence belongs to neither line: meant.
void ConductoWorkbench::fitLines() {
    for (int i = 1; i <= 5; ++i) {
        ChartSeries& series = *Series[static_cast<std::size_t>(i)];
        series.fittedLines.clear();
        const int last = series.Data.Count();
        for (const auto& line :
             {fitLine(series.Data, 1, BreakIndex), fitLine(series.Data, BreakIndex + 2, last)}) {
            if (line) {
                series.fittedLines.push_back(*line);
            }
        }
    }
}

int ConductoWorkbench::learnerSeriesCount() const {
    return Series[1] == nullptr ? 0 : 5;
}

const ChartSeries* ConductoWorkbench::learnerSeries(int number) const {
    return number >= 1 && number <= 5 ? Series[static_cast<std::size_t>(number)] : nullptr;
}

void ConductoWorkbench::describe(FieldTable& table) const {
    Workbench::describe(table);
    table.addArray("IonValues", IonValues);
    table.add("BreakOpen", BreakOpen);
    table.add("BreakIndex", BreakIndex);
    table.add("LastVolume", LastVolume);
}

} // namespace quendal
