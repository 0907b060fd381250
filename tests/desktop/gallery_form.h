// A form with every control there is, for tests of the windows and for looking at them.
#pragma once

#include "host/buttons.h"
#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/menu.h"
#include "host/panels.h"
#include "host/pictures.h"

#include <string>
#include <vector>

namespace quendal::test {

class GalleryForm final : public Form {
  public:
    GalleryForm();

    void Form_Load() override;
    void Form_Resize() override { ++resizes; }
    bool Form_KeyDown(Key key) override;

    // What was reported, in order: "click but_Plain", "typed 0,8" ...
    std::vector<std::string> events;
    std::vector<Key> keys;      // that the form saw first
    Key swallowed = Key::Other; // taken by the form, unless it is Other
    int resizes = 0;

    ctl_Header header{*this, "header"};
    ctl_Title title{*this, "title"};
    ctl_Frame frame{*this, "frame"};
    ctl_Button but_Plain{*this, "but_Plain"};
    ctl_Button but_Now{*this, "but_Now"};
    ctl_Button but_Off{*this, "but_Off"};
    ctl_Button but_Wide{*this, "but_Wide"};
    ctl_Label lab_Text{*this, "lab_Text"};
    ctl_Label lab_Long{*this, "lab_Long"};
    ctl_Label lab_Turned{*this, "lab_Turned"};
    ctl_Label lab_Grey{*this, "lab_Grey"};
    ctl_TermLabel lab_Term{*this, "lab_Term"};
    ctl_TermLabel lab_Fraction{*this, "lab_Fraction"};
    clt_TermInput txt_Ph{*this, "txt_Ph"};
    clt_TermInput txt_Locked{*this, "txt_Locked"};
    ctl_Seperator rule{*this, "rule"};
    Line line{*this, "line"};
    ctl_Pannel panel{*this, "panel"};
    ctl_Image image{*this, "image"};
    TabControl tabs{*this, "tabs"};
    ControlArray<OptionButton> options{*this, "opt_Calc", 0, 2};
    CheckBox check{*this, "check"};
    CheckBox checkOff{*this, "checkOff"};
    ListBox list{*this, "list"};
    PictureBox picture{*this, "picture"};
    PictureBox overlay{*this, "overlay"};
    RichTextBox richText{*this, "richText"};
    ControlArray<ctl_DrAtom> atoms{*this, "dra_Atom", {1, 2, 3, 5, 6}};
    ctl_DrAtom speaker{*this, "speaker"};
    ctl_Executor executor{*this, "executor"};
    ctl_CmdBar bar{*this, "bar"};
    ctl_StatusBar status{*this, "status"};

    Menu file{*this, "mnu_File", "&Datei"};
    Menu fileNew{file, "mnu_FileNew", "&Neu beginnen"};
    Menu help{*this, "mnu_Help", "&Hilfe"};
    Menu helpAbout{help, "mnu_HelpAbout", "&Info über"};

  private:
    void design();
    void designFrame();
    void designTabs();
    void designMascots();
    void hook();
    void drawPicture();
};

} // namespace quendal::test
