#include "curve_set.h"

#include "strong_acid.h"

#include <array>
#include <string>

namespace quendal::curves {

namespace {

struct StrongAcidFile {
    const char* name;
    double concentration; // mol/L
    const char* concentrationText;
};

constexpr std::array kStrongAcidFiles{
    StrongAcidFile{.name = "phstark06.crv", .concentration = 0.6, .concentrationText = "0,6"},
    StrongAcidFile{.name = "phstark08.crv", .concentration = 0.8, .concentrationText = "0,8"},
    StrongAcidFile{.name = "phstark10.crv", .concentration = 1.0, .concentrationText = "1,0"},
    StrongAcidFile{.name = "phstark12.crv", .concentration = 1.2, .concentrationText = "1,2"},
    StrongAcidFile{.name = "phstark14.crv", .concentration = 1.4, .concentrationText = "1,4"},
};

constexpr StrongAcidFile kStandardFile{
    .name = "ph.crv", .concentration = 1.0, .concentrationText = "1,0"};

std::vector<std::string> strongAcidNotes(const std::string& concentrationText) {
    return {
        "Titrationskurve: 10 mL Salzsäure, c(HCl) = " + concentrationText +
            " mol/L, mit Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C",
        "",
        "Diese Werte sind BERECHNET (Gleichgewichtsmodell). Sie wurden NICHT im Labor gemessen.",
        "Modell: Ladungsbilanz c(H+) + c(Na+) = c(OH-) + c(Cl-), nach pH durch Intervallhalbierung",
        "  gelöst; pH = -lg a(H+); HCl und NaOH vollständig dissoziiert; Volumina additiv.",
        "Aktivitätskoeffizienten nach Davies: lg γ = -A z² (√I / (1 + √I) - 0,3 I),",
        "  Ionenstärke I aus allen Ionen, wiederholt, bis sie sich nicht mehr ändert.",
        "Konstanten (25 °C): pKw = 13,995 (IAPWS 2007); A = 0,509 L^½ mol^-½ (Stumm, Morgan 1996);",
        "  0,3 L/mol (Davies 1962).",
        "",
        "Eine eigene Messung lässt sich im selben Format daneben- oder an diese Stelle legen:",
        "  Zeilen mit # sind Anmerkungen, dann eine Zeile mit den Namen der Spalten, dann je Punkt",
        "  eine Zeile; Spalten durch ; getrennt; Dezimalpunkt oder Dezimalkomma.",
        "",
    };
}

CurveFile strongAcidFile(const StrongAcidFile& row) {
    const Titration titration{.sampleConcentration = row.concentration};
    CurveColumn volume{.name = "V(NaOH)", .decimals = 1, .values = burettePoints()};
    CurveColumn ph{.name = "pH-Wert", .decimals = 4, .values = {}};
    for (const double added : volume.values) {
        ph.values.push_back(strongAcidPh(titration, added));
    }
    return {.name = row.name,
            .notes = strongAcidNotes(row.concentrationText),
            .xTitle = "V(NaOH) in mL",
            .yTitle = "pH-Wert",
            .columns = {std::move(volume), std::move(ph)}};
}

CurveFile standardFile() {
    CurveFile file = strongAcidFile(kStandardFile);
    file.notes.insert(file.notes.begin(),
                      "Standard-pH-Kurve: tritt ein, wenn zu einer Aufgabe die eigene Kurve fehlt."
                      " Sie gilt für 1,0 mol/L.");
    return file;
}

} // namespace

std::vector<CurveFile> allCurveFiles() {
    std::vector<CurveFile> files;
    for (const StrongAcidFile& row : kStrongAcidFiles) {
        files.push_back(strongAcidFile(row));
    }
    files.push_back(standardFile());
    return files;
}

} // namespace quendal::curves
