#include "shell/forms/arrange.h"
#include "shell/forms/frm_DialogDone.h"

namespace quendal {

namespace {

constexpr const char* kCaptions[] = {"Aufgabe:",         "Punkte berechnet:", "Hilfe benötigt:",
                                     "Lösung benötigt:", "Gemachte Fehler:",  "Zeit:"};

// Columns: the figures, the picture, the mascot.
constexpr double kTop = kDialogTitleHeight + kDialogMargin;
constexpr double kSheetWidth = 284;
constexpr Size kPicture{260, 200};
constexpr double kMascotSize = 104;
constexpr double kMascotWidth = 120;
constexpr double kFloor = 4000 / kTwipsPerUnit; // where the mascot stands and jumps from

} // namespace

void frm_DialogDone::design() {
    constexpr double kRow = 36;
    constexpr double kInset = 16;
    constexpr double kCaption = 124;
    constexpr double kShortCaption = 48;
    const Size size = designSize();
    const double bottom = size.height - kDialogBarHeight;
    setCaption("Dein Ergebnis");
    arrangeTitle(ctl_Title1, size.width,
                 {.title = "Dein Ergebnis",
                  .text = "Hier siehst Du, wie Du abgeschnitten hast",
                  .icon = ""});
    arrange(ctl_Pannel1, {kDialogMargin, kTop, kSheetWidth, bottom - kTop - kDialogMargin});

    ctl_Label* const values[] = {&lab_Task,      &lab_Points, &lab_HelpUsed,
                                 &lab_SolveUsed, &lab_Wrong,  &lab_Duration};
    for (int row = 0; row < 6; ++row) {
        const double top = kInset + row * kRow;
        ctl_Label& value = *values[row];
        lab_Caption(row).setText(kCaptions[row]);
        arrange(lab_Caption(row), ctl_Pannel1, {kInset, top, kCaption, 24});
        arrange(value, ctl_Pannel1,
                {kInset + kCaption, top, kSheetWidth - kCaption - 2 * kInset, 24});
        value.setTextAlign(TextAlign::Right);
    }
    // Minutes and seconds in words need more room than a number.
    const Rect last = lab_Duration.place();
    lab_Caption(5).setPlace(kInset, last.top, kShortCaption, last.height);
    lab_Duration.setPlace(kInset + kShortCaption, last.top,
                          kSheetWidth - kShortCaption - 2 * kInset, last.height);
    arrange(lab_Mark, ctl_Pannel1, {kInset, kInset + 6 * kRow, kSheetWidth - 2 * kInset, 40},
            kReadingFont);
    lab_Mark.setTextAlign(TextAlign::Right);

    // The picture stands on the ground of the sheet, the mascot beside it.
    pic_Back.setPlace(kDialogMargin + kSheetWidth + kDialogMargin,
                      bottom - kDialogMargin - kPicture.height, kPicture.width, kPicture.height);
    const double mascotLeft = size.width - kDialogMargin - kMascotWidth;
    dra_Atom.setPlace(mascotLeft, kFloor, kMascotWidth, kMascotSize);
    dra_Atom.setAccessibleName("Doktor Atom");
    arrangeBar(bar_Buttons, size.width, size.height, "&OK");
}

} // namespace quendal
