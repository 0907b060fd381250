#include "curve_notes.h"

namespace quendal::curves {

namespace {

using Lines = std::vector<std::string>;

const Lines kComputed{
    "",
    "Diese Werte sind BERECHNET (Gleichgewichtsmodell). Sie wurden NICHT im Labor gemessen.",
};

const Lines kActivities{
    "Aktivitätskoeffizienten nach Davies: lg γ = -A z² (√I / (1 + √I) - 0,3 I),",
    "  Ionenstärke I aus allen Ionen, wiederholt, bis sie sich nicht mehr ändert.",
};

const Lines kActivityConstants{
    "  A = 0,509 L^½ mol^-½ (Stumm, Morgan 1996); 0,3 L/mol (Davies 1962).",
};

const Lines kOwnMeasurement{
    "",
    "Eine eigene Messung lässt sich im selben Format daneben- oder an diese Stelle legen:",
    "  Zeilen mit # sind Anmerkungen, dann eine Zeile mit den Namen der Spalten, dann je Punkt",
    "  eine Zeile; Spalten durch ; getrennt; Dezimalpunkt oder Dezimalkomma.",
    "",
};

Lines joined(const std::vector<Lines>& parts) {
    Lines all;
    for (const Lines& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

} // namespace

Lines strongAcidNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Salzsäure, c(HCl) = " + concentration +
                      " mol/L, mit Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C"};
    const Lines model{
        "Modell: Ladungsbilanz c(H+) + c(Na+) = c(OH-) + c(Cl-), nach pH durch Intervallhalbierung",
        "  gelöst; pH = -lg a(H+); HCl und NaOH vollständig dissoziiert; Volumina additiv.",
    };
    const Lines constants{
        "Konstanten (25 °C): pKw = 13,995 (IAPWS 2007); A = 0,509 L^½ mol^-½ (Stumm, Morgan 1996);",
        "  0,3 L/mol (Davies 1962).",
    };
    return joined({title, kComputed, model, kActivities, constants, kOwnMeasurement});
}

Lines weakAcidNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Essigsäure, c(HAc) = " + concentration +
                      " mol/L, mit Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C"};
    const Lines model{
        "Modell: Ladungsbilanz c(H+) + c(Na+) = c(OH-) + c(Ac-), nach pH durch Intervallhalbierung",
        "  gelöst; pH = -lg a(H+); c(Ac-) aus Massenwirkungsgesetz und c(HAc) + c(Ac-);",
        "  NaOH vollständig dissoziiert; Volumina additiv.",
    };
    const Lines constants{
        "Konstanten (25 °C): pKs(HAc) = 4,756 (Harned, Ehlers 1933); pKw = 13,995 (IAPWS 2007);",
    };
    const Lines remark{
        "Die Näherungsformeln rechnen mit Konzentrationen statt Aktivitäten und mit pKs = 4,76: "
        "sie",
        "  beginnen auf dieser Kurve und liegen vom ersten Milliliter an um 0,10 bis 0,15 darüber.",
    };
    return joined({title, kComputed, model, kActivities, constants, kActivityConstants, remark,
                   kOwnMeasurement});
}

Lines silverNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Natriumchlorid-Lösung, c(NaCl) = " + concentration +
                          " mol/L, mit Silbernitrat-Lösung,",
                      "  c(AgNO3) = 1 mol/L, bei 25 °C: Potential einer Silber-Elektrode gegen die",
                      "  Standard-Wasserstoff-Elektrode"};
    const Lines model{
        "Modell: Ladungsbilanz c(Ag+) + c(Na+) = c(Cl-) + c(AgCl2-) + 2 c(AgCl3 2-) + c(NO3-) über",
        "  festem AgCl, nach lg a(Ag+) durch Intervallhalbierung gelöst; a(Cl-) = KL / a(Ag+);",
        "  E = E0 + 0,05916 V · lg a(Ag+); Volumina additiv.",
        "Bei 0 mL ist noch kein Silber zugegeben. Der Wert dort gilt für die Spuren von AgCl, die",
        "  eine Silber-Elektrode in Chlorid-Lösung überziehen.",
    };
    const Lines activities{
        "Aktivitätskoeffizienten von Ag+ und Cl- nach Guggenheim: lg γ = -A √I / (1 + √I) + b "
        "c(Gegen-Ion),",
        "  der Komplexe nach Davies: lg γ = -A z² (√I / (1 + √I) - 0,3 I),",
        "  Ionenstärke I aus allen Ionen, wiederholt, bis sie sich nicht mehr ändert.",
    };
    const Lines constants{
        "Konstanten (25 °C): E0 = 0,7996 V und pKL(AgCl) = 9,75 (CRC Handbook of Chemistry and",
        "  Physics); lg β(AgCl, AgCl2-, AgCl3 2-) = 3,27; 5,27; 5,29 (SKB TR-10-52, 2010);",
        "  b(NaCl) = 0,075 L/mol, b(AgNO3) = -0,12 L/mol (an Tabellenwerte von Hamer und Wu, 1972,",
        "  angepasst);",
    };
    const Lines remark{
        "pKL = 9,75 gilt für Aktivitäten. Die Näherungsformeln rechnen mit Konzentrationen und mit",
        "  pKL = 9,7; 0,8 V; 0,059 V: vor dem Äquivalenzpunkt liegen sie um etwa 0,006 V unter",
        "  dieser Kurve, am Äquivalenzpunkt um etwa 0,005 V und danach um 0,015 bis 0,02 V "
        "darüber.",
    };
    return joined({title, kComputed, model, activities, constants, kActivityConstants, remark,
                   kOwnMeasurement});
}

} // namespace quendal::curves
