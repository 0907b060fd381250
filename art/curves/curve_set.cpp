#include "curve_set.h"

#include "curve_notes.h"
#include "silver_chloride.h"
#include "strong_acid.h"
#include "weak_acid.h"

#include <array>
#include <string>

namespace quendal::curves {

namespace {

struct Sample {
    const char* digits;   // in the file's name
    double concentration; // mol/L
    const char* text;
};

constexpr std::array kSamples{
    Sample{.digits = "06", .concentration = 0.6, .text = "0,6"},
    Sample{.digits = "08", .concentration = 0.8, .text = "0,8"},
    Sample{.digits = "10", .concentration = 1.0, .text = "1,0"},
    Sample{.digits = "12", .concentration = 1.2, .text = "1,2"},
    Sample{.digits = "14", .concentration = 1.4, .text = "1,4"},
};

constexpr Sample kStandardSample{.digits = "10", .concentration = 1.0, .text = "1,0"};

// A titration that is tabled for every sample.
struct Family {
    const char* stem;
    const char* reagent; // the x column
    const char* series;
    const char* yTitle;
    int decimals; // two neighbouring points differ in the last one
    double (*value)(const Titration&, double addedMillilitres);
    std::vector<std::string> (*notes)(const std::string& concentration);
};

constexpr Family acid(const char* stem, decltype(Family::value) pH, decltype(Family::notes) notes) {
    return {.stem = stem,
            .reagent = "V(NaOH)",
            .series = "pH-Wert",
            .yTitle = "pH-Wert",
            .decimals = 4,
            .value = pH,
            .notes = notes};
}

constexpr Family kStrongAcid = acid("phstark", strongAcidPh, strongAcidNotes);
constexpr Family kWeakAcid = acid("phschwach", weakAcidPh, weakAcidNotes);

constexpr Family kSilver{.stem = "potsilber",
                         .reagent = "V(AgNO3)",
                         .series = "Potential",
                         .yTitle = "Potential E in V",
                         .decimals = 5,
                         .value = silverPotential,
                         .notes = silverNotes};

CurveFile curveFile(const Family& family, const Sample& sample) {
    const Titration titration{.sampleConcentration = sample.concentration};
    CurveColumn volume{.name = family.reagent, .decimals = 1, .values = burettePoints()};
    CurveColumn series{.name = family.series, .decimals = family.decimals, .values = {}};
    for (const double added : volume.values) {
        series.values.push_back(family.value(titration, added));
    }
    return {.name = std::string(family.stem) + sample.digits + ".crv",
            .notes = family.notes(sample.text),
            .xTitle = std::string(family.reagent) + " in mL",
            .yTitle = family.yTitle,
            .columns = {std::move(volume), std::move(series)}};
}

CurveFile standardFile() {
    CurveFile file = curveFile(kStrongAcid, kStandardSample);
    file.name = "ph.crv";
    file.notes.insert(file.notes.begin(),
                      "Standard-pH-Kurve: tritt ein, wenn zu einer Aufgabe die eigene Kurve fehlt."
                      " Sie gilt für 1,0 mol/L.");
    return file;
}

} // namespace

std::vector<CurveFile> allCurveFiles() {
    std::vector<CurveFile> files;
    for (const Family& family : {kStrongAcid, kWeakAcid, kSilver}) {
        for (const Sample& sample : kSamples) {
            files.push_back(curveFile(family, sample));
        }
    }
    files.push_back(standardFile());
    return files;
}

} // namespace quendal::curves
