"""What a learner sees at each step of the guided calculation: headings, labels, options."""

from kinds import WEAK
from number_texts import plain
from steps import CHOICE, LAST

AMOUNT_NAMES = {"weak": ("HAc", "OH"), "silver": ("Cl-", "Ag+")}
AMOUNT_HEADINGS = {
    "weak": ((0, "1. Stoffmenge vorgelegte  Säure"), (1, "2. Stoffmenge der zugetropften Base")),
    "silver": (
        (1, "1.Vorgelegte  Stoffmenge Chlorid"),
        (2, "2. Zugegebene Stoffmenge der Silber-Ionen"),
    ),
}
CHOICE_HEADINGS = {
    "weak": (2, "3. Welcher Fall liegt vor - ist für den pH entscheidend?"),
    "silver": (3, "3. Welcher Fall liegt vor? - wichtig für Potential"),
}
FIRST_CHOICE_HEADING = (2, "Welcher Fall liegt vor - ist für den pH entscheidend?")
CHOICE_RUNG = {"weak": "vDetailCase", "silver": "vDetailBase"}
OPTIONS = {
    "weak": ("(Fast) nur HAc", "HAc neben Ac-", "(Fast) nur Ac-", "Wichtig nur OH- "),
    "silver": ("(Fast) Nur Cl-", "Mehr Cl- als Ag+", "Genau gleich", "Mehr Ag+ als Cl-"),
}
HINTS = {
    "weak": ("nµZ(OH) = 0", "0 < nµZ(OH) < nµV(HAc)", "nµZ(OH) = nµV(HAc)", "nµZ(OH) > nµV(HAc)"),
    "silver": (
        "nµZ(Ag+) = 0",
        "0 < nµZ(Ag+) < nµV(Cl-)",
        "nµZ(Ag+) = nµV(Cl-)",
        "nµZ(Ag+) > nµV(Cl-)",
    ),
}
ANY = None  # the label is there, whatever it says
NERNST = "E = 0.8V - 0.059V * log(1 / (c(Ag+)))"
BUFFER = (3, "4. HAc und Ac- liegen nebeneinander vor")
ONLY_BASE = (3, "4. Es liegt nur schwache Base Ac- vor")
HYDROXIDE = (3, "4. Konzentration der OH- Ionen berechnen")
PH = (4, "5. pH-Wert berechnen")
CHLORIDE = (4, "4. Neue Konzentration der Chlorid-Ionen berechnen")
SILVER_IONS = (4, "4. Neue Konzentration der Silber-Ionen berechnen")
POTENTIAL = (6, "6. Potential berechnen")
START_DETAILS = (
    (16, "Der pH-Wert für eine schwache Säure"),
    (28, "berechnet sich wie folgt:"),
    (19, "pH = (1)/(2)*(pKs-log(cµV(HAc)))"),
    (1, "cµV(HAc) ="),
    (2, "mol / L"),
)
# By case and step: heading, labels that are always there, the rung of a detail and its labels.
WEAK_RESULTS = {
    1: {
        12: ((3, "1. Es liegt (fast) nur schwache Säure vor"), [(23, "pH =")],
             "vDetailStart", START_DETAILS),
    },
    2: {
        8: (BUFFER, [(16, "n(HAc) =  nµV(HAc) - nµZ(OH) "), (17, "n(HAc) ="), (18, ANY)], None, ()),
        9: (None, [(28, "n(Ac-) = nµZ(OH) "), (20, "n(Ac-)"), (21, "mol")], None, ()),
        10: (BUFFER, [(22, "n(HAc)/n(Ac-) =")],
             "vDetailConc", [(19, "n(HAc)/n(Ac-) = n(HAc)/nµZ(OH)")]),
        12: (PH, [(23, "pH =")], "vDetailFinal", [(27, "pH = pKs - log(n(HAc) / n(Ac-))")]),
    },
    3: {
        8: (ONLY_BASE, [(16, "n(Ac-) = nµZ(OH-)"), (17, "n(Ac-) =")], None, ()),
        9: (None, [(28, "V(gesamt) = VµV(HAc) + VµZ(OH)"), (20, "V(gesamt) ="), (21, " L")],
            None, ()),
        10: (ONLY_BASE, [(22, "c(Ac-) = "), (25, " mol/L")],
             "vDetailConc", [(19, "c(Ac-) = (n(Ac-))/(V(gesamt)")]),
        12: (PH, [(23, "pH =")],
             "vDetailFinal", [(27, "pH = 14 - (1)/(2) * (14 - pKs - log(c(Ac-)))")]),
    },
    4: {
        8: (HYDROXIDE, [(16, "n(OH-) = nµZ(OH) - nµV(HAc)"), (17, "n(OH-) =")], None, ()),
        9: (None, [(20, "V(gesamt) ="), (21, " L")], None, ()),
        10: (HYDROXIDE, [(22, "c(OH-) =")],
             "vDetailConc", [(19, "c(OH-) = (n(OH-))/(V(gesamt))")]),
        11: ((4, "5. pOH-Wert berechnen"), [(26, "pOH =")],
             "vDetailFinal", [(27, "pOH = -log(OH-)")]),
        12: (PH, [(23, "pH =")], None, ()),
    },
}
SILVER_RESULTS = {
    2: {
        8: (CHLORIDE, [(16, "n(Cl')=nµV(Cl-)-nµZ(Ag+)"), (17, "n(Cl')="), (18, "mol")], None, ()),
        9: (None, [(20, "VGes="), (21, ANY)], None, ()),
        10: (CHLORIDE, [(22, "c(Cl') = "), (25, "mol / L")],
             "vDetailConc", [(19, "c(Cl') = (n(Cl'))/(VGes))")]),
        11: ((5, "5. Neue Konzentration der Silber-Ionen berechnen"),
             [(26, "c(Ag+) = "), (28, ANY)], "vDetailSilver", [(23, "c(Ag+) = KµL / c(Cl')")]),
        12: (POTENTIAL, [(24, "E = "), (29, ANY)], "vDetailFinal", [(27, NERNST)]),
    },
    3: {
        8: (CHLORIDE, [(16, "n(Cl')=nµV(Cl-)-nµZ(Ag+)"), (17, "n(Cl')=")], None, ()),
        11: ((5, "5. Konzentration der Silber-Ionen"), [(26, "c(Ag+) = ")],
             "vDetailSilver", [(23, "c(Ag+) = KµL^0.5)")]),
        12: (POTENTIAL, [(24, "E = ")], "vDetailFinal", [(27, NERNST)]),
    },
    4: {
        8: (SILVER_IONS, [(16, "n(Ag+)=nµZ(Ag+)-nµV(Cl-)"), (17, "n(Ag+)=")], None, ()),
        9: (None, [(20, "VGes=")], None, ()),
        10: (SILVER_IONS, [(22, "c(Ag+) = ")],
             "vDetailConc", [(19, "c(Ag+) = (n(Ag+))/(VGes))")]),
        12: ((5, "5. Potential berechnen"), [(27, NERNST), (24, "E = ")], None, ()),
    },
}


def amount_labels(kind):
    """The labels of steps 1 to 6."""
    sample, added = AMOUNT_NAMES[kind.name]
    return {
        1: [(0, f"nµV({sample}) = cµV({sample}) * VµV({sample})"), (1, f"cµV({sample}) ="),
            (2, "mol / L")],
        2: [(3, f"VµV({sample}) ="), (4, ANY)],
        3: [(6, f"nµV({sample}) ="), (7, "mol")],
        4: [(15, f"nµZ({added}) = cµZ({added}) * VµZ({added})"), (14, f"cµZ({added}) ="),
            (13, "mol / L")],
        5: [(12, f"VµZ({added}) ="), (11, ANY)],
        6: [(9, f"nµZ({added}) ="), (8, "mol")],
    }


def see_heading(learner, heading):
    label, text = heading
    learner.visible(f"lab_CalcStep({label})")
    learner.expect_text(f"lab_CalcStep({label}).text", text)


def see_label(learner, label, text):
    learner.visible(f"lab_Calc({label})")
    if text is not ANY:
        learner.expect_text(f"lab_Calc({label}).term", text)


def hide_labels(learner, *labels):
    learner.hidden(*(f"lab_Calc({label})" for label in labels))


def hide_fields(learner, *fields):
    learner.hidden(*(f"txt_Calc({field})" for field in fields))


def see_amounts(learner, step):
    sample_heading, added_heading = AMOUNT_HEADINGS[learner.kind.name]
    if step in (1, 3):
        see_heading(learner, sample_heading)
    elif step in (4, 6):
        see_heading(learner, added_heading)
    for label, text in amount_labels(learner.kind)[step]:
        see_label(learner, label, text)
    if step == 3:
        see_sample_product(learner)
    elif step == 6:
        see_added_product(learner)


def see_sample_product(learner):
    sample, written = AMOUNT_NAMES[learner.kind.name][0], learner.written
    if "vDetailAcid" in learner.opened:
        see_label(learner, 5, f"nµV({sample}) = {written[1]} * {written[2]}")
    else:
        hide_labels(learner, 0, 1, 3, 5, 19)
        hide_fields(learner, 1, 2)


def see_added_product(learner):
    added, written = AMOUNT_NAMES[learner.kind.name][1], learner.written
    if "vDetailBase" in learner.opened:
        see_label(learner, 10, f"nµZ({added}) = {written[4]} * {written[5]}")
    else:
        hide_labels(learner, 10)
        hide_fields(learner, 4, 5)


def see_choice(learner):
    name = learner.kind.name
    first = learner.kind is WEAK and learner.added == 0
    see_heading(learner, FIRST_CHOICE_HEADING if first else CHOICE_HEADINGS[name])
    with_hints = CHOICE_RUNG[name] in learner.opened
    for option, (text, hint) in enumerate(zip(OPTIONS[name], HINTS[name])):
        learner.visible(f"opt_Calc({option})")
        learner.expect_text(f"opt_Calc({option}).text", text)
        learner.expect(f"lab_optCalc({option}).visible", with_hints)
        if with_hints:
            learner.expect_text(f"lab_optCalc({option}).term", hint)
    learner.visible("opt_CalcStore")
    if first:
        learner.hidden("lab_CalcStep(0)", "lab_CalcStep(1)")
        hide_fields(learner, 1, 2, 3, 4, 5, 6)


def see_results(learner, step):
    case = learner.mixture().case
    table = WEAK_RESULTS if learner.kind is WEAK else SILVER_RESULTS
    heading, labels, rung, details = table[case][step]
    # On the weak form step 12 writes its heading over that of step 11.
    written_over = learner.kind is WEAK and step == 11 and learner.step == LAST
    if heading and not written_over:
        see_heading(learner, heading)
    for label, text in labels:
        see_label(learner, label, text)
    for label, text in details:
        if rung in learner.opened:
            see_label(learner, label, text)
        else:
            hide_labels(learner, label)
    if rung == "vDetailStart":
        see_start_field(learner)
    if step == 10 and "vDetailConc" not in learner.opened:
        hide_fields(learner, 8, 9)


def see_start_field(learner):
    """Where nothing is added, the acid's concentration stands beside the formula."""
    if "vDetailStart" in learner.opened:
        learner.visible("txt_Calc(1)")
        learner.expect("txt_Calc(1).text", plain(learner.concentration, learner.sign))
    hide_fields(learner, 8, 9, 10, 11)


def look_at(learner, step):
    if step < CHOICE:
        see_amounts(learner, step)
    elif step == CHOICE:
        see_choice(learner)
    else:
        see_results(learner, step)
