// A small program for the player's tests: one form with every kind of control that a script can
// work, and a dialog that it opens.
#pragma once

#include "host/buttons.h"
#include "host/chart.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace quendal::test {

class SmallDialog final : public Form {
  public:
    SmallDialog();
    ctl_Button but_Close{*this, "but_Close"};
};

class SmallForm final : public Form {
  public:
    SmallForm();

    void describe(FieldTable& table) const override;
    bool Form_KeyDown(Key key) override;
    void Form_MouseDown(double x, double y, MouseButton button) override;
    void Form_Activate() override;

    // 20 ms a turn for so many turns, with events let in.
    void runFrames(int turns);

    ctl_Button but_Count{*this, "but_Count"};   // counts
    ctl_Button but_Frames{*this, "but_Frames"}; // a paced loop of 1 s, counts at its end
    ctl_Button but_Dialog{*this, "but_Dialog"};
    ctl_Button but_Later{*this, "but_Later"}; // the timer unloads the form
    ctl_Button but_Ask{*this, "but_Ask"};
    ctl_Button but_Boxes{*this, "but_Boxes"};
    ctl_Button but_Calc{*this, "but_Calc"};
    ctl_Button but_Sounds{*this, "but_Sounds"};
    ctl_Button but_Hidden{*this, "but_Hidden"};
    ctl_Button but_Disabled{*this, "but_Disabled"};
    ctl_Button but_Indexed{*this, "but_Indexed", 3};
    clt_TermInput txt_Value{*this, "txt_Value"};
    ctl_Label lab_Text{*this, "lab_Text"};
    ctl_TermLabel lab_Term{*this, "lab_Term"};
    OptionButton opt_One{*this, "opt_Choice", 0};
    OptionButton opt_Two{*this, "opt_Choice", 1};
    CheckBox chk_Box{*this, "chk_Box"};
    ListBox lst_Items{*this, "lst_Items"};
    TabControl tab_Pages{*this, "tab_Pages"};
    ctl_Button but_OnPage{*this, "but_OnPage"}; // stands on page 1
    PictureBox pic_Field{*this, "pic_Field"};
    ctl_CmdBar bar_Buttons{*this, "bar_Buttons"};
    ctl_Executor exe_Commands{*this, "exe_Commands"};
    Menu mnu_Item{*this, "mnu_Item", "&Tu was"};
    Timer tmr_Tick{*this, "tmr_Tick", 100};
    Timer tmr_Unload{*this, "tmr_Unload", 100};

    int sCount = 0;
    int sTicks = 0;
    bool sLoop = false; // Activate runs frames until the form leaves
    bool sBusy = false;
    bool sKeepsTab = false;
    std::string sLast; // what the learner did last
    std::array<bool, 3> sFlags{false, true, false};
    std::optional<double> sUnset;
    double sNumber = 0.1;

  private:
    void hookButtons();
    void hookServices();
    void ask();
    void showBoxes();
    void openCalculator();
    void playSounds();
};

// Shows the form until it has left the screen.
void showSmallForm();
// The same with a form that keeps drawing frames.
void showBusyForm();
// The same with a form that doesn't hand Tab on.
void showFormThatKeepsTab();

} // namespace quendal::test
