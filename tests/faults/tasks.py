"""The shortest task in which a file of the data folder is used."""

import re
from pathlib import Path

from looks import LOOK

SCENES = {"h2o-hcl": 1, "h2o-h2o": 3, "h2o-hac": 4, "h3o-cl": 5, "fällung": 6, "ionen": 7}
CONDUCTIVITY, POWERS = 7, 0
# The stem of a curve: the tab and the button of its task, the form before it.
TASKS = {
    "phstark": ("3", "ctl_Button3", None),
    "phschwach": ("3", "ctl_Button4", None),
    "potsilber": ("3", "ctl_Button8", "frm_AppMainSilverStart"),
    "lf-strong-": ("3", "ctl_Button9", "frm_AppMainConductoStart"),
    "lf-weak-": ("3", "but_CunductoWeak", "frm_AppMainConductoWeakStart"),
    "lf-silver-": ("3", "ctl_Button11", "frm_AppMainConductoSilverStart"),
    "lf-ph": ("2", "ctl_Button19", "frm_AppMainConductoStart"),
}
STARTS = {"silver_start.gif": "potsilber", "conducto_start.gif": "lf-strong-",
          "conducto_weak_start.gif": "lf-weak-", "conducto_silver_start.gif": "lf-silver-"}
HELPS = {"strong.rtf": "phstark", "weak.rtf": "phschwach", "silver.rtf": "potsilber",
         "lf.rtf": "lf-strong-"}
# Whole tasks with the mark that a picture or a sound belongs to.
WITH_MARK = {1: "strong_free_10", 2: "lf_strong_break_behind", 3: "weak_mark_helped",
             4: "silver_quick", 5: "silver_mark_one", 6: "lf_silver_mark_helped"}
MARKS = {"win.gif": 1, "win_small.gif": 2, "bad.gif": 5, "sounds/result_good.wav": 1,
         "sounds/clapping.wav": 2, "sounds/correct.wav": 3, "sounds/say.wav": 4,
         "sounds/wrong.wav": 5, "sounds/result_bad.wav": 6}
QUIT = ["menu mnu_FileQuit", "expect ended"]
TAB_OF_ICON = {"quit": 0, "quendal": 0, "camera": 1, "next": 3}
LAST_STEP = "expect but_CalcStep(6).text == &Fertig"  # of a demo, when the button has the icon


def concentration(digits):
    return f"{int(digits[0])}.{digits[1]}"


def choose(stem, digits="10"):
    tab, button, start_form = TASKS[stem]
    lines = [f"choose SSTab1 {tab}"]
    if tab == "3":
        lines += [f"choose lst_Mol {concentration(digits)}", "check opt_NeedCalc off"]
    lines.append(f"click {button}")
    if start_form:
        lines += [f"expect form {start_form}", "click bar_Buttons"]
    return lines


def curve_task(name):
    stem, digits = re.fullmatch(r"(.*?)(\d\d)?\.crv", name).groups()
    return ["name Mia", "start", *choose(stem, digits or "10"), "click but_phCompare",
            "expect form frm_DialogphCompare", "close", *QUIT]


def start_dialog():
    return ["name Mia", "start", "expect form frm_DialogStartup", "click ctl_Button5",
            "expect ended"]


def bench():
    """The pipette runs, the burette drips, an answer is right and one is wrong."""
    return ["name Mia", "start", *choose("phstark"), "expect form frm_AppMainStrong",
            "click ctl_Button1", "settle", "click ctl_Button3", "settle", "click but_Calc",
            "answer no", "type txt_Ph 7", "key ENTER", "type txt_Ph 0,087", "key ENTER", *QUIT]


def tabs():
    """Each tab of the start dialog."""
    lines = ["name Mia", "start"]
    for tab in range(4):
        lines += [f"choose SSTab1 {tab}", "wait 0.1"]
    return [*lines, "click ctl_Button5", "expect ended"]


def conducto_bench(stem):
    return ["name Mia", "start", *choose(stem), "click ctl_Button1", "settle", *QUIT]


def lens():
    """The lens is looked at once it is there."""
    return ["form frm_AppMagnify ShowWater true SourceLeft 900 SourceTop 100 SourceRight 1200 "
            "SourceBottom 400", "start", "wait 1.5", LOOK, "click pic_Screen",
            "wait 2", "expect ended"]


def weak_lens():
    """The weak acid's bench, where the glass slides in."""
    return ["name Mia", "start", *choose("phschwach"), "expect form frm_AppMainWeak",
            "click ctl_Button1", "settle", *QUIT]


def scene(number):
    lines = [f"form frm_AppIntro Scene {number}", "start"]
    keys = [f"key {digit}" for digit in (1, 2, 3, 4, 5, 6, 7, 8, 9)]
    if number == CONDUCTIVITY:
        steps = ["wait 1", "click pic_Stage"] + keys
    elif number == POWERS:
        steps = ["wait 1", "click pic_Stage"] + ["wait 3", "key +"] * 6
    else:
        steps = ["wait 4", "click pic_Stage"] * 9
    leave = ["key ESC", "wait 0.1", "key ESC"] if number == CONDUCTIVITY else ["key ESC"]
    return lines + steps + ["wait 1", *leave, "expect ended"]


def powers(picture):
    """The lesson, until that picture was looked at."""
    lines, steps = scene(POWERS)[:4], ["wait 3", LOOK, "key +"] * picture
    return [*lines, *steps, "wait 1", "key ESC", "expect ended"]


def whole_task(made, script):
    """A made script, without what it expects of sounds."""
    text = (Path(made) / (script + ".qs")).read_text(encoding="utf-8")
    return [line for line in text.splitlines()
            if not line.startswith(("expect sound", "expect nosound", "sound "))]


def help_task(name):
    return ["name Mia", "start", *choose(HELPS[name]), "click but_Help",
            "expect form frm_DialogHelp", "close", *QUIT]


def tab(number):
    return ["name Mia", "start", f"choose SSTab1 {number}", LOOK, "click ctl_Button5",
            "expect ended"]


def dripping():
    """Each frame of the tap, which stands for 0.05 s."""
    lines = ["name Mia", "start", *choose("phstark"), "click ctl_Button1", "settle",
             "click ctl_Button3", "wait 0.02", LOOK]
    return lines + ["wait 0.05", LOOK] * 3 + ["settle", *QUIT]


def opened(stem):
    """The bench of a task as it opens."""
    return ["name Mia", "start", *choose(stem), LOOK, *QUIT]


def answered():
    """With a right answer and a wrong one."""
    lines = bench()
    return [*lines[:lines.index("key ENTER") + 1], LOOK, *lines[lines.index("key ENTER") + 1:-2],
            LOOK, *QUIT]


def icon_task(icon, made):
    """Where this icon is shown, as shortly as possible."""
    if icon == "abort":
        lines = whole_task(made, "lf_silver_demo_late")
        return [*lines[:lines.index(LAST_STEP)], LOOK, *QUIT]
    if icon in TAB_OF_ICON:
        return tab(TAB_OF_ICON[icon])
    if icon in ("ok", "no", "calculator", "stop"):
        return answered()
    if icon == "attention":
        return lens()
    return opened({"graph": "lf-strong-", "add_point": "lf-ph", "search": "phschwach"}
                  .get(icon, "phstark"))


def task_for(name, made):
    """The lines of a script; the data folder is still to be named."""
    path = Path(name)
    if path.suffix == ".wmf":
        return scene(SCENES[path.parts[0]])
    if path.suffix == ".crv":
        return curve_task(name) if name != "ph.crv" else curve_task("phstark10.crv")
    if path.suffix == ".rtf":
        return help_task(path.name)
    plain = path.name if "x3" in path.parts else name
    if plain in MARKS:
        return whole_task(made, WITH_MARK[MARKS[plain]])
    if plain in STARTS:
        return ["name Mia", "start", *choose(STARTS[plain])[:-1], "expect form " +
                TASKS[STARTS[plain]][2], "click bar_Buttons", *QUIT]
    if path.parts[0] == "phn":
        return powers(int(path.stem[1:]))
    if plain.startswith("lens") or name == "sounds/collide.wav":
        return lens()
    if name == "sounds/ex.wav":
        return [*scene(SCENES["h2o-hcl"])[:4], "wait 4", "key ESC", "expect ended"]
    if path.parts[0] == "icons":
        return icon_task(path.stem, made)
    if plain in ("header.gif", "splash.gif"):
        return start_dialog()
    if plain == "ab_01.gif":
        return opened("phstark")
    if plain.startswith("bürette"):
        return dripping()
    return weak_lens() if plain.startswith("magnify") else bench()


def reporting_task(setting_line, answers=1):
    """Some points of the curve with the right pH, each of which is reported."""
    lines = [setting_line, "name Mia", "sound 2", "start", *choose("phstark"), "click ctl_Button1",
             "settle"]
    values = ("0", "0,09", "0,18", "0,27")
    for value in values[:answers]:
        lines += ["click but_Calc", f"type txt_Ph {value}", "key ENTER", "expect frm_CalcDirect."
                  "visible == false", "click ctl_Button3", "settle"]
    return lines


def on_data(lines, data):
    return [f'data "{data}"', *lines]
