// What the design routines of the dialogs share: type, measures, heading and bar of buttons.
#pragma once

#include "host/panels.h"

#include <string>
#include <vector>

namespace quendal {

inline const FontSpec kTextFont{.size = 14};
inline const FontSpec kHeadingFont{.size = 16, .bold = true};
inline const FontSpec kReadingFont{.size = 28, .bold = true};

inline constexpr double kDialogMargin = 16;
inline constexpr double kDialogTitleHeight = 72;
inline constexpr double kDialogBarRoom = 56; // for the bar and the air around it

inline constexpr const char* kCommandOk = "DIALOG.OK();";
inline constexpr const char* kHelpIcon = "Ico\\32\\Computer\\Signs\\Help.ico";

inline void arrange(Control& control, const Rect& place, const FontSpec& font = kTextFont) {
    control.setPlace(place);
    control.setFont(font);
}

inline void arrange(Control& control, Control& container, const Rect& place,
                    const FontSpec& font = kTextFont) {
    control.setContainer(container);
    arrange(control, place, font);
}

struct TitleTexts {
    std::string title;
    std::string text;
    std::string icon;
};

// Across the top of a form that is `width` wide.
void arrangeTitle(ctl_Title& heading, double width, TitleTexts texts);
// Where the bar stands on a form that is `width` wide and ends at `bottom`.
Rect barPlace(double width, double bottom);
// One button.
void arrangeBar(ctl_CmdBar& bar, double width, double bottom, std::string buttonText);

} // namespace quendal
