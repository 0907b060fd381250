// The result of a finished task: figures, mark in words, the mascot's mood, a picture and a sound.
// Made anew for each result.
#pragma once

#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/timer.h"

namespace quendal {

class frm_DialogDone final : public Form {
  public:
    frm_DialogDone();

    // Written by the caller before the show.
    double Duration = 0; // seconds from the start of the task to the last point
    int Task = 0;        // points that the task is worth
    int Points = 0;      // calculated points of the curve
    int HelpUsed = 0;
    int SolveUsed = 0;
    int Wrong = 0;

    // Computed in Load.
    int Mark = 0;  // from 1, the best, to 6
    int Score = 0; // may be negative

    ctl_Title ctl_Title1{*this, "ctl_Title1"};
    ctl_Pannel ctl_Pannel1{*this, "ctl_Pannel1"}; // the sheet that the figures stand on
    ControlArray<ctl_Label> lab_Caption{*this, "lab_Caption", 0, 5};
    ctl_Label lab_Task{*this, "lab_Task"};
    ctl_Label lab_Points{*this, "lab_Points"};
    ctl_Label lab_HelpUsed{*this, "lab_HelpUsed"};
    ctl_Label lab_SolveUsed{*this, "lab_SolveUsed"};
    ctl_Label lab_Wrong{*this, "lab_Wrong"};
    ctl_Label lab_Duration{*this, "lab_Duration"};
    ctl_Label lab_Mark{*this, "lab_Mark"};
    PictureBox pic_Back{*this, "pic_Back"};
    ctl_DrAtom dra_Atom{*this, "dra_Atom"};
    ctl_CmdBar bar_Buttons{*this, "bar_Buttons"};
    Timer tmr_Move{*this, "tmr_Move", 50};

    void describe(FieldTable& table) const override;
    void Form_Load() override;

  private:
    void design();
    void designFigures();
    void fillLabels();
    void present();
    void tmr_Move_Timer();

    double Speed = 0; // of the mascot's jump, twips a tick, downward
};

} // namespace quendal
