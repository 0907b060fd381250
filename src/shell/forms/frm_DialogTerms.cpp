#include "shell/forms/frm_DialogTerms.h"

#include "host/roots.h"
#include "host/window_system.h"

namespace quendal {

frm_DialogTerms::frm_DialogTerms() : Form("frm_DialogTerms", {900, 640}) {
    design();
    ctl_CmdBar1.onCommand = [this](const std::string&) { CoreLib().Windows.Unload(*this); };
}

} // namespace quendal
