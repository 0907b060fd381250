"""The strong acid: points that the learner picks, and the required ones."""

from kinds import CONCENTRATIONS, LAST_VOLUME, REQUIRED_POINTS, two_digits
from models import strong_ph
from texts import POINT_DONE, quoted

DOSE = ("click ctl_Button3", "settle")
PH_TOLERANCE = "0.0005"


def opening(title, concentration, required):
    return [
        "# " + title,
        "name Mia",
        "start",
        "choose SSTab1 3",
        f"choose lst_Mol {concentration:.1f}",
        *([] if required else ["check opt_NeedCalc off"]),
        "click ctl_Button3",
        "expect form frm_AppMainStrong",
    ]


def pipette(concentration, asked):
    particles = round(10 * concentration)
    return [
        f"expect session.SessionConcentration == {concentration:g}",
        f'expect session.SessionRequiredPoints == "{",".join(map(str, asked))}"',
        "click ctl_Button1",
        "settle",
        "expect form.vVol == 10",
        f"expect beaker.countsort(8) == {particles}",
        f"expect beaker.countsort(3) == {particles}",
    ]


def answer(concentration, added, point):
    """A direct answer with two decimals."""
    ph = strong_ph(concentration, added)
    typed = f"{round(ph * 100) / 100 + 0.0:.2f}".replace(".", ",")
    return [
        f"# {added} mL",
        "click but_Calc",
        "type txt_Ph " + typed,
        "key ENTER",
        'expect sound "signal 2"',
        "expect box info Punktberechnung " + quoted(POINT_DONE.format(point)),
        f"expect report progress {point} 0",
        f"expect series(1).count == {point}",
        f"expect series(1).x({point}) == {added}",
        f"expect series(1).y({point}) ~= {ph:.3f} {PH_TOLERANCE}",
    ]


def result(concentration, points):
    return [
        "expect form frm_DialogDone",
        'expect frm_DialogDone.lab_Mark.text == "Sehr gut"',
        f'expect report result {200 * min(points, 5)} 1 "Sehr gut"',
        "expect sound result_good",
        "click bar_Buttons",
        "expect form frm_AppMainStrong",
        "expect form.vTaskStep == 3",
        "expect beaker.countsort(8) == 0",
        f"expect beaker.countsort(9) == {LAST_VOLUME - round(10 * concentration)}",
        "menu mnu_FileQuit",
        "expect ended",
    ]


def task(concentration, title, points, asked):
    lines = opening(title, concentration, bool(asked)) + pipette(concentration, asked)
    for added in range(LAST_VOLUME + 1):
        if added > 0:
            lines += [*DOSE, f"expect form.vVol == {10 + added}"]
        if added in points:
            if added > 0 and added in asked:
                lines.append("expect but_Calc.bordercolor == #c0ffc0")
            lines += answer(concentration, added, points.index(added) + 1)
    return lines + result(concentration, len(points))


def required(concentration):
    asked = REQUIRED_POINTS[concentration]
    title = (f"Strong acid of {concentration:.1f} mol/L: all required points, each calculated "
             "alone, to the best mark.")
    return task(concentration, title, sorted({*asked, LAST_VOLUME}), asked)


def free(concentration):
    equivalence = round(10 * concentration)
    title = f"Strong acid of {concentration:.1f} mol/L: the learner picks the points."
    return task(concentration, title, [2, 5, equivalence, equivalence + 2, LAST_VOLUME], [])


def scripts():
    for concentration in CONCENTRATIONS:
        yield "strong_required_" + two_digits(concentration), required(concentration)
        yield "strong_free_" + two_digits(concentration), free(concentration)
