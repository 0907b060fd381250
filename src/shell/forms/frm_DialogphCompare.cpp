#include "shell/forms/frm_DialogphCompare.h"

#include "host/chart.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "shell/session/session.h"

namespace quendal {

frm_DialogphCompare::frm_DialogphCompare() : Form("frm_DialogphCompare", {940, 640}) {
    design();
    ctl_CmdBar1.onCommand = [this](const std::string&) { CoreLib().Windows.Unload(*this); };
}

void frm_DialogphCompare::Form_Load() {
    constexpr double kLettering = 8.0; // points
    if (session().SessionChartView != nullptr) {
        session().SessionChartView->RenderTo(pic_pH, 0, 0, kLettering);
    }
}

void frm_DialogphCompare::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("ShowBreak", ShowBreak);
    table.add("BreakIndex", BreakIndex);
}

} // namespace quendal
