#include "shell/forms/frm_AppSplash.h"

namespace quendal {

frm_AppSplash::frm_AppSplash() : Form("frm_AppSplash", {560, 340}) {
    design();
}

} // namespace quendal
