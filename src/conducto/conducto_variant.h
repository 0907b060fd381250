// What the four conductometric forms differ in, as data.
#pragma once

#include "host/chart.h"
#include "workbench/guidance/steps.h"
#include "workbench/start_form.h"
#include "workbench/variant.h"

#include <array>
#include <memory>

namespace quendal {

// A row of the tutor in which one ion is worked out.
struct IonRow {
    std::string_view name;         // in front of the row, term
    std::string_view spoken;       // of its input, for a screen reader
    std::string_view conductivity; // as it is printed and goes into the calculator's line
    bool amount = true;            // its result comes from an amount and the volume
};

// A series of the learner's graph: the total or an ion.
struct SeriesLook {
    std::string_view name; // short, and the name itself where the curve file gives none
    Color colour;          // as the particle's, darker where that one is pale
    Marker marker;
    bool onForm = true; // the graph on the form shows it
};

// When the calculator offers its lines: always, or as the start dialog was told.
enum class LinesOffered { Always, AsAsked };

struct ConductoTexts {
    std::string_view graphTitle;
    std::string_view directUnit; // behind the direct input
    std::string_view volumeRule;
    std::string_view ionHeading;
    std::string_view ruleInWords;
    std::string_view rule;
    std::array<std::string_view, 4> units; // above the rows: amount, volume, conductivity, result
};

struct ConductoVariant {
    WorkbenchVariant bench;
    PointValues (*model)(double concentration, double titrantMl);
    const GuidanceTables& (*tables)();
    ConductoTexts texts;
    std::array<IonRow, 4> rows;       // steps 2 to 5
    std::array<SeriesLook, 5> series; // the total, then the ions in the order of the rows
    int mainSeries = 1;               // the series that counts the points
    bool colouredByPh = false;        // the liquid has the colour of the strong acid's pH
    LinesOffered lines = LinesOffered::Always;
    std::unique_ptr<StartForm> (*makeStart)();
};

} // namespace quendal
