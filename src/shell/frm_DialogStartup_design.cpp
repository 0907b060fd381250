#include "host/graphics.h"
#include "host/path_service.h"
#include "host/roots.h"
#include "shell/exercise_table.h"
#include "shell/forms/arrange.h"

#include <initializer_list>

namespace quendal {

namespace {

constexpr double kWidth = 960;
constexpr double kMargin = kDialogMargin;
constexpr double kHeaderHeight = 96;
constexpr Rect kWelcomePanel{kMargin, 104, kWidth - 2 * kMargin, 72};
constexpr Rect kMascot{kWelcomePanel.width - kMargin - 68, 2, 68, 68}; // on the panel
constexpr Rect kTabs{kMargin, 184, kWidth - 2 * kMargin, 336};
constexpr double kInset = 24; // from the edge of the tab control to what stands on it
constexpr double kColumn = 432;
constexpr double kGap = 16;
constexpr double kFirstRow = 64; // below the row of tabs
constexpr double kRow = 48;
constexpr double kButton = 40;

constexpr const char* kNextIcon = "Ico\\20\\Computer\\Signs\\Next.ico";
constexpr const char* kCameraIcon = "Ico\\20\\Multimedia\\Video\\Camera.ico";
constexpr const char* kQuitIcon = "Ico\\20\\Computer\\Signs\\Quit.ico";

int pageOf(StartTab tab) {
    return static_cast<int>(tab);
}

double columnLeft(int column) {
    return kInset + column * (kColumn + kGap);
}

} // namespace

void frm_DialogStartup::design() {
    setCaption("Quendal");
    designHead();
    designIntroduction();
    designExercises();
    designSettings();
    ctl_Button5.setText("&Beenden");
    ctl_Button5.setPictureIcon(kQuitIcon);
    arrange(ctl_Button5, {kWidth - kMargin - 144, 530, 144, 36});
    arrange(ctl_StatusBar1, {0, 576, kWidth, 24});
}

void frm_DialogStartup::designHead() {
    ctl_Header1.setPlace(0, 0, kWidth, kHeaderHeight);
    ctl_Header1.setAccessibleName("Quendal: Titrationen verstehen und berechnen");
    ctl_Header1.setPicture(
        CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + "header.gif"));
    arrange(ctl_Pannel1, kWelcomePanel);
    Label1.setText("Willkommen zu Quendal!");
    const double textWidth = kMascot.left - 2 * kMargin;
    arrange(Label1, ctl_Pannel1, {kMargin, 10, textWidth, 24}, kHeadingFont);
    Label2.setText("Wenn Du neu hier bist solltest Du Dir zuerst die Lernanimationen ansehen! "
                   "Anschließend wählst Du eine Titrationsart!");
    arrange(Label2, ctl_Pannel1, {kMargin, 38, textWidth, 24});
    arrange(dra_Atom, ctl_Pannel1, kMascot);
    dra_Atom.setMood(2);
    dra_Atom.setAccessibleName("Doktor Atom, das Maskottchen");
    SSTab1.setCaptions({"&Kurze Einführung    ", "&Lernanimationen   ", "Klick- &Demos         ",
                        "&Selbst rechnen          "});
    SSTab1.setAccessibleName("Was möchtest Du tun?");
    arrange(SSTab1, kTabs, {.family = "Tahoma", .size = 14});
}

// The movie needs a width of 505 for its formulas in words, so the text stands close to the edge.
void frm_DialogStartup::designIntroduction() {
    constexpr double kTop = 56;
    constexpr Size kMovie{505, 201}; // 63 by 25 meshes of its grid and the line that closes them
    constexpr double kPassepartout = 4;
    constexpr Size kFrame{kMovie.width + 2 * kPassepartout, kMovie.height + 2 * kPassepartout};
    Label5.setContainer(SSTab1, pageOf(StartTab::Introduction));
    arrange(Label5, {kMargin, kTop, 376, 265}, {.size = 13});
    ctl_Frame1.setContainer(SSTab1, pageOf(StartTab::Introduction));
    constexpr double kFrameTop = kTop + 24; // beside the middle of the text
    arrange(ctl_Frame1, {400, kFrameTop, kFrame.width, kFrame.height});
    arrange(pic_Movie(0), ctl_Frame1, {kPassepartout, kPassepartout, kMovie.width, kMovie.height});
    pic_Movie(0).setAccessibleName("Film: Stoffmenge, Konzentration und Volumen");
}

void frm_DialogStartup::designExercises() {
    constexpr double kLabel6 = 32; // room that it takes from the animations
    Label6.setText("Klicke auf eine Schaltfläche um die entsprechende Animation anzusehen. Du "
                   "kannst sie jederzeit mit 'ESC' abbrechen.");
    Label6.setContainer(SSTab1, pageOf(StartTab::Animations));
    arrange(Label6, {kInset, 60, 2 * kColumn + kGap, 24});
    for (const ExerciseRow& row : exerciseTable()) {
        const bool animation = row.tab == StartTab::Animations;
        ctl_Button& button = this->*row.button;
        button.setText(row.caption);
        button.setPictureIcon(animation ? kCameraIcon : kNextIcon);
        button.setContainer(SSTab1, pageOf(row.tab));
        arrange(button, {columnLeft(row.column),
                         kFirstRow + (animation ? kLabel6 : 0) + row.row * kRow, kColumn, kButton});
    }
}

void frm_DialogStartup::designSettings() {
    constexpr double kTop = 224;
    constexpr double kLine = 32;
    const int page = pageOf(StartTab::Tasks);
    for (Control* control :
         std::initializer_list<Control*>{&ctl_Seperator1, &Label3, &lst_Mol, &Label4, &opt_CalcTerm,
                                         &opt_NeedCalc, &opt_EnableSounds}) {
        control->setContainer(SSTab1, page);
    }
    ctl_Seperator1.setPlace(kInset, kTop - 8, 2 * kColumn + kGap, 2);
    Label3.setText("Vorgabe-Konzentration:Säure- oder Salzlösung         ");
    arrange(Label3, {kInset, kTop + 4, kColumn, 24});
    lst_Mol.setItems({"0.6", "0.8", "1.0", "1.2", "1.4"});
    lst_Mol.setAccessibleName("Vorgabe-Konzentration in mol/L");
    arrange(lst_Mol, {kInset, kTop + kLine, 96, kLine});
    Label4.setText("mol/L");
    arrange(Label4, {kInset + 104, kTop + kLine, 80, kLine});

    struct Option {
        CheckBox& box;
        const char* text;
    };
    double top = kTop;
    for (const Option& option : {Option{opt_CalcTerm, "Vorgaben für Morvik-Rechner [ON]"},
                                 Option{opt_NeedCalc, "Sollstellen müssen gerechnet werden"},
                                 Option{opt_EnableSounds, "Sound [ON]"}}) {
        option.box.setText(option.text);
        option.box.setChecked(true);
        arrange(option.box, {columnLeft(1), top, kColumn, kLine});
        top += kLine;
    }
}

} // namespace quendal
