// The columns of frm_Calc that all guided calculations share, and how its controls stand in them.
#pragma once

#include "host/buttons.h"
#include "host/labels.h"
#include "host/panels.h"

namespace quendal {

class GuidedCalculation;

namespace panel {

struct Column {
    double left;
    double width;
    TextAlign align = TextAlign::Left;
};

inline constexpr Column kFormula{12, 141};                // the rule
inline constexpr Column kName{153, 63, TextAlign::Right}; // "c =" beside the input
inline constexpr Column kInput{219, 94};
inline constexpr Column kUnit{316, 40};
inline constexpr Column kCalculator{356, 24};
inline constexpr Column kButton{381, 59};
inline constexpr double kRowHeight = 26;

// The frame itself, its button for one click and the warning.
void designFrame(GuidedCalculation& guidance, Control& holder, const char* title);
void placeHeading(ctl_Label& heading, Control& frame, double top, const char* text);
void placeLine(Line& line, Control& frame, double top);
void placeTerm(ctl_TermLabel& label, Control& frame, const Column& column, double top,
               const std::string& term, double height = kRowHeight);
void placeInput(clt_TermInput& input, Control& frame, double top, const char* spoken);
void placeOption(OptionButton& option, Control& frame, double top, const char* text);
void placeStepButton(ctl_Button& button, Control& frame, double top, const char* text);
void placeCalcButton(ctl_Button& button, Control& frame, const Rect& place);

} // namespace panel
} // namespace quendal
