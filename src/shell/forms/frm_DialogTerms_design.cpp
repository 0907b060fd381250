#include "shell/forms/arrange.h"
#include "shell/forms/frm_DialogTerms.h"

namespace quendal {

namespace {

// Unbalanced parentheses and the formula that stands there twice belong to the sheet.
constexpr const char* kTerms[] = {
    " pH = - log (c(H3O+))",
    "pH = 14 + log(c(OH-))",
    "pH = 0.5 (pKµS - log (cµV(HAc))",
    "pH = 14 -  0.5 (pKµB - log(cµV(Ac-))",
    "pH = pKµS - log(c(HAc) / c(Ac-)     (= MWG)",
    "pH = pKµS  (im Halbäquivalenzunkt)",
    "pH = - log (cµV(HAc) * VµV(HAc) - cµB(OH) * VµB(OH) / (VµV(HAc)+ VµZ(OH))",
    "pH = 14 - log(cµB(OH) * VµB(OH) - cµV(HAc) * VµV(HAc) / (VµV(HAc)+ VµZ(OH))",
    "pH = 14 - log(cµB(OH) * VµB(OH) - cµV(HAc) * VµV(HAc) / (VµV(HAc)+ VµZ(OH))",
    "pH = pKµS - log (cµV(HAc)*VµV(HAc) / (cµV(HAc)*VµV(HAc) - cµZ(OH)*VµZ(OH) )  ",
    "pH = 0.5 (pKµS - log (cµV(HAc))",
    "pH = 14 -  0.5 (14-pKµS - log(cµV(HAc)*VµV(HAc) / (VµV(HAc)+ VµZ(OH))",
};

} // namespace

void frm_DialogTerms::design() {
    constexpr double kRow = 38;
    constexpr double kPadding = 12;
    const FontSpec kSheetFont{.size = 19}; // subscripts of subscripts must be read
    const Size size = designSize();
    setCaption("Formelsammlung");
    arrangeTitle(ctl_Title1, size.width,
                 {.title = "Hilfe",
                  .text = "Hier stehen 'alle' wichtigen Formeln für die Berechnung",
                  .icon = kHelpIcon});
    const double top = kDialogTitleHeight + kDialogMargin;
    const double width = size.width - 2 * kDialogMargin;
    arrange(ctl_Pannel1,
            {kDialogMargin, top, width, size.height - top - kDialogMargin - kDialogBarRoom});
    lab_Term.each([&](int index, ctl_TermLabel& label) {
        label.setTerm(kTerms[index]);
        arrange(label, ctl_Pannel1,
                {2 * kPadding, kPadding + index * kRow, width - 4 * kPadding, kRow}, kSheetFont);
    });
    arrangeBar(ctl_CmdBar1, size.width, size.height, "&Schließen");
}

} // namespace quendal
