#include "host/number_service.h"
#include "particles/frm_AppMagnify.h"
#include "particles/lens_glass.h"

#include <algorithm>

namespace quendal {

namespace {

// The opening of the glass that the scene shows through; right and bottom edge belong to it.
constexpr double kOpenLeft = 143;
constexpr double kOpenTop = 96;
constexpr double kOpenRight = 422;
constexpr double kOpenBottom = 344;

constexpr double kTextSize = 12;
constexpr double kLabelHeight = 16;
constexpr double kLabelWidth = 415; // a little more than the text needs
constexpr double kIconSize = 16;
constexpr double kIconDistance = 1.2; // of its own width, from the label

} // namespace

int frm_AppMagnify::hScaleX(double units) const {
    return roundToInt(units * inner().width / kGlassDesign.width);
}

int frm_AppMagnify::hScaleY(double units) const {
    return roundToInt(units * inner().height / kGlassDesign.height);
}

int frm_AppMagnify::hScaleMin(double units) const {
    return std::min(hScaleX(units), hScaleY(units));
}

void frm_AppMagnify::design() {
    setCaption("Lupe");
    setWindowState(WindowState::Maximised);
    setFrameless(true);
    setScalesItself(true);
    pic_Fill.setAccessibleName("Bildschirm unter der Lupe");
    pic_Screen.setAccessibleName("Teilchen unter der Lupe");
    pic_Screen.setOverlay(true);
    pic_Screen.setScaleSize(LensScene::kUnits);
    img_Attention.setPictureIcon("Ico\\20\\Computer\\Signs\\Attention.ico");
    img_Attention.setAccessibleName("Achtung");
    lab_Attention.setText("In Wirklichkeit reagieren nur äußerst wenige Moleküle: 1 von 100.000!");
    lab_Attention.setTextAlign(TextAlign::Centre);
    lab_Attention.setWordWrap(false);
    for (PictureBox* hidden : {&pic_Magnify(0), &pic_Magnify(1), &pic_Original, &pic_Shot}) {
        hidden->setVisible(false);
    }
    showAttention(false);
}

void frm_AppMagnify::Form_Resize() {
    const double width = inner().width;
    const double height = inner().height;
    pic_Fill.setPlace(0, 0, width, height);
    const int left = hScaleX(kOpenLeft);
    const int top = hScaleY(kOpenTop);
    pic_Screen.setPlace(left, top, hScaleX(kOpenRight + 1) - left, hScaleY(kOpenBottom + 1) - top);

    lab_Attention.setFont({.size = static_cast<double>(hScaleMin(kTextSize)), .bold = true});
    const double labelWidth = hScaleMin(kLabelWidth);
    const double labelHeight = hScaleMin(kLabelHeight);
    const Rect label{(width - labelWidth) / 2, height - 2 * labelHeight, labelWidth, labelHeight};
    lab_Attention.setPlace(label);
    const double icon = hScaleMin(kIconSize);
    img_Attention.setPlace(label.left - kIconDistance * icon, label.top + (labelHeight - icon) / 2,
                           icon, icon);
    if (scene_ != nullptr) {
        drawLens();
    }
}

} // namespace quendal
