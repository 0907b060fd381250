#include "shell/forms/arrange.h"

namespace quendal {

void arrangeTitle(ctl_Title& heading, double width, TitleTexts texts) {
    heading.setTitle(std::move(texts.title));
    heading.setText(std::move(texts.text));
    heading.setPictureIcon(std::move(texts.icon));
    arrange(heading, {0, 0, width, kDialogTitleHeight});
}

void arrangeBar(ctl_CmdBar& bar, double width, double bottom, std::string buttonText) {
    bar.setButtons({{kCommandOk, std::move(buttonText), "Ico\\20\\Computer\\Signs\\Ok.ico"}});
    bar.setAccessibleName("Schaltflächen des Fensters");
    arrange(bar, {0, bottom - kDialogBarHeight, width, kDialogBarHeight});
}

} // namespace quendal
