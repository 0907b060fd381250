// Places and fixed texts of the six steps: narrow enough that the graph stays in view below.
#include "conducto/conducto_guidance.h"

#include "conducto/conducto_variant.h"
#include "conducto/conducto_workbench.h"
#include "shell/forms/arrange.h"
#include "workbench/guidance/panel_columns.h"

namespace quendal {

namespace {

using namespace panel;

constexpr double kWidth = 444;
constexpr double kHeight = 380;
constexpr Column kWide{12, 424};

// The columns of an ion's row.
constexpr Column kRowName{12, 94};
constexpr Column kWideRowName{12, 254};
constexpr Column kAmount{108, 58};
constexpr Column kOver{168, 10, TextAlign::Centre};
constexpr Column kVolume{178, 40, TextAlign::Centre};
constexpr Column kTimes{218, 10, TextAlign::Centre};
constexpr Column kConductivity{228, 44, TextAlign::Centre};
constexpr Column kEquals{272, 12, TextAlign::Centre};
constexpr Column kResult{286, 69};
constexpr Column kVolumeUnit{171, 36, TextAlign::Centre};
constexpr Column kConductivityUnit{206, 92, TextAlign::Centre};
constexpr Column kResultUnit{300, 55};
constexpr Column kAmountUnit{108, 58, TextAlign::Centre};

// The last row leaves room for a button with an icon.
constexpr Column kSumName{12, 244};
constexpr Column kSum{258, 70};
constexpr double kSumCalculator = 332;
constexpr Column kSumButton{358, 82};

constexpr double kHeadings[] = {38, 122, 326};
constexpr double kLines[] = {118, 322};
constexpr double kVolumeRule = 60;
constexpr double kVolumeRow = 86;
constexpr double kRuleInWords = 145;
constexpr double kRule = 164;
constexpr double kUnits = 186;
constexpr double kFirstIon = 206;
constexpr double kIonPitch = 29;
constexpr double kSumRow = 350;
constexpr double kTextRow = 20;

const FontSpec kTermFont{.size = 13};
const FontSpec kUnitFont{.size = 12};

void placeLabel(ctl_Label& label, Control& frame, const Column& column, double top,
                const char* text) {
    // Less high than the input beside it, so that both stand on one line.
    arrange(label, frame, {column.left, top + 2, column.width, kRowHeight - 4}, kTermFont);
    label.setTextAlign(column.align);
    label.setText(text);
}

} // namespace

void ConductoGuidance::design() {
    const ConductoTexts& texts = variant_.texts;
    designFrame(*this, form_.frm_Holder, variant_.bench.calculationTitle.data());
    frm_Calc.setPlace(322, 8, kWidth, kHeight);
    but_CalcStep(oneClick()).setPlace(300, 3, 136, 29);
    const std::string_view headings[] = {"1. Berechnung des Gesamtvolumens", texts.ionHeading,
                                         "3. Berechnung der Summe"};
    lab_CalcStep.each([&](int index, ctl_Label& heading) {
        placeHeading(heading, frm_Calc, kHeadings[index], headings[index].data());
    });
    lin_Calc.each([this](int index, Line& line) { placeLine(line, frm_Calc, kLines[index - 1]); });
    placeTerm(lab_Calc(0), frm_Calc, kWide, kVolumeRule, std::string(texts.volumeRule));
    placeTerm(lab_Calc(1), frm_Calc, kRowName, kVolumeRow, "V(gesamt) = ");
    placeTerm(lab_Calc(2), frm_Calc, {204, 130}, kVolumeRow, "mL (= cm^3)");
    placeTerm(lab_Calc(3), frm_Calc, kWide, kRuleInWords, std::string(texts.ruleInWords), kTextRow);
    placeTerm(lab_Calc(4), frm_Calc, kWide, kRule, std::string(texts.rule), kTextRow);
    placeTerm(lab_Calc(5), frm_Calc, kRowName, kUnits, "Einheiten:", kTextRow);
    lab_Calc(5).setFont(kUnitFont);
    placeInput(txt_Calc(1), frm_Calc, kVolumeRow, "Gesamtvolumen in Milliliter");
    txt_Calc(1).setPlace(kAmount.left, kVolumeRow, 90, kRowHeight);
    designRows();
    if (txt_Calc.has(kLastRow + 1)) {
        placeTerm(lab_Calc(6), frm_Calc, kSumName, kSumRow,
                  "Gesamtleitfähigkeit  G(gesamt) in mS/cm");
        placeInput(txt_Calc(kLastRow + 1), frm_Calc, kSumRow,
                   "Gesamtleitfähigkeit in Millisiemens pro Zentimeter");
        txt_Calc(kLastRow + 1).setPlace(kSum.left, kSumRow, kSum.width, kRowHeight);
    }
    placeStepButton(but_CalcStep(1), frm_Calc, kVolumeRow, "Weiter!");
    placeStepButton(but_CalcStep(kLastRow + 1), frm_Calc, kSumRow, "Weiter!");
    but_CalcStep(kLastRow + 1)
        .setPlace(kSumButton.left, kSumRow - 1, kSumButton.width, kRowHeight + 2);
    designCalculators();
    hideAll();
    for (int step = kFirstRow; step <= kLastRow; ++step) {
        showRow(step, false);
    }
}

void ConductoGuidance::designRows() {
    const auto& units = variant_.texts.units;
    struct Unit {
        ctl_TermLabel& label;
        Column column;
    };
    std::size_t next = 0;
    for (const Unit& unit : {Unit{lab_LF2, kAmountUnit}, Unit{lab_LF3, kVolumeUnit},
                             Unit{lab_LF4, kConductivityUnit}, Unit{lab_LF5, kResultUnit}}) {
        placeTerm(unit.label, frm_Calc, unit.column, kUnits, std::string(units[next++]), kTextRow);
        unit.label.setFont(kUnitFont);
        unit.label.setVisible(false);
    }
    for (int step = kFirstRow; step <= kLastRow; ++step) {
        designRow(step, kFirstIon + kIonPitch * (step - kFirstRow));
    }
}

void ConductoGuidance::designRow(int step, double top) {
    const IonRow& row = variant_.rows[static_cast<std::size_t>(step - kFirstRow)];
    placeTerm(lab_LF1(step), frm_Calc, row.amount ? kRowName : kWideRowName, top,
              std::string(row.name));
    if (txt_Calc.has(step)) {
        placeInput(txt_Calc(step), frm_Calc, top, row.spoken.data());
        txt_Calc(step).setPlace(kAmount.left, top, kAmount.width, kRowHeight);
    }
    placeLabel(lab_LFOver(step), frm_Calc, kOver, top, "/");
    placeLabel(lab_LFVol(step), frm_Calc, kVolume, top, "Label3");
    placeLabel(lab_LFTimes(step), frm_Calc, kTimes, top, "*");
    placeLabel(lab_LFAeq(step), frm_Calc, kConductivity, top, row.conductivity.data());
    placeLabel(lab_LFEquals(step), frm_Calc, kEquals, top, "=");
    placeLabel(lab_LFErg(step), frm_Calc, kResult, top, "Rechnen ->");
    lab_LFErg(step).setFont({.size = 13, .bold = true});
    placeStepButton(but_CalcStep(step), frm_Calc, top, "Weiter!");
}

void ConductoGuidance::designCalculators() {
    but_CalcPH.each([this](int index, ctl_Button& button) {
        if (index == 0) {
            placeCalcButton(button, form_.frm_CalcDirect, {240, 60, 34, 32});
            return;
        }
        const bool sum = index > kLastRow;
        const double top = sum ? kSumRow : kFirstIon + kIonPitch * (index - kFirstRow);
        const double left = sum ? kSumCalculator : kCalculator.left;
        placeCalcButton(button, frm_Calc, {left, top, kCalculator.width, kRowHeight});
    });
}

} // namespace quendal
