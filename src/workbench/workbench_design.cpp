// Places of the controls that all workbenches share: the apparatus at the left, the tutor and the
// task sheet beside it, at the right what the learner reads off.
#include "shell/forms/arrange.h"
#include "workbench/workbench.h"

namespace quendal {

namespace {

constexpr double kMargin = 8;
constexpr double kMiddle = 322; // left edge of the task sheet
constexpr double kMiddleWidth = 444;
constexpr double kRight = 774; // left edge of the readings
constexpr double kRightWidth = 218;
constexpr Rect kApparatus{4, 0, 312, 690};
constexpr double kBeakerTop = 284;
constexpr Color kGround{244, 247, 247};

const FontSpec kLarge{.size = points(16)};

void label(ctl_Label& control, Control& container, Rect place, const char* text,
           const FontSpec& font = kTextFont) {
    arrange(control, container, place, font);
    control.setText(text);
}

void term(ctl_TermLabel& control, Control& container, Rect place, const std::string& text,
          const FontSpec& font = kTextFont) {
    arrange(control, container, place, font);
    control.setTerm(text);
}

void button(ctl_Button& control, Control& container, Rect place, std::string text,
            const char* icon = "") {
    arrange(control, container, place);
    control.setText(std::move(text));
    control.setPictureIcon(icon);
}

void frame(ctl_Frame& control, Control& container, Rect place, std::string text,
           const char* icon = "") {
    arrange(control, container, place, {.size = 14, .bold = true});
    control.setText(std::move(text));
    control.setPictureIcon(icon);
}

} // namespace

void Workbench::design() {
    frm_Holder.setPlain(true);
    frm_Holder.setPlace(0, 0, designSize().width, designSize().height);
    designApparatus();
    designTaskSheet();
    designReadings();
    designScore();
    designDirectInput();
}

void Workbench::designApparatus() {
    pic_Above.setContainer(frm_Holder);
    pic_Above.setPlace(kApparatus.left, 0, kApparatus.width, kBeakerTop);
    pic_Above.setAccessibleName("Pipette und Bürette: Klick gibt Flüssigkeit zu");
    pic_BowlOuter.setContainer(frm_Holder);
    pic_BowlOuter.setPlace(kApparatus.left, kBeakerTop, kApparatus.width, 400);
    pic_BowlOuter.setAccessibleName("Becherglas");
    pic_Bowl.setContainer(pic_BowlOuter);
    pic_Bowl.setPlace(20, 60, kApparatus.width - 40, 320);
    pic_Bowl.setAccessibleName("Innenraum des Becherglases über der Flüssigkeit");
    pic_Water.setContainer(pic_BowlOuter);
    pic_Water.setAccessibleName("Teilchen in der Lösung");
    pic_Water.setVisible(false);
    pic_Glass.setContainer(pic_BowlOuter);
    pic_Glass.setAccessibleName("Glas mit Skala in Milliliter");
    pic_Glass.setOverlay(true);
    pic_Glass.setPlace(0, 0, kApparatus.width, 400);
    for (PictureBox* picture : {&pic_Above, &pic_BowlOuter, &pic_Bowl}) {
        picture->setBackColor(kGround);
    }
    for (const int index : {0, 1}) {
        button(but_Add(index), frm_Holder, {8, 8, 120, 28},
               index == 0 ? "10 mol HCL" : "1 Mol NaOh");
        but_Add(index).setVisible(false);
    }
}

void Workbench::designTaskSheet() {
    // The lines of the sheet leave room for the buttons that stand in them: measured in blanks of
    // this font.
    const FontSpec sheetFont{.size = 15};
    constexpr double kTextLeft = 36;
    constexpr double kTextWidth = kMiddleWidth - kTextLeft - 12;
    constexpr double kGapLeft = kTextLeft + 65; // behind "Klick auf"
    constexpr double kGapWidth = 122;
    constexpr double kTops[] = {50, 226, 288};
    constexpr double kReagentTop = 164;
    frame(ctl_Frame2, frm_Holder, {kMiddle, kMargin, kMiddleWidth, 376}, "Aufgabenzettel",
          "Ico\\20\\Computer\\Signs\\Checked.ico");
    pic_Step.each([&](int index, ctl_Image& image) {
        image.setContainer(ctl_Frame2);
        image.setPlace(12, kTops[index], 18, 18);
    });
    label(lab_Step(0), ctl_Frame2, {kTextLeft, kTops[0], kTextWidth, 56}, "", sheetFont);
    button(ctl_Button1, ctl_Frame2, {kTextLeft, 88, 190, 30}, "'Klick auf die Pipette'");
    label(lab_Step1, ctl_Frame2, {kTextLeft, kReagentTop, kTextWidth, 56}, "", sheetFont);
    button(ctl_Button3, ctl_Frame2, {kGapLeft, kReagentTop - 4, kGapWidth, 23}, "Bürette ");
    label(lab_Step(1), ctl_Frame2, {kTextLeft, kTops[1], kTextWidth, 56}, "", sheetFont);
    button(ctl_Button2, ctl_Frame2, {kGapLeft, kTops[1] - 4, kGapWidth, 23}, "Berechnen!");
    label(lab_Step(2), ctl_Frame2, {kTextLeft, kTops[2], kTextWidth, 78}, "", sheetFont);
    ctl_Button2.setVisible(false);
    ctl_Button3.setVisible(false);
    pic_PipetteMark.setAccessibleName("Bild der Pipette");
    pic_DropMark.setAccessibleName("Bild eines Tropfens");
    mark(pic_PipetteMark, {kTextLeft + 104, kTops[0] - 4, 26, 26},
         "Ico\\20\\Science\\Chemistry\\Pipette.ico");
    mark(pic_DropMark, {kTextLeft + 342, kReagentTop - 3, 24, 24},
         "Ico\\20\\Science\\Chemistry\\Drop.ico");

    frame(frm_Reading, frm_Holder, {kMiddle, 392, kMiddleWidth, 96}, "Letzter Punkt");
    term(lab_pHName, frm_Reading, {16, 46, 140, 34}, std::string(variant().readingName), kLarge);
    label(lab_pH, frm_Reading, {160, 42, 270, 40}, "–", kReadingFont);
    lab_pH.setDescription("Zuletzt berechneter Wert");

    button(but_Calc, frm_Holder, {kMiddle, 640, 122, 42}, "Berechnen!");
    but_Calc.setVisible(false);
    button(but_Help, frm_Holder, {kMiddle + 130, 640, 158, 42}, "Ausführliche Hilfe",
           "Ico\\16\\Computer\\Signs\\Help.ico");
    button(but_phCompare, frm_Holder, {kMiddle + 296, 640, 148, 42},
           std::string(variant().compareButton));
}

void Workbench::mark(ctl_Image& image, const Rect& place, const char* icon) {
    arrange(image, ctl_Frame2, place);
    image.setPictureIcon(icon);
}

void Workbench::designReadings() {
    frame(frm_Volumes, frm_Holder, {kRight, kMargin, kRightWidth, 164}, "Angaben");
    lab_VolLabel.each([&](int index, ctl_TermLabel& name) {
        const bool alone = !lab_Vol.has(index);
        term(name, frm_Volumes, {12, 42.0 + 29 * index, alone ? 188.0 : 84.0, 26},
             std::string(variant().volumeNames[static_cast<std::size_t>(index)]));
    });
    lab_Vol.each([&](int index, ctl_TermLabel& value) {
        term(value, frm_Volumes, {98, 42.0 + 29 * index, 106, 26}, "0 mL",
             {.size = 15, .bold = true});
    });

    frame(frm_Bilanz, frm_Holder, {kRight, 182, kRightWidth, 262},
          std::string(variant().balanceTitle), "Ico\\20\\Science\\Math\\Generic.ico");
    pic_Bilanz.each([&](int index, PictureBox& picture) {
        const double top = 44.0 + 42 * index;
        picture.setContainer(frm_Bilanz);
        picture.setPlace(6, top, 44, 38);
        picture.setBackColor(kWhite);
        term(lab_Bilanz(index), frm_Bilanz, {52, top + 4, 62, 32}, "", kLarge);
        term(lab_BilanzCount(index), frm_Bilanz, {112, top + 4, 98, 32}, "0 mol", kLarge);
        lab_BilanzCount(index).setTextAlign(TextAlign::Right);
    });
}

void Workbench::designScore() {
    frame(frm_Score, frm_Holder, {kRight, 454, kRightWidth, 170}, "Stand");
    struct ScoreLine {
        ctl_Label& name;
        ctl_Label& value;
        const char* text;
    };
    const ScoreLine lines[] = {{Label2, lab_punktegerechnet, "Tit-Pkte:"},
                               {Label1, Lab_Vallmista, "Fehler:"},
                               {Label3, lab_solveuse, "Lösungen:"},
                               {Label4, lab_helpused, "Hilfen:"}};
    double top = 44;
    for (const ScoreLine& line : lines) {
        label(line.name, frm_Score, {38, top, 90, 26}, line.text);
        label(line.value, frm_Score, {148, top, 54, 26}, "0", {.size = 15, .bold = true});
        line.value.setTextAlign(TextAlign::Right);
        top += 30;
    }
    ctl_Image1.setAccessibleName("Richtig");
    ctl_Image2.setAccessibleName("Falsch");
    ctl_Image1.setContainer(frm_Score);
    ctl_Image1.setPlace(12, 46, 18, 18);
    ctl_Image1.setPictureIcon("Ico\\16\\Computer\\Signs\\Ok.ico");
    ctl_Image2.setContainer(frm_Score);
    ctl_Image2.setPlace(12, 76, 18, 18);
    ctl_Image2.setPictureIcon("Ico\\16\\Computer\\Signs\\No.ico");
}

void Workbench::designDirectInput() {
    frame(frm_CalcDirect, frm_Holder, {kMiddle, 392, kMiddleWidth, 176},
          std::string(variant().calculationTitle), "Ico\\16\\Business\\Office\\Calculator.ico");
    frm_CalcDirect.setVisible(false);
    term(lab_CalcX, frm_CalcDirect, {8, 60, 88, 32}, std::string(variant().answerName), kLarge);
    lab_CalcX.setTextAlign(TextAlign::Right);
    txt_Ph.setContainer(frm_CalcDirect);
    txt_Ph.setPlace(102, 58, 130, 36);
    txt_Ph.setFont(kLarge);
    txt_Ph.setAccessibleName(std::string(variant().calculationTitle));
    button(but_CalcDone, frm_CalcDirect, {290, 58, 144, 36}, "&Fertig");
    button(but_HelpCalc, frm_CalcDirect, {290, 112, 144, 36}, "Wie geht das?",
           "Ico\\16\\Computer\\Signs\\Help.ico");
}

} // namespace quendal
