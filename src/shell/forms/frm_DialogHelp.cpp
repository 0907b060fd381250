#include "shell/forms/frm_DialogHelp.h"

#include "host/number_service.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/forms/arrange.h"

namespace quendal {

namespace {

constexpr double kShareOfScreen = 0.9;

// In the middle of the screen, on whole units.
Rect middleOf(Size screen) {
    const double width = roundToInt(kShareOfScreen * screen.width);
    const double height = roundToInt(kShareOfScreen * screen.height);
    return {static_cast<double>(roundToInt((screen.width - width) / 2)),
            static_cast<double>(roundToInt((screen.height - height) / 2)), width, height};
}

} // namespace

frm_DialogHelp::frm_DialogHelp() : Form("frm_DialogHelp", {900, 620}) {
    design();
    ctl_CmdBar1.onCommand = [this](const std::string&) { CoreLib().Windows.Unload(*this); };
}

void frm_DialogHelp::Form_Load() {
    txt_RTF.LoadFile(HostApp().PathService.DataPath() + "help\\" + FileName);
    moveTo(middleOf(CoreLib().Windows.screen()));
}

void frm_DialogHelp::Form_Resize() {
    if (windowState() == WindowState::Minimised) {
        return;
    }
    ctl_Title1.setPlace(0, 0, inner().width, ctl_Title1.place().height);
    ctl_CmdBar1.setPlace(barPlace(inner().width, inner().height));
    const Rect& text = txt_RTF.place();
    const double width = inner().width - 2 * text.left;
    const double height = inner().height - text.top - text.left - ctl_CmdBar1.place().height;
    // A window too small for any text leaves it as it was.
    if (width >= 0 && height >= 0) {
        txt_RTF.setPlace(text.left, text.top, width, height);
    }
}

void frm_DialogHelp::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("FileName", FileName);
}

} // namespace quendal
