#include "workbench/guidance/panel_columns.h"

#include "shell/forms/arrange.h"
#include "workbench/guidance/guided_calculation.h"

namespace quendal::panel {

namespace {

constexpr double kWidth = 444;
constexpr double kHeight = 674;
constexpr double kFullWidth = kWidth - 2 * kFormula.left;
const FontSpec kTermFont{.size = 13};
const FontSpec kTitleFont{.size = 14, .bold = true};
constexpr const char* kCalculatorIcon = "Ico\\16\\Business\\Office\\Calculator.ico";

} // namespace

void designFrame(GuidedCalculation& guidance, Control& holder, const char* title) {
    ctl_Frame& frame = guidance.frm_Calc;
    arrange(frame, holder, {322, 8, kWidth, kHeight}, kTitleFont);
    frame.setText(title);
    frame.setPictureIcon(kCalculatorIcon);
    ctl_Button& oneClick = guidance.but_CalcStep(guidance.oneClick());
    arrange(oneClick, frame, {12, 642, 128, 28}, kTermFont);
    oneClick.setText("'one' - Klick");
    ctl_Pannel& warning = guidance.but_AchtungRW;
    arrange(warning, frame, {278, 2, 160, 32}, {.size = 12, .bold = true});
    warning.setText("Achtung!<br>Neuer Rechenweg!");
    warning.setTextAlign(TextAlign::Centre);
    warning.setTextColor({140, 50, 20});
    warning.setBackColor({255, 243, 214});
    warning.setBorderColor({224, 170, 60});
}

void placeHeading(ctl_Label& heading, Control& frame, double top, const char* text) {
    arrange(heading, frame, {kFormula.left, top, kFullWidth, 24}, kTitleFont);
    heading.setText(text);
    heading.setTextColor({20, 90, 90});
}

void placeLine(Line& line, Control& frame, double top) {
    arrange(line, frame, {kFormula.left, top, kFullWidth, 1});
}

void placeTerm(ctl_TermLabel& label, Control& frame, const Column& column, double top,
               const std::string& term, double height) {
    arrange(label, frame, {column.left, top, column.width, height}, kTermFont);
    label.setTerm(term);
    label.setTextAlign(column.align);
}

void placeInput(clt_TermInput& input, Control& frame, double top, const char* spoken) {
    arrange(input, frame, {kInput.left, top, kInput.width, kRowHeight});
    input.setAccessibleName(spoken);
}

void placeOption(OptionButton& option, Control& frame, double top, const char* text) {
    arrange(option, frame, {kFormula.left + 8, top, 300, 24});
    option.setText(text);
}

void placeStepButton(ctl_Button& button, Control& frame, double top, const char* text) {
    arrange(button, frame, {kButton.left, top - 1, kButton.width, kRowHeight + 2}, kTermFont);
    button.setText(text);
}

void placeCalcButton(ctl_Button& button, Control& frame, const Rect& place) {
    arrange(button, frame, place);
    button.setPictureIcon(kCalculatorIcon);
    button.setAccessibleName("Taschenrechner");
    button.setToolTip("Taschenrechner");
}

} // namespace quendal::panel
