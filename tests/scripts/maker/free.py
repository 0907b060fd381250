"""A direct answer at every mL, with the balance and the form's own texts looked at."""

from kinds import CONCENTRATIONS, KINDS, LAST_VOLUME, WEAK, two_digits
from learner import Learner
from number_texts import fixed

SPECIES = {
    "weak": ("H3O+", "Na+", "HAc", "Ac-", "OH-"),
    "silver": ("Ag+", "Na+", "Cl-", "NO3-"),
}
FORM_TEXTS = {
    "weak": (
        ("form.caption", "Morvik // Quendal - Schwache Säure mit starker Base"),
        ("but_ShowMag.text", "Säure-Base-Gleichgewicht ansehen"),
        ("lab_pHName.term", "pH Wert:"),
        ("frm_CalcDirect.text", "pH-Wert ausrechnen"),
        ("frm_Calc.text", "pH-Wert ausrechnen"),
    ),
    "silver": (
        ("form.caption", "Morvik // Quendal - Potentiometrie"),
        ("but_ShowMag.text", "Löslichkeitsgleichgewicht ansehen"),
        ("lab_pHName.term", "Potential:"),
        ("frm_CalcDirect.text", "Potential ausrechnen"),
        ("lab_Step(1).text",
         f"Klick auf {' ' * 31},um den genauen pH-Wert zu berechnen."),
    ),
}
ION_PRECISION = 1e-9  # relative


def look_at_form(learner):
    weak = learner.kind is WEAK
    learner.expect("but_ShowMag.visible", weak)
    if weak:
        learner.expect("lab_Step0.text", "Schwache Säure mit  pKs = 4,76")
    else:
        learner.expect("lab_KLInfo.term", "Hinweis: KµL(AgCl) = 10^-9.7 (mol²)/(  L²)")
    for thing, text in FORM_TEXTS[learner.kind.name]:
        learner.expect_text(thing, text)
    for row, species in enumerate(SPECIES[learner.kind.name]):
        learner.expect(f"lab_Bilanz({row}).term", species)
        learner.visible(f"lab_Bilanz({row})")
    if not weak:
        learner.hidden("lab_Bilanz(4)", "lab_BilanzCount(4)")
    learner.say("click but_Help", "expect form frm_DialogHelp")
    learner.expect("form.FileName", learner.kind.name + ".rtf")
    learner.say("close", "expect form " + learner.kind.form)


def look_at_weak(learner):
    mixture = learner.mixture()
    added, sample = learner.added, mixture.sample_particles
    acetate = min(added, sample)
    acid, hydroxide = mixture.acid_particles, mixture.hydroxide_particles
    learner.expect("form.vCase", mixture.case)
    learner.expect_near("form.vPh", mixture.value)
    learner.expect("form.vPhText", mixture.shown)
    learner.expect_near("form.vPhNow", mixture.now)
    for sort, count in ((10, acid), (11, acetate), (9, hydroxide), (5, added)):
        learner.expect(f"beaker.countsort({sort})", count)
    for row, count in ((1, added), (2, acid), (3, acetate)):
        learner.expect(f"lab_BilanzCount({row}).term", f"{count} mmol")
    about = "~~ "
    learner.expect("lab_BilanzCount(0).term", (about if added >= sample else "") + "0 mmol")
    learner.expect("lab_BilanzCount(4).term",
                   (about if added <= sample else "") + f"{hydroxide} mmol")


def look_at_silver(learner):
    mixture = learner.mixture()
    learner.expect("form.vCase", mixture.case)
    learner.expect_near("form.vPotential", mixture.value)
    learner.expect("form.vPotentialText", mixture.shown)
    learner.expect_near("form.vPotentialNow", mixture.now)
    if learner.added:
        learner.expect_near("form.vSilverIon", mixture.ion, mixture.ion * ION_PRECISION)


def first_silver(learner):
    """Without silver there is nothing to calculate: the click adds the first mL."""
    learner.added = 1
    learner.say("click but_Calc", "settle")
    learner.expect("form.vVol", 11)
    learner.expect("form.sClicks", 1)
    learner.hidden("frm_CalcDirect")
    learner.visible("but_ShowMag")


def answer_in_turn(learner):
    """Odd points by the button and with a point, even ones by Return and with a comma."""
    odd = learner.added % 2
    answer = fixed(learner.mixture().now, learner.kind.direct_digits, "." if odd else ",")
    learner.answer_directly(answer, "click but_CalcDone" if odd else "key ENTER")


def free(kind, concentration):
    weak = kind is WEAK
    learner = Learner(kind, concentration, f"{kind.title} of {concentration:.1f} mol/L: "
                      "a direct answer at every mL to the best mark.")
    learner.enter()
    look_at_form(learner)
    learner.pipette()
    learner.visible("but_Calc")
    learner.expect("lab_pH.text", "?")
    for added in range(LAST_VOLUME + 1):
        if added == 1 and not weak:
            first_silver(learner)
        elif added > 0:
            learner.dose()
        learner.say(f"# {added} mL")
        (look_at_weak if weak else look_at_silver)(learner)
        if weak or added > 0:
            answer_in_turn(learner)
    learner.say("expect form " + kind.form)
    learner.expect("form.vTaskStep", 3)
    learner.expect("form.vBurShown", False)
    learner.quit()
    return learner.lines


def scripts():
    for kind in KINDS:
        for concentration in CONCENTRATIONS:
            yield f"{kind.name}_free_{two_digits(concentration)}", free(kind, concentration)
