#include "shell/forms/frm_DialogDone.h"

#include "host/graphics.h"
#include "host/host_control.h"
#include "host/number_service.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "shell/forms/scoring.h"

#include <algorithm>

namespace quendal {

namespace {

enum class Mascot { Rests, Jumps };

struct MarkRow {
    const char* text;
    int mood;
    const char* picture; // empty for none
    const char* sound;
    Mascot mascot = Mascot::Rests;
};

constexpr MarkRow kMarks[] = {
    {"Sehr gut", 2, "win.gif", "result_good", Mascot::Jumps},
    {"Gut", 2, "win_small.gif", "clapping"},
    {"Befriedigend", 1, "", "correct"},
    {"Ausreichend", 6, "", "say"},
    {"Mangelhaft", 5, "bad.gif", "wrong"},
    {"Ungenügend", 3, "bad.gif", "result_bad"},
};

std::string times(int count) {
    return std::to_string(count) + " mal";
}

} // namespace

frm_DialogDone::frm_DialogDone() : Form("frm_DialogDone", {720, 440}) {
    design();
    bar_Buttons.onCommand = [this](const std::string&) { CoreLib().Windows.Unload(*this); };
    tmr_Move.onTimer = [this] { tmr_Move_Timer(); };
}

void frm_DialogDone::Form_Load() {
    fillLabels();
    Score = scoreOf({.duration = Duration,
                     .task = Task,
                     .points = Points,
                     .helpUsed = HelpUsed,
                     .solveUsed = SolveUsed});
    Mark = markOf(Task, Score);
    present();
    HostApp().HostControl.ReportResult(Score, Mark, lab_Mark.text(), 1, "");
}

void frm_DialogDone::fillLabels() {
    lab_Task.setText(std::to_string(Task));
    lab_Points.setText(std::to_string(Points));
    lab_HelpUsed.setText(times(HelpUsed));
    lab_SolveUsed.setText(times(SolveUsed));
    lab_Wrong.setText(times(Wrong));
    lab_Duration.setText(durationText(Duration, CoreLib().NumberService));
}

void frm_DialogDone::present() {
    const MarkRow& row = kMarks[Mark - 1];
    const std::string picture = row.picture;
    lab_Mark.setText(row.text);
    dra_Atom.setMood(row.mood);
    pic_Back.setVisible(!picture.empty());
    if (!picture.empty()) {
        pic_Back.setPicture(
            CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + picture));
    }
    HostApp().SoundBank.Play(row.sound, 0);
    tmr_Move.setEnabled(row.mascot == Mascot::Jumps);
}

// In twips, as the floor is given in them; the place on the form is in design px.
void frm_DialogDone::tmr_Move_Timer() {
    constexpr double kPixel = kTwipsPerUnit;
    constexpr int kFloor = 4000;
    constexpr double kFastest = 10 * kPixel;
    if (Speed == 0) {
        Speed = -kFastest;
    }
    int top = roundToInt(roundToInt(dra_Atom.place().top * kTwipsPerUnit) + Speed);
    if (top > kFloor) {
        top = kFloor;
        Speed = -kFastest;
    }
    dra_Atom.setTop(top / kTwipsPerUnit);
    Speed += kPixel;
    // Not at rest at the top of the jump: rest would start a new one in mid-flight.
    if (Speed == 0) {
        Speed = kPixel;
    }
    Speed = std::min(Speed, kFastest);
}

void frm_DialogDone::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("Duration", Duration);
    table.add("Task", Task);
    table.add("Points", Points);
    table.add("HelpUsed", HelpUsed);
    table.add("SolveUsed", SolveUsed);
    table.add("Wrong", Wrong);
    table.add("Mark", Mark);
    table.add("Score", Score);
    table.add("Speed", Speed);
}

} // namespace quendal
