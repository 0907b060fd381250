"""The weak acid's form and that of chloride with silver: what tells them apart in a script."""

from dataclasses import dataclass

from texts import REMINDER

REQUIRED_POINTS = {  # mL, by the sample's concentration in mol/L
    0.6: [0, 1, 3, 5, 6, 7, 12],
    0.8: [0, 1, 4, 7, 8, 9, 16],
    1.0: [0, 1, 5, 9, 10, 11, 20],
    1.2: [0, 1, 6, 11, 12, 13, 20],
    1.4: [0, 1, 7, 13, 14, 15, 20],
}
CONCENTRATIONS = tuple(REQUIRED_POINTS)
DEMO_CONCENTRATION = 1.0
LAST_VOLUME = 20  # mL, the burette is empty


@dataclass(frozen=True, eq=False)
class Kind:
    name: str
    title: str
    form: str
    button: str
    demo_button: str
    compare_caption: str
    direct_question: str
    choice_question: str
    direct_digits: int
    unit: str
    calculators: tuple  # the steps that offer one
    rungs: dict  # step: the detail that the tutor offers to open there
    counting_anew: tuple = ()  # steps at which the tries begin anew behind each question
    start_form: str = ""  # comes before the bench
    reminder: str = REMINDER
    offers_count: bool = False  # the offer of numbers is a solution, taken or not
    mistakes_reported: bool = False
    direct_help_counts: bool = False  # as help taken, behind a wrong direct answer


WEAK = Kind(
    name="weak",
    title="Weak acid",
    form="frm_AppMainWeak",
    button="ctl_Button4",
    demo_button="ctl_Button16",
    compare_caption="Vergleich: Deine Rechnungen und der 'richtige' Verlauf",
    direct_question="Der von Dir errechnete pH-Wert ist leider falsch! "
    "Soll ich Dir beim Errechnen Schritt für Schritt helfen?",
    choice_question="Das ist leider immer noch falsch! Soll ich das Richtige anklicken?",
    direct_digits=3,
    unit="",
    calculators=(9, 10, 11, 12),
    rungs={3: "vDetailAcid", 6: "vDetailBase", 7: "vDetailCase", 10: "vDetailConc"},
    offers_count=True,
    mistakes_reported=True,
)
SILVER = Kind(
    name="silver",
    title="Chloride with silver",
    form="frm_AppMainSilver",
    button="ctl_Button8",
    demo_button="ctl_Button17",
    compare_caption="Vergleich: Deine Potential-Rechnungen und der richtige Verlauf",
    direct_question="Das von Dir errechnete Potential ist leider falsch! "
    "Soll ich Dir beim Errechnen Schritt für Schritt helfen?",
    choice_question="Das ist leider immer noch falsch! Soll ich für dich das Richtige anklicken?",
    direct_digits=2,
    unit=" V",
    calculators=(8, 9, 10, 11, 12),
    rungs={
        3: "vDetailAcid",
        6: "vDetailBase",
        10: "vDetailConc",
        11: "vDetailSilver",
        12: "vDetailFinal",
    },
    counting_anew=(10, 11, 12),
    start_form="frm_AppMainSilverStart",
)
KINDS = (WEAK, SILVER)
ALL_RUNGS = frozenset((*WEAK.rungs.values(), *SILVER.rungs.values(), "vDetailStart"))
STEP_BEHIND_RUNG = {
    "vDetailAcid": 1,
    "vDetailBase": 4,
    "vDetailCase": 7,
    "vDetailConc": 8,
    "vDetailSilver": 11,
    "vDetailFinal": 12,
    "vDetailStart": 12,
}
STEP_PASSED_OVER = {"vDetailAcid": 3, "vDetailBase": 6, "vDetailConc": 10}


def two_digits(concentration):
    """The concentration in a script's name."""
    return f"{round(10 * concentration):02d}"
