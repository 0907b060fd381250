#include "conducto/frm_AppMainConductolog.h"

#include "conducto/conductivity.h"
#include "conducto/conducto_data.h"
#include "conducto/conducto_start_forms.h"
#include "conducto/conducto_steps.h"
#include "conducto/strong_base_bench.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "shell/forms/arrange.h"

namespace quendal {

namespace {

constexpr double kEquivalence = 10; // mL: the sample always has 1 mol/L here
constexpr double kMostMl = 1000;    // that can be typed
constexpr const char* kAddPointTitle = "Anderen Punkt rechnen";

WorkbenchVariant bench() {
    WorkbenchVariant bench = dilutedStrongAcid();
    bench.formName = "frm_AppMainConductolog";
    bench.caption = "Morvik // Quendal - grechnet (log (c)) - Salzsäure mit Natronlauge";
    bench.curveStem = "lf-ph";
    bench.curveByConcentration = false;
    bench.calculationTitle = "log (c)  ausrechnen";
    bench.answerName = "G(ges)=";
    bench.spokenReading = "Ergebnis";
    bench.spokenUnit = "";
    bench.wrongDirect = kWrongConductivity;
    bench.compareButton = "log(c)-Kurve anzeigen";
    bench.task.finished =
        "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach pH und pOH verändert. "
        "Sieh Dir Dein Ergebnis an, indem Du unten auf \"log(c)-Kurve anzeigen\" klickst.";
    return bench;
}

SeriesLook hidden(SeriesLook look) {
    look.onForm = false;
    return look;
}
SeriesLook named(SeriesLook look, std::string_view name) {
    look.name = name;
    return look;
}

const ConductoVariant& logVariant() {
    static const ConductoVariant variant{
        .bench = bench(),
        .model = strongLogarithms,
        .tables = logarithmTables,
        .texts = {.graphTitle = "Graph der pH- bzw. OH- Werte",
                  .directUnit = "",
                  .volumeRule = "V(gesamt) = VµV(HCl) + VµZ(NaOH)",
                  .ionHeading = "2. Berechnung der Konzentrationen und Logarithmen",
                  .ruleInWords = "Konzentration = Stoffmenge / Volumen",
                  .rule = "c(Ion)   =   n(Ion)      /     V(Ges)",
                  .units = {"mmol", "ml", "", "mol/L"}},
        .rows =
            {{{.name = "c(H3O+) = ", .spoken = kSpokenHydronium, .conductivity = ""},
              {.name = "pH = -log(c(H3O+))", .spoken = "", .conductivity = "", .amount = false},
              {.name = "c(OH-)     =", .spoken = kSpokenHydroxide, .conductivity = ""},
              {.name = "pOH = -log(c(OH-))", .spoken = "", .conductivity = "", .amount = false}}},
        // Points lie on two of them only: the pH and the pOH.
        .series = {hidden(named(kTotalLook, "pH bzw. pOH")), named(kHydroniumLook, "pH"),
                   hidden(kChlorideLook), hidden(kSodiumLook), named(kHydroxideLook, "pOH")},
        .mainSeries = 2,
        .colouredByPh = true,
        .makeStart = makeStart<frm_AppMainConductoStart>};
    return variant;
}

} // namespace

frm_AppMainConductolog::frm_AppMainConductolog() : ConductoWorkbench(logVariant()) {
    obey(ctl_Executor);
    arrange(but_AddPoint, frm_Holder, {774, 640, 218, 42});
    but_AddPoint.setPictureIcon("Ico\\20\\Science\\Math\\Point.ico");
    but_AddPoint.setText("Zusätzlichen Punkt rechnen und einzeichnen");
    but_AddPoint.onClick = [this] { but_AddPoint_Click(); };
}

double frm_AppMainConductolog::titrantVolume() const {
    return AddPointActive ? AddPointVolume : ConductoWorkbench::titrantVolume();
}

void frm_AppMainConductolog::calculationClosed() {
    AddPointActive = false;
    ConductoWorkbench::calculationClosed();
}

bool frm_AppMainConductolog::pointRefused() const {
    return vVol == 0 || vPipShown || busy();
}

void frm_AppMainConductolog::but_AddPoint_Click() {
    if (pointRefused() || !settleBeaker() || pointRefused()) {
        return;
    }
    const Occupation occupation(*this);
    if (const auto volume = askVolume()) {
        AddPointVolume = *volume / 1000;
        AddPointActive = true;
        guidance().but_HelpCalc_Click();
    }
}

// mL; none: nothing was typed, or nothing that a calculation could be about.
std::optional<double> frm_AppMainConductolog::askVolume() const {
    const NumberService& numbers = CoreLib().NumberService;
    const std::string answer = CoreLib().MessageBox.Input(
        "Geben Sie das Volumen in Milliliter ein:", kAddPointTitle, numbers.text(titrantMl()));
    if (answer.empty() || leaving()) {
        return std::nullopt;
    }
    const auto volume = numbers.ParseVariant(answer);
    if (volume && *volume >= 0 && *volume <= kMostMl) {
        return volume;
    }
    CoreLib().MessageBox.Ok("Bitte gib ein Volumen von 0 bis 1000 mL ein!", kAddPointTitle);
    return std::nullopt;
}

// Neither break nor fitted lines here, and at the equivalence itself there is no logarithm.
void frm_AppMainConductolog::fillSeries(double volume, double /*total*/,
                                        const std::array<double, 4>& ions) {
    if (volume < kEquivalence) {
        Series[2]->Data.Add(volume, ions[1]);
        Series[2]->Data.Sort();
    } else if (volume > kEquivalence) {
        Series[5]->Data.Add(volume, ions[3]);
        Series[5]->Data.Sort();
    }
}

void frm_AppMainConductolog::frameDone() {
    but_AddPoint.setEnabled(!pointRefused());
}

void frm_AppMainConductolog::describe(FieldTable& table) const {
    ConductoWorkbench::describe(table);
    table.add("AddPointActive", AddPointActive);
    table.add("AddPointVolume", AddPointVolume);
}

} // namespace quendal
