#include "weak_silver/lens_workbench.h"

#include "host/clock.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "particles/frm_AppMagnify.h"
#include "shell/forms/arrange.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kSlideTime = 1.0;                 // s
constexpr double kEndLeft = 6540 / kTwipsPerUnit;  // px, where the glass comes to rest
constexpr double kGlassTop = 2220 / kTwipsPerUnit; // px
// px. Larger than the glass, which stands in its left upper corner: what the view magnifies is
// worked out from this size, and so takes in the sheet and the balance with its particles.
constexpr Size kGlass{1022, 514};

} // namespace

LensWorkbench::LensWorkbench(const WorkbenchVariant& variant, LensView scene, const char* caption)
    : Workbench(variant), scene_(scene) {
    but_ShowMag.onClick = [this] { but_ShowMag_Click(); };
    designLens(caption);
}

void LensWorkbench::designLens(const char* caption) {
    arrange(but_ShowMag, frm_Holder, {774, 634, 218, 48});
    but_ShowMag.setText(caption);
    but_ShowMag.setPictureIcon("Ico\\20\\Computer\\Signs\\Search.ico");
    pic_Magnify.setContainer(frm_Holder);
    pic_Magnify.setOverlay(true);
    pic_Magnify.setVisible(false);
    pic_Magnify.setAccessibleName("Lupe");
    pic_Magnify.setPlace(kEndLeft, kGlassTop, kGlass.width, kGlass.height);
}

// Whatever happens on the way, the glass is away and the button back at the end.
void LensWorkbench::but_ShowMag_Click() {
    const Occupation occupation(*this);
    if (session().SessionBusy || !occupation.taken()) {
        return;
    }
    but_ShowMag.setVisible(false);
    pic_Magnify.bringToFront();
    moveGlass(0);
    pic_Magnify.setVisible(true);
    slide(Slide::In);
    if (!leaving()) {
        pic_Magnify.setVisible(false);
        frm_AppMagnify lens;
        aim(lens);
        CoreLib().Windows.ShowModal(lens);
        pic_Magnify.setVisible(true);
    }
    slide(Slide::Out);
    pic_Magnify.setVisible(false);
    but_ShowMag.setVisible(true);
}

void LensWorkbench::slide(Slide way) {
    const double start = CoreLib().Clock.Now();
    for (double p = 0; p < 1.0 && !leaving();) {
        p = std::min((CoreLib().Clock.Now() - start) / kSlideTime, 1.0);
        moveGlass(way == Slide::In ? p : 1.0 - p);
        turn();
    }
}

// `inside` from 0, outside, to 1, at rest over the bench.
void LensWorkbench::moveGlass(double inside) {
    const auto& frames = appResource().pic_MagnifyBuffer;
    const int last = frames.last();
    const int frame = std::min(last, 1 + static_cast<int>(inside * last));
    if (frame >= 1 && frame != shownFrame_) {
        shownFrame_ = frame;
        pic_Magnify.surface().Clear();
        pic_Magnify.surface().Copy(frames(frame).picture(), {0, 0});
        pic_Magnify.drawn();
    }
    const double height = frm_Holder.place().height;
    const double left = std::trunc((height - (height - kEndLeft) * inside) * kTwipsPerUnit);
    pic_Magnify.setPlace(left / kTwipsPerUnit, kGlassTop, kGlass.width, kGlass.height);
}

// The right and the lower edge get the sizes of the glass less a rim: that is meant, and the view
// orders its edges before it zooms.
void LensWorkbench::aim(frm_AppMagnify& lens) const {
    constexpr double kEdge = 10;
    constexpr double kRimRight = 30;
    constexpr double kRimBelow = 70;
    const WindowSystem& windows = CoreLib().Windows;
    const Rect& holder = frm_Holder.place();
    const Rect& glass = pic_Magnify.place();
    const double frameHeight = windows.screen().height - inner().height; // title and menu
    lens.ShowWater = false;
    lens.ShowAcid = scene_ == LensView::Acid;
    lens.SourceLeft = roundToInt(holder.left + glass.left - kEdge);
    lens.SourceTop = roundToInt(holder.top + glass.top + frameHeight - kEdge);
    lens.SourceRight = roundToInt(glass.width - kRimRight);
    lens.SourceBottom = roundToInt(glass.height - kRimBelow);
    lens.SourceScale = windows.scaleOf(*this);
}

void LensWorkbench::frameDone() {
    if (ShowMagRequested) {
        ShowMagRequested = false;
        but_ShowMag_Click();
    }
}

void LensWorkbench::describe(FieldTable& table) const {
    Workbench::describe(table);
    table.add("ShowMagRequested", ShowMagRequested);
}

} // namespace quendal
