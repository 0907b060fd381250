#include "shell/frm_DialogStartup.h"

#include "animations/frm_AppIntro.h"
#include "host/host_control.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/system_info.h"
#include "host/window_system.h"
#include "shell/exercise_table.h"
#include "shell/required_points.h"
#include "shell/session/session.h"
#include "shell/teacher_control.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kLeastConcentration = 0.6; // mol/L
constexpr double kMostConcentration = 1.4;  // mol/L
constexpr double kDemoConcentration = 1.0;  // mol/L
constexpr int kSoundSilent = 2;
constexpr int kSoundOn = 3;
constexpr int kSoundAlsoOn = 1;

constexpr const char* kWelcome = "Das Programm Quendal soll Dir auf mehrere Arten helfen, alles,\r"
                                 "was bei Titrationen wichtig ist, zu begreifen und zu lernen: \r\r"
                                 "Lernanimationen zeigen:\r"
                                 "- die Verhältnisse im molekularen Bereich\r"
                                 "- die Reaktionen der verschiedenen Teilchen\r\r"
                                 "Klick-Demos zeigen:\r"
                                 "- die Auswirkungen auf pH-Wert, Leitfähigkeit oder Potenzial\r"
                                 "- den Sinn von Titrationen: Die Konzentrationsbestimmung\r\r"
                                 "Selbst rechnen zeigt Dir auf verblüffende Weise:\r"
                                 "- wie bei Titrationen Theorie und Wirklichkeit übereinstimmen\r\r"
                                 "Also los! Worauf wartest Du?";

std::string trimmed(const std::string& text) {
    constexpr const char* kBlanks = " \t\r\n";
    const auto first = text.find_first_not_of(kBlanks);
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string teacherKey(const char* key) {
    return HostApp().HostControl.Query(kControlSection, "GET", key);
}

// A mode key that is set and doesn't count; "0" is a teacher's plain way to say so.
void logUncounted(const char* key, const std::string& text) {
    if (!text.empty() && trimmed(text) != "0") {
        logTeacherKey(key, text, "keine Nummer, zählt nicht");
    }
}

} // namespace

frm_DialogStartup::frm_DialogStartup() : Form("frm_DialogStartup", {960, 600}) {
    design();
    SSTab1.onClick = [this] { SSTab1_Click(); };
    tmr_Movie.onTimer = [this] { tmr_Movie_Timer(); };
    for (const ExerciseRow& row : exerciseTable()) {
        (this->*row.button).onClick = [this, &row] { open(row); };
    }
    ctl_Button5.onClick = [this] {
        Result = kEndProgram;
        CoreLib().Windows.Unload(*this);
    };
}

void frm_DialogStartup::Form_Load() {
    constexpr int kPreset = 2; // "1.0"
    Result = kEndProgram;
    Activated = false;
    pic_Movie(0).setBackColor(palette(15));
    MovieGridColor = {220, 220, 220};
    lst_Mol.setListIndex(kPreset);
    Label5.setText(kWelcome);
    drawMovie(); // the first beat is still to come
    tmr_Movie.setEnabled(true);
}

void frm_DialogStartup::Form_Activate() {
    if (Activated) {
        return;
    }
    Activated = true;
    askName();
    obeyMode();
    obeyConcentration();
    obeyTruth("CALC", opt_CalcTerm);
    obeyTruth("POINTS", opt_NeedCalc);
    // Reserved for a class without help; whatever it holds has no effect.
    static_cast<void>(teacherKey("HELP").empty());
    obeySoundMode();
}

void frm_DialogStartup::open(const ExerciseRow& row) {
    if (row.tab == StartTab::Animations) {
        frm_AppIntro animation;
        animation.Scene = row.number;
        CoreLib().Windows.ShowModal(animation); // and back to this dialog
        return;
    }
    session().SessionDemo = row.tab == StartTab::Demos;
    Result = row.number;
    CoreLib().Windows.Unload(*this);
}

void frm_DialogStartup::SSTab1_Click() {
    if (TabLocked && SSTab1.tab() != ForcedTab) {
        SSTab1.setTab(ForcedTab);
    }
}

void frm_DialogStartup::askName() {
    HostControl& control = HostApp().HostControl;
    if (!control.UserName.empty()) {
        return;
    }
    const std::string login = CoreLib().SystemInfo.CurrentUser().Name;
    const std::string name =
        trimmed(CoreLib().MessageBox.Input("Gib Deinen Namen ein:", "Name?", login));
    control.UserName = name.empty() ? login : name;
}

void frm_DialogStartup::obeyMode() {
    const std::string text = teacherKey("MODUS");
    const auto mode = forcedMode(text);
    if (!mode) {
        logUncounted("MODUS", text);
        return;
    }
    ForcedTab = static_cast<std::int16_t>(mode->tab);
    if (mode->tab == 0) {
        logTeacherKey("MODUS", text, "keine der Zahlen 1 bis 3, es bleibt nur die Einführung");
    } else {
        narrowTab(static_cast<StartTab>(mode->tab), mode->exerciseKey);
    }
    TabLocked = true;
    SSTab1.setTab(ForcedTab);
}

void frm_DialogStartup::narrowTab(StartTab tab, const char* key) {
    const std::string text = teacherKey(key);
    const auto number = countingNumber(text);
    if (!number) {
        logUncounted(key, text);
        return;
    }
    bool anyLeft = false;
    for (const ExerciseRow& row : exerciseTable()) {
        if (row.tab == tab) {
            (this->*row.button).setVisible(*number == row.key);
            anyLeft = anyLeft || *number == row.key;
        }
    }
    if (!anyLeft) {
        logTeacherKey(key, text, "keine Übung hat diese Nummer, alle sind ausgeblendet");
    }
}

void frm_DialogStartup::obeyConcentration() {
    const std::string text = teacherKey("CON");
    if (text.empty()) {
        return;
    }
    const int count = static_cast<int>(lst_Mol.items().size());
    if (const auto index = concentrationIndex(text, count)) {
        lst_Mol.setListIndex(*index);
    } else {
        logTeacherKey("CON", text, "keine der Zahlen 1 bis 5, es bleibt bei 1.0 mol/L");
    }
    lst_Mol.setEnabled(false);
}

void frm_DialogStartup::obeyTruth(const char* key, CheckBox& box) {
    const std::string text = teacherKey(key);
    if (!text.empty()) {
        box.setChecked(teacherTruth(key, text));
        box.setEnabled(false);
    }
}

// Once a first start dialog has set the mode, each later one shows the choice and doesn't let it
// change.
void frm_DialogStartup::obeySoundMode() {
    const int mode = HostApp().SoundOptions.Mode;
    if (mode == kSoundSilent || mode == kSoundOn || mode == kSoundAlsoOn) {
        opt_EnableSounds.setChecked(mode != kSoundSilent);
        opt_EnableSounds.setEnabled(false);
    }
}

void frm_DialogStartup::Form_Unload() {
    takeConcentration();
    session().SessionNeedCalc = opt_NeedCalc.checked();
    session().SessionCalcTerm = opt_CalcTerm.checked();
    HostApp().SoundOptions.Mode = opt_EnableSounds.checked() ? kSoundOn : kSoundSilent;
    takeRequiredPoints();
    tmr_Startup.setEnabled(false);
}

void frm_DialogStartup::takeConcentration() {
    const double chosen = CoreLib().NumberService.Parse(lst_Mol.text());
    // A text that is no number gives one that no comparison holds for: it ends at the lower limit.
    const double least = chosen >= kLeastConcentration ? chosen : kLeastConcentration;
    const double clamped = std::min(least, kMostConcentration);
    session().SessionConcentration = session().SessionDemo ? kDemoConcentration : clamped;
}

void frm_DialogStartup::takeRequiredPoints() {
    StringList& points = session().SessionRequiredPoints;
    points.Clear();
    if (!session().SessionNeedCalc) {
        return;
    }
    const char* list = requiredPointsFor(session().SessionConcentration);
    if (list == nullptr) {
        CoreLib().MessageBox.Ok("Etwas Grauenvolles ist passier!", "");
        CoreLib().Windows.EndProcess();
    }
    points.Split(list, ',');
}

void frm_DialogStartup::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("Result", Result);
    table.add("ForcedTab", ForcedTab);
    table.add("TabLocked", TabLocked);
    table.add("Activated", Activated);
    table.add("MovieScene", MovieScene);
    table.add("MovieTime", MovieTime);
    table.add("MovieGridColor", MovieGridColor);
}

} // namespace quendal
