#include "shell/forms/arrange.h"

namespace quendal {

void arrangeTitle(ctl_Title& heading, double width, TitleTexts texts) {
    heading.setTitle(std::move(texts.title));
    heading.setText(std::move(texts.text));
    heading.setPictureIcon(std::move(texts.icon));
    arrange(heading, {0, 0, width, kDialogTitleHeight});
}

Rect barPlace(double width, double bottom) {
    constexpr double kInset = 8; // the bar itself leaves as much again around its buttons
    constexpr double kHeight = 44;
    return {kInset, bottom - kInset - kHeight, width - 2 * kInset, kHeight};
}

void arrangeBar(ctl_CmdBar& bar, double width, double bottom, std::string buttonText) {
    bar.setButtons({{kCommandOk, std::move(buttonText), "Ico\\20\\Computer\\Signs\\Ok.ico"}});
    bar.setAccessibleName("Schaltflächen des Fensters");
    arrange(bar, barPlace(width, bottom));
}

} // namespace quendal
