// Session state: the process-wide variables that more than one form needs, and two helpers. One
// thread, no locks: plain flags guard against re-entry from the event pump.
#pragma once

#include "host/color.h"
#include "host/field_table.h"
#include "host/picture.h"
#include "host/string_list.h"

#include <array>
#include <string_view>

namespace quendal {

class ChartDocument;
class ChartFactory;
class ChartSeries;
class ChartView;

// Random tables of the particle grid, indexed by population size and position, both from 1.
inline constexpr int kGridLimit = 200;
template <class T>
using GridTable = std::array<std::array<T, kGridLimit + 1>, kGridLimit + 1>;

struct SessionState {
    double SessionConcentration = 1.0; // mol/L of the solution in the beaker
    bool SessionDemo = false;          // the open workbench runs as a click demo
    StringList SessionRequiredPoints;  // whole volumes in mL at which a calculation is required
    bool SessionNeedCalc = false;      // calculation of the required points is enforced
    // The teacher has forbidden help. Nothing sets it; the branch that reads it stays for a later
    // teacher control.
    bool SessionNoHelp = false;
    bool SessionCalcTerm = false; // the popup calculator of the steps offers formula lines
    // The same for the direct input; nothing sets it, so those lines are never offered.
    bool SessionCalcTermDirect = false;
    bool SessionBusy = false;         // reagent is being dosed: no second dosing, no calculation
    bool SessionRestart = false;      // back to the start dialog is wanted: every loop ends early
    Color ParticleBackColor = kBlack; // colour of the liquid; particles fade into it
    bool PlainChloride = false;       // Cl- shows no sign in the beaker
    PicturePtr CapturedPicture;       // what was captured of the screen last

    GridTable<int> GridShuffle{};
    GridTable<double> GridJitterX{};
    GridTable<double> GridJitterY{};

    ChartFactory* SessionChartFactory = nullptr; // gives the open chart documents
    ChartDocument* SessionCurve = nullptr;       // reference curve of the open workbench
    ChartView* SessionChartView = nullptr;       // view of SessionCurve
    ChartSeries* SessionCurveSeries = nullptr;   // series 1 of SessionCurve, the reference
    ChartSeries* SessionMySeries = nullptr;      // the learner's calculated points

    // The variables under their names, for scripts and tests.
    void describe(FieldTable& table) const;
};

SessionState& session();
// All variables back to their defaults, as at the start of a process.
void resetSession();

// Truth of a teacher's text: numbers are true when they aren't 0, "true" and "wahr" are true in any
// letter case; all else is false. `understood`, when given, tells whether the text was one of these
// or "false", "falsch".
bool hBoolText(std::string_view text, bool* understood = nullptr);

// Common logarithm as ln x / ln 10; 0 for x = 0 and wherever the logarithm fails.
double hLog10(double x);

} // namespace quendal
