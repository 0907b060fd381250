"""A machine that lacks something, and screens at both ends of what is in use."""

import re
import shutil
import struct
from pathlib import Path

import looks
from data_copy import DataCopy
from program import Player
from table import section, table
from tasks import POWERS, QUIT, TASKS, bench, choose, lens, on_data, opened, scene

FONTS = Path("/usr/share/fonts/truetype/liberation")
# The second is a wide one that the program doesn't ask for.
SINGLE_FONTS = ("LiberationSans-Regular", "LiberationMono-Regular")
FONTS_CONF = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>{0}</dir><cachedir>{0}/cache</cachedir></fontconfig>
"""
NO_DEVICE = "quendal: Es gibt kein Tonausgabegerät; das Programm bleibt stumm."
WITHOUT_SOUND = {"PULSE_SERVER": "unix:/nonexistent", "ALSA_CONFIG_PATH": "/dev/null"}


def png_size(path):
    """(0, 0) for one that wasn't taken."""
    head = Path(path).read_bytes()[:24] if Path(path).exists() else b""
    return struct.unpack(">II", head[16:]) if len(head) == 24 else (0, 0)


class Machine:
    def __init__(self, setting):
        self.setting = setting
        self.failures = []
        self.rows = []

    def expect(self, what, holds):
        if not holds:
            self.failures.append(what)

    def play(self, title, lines, desktop=True, **environment):
        player = Player(self.setting.script_player, self.setting.data,
                        self.setting.folder / "run", desktop, **environment)
        script, pictures = looks.played(lines, self.setting.folder, desktop)
        outcome = player.play(script)
        self.expect(f"{title}: {outcome.status} {outcome.lines}", outcome.ended())
        return outcome, looks.seen(outcome, pictures)

    def case(self, title, lines, words, told=0, **environment):
        """`words` of what is seen, which is handed on."""
        outcome, seen = self.play(title, lines, **environment)
        self.expect(f"{title}: {told} line asked for, not {outcome.lines}",
                    len(outcome.lines) == told)
        line = re.sub(r"/\S+\.svg", "FILE", " / ".join(outcome.lines))
        self.rows.append((title, words(seen), f"`{line}`" if line else ""))
        return seen


def sound(machine):
    """No machine need have a device: where nobody listens the same is shown."""
    title = "no sound device"
    silent = machine.play("silent", bench(), desktop=False)[1]
    outcome, seen = machine.play(title, bench(), **WITHOUT_SOUND)
    lines = [line for line in outcome.machine if line.startswith("quendal")]
    machine.expect(f"{title}: {lines} {outcome.lines}",
                   lines == [NO_DEVICE] and not outcome.lines)
    words = looks.text_words(seen, silent)
    machine.expect(f"{title}: {words}", words == "the same texts")
    machine.rows.append((title, words + " and no sound", f"`{NO_DEVICE}`"))


def icon_words(usual, bare):
    """`bare` holds what is seen without any icon, once that was seen."""
    def words(seen):
        if seen.words != usual.words:
            return "other texts"
        if seen.screens == usual.screens:
            return "the same screen, so the program's own icons"
        return ("the same texts on buttons without an icon" if seen in bare else
                "the same texts, and not all icons")
    return words


def icons(machine):
    folder = machine.setting.folder
    empty = {"XDG_DATA_DIRS": str(folder / "no themes")}
    (folder / "no themes").mkdir()
    lines = ["sound 2", *opened("phstark")]
    usual = machine.play("all icons", lines)[1]
    data = DataCopy(machine.setting.data, folder / "data")
    on_copy = on_data(lines, data.folder)
    shutil.rmtree(data.folder / "icons")
    bare = machine.play("no icons", on_copy, **empty)[1]
    machine.expect("icons: they are seen", bare.screens != usual.screens)
    words = icon_words(usual, (bare,))
    machine.case("no icon theme", lines, words, **empty)
    one = DataCopy(machine.setting.data, folder / "one")
    with one.fault("icons/help.svg", "missing"):
        machine.case("no icon theme, and one of the own icons is missing",
                     on_data(lines, one.folder), words, told=1, **empty)
    machine.case("no icon theme and no own icons", on_copy, words, **empty)


def font_words(usual):
    def words(seen):
        looked = "the same screen" if seen.screens == usual.screens else "in other letters"
        return looks.text_words(seen, usual) + ", " + looked
    return words


def one_font(machine):
    """The bench and the help text."""
    lines = ["sound 2", *opened("phstark")]
    lines[-2:-2] = ["click but_Help", "expect form frm_DialogHelp", looks.LOOK, "close"]
    usual = machine.play("all fonts", lines)[1]
    for font in SINGLE_FONTS:
        folder = machine.setting.folder / font
        folder.mkdir()
        shutil.copy(FONTS / (font + ".ttf"), folder)
        conf = folder / "fonts.conf"
        conf.write_text(FONTS_CONF.format(folder), encoding="utf-8")
        seen = machine.case(f"no font but one, {font}", lines, font_words(usual),
                            FONTCONFIG_FILE=str(conf))
        machine.expect(f"{font}: another screen", seen.screens != usual.screens)


def devices(setting):
    machine = Machine(setting)
    sound(machine)
    icons(machine)
    one_font(machine)
    return machine.failures, section(
        "The machine", "A task on the desktop.\n\n" +
        table(("the machine has", "the learner has", "line on standard error"), machine.rows))


class Gallery:
    """Scripts that come past each form, with a picture of it."""

    def __init__(self, folder):
        self.folder = folder
        self.forms = []

    def take(self, form):
        self.forms.append(form)
        return [f"expect form {form.split()[0]}", f'screenshot "{self.path(form)}"']

    def path(self, form):
        return self.folder / (form.replace(" ", "_") + ".png")

    def start_dialog(self):
        lines = ["name Mia", "sound 2", "start"]
        for tab in range(4):
            lines += [f"choose SSTab1 {tab}", *self.take(f"frm_DialogStartup tab {tab}")]
        return [*lines, "click ctl_Button5", "expect ended"]

    def bench(self, stem):
        lines = choose(stem)
        start = []
        if TASKS[stem][2]:
            start = self.take(TASKS[stem][2] + " " + stem.strip("-"))
        return ["name Mia", "sound 2", "start", *lines[:-2 if start else None], *start,
                *lines[-1 if start else len(lines):], "click ctl_Button1", "settle",
                *self.take(self.bench_form(stem)), *self.dialogs(stem), *QUIT]

    @staticmethod
    def bench_form(stem):
        return {"phstark": "frm_AppMainStrong", "phschwach": "frm_AppMainWeak",
                "potsilber": "frm_AppMainSilver", "lf-strong-": "frm_AppMainConducto",
                "lf-weak-": "frm_AppMainConductoWeak", "lf-silver-": "frm_AppMainConductoSilver",
                "lf-ph": "frm_AppMainConductolog"}[stem]

    def dialogs(self, stem):
        if stem != "phstark":
            return []
        return ["click but_phCompare", *self.take("frm_DialogphCompare"), "close",
                "click but_Help", *self.take("frm_DialogHelp"), "close",
                "menu mnu_HelpTerms", *self.take("frm_DialogTerms"), "close",
                *["click ctl_Button3", "settle"] * 20, "click but_Calc", "type txt_Ph 13,52",
                "key ENTER", *self.take("frm_DialogDone"), "close"]

    def scripts(self):
        yield self.start_dialog()
        for stem in TASKS:
            yield self.bench(stem)
        play = scene(POWERS)
        yield [*play[:3], *self.take("frm_AppIntro"), *play[3:5], *play[-3:]]
        shown = lens()
        yield [*shown[:3], *self.take("frm_AppMagnify"), *shown[3:]]


def pictures_of(machine, screen):
    folder = machine.setting.folder / screen
    folder.mkdir()
    gallery = Gallery(folder)
    for lines in gallery.scripts():
        outcome, _ = machine.play(f"{screen} {lines[-4:]}", [f"size {screen}", *lines])
        machine.expect(f"{screen}: {outcome.lines}", not outcome.lines)
    return {form: png_size(gallery.path(form)) for form in gallery.forms}


SCREENS = ("800x600", "3840x2160")
SHAPE = 0.01  # that the sides' ratio may differ, for whole pixels
OF_THE_SCREENS_SHAPE = "frm_DialogHelp"


def fills_the_screen(form):
    return form.startswith("frm_App") and "Start" not in form


def look_at_size(machine, screen, form, size):
    width, height = (int(side) for side in screen.split("x"))
    machine.expect(f"{form} on {screen}: {size}",
                   0 < size[0] <= width and 0 < size[1] <= height)
    if fills_the_screen(form):
        machine.expect(f"{form} fills {screen}: {size}", size == (width, height))


def look_at_shape(machine, form, sizes):
    """One scale for all of a form: were it narrower than that, something would be cut off."""
    shapes = [size[0] / size[1] for size in sizes if size[1] > 0]
    if not fills_the_screen(form) and form != OF_THE_SCREENS_SHAPE:
        machine.expect(f"{form} keeps its shape: {sizes}",
                       len(shapes) == 2 and abs(shapes[0] / shapes[1] - 1) < SHAPE)


def screens(setting):
    machine = Machine(setting)
    sizes = {screen: pictures_of(machine, screen) for screen in SCREENS}
    for form in sizes[SCREENS[0]]:
        for screen in SCREENS:
            look_at_size(machine, screen, form, sizes[screen][form])
        look_at_shape(machine, form, [sizes[screen][form] for screen in SCREENS])
        machine.rows.append((f"`{form}`", *("{} x {}".format(*sizes[screen][form])
                                            for screen in SCREENS)))
    return machine.failures, section(
        "Screens", "Each form opens, fits and is drawn; its size in pixels.\n\n" +
        table(("form", *(f"screen of {screen}" for screen in SCREENS)), machine.rows))
