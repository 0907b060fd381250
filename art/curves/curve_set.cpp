#include "curve_set.h"

#include "conductometry.h"
#include "curve_notes.h"
#include "silver_chloride.h"
#include "strong_acid.h"
#include "weak_acid.h"

#include <algorithm>
#include <array>
#include <functional>
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

// The electrodes of a conductivity cell have to be covered.
constexpr double kConductometryWater = 90.0; // mL

// One value for each series.
using Values = std::function<std::vector<double>(const Titration&, double addedMillilitres)>;

// A titration that is tabled for every sample.
struct Family {
    const char* stem;
    const char* reagent; // the x column
    std::vector<std::string> series;
    const char* yTitle;
    int decimals;             // of all series
    double waterVolume = 0.0; // mL
    Values values;
    std::vector<std::string> (*notes)(const std::string& concentration);
};

Values single(double (*value)(const Titration&, double)) {
    return [value](const Titration& titration, double addedMillilitres) {
        return std::vector{value(titration, addedMillilitres)};
    };
}

Family phCurve(const char* stem, const char* reagent, double (*pH)(const Titration&, double),
               decltype(Family::notes) notes) {
    return {.stem = stem,
            .reagent = reagent,
            .series = {"pH-Wert"},
            .yTitle = "pH-Wert",
            .decimals = 4,
            .values = single(pH),
            .notes = notes};
}

Family silverElectrode() {
    return {.stem = "potsilber",
            .reagent = "V(AgNO3)",
            .series = {"Potential"},
            .yTitle = "Potential E in V",
            .decimals = 5,
            .values = single(silverPotential),
            .notes = silverNotes};
}

// A learner's series is called "Meine" and the name in the file: these are plurals.
std::vector<std::string> conductivitySeries(const Conductometry& conductometry) {
    std::vector<std::string> names{"Leitwerte gesamt"};
    for (const Carrier& carrier : conductometry.carriers) {
        names.push_back(std::string("Leitwerte ") + carrier.ion.name);
    }
    return names;
}

Family conductivity(const char* stem, const char* reagent, const Conductometry& conductometry,
                    decltype(Family::notes) notes) {
    return {.stem = stem,
            .reagent = reagent,
            .series = conductivitySeries(conductometry),
            .yTitle = "Leitwert G in mS/cm",
            .decimals = 4,
            .waterVolume = kConductometryWater,
            .values =
                [&conductometry](const Titration& titration, double addedMillilitres) {
                    return totalAndShares(conductometry, titration, addedMillilitres);
                },
            .notes = notes};
}

std::vector<double> exponents(const Titration& titration, double addedMillilitres) {
    const auto [pH, pOH, pCl, pNa] = strongAcidExponents(titration, addedMillilitres);
    return {std::min(pH, pOH), pH, pCl, pNa, pOH};
}

Family exponentsOfStrongAcid() {
    return {.stem = "lf-ph",
            .reagent = "V(NaOH)",
            .series = {"pH- bzw. pOH-Werte", "pH-Werte", "pCl-Werte", "pNa-Werte", "pOH-Werte"},
            .yTitle = "pH bzw. pOH",
            .decimals = 4,
            .waterVolume = kConductometryWater,
            .values = exponents,
            .notes = exponentNotes};
}

std::vector<Family> familiesOfAllSamples() {
    return {
        phCurve("phstark", "V(NaOH)", strongAcidPh, strongAcidNotes),
        phCurve("phschwach", "V(NaOH)", weakAcidPh, weakAcidNotes),
        silverElectrode(),
        conductivity("lf-strong-", "V(NaOH)", kStrongAcidConductometry, strongConductivityNotes),
        conductivity("lf-weak-", "V(NaOH)", kWeakAcidConductometry, weakConductivityNotes),
        conductivity("lf-silver-", "V(AgNO3)", kSilverConductometry, silverConductivityNotes)};
}

// The volumes and all series of a family.
std::vector<CurveColumn> columns(const Family& family, const Sample& sample) {
    std::vector<CurveColumn> all{
        {.name = family.reagent, .decimals = 1, .values = burettePoints()}};
    for (const std::string& name : family.series) {
        all.push_back({.name = name, .decimals = family.decimals, .values = {}});
    }
    const Titration titration{.waterVolume = family.waterVolume,
                              .sampleConcentration = sample.concentration};
    for (const double added : burettePoints()) {
        const std::vector<double> values = family.values(titration, added);
        for (std::size_t i = 0; i < values.size(); ++i) {
            all[i + 1].values.push_back(values[i]);
        }
    }
    return all;
}

CurveFile curveFile(const std::string& name, const Family& family, const Sample& sample) {
    return {.name = name + ".crv",
            .notes = family.notes(sample.text),
            .xTitle = std::string(family.reagent) + " in mL",
            .yTitle = family.yTitle,
            .columns = columns(family, sample)};
}

CurveFile standardFile() {
    CurveFile file = curveFile("ph", familiesOfAllSamples().front(), kStandardSample);
    file.notes.insert(file.notes.begin(),
                      "Standard-pH-Kurve: tritt ein, wenn zu einer Aufgabe die eigene Kurve fehlt."
                      " Sie gilt für 1,0 mol/L.");
    return file;
}

} // namespace

std::vector<CurveFile> allCurveFiles() {
    std::vector<CurveFile> files;
    for (const Family& family : familiesOfAllSamples()) {
        for (const Sample& sample : kSamples) {
            files.push_back(curveFile(std::string(family.stem) + sample.digits, family, sample));
        }
    }
    files.push_back(standardFile());
    const Family single = exponentsOfStrongAcid();
    files.push_back(curveFile(single.stem, single, kStandardSample));
    return files;
}

} // namespace quendal::curves
