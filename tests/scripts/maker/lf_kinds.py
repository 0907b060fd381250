"""The conductometric forms: what tells them apart in a script."""

from dataclasses import dataclass
from pathlib import Path

from texts import REMINDER_IN_LINES

DATA = Path(__file__).resolve().parents[3] / "data"
WRONG_CONDUCTIVITY = (
    "Der von Dir errechnete Leitwert ist leider falsch! "
    "Soll ich Dir beim Errechnen Schritt für Schritt helfen?"
)
COMPARE = "Vergleich: Deine Rechnungen und der 'richtige' Verlauf"


@dataclass(frozen=True)
class Row:
    """An ion in the tutor's frame."""

    head: str
    ion: str
    printed: str = ""  # its limiting conductivity, as it goes into the calculator's line


@dataclass(frozen=True)
class Species:
    """A line of the balance."""

    name: str
    particle: int
    count: str  # what is to be counted there


HYDRONIUM = Species("H3O+", 8, "rest")
CHLORIDE = Species("Cl-", 3, "sample")
SODIUM = Species("Na+", 5, "added")
HYDROXIDE = Species("OH-", 9, "excess")


@dataclass(frozen=True, eq=False)
class LfKind:
    name: str
    title: str
    form: str
    start_form: str
    button: str
    demo_button: str
    caption: str
    curve: str  # of 1.0 mol/L
    calculation: str  # heading of the direct input
    answer_name: str
    graph: str
    compare_button: str
    sample: str
    reagent: str
    volumes: tuple
    rule: str
    rows: tuple
    species: tuple
    direct_question: str = WRONG_CONDUCTIVITY
    compare_caption: str = COMPARE
    ion_word: str = "IonenLeitfähigkeiten"
    balance: str = "Aktuelle Stoffmengenbilanz"
    coloured: bool = False  # the liquid, as by an indicator
    lines_as_asked: bool = False  # the calculator offers its lines only when it was told to
    total_volume: bool = False  # shown in place of the sample's concentration
    # As the tutor of all forms asks for it.
    reminder: str = REMINDER_IN_LINES
    offers_count: bool = False
    mistakes_reported: bool = True
    direct_help_counts: bool = True
    counting_anew: tuple = ()

    def curve_file(self, concentration):
        return self.curve.replace("10", f"{round(10 * concentration):02d}")

    def series_names(self, concentration):
        """Of the learner's own series, by the header of the curve file."""
        lines = (DATA / self.curve_file(concentration)).read_text(encoding="utf-8").splitlines()
        header = next(line for line in lines if line and not line.startswith("#"))
        return ["Meine " + name.strip() for name in header.split(";")[1:]]


STRONG = LfKind(
    name="strong",
    title="Conductivity of a strong acid",
    form="frm_AppMainConducto",
    start_form="frm_AppMainConductoStart",
    button="ctl_Button9",
    demo_button="ctl_Button13",
    caption="Morvik // Quendal - Konduktometrie - Salzsäure mit Natronlauge",
    curve="lf-strong-10.crv",
    calculation="Leitwert ausrechnen",
    answer_name="G(ges)=",
    graph="Graph der Leitwerte",
    compare_button="Leitwert-Kurve anzeigen",
    sample="Salzsäure",
    reagent="Natronlauge",
    volumes=("VµV(S)     = ", "VµZ(OH-) ="),
    rule="V(gesamt) = VµV(HCl) + VµZ(NaOH)",
    rows=(
        Row("G(H3O+) = ", "H3O+", "349,8"),
        Row("G(Cl-)       = ", "Cl-", "76.4"),
        Row("G(Na+)    = ", "Na+", "50,1"),
        Row("G(OH-)     =", "OH-", "198,6"),
    ),
    species=(HYDRONIUM, SODIUM, CHLORIDE, HYDROXIDE),
    coloured=True,
)
WEAK = LfKind(
    name="weak",
    title="Conductivity of a weak acid",
    form="frm_AppMainConductoWeak",
    start_form="frm_AppMainConductoWeakStart",
    button="but_CunductoWeak",
    demo_button="Ctl_Button18",
    caption="Morvik // Quendal - Leitfähigkeitstitration: Schwache Säure / starke Base",
    curve="lf-weak-10.crv",
    calculation="Leitwert ausrechnen",
    answer_name="G(ges)=",
    graph="Graph der Leitwerte",
    compare_button="Leitwert-Kurve anzeigen",
    sample="Esigsäure",
    reagent="Natronlauge",
    volumes=(" VµV(Essigsäure)  = ", "VµZ(Natronlauge) ="),
    rule="V(gesamt) = VµV(HAc) + VµZ(NaOH)",
    rows=(
        Row("G(H3O+) = ", "H3O+", "349,8"),
        Row("G(Ac-)      = ", "Ac-", "40,9"),
        Row("G(Na+)    = ", "Na+", "50,1"),
        Row("G(OH-)     =", "OH-", "198,6"),
    ),
    species=(
        Species("H3O+", 8, "none"),
        Species("HAc", 10, "rest"),
        Species("Ac-", 11, "salt"),
        SODIUM,
        HYDROXIDE,
    ),
    ion_word="Ionenleitfähigkeiten",
    lines_as_asked=True,
)
SILVER = LfKind(
    name="silver",
    title="Conductivity of chloride with silver",
    form="frm_AppMainConductoSilver",
    start_form="frm_AppMainConductoSilverStart",
    button="ctl_Button11",
    demo_button="ctl_Button14",
    caption="Morvik // Quendal - Leitfähigkeitstitration: NatriumChlorid-Lösung mit  "
    "Silbernitrat-Lösung",
    curve="lf-silver-10.crv",
    calculation="Leitwert ausrechnen",
    answer_name="G=",
    graph="Graph der Leitwerte",
    compare_button="Titrations-Kurve anzeigen",
    sample="NaCl-Lösung",
    reagent="Silbernitrat-Lösung",
    volumes=(" VµV(NaCl-Lösung)     = ", "VµZ(AgNO3-Lösung) =", "V(Gesamt)                  ="),
    rule="V(gesamt) = VµV(NaCl) + VµZ(AgNOµ3)",
    rows=(
        Row("G(Cl-) = ", "Cl-", "76,4"),
        Row("G(Na+)       = ", "Na+", "50,1"),
        Row("G(NOµ3-)    = ", "NO3-", "71,5"),
        Row("G(Ag+)  =", "Ag+", "61,9"),
    ),
    species=(
        Species("Ag+", 12, "excess"),
        Species("Cl-", 3, "rest"),
        Species("NO3-", 13, "added"),
        Species("Na+", 5, "sample"),
    ),
    direct_question="Das von Dir errechnete Potential ist leider falsch! "
    "Soll ich Dir beim Errechnen Schritt für Schritt helfen?",
    compare_caption="Vergleich: Deine Potential-Rechnungen und der richtige Verlauf",
    balance="Aktuelle Teilchen-Bilanz",
    total_volume=True,
)
LOG = LfKind(
    name="log",
    title="Strong acid in logarithms",
    form="frm_AppMainConductolog",
    start_form="frm_AppMainConductoStart",
    button="",
    demo_button="ctl_Button19",
    caption="Morvik // Quendal - grechnet (log (c)) - Salzsäure mit Natronlauge",
    curve="lf-ph.crv",
    calculation="log (c)  ausrechnen",
    answer_name="G(ges)=",
    graph="Graph der pH- bzw. OH- Werte",
    compare_button="log(c)-Kurve anzeigen",
    sample="Salzsäure",
    reagent="Natronlauge",
    volumes=("VµV(S)     = ", "VµZ(OH-) ="),
    rule="V(gesamt) = VµV(HCl) + VµZ(NaOH)",
    rows=(
        Row("c(H3O+) = ", "H3O+"),
        Row("pH = -log(c(H3O+))", "pH"),
        Row("c(OH-)     =", "OH-"),
        Row("pOH = -log(c(OH-))", "pOH"),
    ),
    species=(HYDRONIUM, SODIUM, CHLORIDE, HYDROXIDE),
    coloured=True,
)
MEASURED = (STRONG, WEAK, SILVER)
LF_KINDS = (*MEASURED, LOG)
