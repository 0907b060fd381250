"""What stands on the conductometric forms, as a task and as a demo."""

from guided import AROUND_CALCULATION
from lf_guided import LfLearner
from lf_kinds import LF_KINDS, LOG, WEAK

TASK_LINE = f"Klick auf {' ' * 31},um den genauen LeitWert zu berechnen."
DEMO_LINE = f"Klick auf {' ' * 31},um dir den Rechenweg demonstrieren zu lassen"
RULE_IN_WORDS = 'Leitwert = Stoffmenge / Volumen * " Leitfähigkeit bei unendlicher Verdünnung"'
RULE = "G(Ion)   =   n(Ion)      /     V(Ges)     *         l(Ion)"
UNITS = {"lab_LF2": "mmol", "lab_LF3": "cm^3", "lab_LF4": "mS*cm^2 /mmol", "lab_LF5": "mS/cm"}
HEADINGS = ("1. Berechnung des Gesamtvolumens", "2. Berechnung der einzelnen {}",
            "3. Berechnung der Summe")


def sample_line(learner):
    return (f"Klicke auf die            Pipette, um 10 mL {learner.kind.sample}  mit (c = "
            f"{learner.concentration:g} mol/L) in das Becherglas fließen zu lassen. Damit die "
            "Elektroden bedeckt werden, sind schon 90 mL dest. Wasser vorgelegt.")


def reagent_line(learner):
    return (f"Klick auf {' ' * 30}, um mit jedem Klick                einen  mL "
            f"{learner.kind.reagent} ( c= 1 mol/L) zutropfen zu lassen.")


def look_at_form(learner):
    kind = learner.kind
    texts = {
        "form.caption": kind.caption,
        "ctl_Frame2.text": "Aufgabenzettel",
        "lab_Step(0).text": sample_line(learner),
        "lab_Step1.text": reagent_line(learner),
        "lab_Step(1).text": DEMO_LINE if learner.demo else TASK_LINE,
        "but_Calc.text": "Demo" if learner.demo else "Berechnen!",
        "ctl_Button2.text": "Demo" if learner.demo else "Berechnen!",
        "but_Help.text": "Ausführliche Hilfe",
        "but_phCompare.text": kind.compare_button,
        "frm_Graph.text": kind.graph,
        "frm_Bilanz.text": kind.balance,
        "frm_CalcDirect.text": kind.calculation,
        "lab_CalcX.term": kind.answer_name,
        "but_CalcDone.text": "&Fertig",
        "but_HelpCalc.text": "Wie geht das?",
    }
    for thing, text in texts.items():
        learner.expect_text(thing, text)
    for index, text in enumerate(kind.volumes):
        learner.expect_text(f"lab_VolLabel({index}).term", text)
    for index, species in enumerate(kind.species):
        learner.expect_text(f"lab_Bilanz({index}).term", species.name)
        learner.visible(f"lab_Bilanz({index})")
    learner.expect("lab_Bilanz(4).visible", kind is WEAK)
    learner.visible("frm_Graph", "pic_Graph", "but_phCompare", "but_Help", "ctl_Button1")
    learner.hidden("frm_Calc", "frm_CalcDirect", "but_Calc", "ctl_Button2", "ctl_Button3")
    learner.expect("frm_Score.visible", not learner.demo)


def look_at_water(learner):
    """90 mL stand in the glass from the start, the scale ends at 140 mL."""
    learner.visible("pic_Water")
    learner.expect_near("pic_Water.height", 320 * 90 / 140, 0.01)


def look_at_frame(learner):
    """The texts of the tutor's frame, whether they are seen already or not."""
    kind = learner.kind
    for index, text in enumerate(HEADINGS):
        learner.expect_text(f"lab_CalcStep({index}).text", text.format(kind.ion_word))
    learner.expect_text("lab_Calc(0).term", kind.rule)
    learner.expect_text("lab_Calc(1).term", "V(gesamt) = ")
    learner.expect_text("lab_Calc(3).term", RULE_IN_WORDS)
    learner.expect_text("lab_Calc(4).term", RULE)
    for name, unit in UNITS.items():
        learner.expect_text(name + ".term", unit)
    for row, ion in enumerate(kind.rows, 2):
        learner.expect_text(f"lab_LF1({row}).term", ion.head)
        learner.expect_text(f"lab_LFAeq({row}).text", ion.printed)
        learner.expect_text(f"lab_LFErg({row}).text", "Rechnen ->")


def look_at_log_frame(learner):
    learner.expect_text("lab_CalcStep(0).text", HEADINGS[0])
    learner.expect_text("lab_Calc(0).term", learner.kind.rule)
    for row, ion in enumerate(learner.kind.rows, 2):
        learner.expect_text(f"lab_LF1({row}).term", ion.head)
    learner.expect("lab_LF2.term", "mmol")
    learner.expect("lab_LF3.term", "ml")


def open_help(learner):
    for way in ("click but_Help", "menu mnu_HelpText"):
        learner.say(way, "expect form frm_DialogHelp")
        learner.expect("form.FileName", "lf.rtf")
        learner.say("close", "expect form " + learner.kind.form)


def looks(kind, demo, concentration):
    learner = LfLearner(kind, concentration, f"{kind.title}: what stands on the form"
                        + (", as a demo." if demo else "."), demo=demo, brief=True)
    learner.enter()
    look_at_form(learner)
    look_at_water(learner)
    (look_at_log_frame if kind is LOG else look_at_frame)(learner)
    open_help(learner)
    learner.expect_text("lab_Vol(2).term", "0,090 L" if kind.total_volume
                        else f"{learner.concentration:g} mol/L")
    learner.pipette()
    learner.visible("but_Calc", "ctl_Button2", "ctl_Button3")
    learner.hidden("ctl_Button1", "but_Add(0)", "but_Add(1)")
    learner.expect_near("pic_Water.height", 320 * 100 / 140, 0.01)
    if demo:
        learner.say("click but_Calc")
        learner.visible("frm_Calc")
        learner.hidden("frm_CalcDirect", *AROUND_CALCULATION)
    else:
        learner.open_direct()
    learner.quit()
    return learner.lines


def scripts():
    for kind in LF_KINDS:
        yield f"lf_{kind.name}_looks_demo", looks(kind, True, 1.0)
        if kind is not LOG:
            yield f"lf_{kind.name}_looks", looks(kind, False, 0.8)
