"""Every form at the moments at which it shows something else, as scripts that lead there.

stages.py FOLDER LAST_LINE"""

import os
import sys

_TASK = "name Mia\nstart\nchoose SSTab1 3\n"
_DEMO = "name Mia\nstart\nchoose SSTab1 2\n"
_STRONG = _TASK + "check opt_NeedCalc off\nclick ctl_Button3\nwait 1\n"
_FILLED = "click ctl_Button1\nsettle\nclick but_Calc\n"

STAGES = {
    "splash": "form frm_AppSplash\nstart\nwait 1\n",
    "start introduction": "name Mia\nstart\nchoose SSTab1 0\n",
    "start animations": "name Mia\nstart\nchoose SSTab1 1\n",
    "start demos": _DEMO,
    "start tasks": _TASK,
    "strong": _STRONG,
    "strong direct input": _STRONG + _FILLED,
    "strong calculation": _STRONG + _FILLED + "click but_HelpCalc\nwait 1\n",
    "weak": _TASK + "click ctl_Button4\nwait 1\n",
    "weak calculation": _TASK + "click ctl_Button4\n" + _FILLED + "click but_HelpCalc\nwait 1\n",
    "silver start": _TASK + "click ctl_Button8\n",
    "silver": _TASK + "click ctl_Button8\nclick bar_Buttons\nwait 1\n",
    "silver calculation": _TASK + "click ctl_Button8\nclick bar_Buttons\n" +
                          "click ctl_Button1\nsettle\nclick ctl_Button3\nsettle\n" +
                          "click but_Calc\nwait 1\n",
    "conducto weak start": _TASK + "click but_CunductoWeak\n",
    "conducto silver start": _TASK + "click ctl_Button11\n",
    "conducto strong start": _TASK + "click ctl_Button9\n",
    "conducto strong": _TASK + "click ctl_Button9\nclick bar_Buttons\nwait 1\n",
    "conducto strong calculation": _TASK + "click ctl_Button9\nclick bar_Buttons\n" + _FILLED +
                                   "click but_HelpCalc\nwait 1\n",
    "conducto weak": _TASK + "click but_CunductoWeak\nclick bar_Buttons\nwait 1\n",
    "conducto silver": _TASK + "click ctl_Button11\nclick bar_Buttons\nwait 1\n",
    "conducto silver calculation": _TASK + "click ctl_Button11\nclick bar_Buttons\n" + _FILLED +
                                   "click but_HelpCalc\nwait 1\n",
    "conducto log": _DEMO + "click ctl_Button19\nclick bar_Buttons\nwait 1\n",
    "conducto log calculation": _DEMO + "click ctl_Button19\nclick bar_Buttons\n" + _FILLED +
                                "wait 1\n",
    "demo": _DEMO + "click ctl_Button15\n" + "click ctl_Button1\nsettle\nclick but_Calc\nwait 1\n",
    "help": _STRONG + "click but_Help\n",
    "formula sheet": _STRONG + "menu mnu_HelpTerms\n",
    "comparison": _STRONG + _FILLED + "type txt_Ph 0\nkey ENTER\nwait 1\nclick but_phCompare\n",
    "result": None,  # filled in below: at the end of a task
    "animation": "form frm_AppIntro Scene 1\nstart\nwait 1\n",
    "lesson": "form frm_AppIntro Scene 0\nstart\nwait 1\n",
    "lens": "form frm_AppMagnify ShowAcid true SourceLeft 100 SourceTop 100 SourceRight 500 "
            "SourceBottom 400\nstart\nwait 2\n",
}

STAGES["result"] = (_STRONG + "click ctl_Button1\nsettle\n" + 20 * "click ctl_Button3\nsettle\n" +
                    "click but_Calc\ntype txt_Ph 13,52\nkey ENTER\n")


def write_all(folder, last):
    """A script for each stage, with lines that come last."""
    os.makedirs(folder, exist_ok=True)
    for name, lines in STAGES.items():
        with open(os.path.join(folder, name.replace(" ", "_") + ".qs"), "w",
                  encoding="utf-8") as script:
            script.write(lines + last)


if __name__ == "__main__":
    write_all(sys.argv[1], sys.argv[2] + "\n")
