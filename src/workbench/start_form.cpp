#include "workbench/start_form.h"

#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/forms/arrange.h"
#include "workbench/command_text.h"

namespace quendal {

namespace {

constexpr Size kPicture{720, 440};
constexpr const char* kCommandAbort = "DIALOG.ABORT();";

} // namespace

StartForm::StartForm(const StartTexts& texts)
    : Form(std::string(texts.formName), {kPicture.width + 2 * kDialogMargin,
                                         kPicture.height + 2 * kDialogMargin + kDialogBarRoom}),
      texts_(texts) {
    setCaption(std::string(texts.caption));
    bar_Buttons.onCommand = [this](const std::string& command) { obey(command); };
    design();
}

void StartForm::design() {
    pic_Start.setPlace(kDialogMargin, kDialogMargin, kPicture.width, kPicture.height);
    pic_Start.setBackColor({244, 247, 247});
    pic_Start.setAccessibleName(std::string(texts_.spoken));
    arrangeBar(bar_Buttons, designSize().width, designSize().height, "&OK");
}

void StartForm::Form_Load() {
    Accepted = false;
    pic_Start.setPicture(CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() +
                                                        std::string(texts_.picture)));
}

// Both buttons go on: there is nothing to give up yet, and that is meant.
void StartForm::obey(const std::string& command) {
    const std::string wanted = upperCase(command);
    if (wanted == kCommandOk || wanted == kCommandAbort) {
        Accepted = true;
        CoreLib().Windows.Unload(*this);
    }
}

void StartForm::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("Accepted", Accepted);
}

} // namespace quendal
