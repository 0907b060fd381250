#include "shell/forms/arrange.h"
#include "shell/forms/frm_DialogDone.h"

namespace quendal {

namespace {

constexpr const char* kCaptions[] = {"Aufgabe:",         "Punkte berechnet:", "Hilfe benötigt:",
                                     "Lösung benötigt:", "Gemachte Fehler:",  "Zeit:"};

constexpr double kTop = kDialogTitleHeight + kDialogMargin;
// The columns on the sheet: the figures, the picture, the mascot.
constexpr double kInset = 16;
constexpr double kFigures = 252;
constexpr double kPictureLeft = kDialogMargin + kInset + kFigures + 24;
constexpr Size kPicture{260, 200};
constexpr Size kMascot{112, 96};
constexpr double kFloor = 4000 / kTwipsPerUnit; // where the mascot stands and jumps from

} // namespace

void frm_DialogDone::design() {
    const Size size = designSize();
    const double bottom = size.height - kDialogBarRoom - kDialogMargin;
    setCaption("Dein Ergebnis");
    arrangeTitle(ctl_Title1, size.width,
                 {.title = "Dein Ergebnis",
                  .text = "Hier siehst Du, wie Du abgeschnitten hast",
                  .icon = ""});
    arrange(ctl_Pannel1, {kDialogMargin, kTop, size.width - 2 * kDialogMargin, bottom - kTop});
    designFigures();
    arrange(lab_Mark, {kPictureLeft, kTop + kInset, kPicture.width + kMascot.width, 40},
            kReadingFont);
    pic_Back.setAccessibleName("Bild zum Ergebnis");
    pic_Back.setPlace(kPictureLeft, bottom - 8 - kPicture.height, kPicture.width, kPicture.height);
    dra_Atom.setPlace(size.width - kDialogMargin - kInset - kMascot.width, kFloor, kMascot.width,
                      kMascot.height);
    dra_Atom.setAccessibleName("Doktor Atom");
    arrangeBar(bar_Buttons, size.width, size.height, "&OK");
}

void frm_DialogDone::designFigures() {
    constexpr double kRow = 40;
    constexpr double kCaption = 124;
    constexpr double kShortCaption = 48; // beside minutes and seconds in words
    ctl_Label* const values[] = {&lab_Task,      &lab_Points, &lab_HelpUsed,
                                 &lab_SolveUsed, &lab_Wrong,  &lab_Duration};
    for (int row = 0; row < 6; ++row) {
        const double top = kInset + row * kRow;
        const double caption = values[row] == &lab_Duration ? kShortCaption : kCaption;
        lab_Caption(row).setText(kCaptions[row]);
        arrange(lab_Caption(row), ctl_Pannel1, {kInset, top, caption, 32});
        arrange(*values[row], ctl_Pannel1, {kInset + caption, top, kFigures - caption, 32});
        values[row]->setTextAlign(TextAlign::Right);
    }
}

} // namespace quendal
