// What the four forms say.
#include "conducto_fixture.h"

#include <span>

namespace quendal::test {
namespace {

struct TextCase {
    const char* control;
    int index;
    const char* text;
};

constexpr int kAlone = Control::kNoIndex;

// What the three forms with conductivities share.
constexpr TextCase kSharedTexts[] = {
    {"ctl_Frame2", kAlone, "Aufgabenzettel"},
    {"frm_Graph", kAlone, "Graph der Leitwerte"},
    {"frm_CalcDirect", kAlone, "Leitwert ausrechnen"},
    {"frm_Calc", kAlone, "Leitwert ausrechnen"},
    {"lab_CalcUnit", kAlone, "mS/cm"},
    {"but_CalcDone", kAlone, "&Fertig"},
    {"but_HelpCalc", kAlone, "Wie geht das?"},
    {"but_Help", kAlone, "Ausführliche Hilfe"},
    {"lab_CalcStep", 0, "1. Berechnung des Gesamtvolumens"},
    {"lab_CalcStep", 2, "3. Berechnung der Summe"},
    {"lab_Calc", 1, "V(gesamt) = "},
    {"lab_Calc", 2, "mL (= cm^3)"},
    {"lab_Calc", 3,
     "Leitwert = Stoffmenge / Volumen * \" Leitfähigkeit bei unendlicher Verdünnung\""},
    {"lab_Calc", 4, "G(Ion)   =   n(Ion)      /     V(Ges)     *         l(Ion)"},
    {"lab_Calc", 5, "Einheiten:"},
    {"lab_Calc", 6, "Gesamtleitfähigkeit  G(gesamt) in mS/cm"},
    {"lab_LF2", kAlone, "mmol"},
    {"lab_LF3", kAlone, "cm^3"},
    {"lab_LF4", kAlone, "mS*cm^2 /mmol"},
    {"lab_LF5", kAlone, "mS/cm"},
    {"lab_LFVol", 2, "Label3"},
    {"lab_LFVol", 5, "Label3"},
    {"lab_LFErg", 2, "Rechnen ->"},
    {"lab_LFErg", 5, "Rechnen ->"},
    {"but_CalcStep", 1, "Weiter!"},
    {"but_CalcStep", 2, "Weiter!"},
    {"but_CalcStep", 5, "Weiter!"},
    {"but_CalcStep", 6, "Weiter!"},
    {"but_CalcStep", 7, "'one' - Klick"},
    {"but_AchtungRW", kAlone, "Achtung!<br>Neuer Rechenweg!"},
    {"lab_Step", 1,
     "Klick auf                                ,um den genauen LeitWert zu berechnen."},
    {"but_Calc", kAlone, "Berechnen!"},
    {"ctl_Button2", kAlone, "Berechnen!"},
};

constexpr const char* kBaseLine =
    "Klick auf                               , um mit jedem Klick                einen  mL "
    "Natronlauge ( c= 1 mol/L) zutropfen zu lassen.";

constexpr TextCase kStrongTexts[] = {
    {"lab_CalcX", kAlone, "G(ges)="},
    {"but_phCompare", kAlone, "Leitwert-Kurve anzeigen"},
    {"lab_CalcStep", 1, "2. Berechnung der einzelnen IonenLeitfähigkeiten"},
    {"lab_Calc", 0, "V(gesamt) = VµV(HCl) + VµZ(NaOH)"},
    {"lab_LF1", 2, "G(H3O+) = "},
    {"lab_LF1", 3, "G(Cl-)       = "},
    {"lab_LF1", 4, "G(Na+)    = "},
    {"lab_LF1", 5, "G(OH-)     ="},
    {"lab_LFAeq", 2, "349,8"},
    {"lab_LFAeq", 3, "76.4"},
    {"lab_LFAeq", 4, "50,1"},
    {"lab_LFAeq", 5, "198,6"},
    {"lab_Step", 0,
     "Klicke auf die            Pipette, um 10 mL Salzsäure  mit (c = 1.2 mol/L) in das "
     "Becherglas fließen zu lassen. Damit die Elektroden bedeckt werden, sind schon 90 mL dest. "
     "Wasser vorgelegt."},
    {"lab_Step1", kAlone, kBaseLine},
    {"lab_Step", 2,
     "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach die Leitfähigkeit "
     "verändert. Sieh Dir Dein Ergebnis an, indem Du unten auf \"Leitwert-Kurve anzeigen\" "
     "klickst."},
    {"frm_Bilanz", kAlone, "Aktuelle Stoffmengenbilanz"},
    {"lab_VolLabel", 0, "VµV(S)     = "},
    {"lab_VolLabel", 1, "VµZ(OH-) ="},
    {"lab_VolLabel", 2, "cµV(S) ="},
    {"lab_VolLabel", 3, "cµZ(OH-) = 1 mol/L"},
    {"lab_Vol", 2, "1.2 mol/L"},
};

constexpr TextCase kWeakTexts[] = {
    {"lab_CalcX", kAlone, "G(ges)="},
    {"but_phCompare", kAlone, "Leitwert-Kurve anzeigen"},
    {"lab_CalcStep", 1, "2. Berechnung der einzelnen Ionenleitfähigkeiten"},
    {"lab_Calc", 0, "V(gesamt) = VµV(HAc) + VµZ(NaOH)"},
    {"lab_LF1", 2, "G(H3O+) = "},
    {"lab_LF1", 3, "G(Ac-)      = "},
    {"lab_LF1", 4, "G(Na+)    = "},
    {"lab_LF1", 5, "G(OH-)     ="},
    {"lab_LFAeq", 2, "349,8"},
    {"lab_LFAeq", 3, "40,9"},
    {"lab_LFAeq", 4, "50,1"},
    {"lab_LFAeq", 5, "198,6"},
    {"lab_Step", 0,
     "Klicke auf die            Pipette, um 10 mL Esigsäure  mit (c = 1.2 mol/L) in das "
     "Becherglas fließen zu lassen. Damit die Elektroden bedeckt werden, sind schon 90 mL dest. "
     "Wasser vorgelegt."},
    {"lab_Step1", kAlone, kBaseLine},
    {"frm_Bilanz", kAlone, "Aktuelle Stoffmengenbilanz"},
    {"lab_VolLabel", 0, " VµV(Essigsäure)  = "},
    {"lab_VolLabel", 1, "VµZ(Natronlauge) ="},
    {"lab_VolLabel", 2, "cµV(S) ="},
    {"lab_VolLabel", 3, "cµZ(OH-) = 1 mol/L"},
    {"lab_Vol", 2, "1.2 mol/L"},
};

constexpr TextCase kSilverTexts[] = {
    {"lab_CalcX", kAlone, "G="},
    {"but_phCompare", kAlone, "Titrations-Kurve anzeigen"},
    {"lab_CalcStep", 1, "2. Berechnung der einzelnen IonenLeitfähigkeiten"},
    {"lab_Calc", 0, "V(gesamt) = VµV(NaCl) + VµZ(AgNOµ3)"},
    {"lab_LF1", 2, "G(Cl-) = "},
    {"lab_LF1", 3, "G(Na+)       = "},
    {"lab_LF1", 4, "G(NOµ3-)    = "},
    {"lab_LF1", 5, "G(Ag+)  ="},
    {"lab_LFAeq", 2, "76,4"},
    {"lab_LFAeq", 3, "50,1"},
    {"lab_LFAeq", 4, "71,5"},
    {"lab_LFAeq", 5, "61,9"},
    {"lab_Step", 0,
     "Klicke auf die            Pipette, um 10 mL NaCl-Lösung  mit (c = 1.2 mol/L) in das "
     "Becherglas fließen zu lassen. Damit die Elektroden bedeckt werden, sind schon 90 mL dest. "
     "Wasser vorgelegt."},
    {"lab_Step1", kAlone,
     "Klick auf                               , um mit jedem Klick                einen  mL "
     "Silbernitrat-Lösung ( c= 1 mol/L) zutropfen zu lassen."},
    {"lab_Step", 2,
     "Du hast die gesamte Silbernitrat-Lösung zugegeben und dabei nach und nach die "
     "Leitfähigkeit verändert. Sieh Dir Dein Ergebnis an, indem Du unten auf \"Titrations-Kurve "
     "anzeigen\" klickst."},
    {"frm_Bilanz", kAlone, "Aktuelle Teilchen-Bilanz"},
    {"lab_VolLabel", 0, " VµV(NaCl-Lösung)     = "},
    {"lab_VolLabel", 1, "VµZ(AgNO3-Lösung) ="},
    {"lab_VolLabel", 2, "V(Gesamt)                  ="},
};

constexpr TextCase kLogTexts[] = {
    {"ctl_Frame2", kAlone, "Aufgabenzettel"},
    {"frm_Graph", kAlone, "Graph der pH- bzw. OH- Werte"},
    {"frm_CalcDirect", kAlone, "log (c)  ausrechnen"},
    {"but_phCompare", kAlone, "log(c)-Kurve anzeigen"},
    {"but_AddPoint", kAlone, "Zusätzlichen Punkt rechnen und einzeichnen"},
    {"lab_CalcStep", 0, "1. Berechnung des Gesamtvolumens"},
    {"lab_Calc", 0, "V(gesamt) = VµV(HCl) + VµZ(NaOH)"},
    {"lab_Calc", 1, "V(gesamt) = "},
    {"lab_LF1", 2, "c(H3O+) = "},
    {"lab_LF1", 3, "pH = -log(c(H3O+))"},
    {"lab_LF1", 4, "c(OH-)     ="},
    {"lab_LF1", 5, "pOH = -log(c(OH-))"},
    {"lab_LF2", kAlone, "mmol"},
    {"lab_LF3", kAlone, "ml"},
    {"lab_LFErg", 3, "Rechnen ->"},
    {"but_CalcStep", 7, "'one' - Klick"},
    {"lab_Step", 0,
     "Klicke auf die            Pipette, um 10 mL Salzsäure  mit (c = 1.2 mol/L) in das "
     "Becherglas fließen zu lassen. Damit die Elektroden bedeckt werden, sind schon 90 mL dest. "
     "Wasser vorgelegt."},
    {"lab_Step1", kAlone, kBaseLine},
    {"lab_Step", 1,
     "Klick auf                                ,um den genauen LeitWert zu berechnen."},
};

struct TextsCase {
    Titration titration;
    const char* name;
    const char* caption;
    std::vector<std::span<const TextCase>> texts;
};

class FormTexts : public ConductoTest, public testing::WithParamInterface<TextsCase> {
  protected:
    std::string textOf(const char* name, int index) {
        const Control* one = bench().findControl(name, index);
        return one == nullptr ? "(not there)" : one->text();
    }
};

TEST_P(FormTexts, StandAsTheyShould) {
    openForm(GetParam().titration, 1.2);
    bench().hThinkDo();
    EXPECT_EQ(bench().name(), GetParam().name);
    EXPECT_EQ(bench().caption(), GetParam().caption);
    EXPECT_EQ(bench().windowState(), WindowState::Maximised);
    for (const auto& texts : GetParam().texts) {
        for (const TextCase& row : texts) {
            EXPECT_EQ(textOf(row.control, row.index), row.text)
                << row.control << "(" << row.index << ")";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, FormTexts,
    testing::Values(
        TextsCase{Titration::Strong,
                  "frm_AppMainConducto",
                  "Morvik // Quendal - Konduktometrie - Salzsäure mit Natronlauge",
                  {kSharedTexts, kStrongTexts}},
        TextsCase{Titration::Weak,
                  "frm_AppMainConductoWeak",
                  "Morvik // Quendal - Leitfähigkeitstitration: Schwache Säure / starke Base",
                  {kSharedTexts, kWeakTexts}},
        TextsCase{Titration::Silver,
                  "frm_AppMainConductoSilver",
                  "Morvik // Quendal - Leitfähigkeitstitration: NatriumChlorid-Lösung mit  "
                  "Silbernitrat-Lösung",
                  {kSharedTexts, kSilverTexts}},
        TextsCase{Titration::Log,
                  "frm_AppMainConductolog",
                  "Morvik // Quendal - grechnet (log (c)) - Salzsäure mit Natronlauge",
                  {kLogTexts}}));

} // namespace
} // namespace quendal::test
