#include "shell/forms/arrange.h"
#include "shell/forms/frm_DialogHelp.h"

namespace quendal {

void frm_DialogHelp::design() {
    const Size size = designSize();
    setCaption("Ausführliche Hilfe zur Berechnung");
    arrangeTitle(ctl_Title1, size.width,
                 {.title = "Hilfe",
                  .text = "Folgende Anweisungen sollen Ihnen helfen, die Berechnungen besser zu "
                          "verstehen",
                  .icon = kHelpIcon});
    const double top = kDialogTitleHeight + kDialogMargin;
    arrange(txt_RTF, {kDialogMargin, top, size.width - 2 * kDialogMargin,
                      size.height - top - kDialogMargin - kDialogBarRoom});
    txt_RTF.setAccessibleName("Hilfetext");
    arrangeBar(ctl_CmdBar1, size.width, size.height, "&Schließen");
}

} // namespace quendal
