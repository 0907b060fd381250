#include "weak_silver/frm_AppMainSilverStart.h"

#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/forms/arrange.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr Size kPicture{720, 440};
constexpr const char* kCommandAbort = "DIALOG.ABORT();";

char upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

} // namespace

frm_AppMainSilverStart::frm_AppMainSilverStart()
    : Form("frm_AppMainSilverStart", {kPicture.width + 2 * kDialogMargin,
                                      kPicture.height + 2 * kDialogMargin + kDialogBarRoom}) {
    setCaption("Morvik // Quendal - Potentiometrie");
    bar_Buttons.onCommand = [this](const std::string& command) { obey(command); };
    design();
}

void frm_AppMainSilverStart::design() {
    pic_Start.setPlace(kDialogMargin, kDialogMargin, kPicture.width, kPicture.height);
    pic_Start.setBackColor({244, 247, 247});
    pic_Start.setAccessibleName(
        "Versuchsaufbau: Bürette mit Silbernitrat-Lösung über einem Becherglas mit "
        "Natriumchlorid-Lösung, darin Silberelektrode und Bezugselektrode am Voltmeter");
    arrangeBar(bar_Buttons, designSize().width, designSize().height, "&OK");
}

void frm_AppMainSilverStart::Form_Load() {
    Accepted = false;
    pic_Start.setPicture(
        CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + "silver_start.gif"));
}

// Both buttons go on: there is nothing to give up yet, and that is meant.
void frm_AppMainSilverStart::obey(std::string command) {
    std::transform(command.begin(), command.end(), command.begin(), upper);
    if (command == kCommandOk || command == kCommandAbort) {
        Accepted = true;
        CoreLib().Windows.Unload(*this);
    }
}

void frm_AppMainSilverStart::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("Accepted", Accepted);
}

} // namespace quendal
