// The hub of a session: learning animations, click demos and tasks to choose from, the settings of
// a task, and the teacher's say in both. The entry routine makes a new one for each round.
#pragma once

#include "host/buttons.h"
#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/timer.h"

#include <cstdint>

namespace quendal {

struct ExerciseRow;
enum class StartTab;

class frm_DialogStartup final : public Form {
  public:
    // Result code of a dialog that opens nothing: the program ends.
    static constexpr int kEndProgram = 3;

    frm_DialogStartup();

    std::int32_t Result = kEndProgram; // what the entry routine opens
    std::int16_t ForcedTab = 0;        // tab that the teacher fixed
    bool TabLocked = false;            // ForcedTab can't be left
    bool Activated = false;            // the teacher's keys have been read
    std::int32_t MovieScene = 0;       // 0 before the first reset, then 1 to 6
    double MovieTime = 0;              // in the scene, 0 to 20
    Color MovieGridColor;              // grid lines of the movie

    ctl_Header ctl_Header1{*this, "ctl_Header1"};
    ctl_Pannel ctl_Pannel1{*this, "ctl_Pannel1"};
    ctl_Label Label1{*this, "Label1"};
    ctl_Label Label2{*this, "Label2"};
    TabControl SSTab1{*this, "SSTab1"};

    ctl_Label Label5{*this, "Label5"}; // welcome
    ctl_DrAtom dra_Atom{*this, "dra_Atom"};
    ctl_Frame ctl_Frame1{*this, "ctl_Frame1"};
    ControlArray<PictureBox> pic_Movie{*this, "pic_Movie", 0, 0};

    ctl_Label Label6{*this, "Label6"};
    ctl_Button but_IntroLeit{*this, "but_IntroLeit"};
    ctl_Button ctl_Button2{*this, "ctl_Button2"};
    ctl_Button ctl_Button10{*this, "ctl_Button10"};
    ctl_Button ctl_Button1{*this, "ctl_Button1"};
    ctl_Button ctl_Button6{*this, "ctl_Button6"};
    ctl_Button ctl_Button7{*this, "ctl_Button7"};
    ctl_Button ctl_Button12{*this, "ctl_Button12"};

    ctl_Button ctl_Button13{*this, "ctl_Button13"};
    ctl_Button ctl_Button19{*this, "ctl_Button19"};
    ctl_Button Ctl_Button18{*this, "Ctl_Button18"};
    ctl_Button ctl_Button14{*this, "ctl_Button14"};
    ctl_Button ctl_Button15{*this, "ctl_Button15"};
    ctl_Button ctl_Button16{*this, "ctl_Button16"};
    ctl_Button ctl_Button17{*this, "ctl_Button17"};

    ctl_Button ctl_Button9{*this, "ctl_Button9"};
    ctl_Button but_CunductoWeak{*this, "but_CunductoWeak"};
    ctl_Button ctl_Button11{*this, "ctl_Button11"};
    ctl_Button ctl_Button3{*this, "ctl_Button3"};
    ctl_Button ctl_Button4{*this, "ctl_Button4"};
    ctl_Button ctl_Button8{*this, "ctl_Button8"};
    ctl_Seperator ctl_Seperator1{*this, "ctl_Seperator1"};
    ctl_Label Label3{*this, "Label3"};
    ListBox lst_Mol{*this, "lst_Mol"}; // mol/L
    ctl_Label Label4{*this, "Label4"};
    CheckBox opt_CalcTerm{*this, "opt_CalcTerm"};
    CheckBox opt_NeedCalc{*this, "opt_NeedCalc"};
    CheckBox opt_EnableSounds{*this, "opt_EnableSounds"};

    ctl_Button ctl_Button5{*this, "ctl_Button5"}; // ends the program
    ctl_StatusBar ctl_StatusBar1{*this, "ctl_StatusBar1"};
    Timer tmr_Startup{*this, "tmr_Startup", 1000}; // has no handler
    Timer tmr_Movie{*this, "tmr_Movie", 50};

    void describe(FieldTable& table) const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void design();
    void designHead();
    void designIntroduction();
    void designExercises();
    void designSettings();

    void open(const ExerciseRow& row);
    void SSTab1_Click();
    void tmr_Movie_Timer();
    void drawMovie();

    void askName();
    void obeyMode();
    void narrowTab(StartTab tab, const char* key);
    void obeyConcentration();
    void obeyTruth(const char* key, CheckBox& box);
    void obeySoundMode();
    void takeConcentration();
    void takeRequiredPoints();
};

} // namespace quendal
