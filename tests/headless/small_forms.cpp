#include "headless/small_forms.h"

#include "host/calculator.h"
#include "host/clock.h"
#include "host/host_control.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"

namespace quendal::test {

SmallDialog::SmallDialog() : Form("frm_SmallDialog", {300, 200}) {
    but_Close.onClick = [this] { CoreLib().Windows.Unload(*this); };
}

SmallForm::SmallForm() : Form("frm_Small", {1000, 500}) {
    setCaption("Klein");
    setWindowState(WindowState::Maximised);
    but_Hidden.setVisible(false);
    but_Disabled.setEnabled(false);
    lab_Text.setText("Zeile 1\r\nZeile 2");
    lab_Term.setTerm("c(HCl)");
    lst_Items.setItems({"0.8", "1.0", "10"});
    tab_Pages.setCaptions({"eins", "zwei"});
    but_OnPage.setContainer(tab_Pages, 1);
    pic_Field.setPlace(10, 20, 100, 50);
    bar_Buttons.setButtons({{"DIALOG.OK();", "&OK", {}}, {"DIALOG.ABORT();", "&Abbrechen", {}}});
    hookButtons();
    hookServices();
}

void SmallForm::hookButtons() {
    but_Count.onClick = [this] { ++sCount; };
    but_Frames.onClick = [this] {
        sBusy = true;
        runFrames(50);
        sBusy = false;
        ++sCount;
    };
    but_Dialog.onClick = [] {
        SmallDialog dialog;
        CoreLib().Windows.ShowModal(dialog);
    };
    but_Later.onClick = [this] { tmr_Unload.setEnabled(true); };
    tmr_Unload.onTimer = [this] { CoreLib().Windows.Unload(*this); };
    tmr_Tick.onTimer = [this] { ++sTicks; };
    but_Indexed.onClick = [this] { sLast = "indexed"; };
    but_OnPage.onClick = [this] { sLast = "on page"; };
    opt_Two.onClick = [this] { sLast = "two"; };
    chk_Box.onClick = [this] { sLast = "box"; };
    lst_Items.onClick = [this] { sLast = "item " + lst_Items.text(); };
    tab_Pages.onClick = [this] { sLast = "page " + std::to_string(tab_Pages.tab()); };
    txt_Value.onKey = [this](Key key) {
        sLast = key == Key::Enter ? "enter in value" : sLast;
        return key == Key::Enter;
    };
    pic_Field.onMouse = [this](double x, double y, MouseButton button) {
        sLast = std::to_string(int(x)) + " " + std::to_string(int(y)) +
                (button == MouseButton::Right ? " right" : " left");
    };
    bar_Buttons.onCommand = [this](const std::string& command) { sLast = command; };
    exe_Commands.onCommand = [this](const std::string& command) { sLast = command; };
    mnu_Item.onClick = [this] { sLast = "menu"; };
}

void SmallForm::hookServices() {
    but_Ask.onClick = [this] { ask(); };
    but_Boxes.onClick = [this] { showBoxes(); };
    but_Calc.onClick = [this] { openCalculator(); };
    but_Sounds.onClick = [this] { playSounds(); };
}

void SmallForm::ask() {
    MessageBox& boxes = CoreLib().MessageBox;
    sLast = boxes.YesNo("Weiter?", "") == BoxAnswer::Yes ? "yes" : "no";
    sLast += " " + boxes.Input("Wie heißt Du?", "Name", "Vorschlag");
}

void SmallForm::showBoxes() {
    CoreLib().MessageBox.Ok("Eins\nZwei", "");
    CoreLib().MessageBox.Info("Fertig", "Punkt");
    CoreLib().MessageBox.Alarm("Halt", "Achtung", "");
    HostApp().Calculator.ShowAbout();
}

void SmallForm::openCalculator() {
    CalcPresets presets;
    presets.Init(8);
    presets.Add(" ", "2*0,5");
    presets.Add(" ", "1/0");
    presets.Finish();
    const auto value = HostApp().Calculator.Show(0, 0, 0, 0, presets);
    sLast = value ? NumberService::pointText(*value) : "aborted";
}

void SmallForm::playSounds() {
    HostApp().SoundBank.Signal(1);
    HostApp().SoundBank.Play("correct", 0);
    HostApp().SoundBank.PlayFile("data/sounds\\ex.wav", 0);
    HostApp().HostControl.ReportProgress(3, 1, 0, 0, "", "", "STATUS", 0, 10, 1);
    HostApp().HostControl.ReportResult(900, 1.3, "Sehr gut", 1, "");
}

void SmallForm::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("sCount", sCount);
    table.add("sTicks", sTicks);
    table.add("sBusy", sBusy);
    table.add("sLast", sLast);
    table.add("sUnset", sUnset);
    table.add("sNumber", sNumber);
    table.addArray("sFlags", sFlags, 1);
    table.addGetter("sKey", [] {
        return FieldValue(HostApp().HostControl.Query(kControlSection, "GET", "Con"));
    });
    table.addGetter("sRandom", [] { return FieldValue(CoreLib().Random.next()); });
}

bool SmallForm::Form_KeyDown(Key key) {
    if (key == Key::Escape) {
        sLast = "escape";
    }
    return key == Key::Escape || (key == Key::Tab && sKeepsTab);
}

void SmallForm::Form_MouseDown(double x, double y, MouseButton /*button*/) {
    sLast = "form " + std::to_string(int(x)) + " " + std::to_string(int(y));
}

void SmallForm::Form_Activate() {
    while (sLoop && shown()) {
        runFrames(1);
    }
}

void SmallForm::runFrames(int turns) {
    for (int turn = 0; turn < turns && shown(); ++turn) {
        CoreLib().Windows.DoEvents();
        CoreLib().Clock.SleepMs(20);
    }
}

void showSmallForm() {
    SmallForm form;
    CoreLib().Windows.ShowModal(form);
}

void showBusyForm() {
    SmallForm form;
    form.sLoop = true;
    CoreLib().Windows.ShowModal(form);
}

void showFormThatKeepsTab() {
    SmallForm form;
    form.sKeepsTab = true;
    CoreLib().Windows.ShowModal(form);
}

} // namespace quendal::test
