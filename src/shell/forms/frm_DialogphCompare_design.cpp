#include "shell/forms/arrange.h"
#include "shell/forms/frm_DialogphCompare.h"

namespace quendal {

void frm_DialogphCompare::design() {
    constexpr double kText = 24;
    constexpr double kStatus = 24;
    const Size size = designSize();
    const double width = size.width - 2 * kDialogMargin;
    const double barTop = size.height - kStatus - kDialogBarRoom;
    const double pictureTop = kDialogMargin + kText + 8;
    setCaption("Vergleich: Deine Rechnungen und der 'richtige' Verlauf");
    Label1.setText("In dem Graphen siehst Du die praktische Titrationskurve  in welche die von Dir "
                   "berechneten Punkte  eingezeichnet wurden.");
    arrange(Label1, {kDialogMargin, kDialogMargin, width, kText});
    pic_pH.setAccessibleName("Titrationskurve mit Deinen berechneten Punkten");
    arrange(pic_pH, {kDialogMargin, pictureTop, width, barTop - 8 - pictureTop});
    arrangeBar(ctl_CmdBar1, size.width, size.height - kStatus, "&Schließen");
    arrange(ctl_StatusBar1, {0, size.height - kStatus, size.width, kStatus});
}

} // namespace quendal
