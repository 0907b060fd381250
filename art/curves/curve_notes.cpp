#include "curve_notes.h"

#include "conductometry.h"
#include "curve_file.h"

#include <algorithm>

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

const Lines kStrongAcidModel{
    "Modell: Ladungsbilanz c(H+) + c(Na+) = c(OH-) + c(Cl-), nach pH durch Intervallhalbierung",
    "  gelöst; pH = -lg a(H+); HCl und NaOH vollständig dissoziiert; Volumina additiv.",
};

const Lines kStrongAcidConstants{
    "Konstanten (25 °C): pKw = 13,995 (IAPWS 2007); A = 0,509 L^½ mol^-½ (Stumm, Morgan 1996);",
    "  0,3 L/mol (Davies 1962).",
};

const Lines kWeakAcidModel{
    "Modell: Ladungsbilanz c(H+) + c(Na+) = c(OH-) + c(Ac-), nach pH durch Intervallhalbierung",
    "  gelöst; pH = -lg a(H+); c(Ac-) aus Massenwirkungsgesetz und c(HAc) + c(Ac-);",
    "  NaOH vollständig dissoziiert; Volumina additiv.",
};

const Lines kWeakAcidConstants{
    "Konstanten (25 °C): pKs(HAc) = 4,756 (Harned, Ehlers 1933); pKw = 13,995 (IAPWS 2007);",
};

const Lines kSilverModel{
    "Modell: Ladungsbilanz c(Ag+) + c(Na+) = c(Cl-) + c(AgCl2-) + 2 c(AgCl3 2-) + c(NO3-) über",
    "  festem AgCl, nach lg a(Ag+) durch Intervallhalbierung gelöst; a(Cl-) = KL / a(Ag+);",
};

const Lines kSilverActivities{
    "Aktivitätskoeffizienten von Ag+ und Cl- nach Guggenheim: lg γ = -A √I / (1 + √I) + b "
    "c(Gegen-Ion),",
    "  der Komplexe nach Davies: lg γ = -A z² (√I / (1 + √I) - 0,3 I),",
    "  Ionenstärke I aus allen Ionen, wiederholt, bis sie sich nicht mehr ändert.",
};

// Behind the constants of the CRC Handbook.
const Lines kSilverConstants{
    "  Physics); lg β(AgCl, AgCl2-, AgCl3 2-) = 3,27; 5,27; 5,29 (SKB TR-10-52, 2010);",
    "  b(NaCl) = 0,075 L/mol, b(AgNO3) = -0,12 L/mol (an Tabellenwerte von Hamer und Wu, 1972,",
    "  angepasst);",
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

std::string germanText(double value) {
    std::string text = fixedText(value, 2);
    std::ranges::replace(text, '.', ',');
    return text;
}

Lines ionLines(const Conductometry& conductometry) {
    Lines lines;
    for (const auto& [ion, place] : conductometry.carriers) {
        lines.push_back(std::string("  ") + ion.name +
                        ": λ0 = " + germanText(ion.limitingConductivity) +
                        " S cm²/mol, å = " + germanText(ion.size) + " Å");
    }
    return lines;
}

// How the y axis comes about, in the same words for every file with conductivities.
Lines conductivityLines(const Conductometry& conductometry) {
    const Lines law{
        "Leitwert eines Ions: G = λ c mit λ in S cm²/mol, c in mol/L, G in mS/cm.",
        "Ionenleitfähigkeiten nach Debye, Hückel und Onsager, im Gemisch nach Onsager und Fuoss",
        "  (1932), mit Ionengröße å nach Robinson und Stokes (1959):",
        "  λ = λ0 - (0,7853 r λ0 + 30,325) √I / (1 + 0,3291 å √I), I in mol/L, å in Å;",
        "  r = 1 - √½ bei nur einem Elektrolyten, im Gemisch aus den Anteilen und Beweglichkeiten",
        "  aller Ionen.",
    };
    const Lines sources{
        "  λ0: Robinson, Stokes 1959; å angepasst an molare Leitfähigkeiten bei 0,1 mol/L. "
        "Einzelne",
        "  Elektrolyte werden damit bis 0,2 mol/L auf 1 % getroffen.",
    };
    return joined({law, ionLines(conductometry), sources});
}

Lines conductivityTitle(const std::string& sample, const std::string& reagent) {
    return {"Leitfähigkeitstitration: 10 mL " + sample + " mol/L, und 90 mL Wasser, mit",
            "  " + reagent + " = 1 mol/L, bei 25 °C: Leitwerte, gesamt und der einzelnen Ionen"};
}

} // namespace

Lines strongAcidNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Salzsäure, c(HCl) = " + concentration +
                      " mol/L, mit Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C"};
    return joined(
        {title, kComputed, kStrongAcidModel, kActivities, kStrongAcidConstants, kOwnMeasurement});
}

Lines weakAcidNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Essigsäure, c(HAc) = " + concentration +
                      " mol/L, mit Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C"};
    const Lines remark{
        "Die Näherungsformeln rechnen mit Konzentrationen statt Aktivitäten und mit pKs = 4,76: "
        "sie",
        "  beginnen auf dieser Kurve und liegen vom ersten Milliliter an um 0,10 bis 0,15 darüber.",
    };
    return joined({title, kComputed, kWeakAcidModel, kActivities, kWeakAcidConstants,
                   kActivityConstants, remark, kOwnMeasurement});
}

Lines silverNotes(const std::string& concentration) {
    const Lines title{"Titrationskurve: 10 mL Natriumchlorid-Lösung, c(NaCl) = " + concentration +
                          " mol/L, mit Silbernitrat-Lösung,",
                      "  c(AgNO3) = 1 mol/L, bei 25 °C: Potential einer Silber-Elektrode gegen die",
                      "  Standard-Wasserstoff-Elektrode"};
    const Lines electrode{
        "  E = E0 + 0,05916 V · lg a(Ag+); Volumina additiv.",
        "Bei 0 mL ist noch kein Silber zugegeben. Der Wert dort gilt für die Spuren von AgCl, die",
        "  eine Silber-Elektrode in Chlorid-Lösung überziehen.",
    };
    const Lines constants{
        "Konstanten (25 °C): E0 = 0,7996 V und pKL(AgCl) = 9,75 (CRC Handbook of Chemistry and",
    };
    const Lines remark{
        "pKL = 9,75 gilt für Aktivitäten. Die Näherungsformeln rechnen mit Konzentrationen und mit",
        "  pKL = 9,7; 0,8 V; 0,059 V: vor dem Äquivalenzpunkt liegen sie um etwa 0,006 V unter",
        "  dieser Kurve, am Äquivalenzpunkt um etwa 0,005 V und danach um 0,015 bis 0,02 V "
        "darüber.",
    };
    return joined({title, kComputed, kSilverModel, electrode, kSilverActivities, constants,
                   kSilverConstants, kActivityConstants, remark, kOwnMeasurement});
}

Lines strongConductivityNotes(const std::string& concentration) {
    const Lines remark{
        "Die Näherungsformeln rechnen mit λ0 statt λ: ihr gesamter Leitwert liegt um 7 bis 20 %",
        "  über dieser Kurve.",
    };
    return joined(
        {conductivityTitle("Salzsäure, c(HCl) = " + concentration, "Natronlauge, c(NaOH)"),
         kComputed, kStrongAcidModel, kActivities, kStrongAcidConstants,
         conductivityLines(kStrongAcidConductometry), remark, kOwnMeasurement});
}

Lines weakConductivityNotes(const std::string& concentration) {
    const Lines remark{
        "Die Näherungsformeln rechnen mit λ0 statt λ und nur bei 0 mL mit H3O+: ihr gesamter",
        "  Leitwert liegt bei 0 mL um 13 % unter, von 2 mL an um 8 bis 28 % über dieser Kurve.",
    };
    return joined(
        {conductivityTitle("Essigsäure, c(HAc) = " + concentration, "Natronlauge, c(NaOH)"),
         kComputed, kWeakAcidModel, kActivities, kWeakAcidConstants, kActivityConstants,
         conductivityLines(kWeakAcidConductometry), remark, kOwnMeasurement});
}

Lines silverConductivityNotes(const std::string& concentration) {
    const Lines additive{"  Volumina additiv."};
    const Lines constants{
        "Konstanten (25 °C): pKL(AgCl) = 9,75 (CRC Handbook of Chemistry and",
    };
    const Lines remark{
        "  Nicht mitgezählt sind die Komplexe (unter 0,001 mS/cm) und die Ionen des Wassers.",
        "Die Näherungsformeln rechnen mit λ0 statt λ und ohne gelöstes AgCl: ihr gesamter Leitwert",
        "  liegt um 15 bis 30 % über dieser Kurve.",
    };
    return joined({conductivityTitle("NaCl-Lösung, c(NaCl) = " + concentration,
                                     "Silbernitrat-Lösung, c(AgNO3)"),
                   kComputed, kSilverModel, additive, kSilverActivities, constants,
                   kSilverConstants, kActivityConstants, conductivityLines(kSilverConductometry),
                   remark, kOwnMeasurement});
}

Lines exponentNotes(const std::string& concentration) {
    const Lines title{
        "Titration in Logarithmen: 10 mL Salzsäure, c(HCl) = " + concentration +
            " mol/L, und 90 mL Wasser, mit",
        "  Natronlauge, c(NaOH) = 1 mol/L, bei 25 °C. Die erste Reihe ist die kleinere der Zahlen",
        "  pH und pOH: pH bis zum Äquivalenzpunkt, pOH danach.",
    };
    const Lines definition{
        "  Alle Reihen gelten für Aktivitäten: pOH = -lg a(OH-), pCl = -lg a(Cl-), pNa = -lg "
        "a(Na+).",
        "  Die Näherungsformeln rechnen mit Konzentrationen und liegen um etwa 0,11 darunter.",
        "Bei 0 mL ist noch kein Na+ zugegeben und pNa nicht bestimmt; dort steht der Wert bei 0,1 "
        "mL.",
    };
    return joined({title, kComputed, kStrongAcidModel, definition, kActivities,
                   kStrongAcidConstants, kOwnMeasurement});
}

} // namespace quendal::curves
