// Pipette, burette and beaker as pictures.
#include "workbench/workbench.h"

#include "host/clock.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kMoveTime = 3.0; // s of a move of a glass

// Null beyond the frames that are there: such a frame draws nothing.
PicturePtr frameOf(ControlArray<PictureBox>& buffer, int frame) {
    return frame >= 1 && buffer.has(frame) ? buffer(frame).picture() : nullptr;
}

void keep(int& stored, int argument) {
    if (argument != -1) {
        stored = argument;
    }
}

double heightOf(const PicturePtr& picture) {
    return picture ? picture->height() : 0.0;
}

} // namespace

PicturePtr Workbench::pipetteFrame(int frame) const {
    return frameOf(appResource().pic_AblasserBuffer, frame);
}

PicturePtr Workbench::buretteFrame(int frame) const {
    return frameOf(appResource().pic_BüretteBuffer, frame);
}

void Workbench::hPipetteDraw(int frame, int x, int y) {
    keep(sPipFrame, frame == 0 ? 1 : frame);
    keep(vPipX, x);
    keep(vPipY, y);
    drawGlasses();
}

void Workbench::hBuretteDraw(int frame, int x, int y) {
    keep(sBurFrame, frame == 0 ? 1 : frame);
    keep(vBurX, x);
    keep(vBurY, y);
    drawGlasses();
}

void Workbench::drawGlasses() {
    shown_.stillScene = false;
    if (vPipShown) {
        copyGlass(pipetteFrame(sPipFrame), frameOf(appResource().pic_AblasserBufferBowl, sPipFrame),
                  vPipX, vPipY);
    }
    if (vBurShown) {
        copyGlass(buretteFrame(sBurFrame), frameOf(appResource().pic_BüretteBufferBowl, sBurFrame),
                  vBurX, vBurY);
    }
}

// The glass reaches from the space above into the beaker: three pictures show their share of it, so
// that its tip stands before the beaker and behind the liquid.
void Workbench::copyGlass(const PicturePtr& clean, const PicturePtr& bowlCopy, int x, int y) {
    const Rect& above = pic_Above.place();
    const Rect& outer = pic_BowlOuter.place();
    const Rect& bowl = pic_Bowl.place();
    const Point inAbove{static_cast<double>(x), static_cast<double>(y)};
    const Point inOuter{inAbove.x + above.left - outer.left, inAbove.y + above.top - outer.top};
    pic_Above.surface().Clear();
    pic_Above.surface().Copy(clean, inAbove);
    pic_Above.drawn();
    pic_BowlOuter.surface().Clear();
    pic_BowlOuter.surface().Copy(clean, inOuter);
    pic_BowlOuter.drawn();
    pic_Bowl.surface().Copy(bowlCopy, {inOuter.x - bowl.left, inOuter.y - bowl.top});
}

void Workbench::hPipetteOut() {
    vPipReady = false;
    vCalm = true;
    const double start = CoreLib().Clock.Now();
    const double from = vPipY;
    const double height = heightOf(pipetteFrame(sPipFrame));
    for (double t = 0; t < kMoveTime && !session().SessionRestart;
         t = CoreLib().Clock.Now() - start) {
        hPipetteDraw(-1, -1, roundToInt((-height - from) * t / kMoveTime + from));
        hXEvents();
    }
    hPipetteDraw(-1, -1, roundToInt(-height));
    vPipShown = false;
}

void Workbench::hBuretteIn() {
    vBurShown = true;
    const double height = heightOf(buretteFrame(1));
    const double start = CoreLib().Clock.Now();
    for (double t = 0; t < kMoveTime && !session().SessionRestart;
         t = CoreLib().Clock.Now() - start) {
        hBuretteDraw(-1, -1, roundToInt(height * t / kMoveTime - height - vBurGap));
        hXEvents();
    }
    // Its end position, with the upper part above the window's edge.
    vBurY = -vBurGap;
    drawGlasses();
    vBurReady = true;
}

void Workbench::hBuretteOut() {
    vBurReady = false;
    const double height = heightOf(buretteFrame(1));
    const double start = CoreLib().Clock.Now();
    for (double t = 0; t < kMoveTime && !session().SessionRestart;
         t = CoreLib().Clock.Now() - start) {
        hBuretteDraw(-1, -1, roundToInt((kMoveTime - t) * height / kMoveTime - height - vBurGap));
        hXEvents();
    }
    hBuretteDraw(-1, -1, kOutOfWindow);
    vBurShown = false;
}

void Workbench::Form_Resize() {
    const Size window = inner();
    frm_Holder.setPlace(std::max(0.0, (window.width - designSize().width) / 2),
                        std::max(0.0, (window.height - designSize().height) / 2),
                        designSize().width, designSize().height);
    drawScale();
    drawLegendPictures();
    shown_.stillScene = false;
    drawGlasses();
}

void Workbench::drawScale() {
    constexpr double kInset = 20;    // px from the edge of the picture to the glass
    constexpr double kGlassTop = 60; // px to the upper end of the scale
    constexpr double kTick = 20;     // px
    constexpr double kTextGap = 2;   // px
    const Rect& outer = pic_BowlOuter.place();
    if (outer.width > 2 * kInset && outer.height > kGlassTop + kInset) {
        pic_Bowl.setPlace(kInset, kGlassTop, outer.width - 2 * kInset,
                          outer.height - kGlassTop - kInset);
    }
    const Rect& bowl = pic_Bowl.place();
    Surface& glass = pic_Glass.surface();
    glass.Clear();
    for (int i = 0; i <= kScaleTicks; ++i) {
        const double y = bowl.bottom() - bowl.height * i / kScaleTicks;
        const bool lettered = i % 5 == 0;
        glass.Line({bowl.left, y}, {bowl.left + kTick, y}, kBlack, lettered ? 2 : 1);
        if (lettered) {
            // The lowest number stands on the foot of the glass, the others beside their tick.
            const double rise = points(10) * (i == 0 ? 1.2 : 0.62);
            letterScale(glass, {bowl.left + kTick + kTextGap, y - rise},
                        i * variant_.scale.mlPerTick);
        }
    }
    drawGlassOutline(glass);
    pic_Glass.drawn();
}

// The number of a tick, with light around it: particles swarm behind it.
void Workbench::letterScale(Surface& glass, Point place, int millilitres) const {
    constexpr Color kLight{250, 253, 253};
    constexpr double kAround = 1.5; // px
    const FontSpec font{.size = points(10)};
    const std::string text = std::to_string(millilitres) + " mL";
    for (const Point& shift : {Point{-1, 0}, Point{1, 0}, Point{0, -1}, Point{0, 1}, Point{-1, -1},
                               Point{1, 1}, Point{-1, 1}, Point{1, -1}}) {
        glass.Text({place.x + kAround * shift.x, place.y + kAround * shift.y}, text, font, kLight);
    }
    glass.Text(place, text, font, kBlack);
}

// Walls, foot and rim with the spout, and light on the walls.
void Workbench::drawGlassOutline(Surface& glass) const {
    constexpr Color kOutline{43, 74, 80};
    constexpr Color kLight{250, 253, 253};
    constexpr double kWall = 3;
    const Rect& bowl = pic_Bowl.place();
    const double rim = bowl.top - 16;
    const double left = bowl.left - kWall / 2;
    const double right = bowl.right() + kWall / 2;
    const double foot = bowl.bottom() + kWall / 2;
    // From the spout at the left over the foot to the rolled rim at the right.
    const Point outline[] = {{left - 15, rim - 6}, {left - 8, rim - 3},  {left - 3, rim + 3},
                             {left, rim + 11},     {left, foot - 7},     {left + 2, foot - 2},
                             {left + 7, foot},     {right - 7, foot},    {right - 2, foot - 2},
                             {right, foot - 7},    {right, rim + 8},     {right + 2, rim + 3},
                             {right + 7, rim},     {right + 10, rim - 3}};
    for (std::size_t i = 1; i < std::size(outline); ++i) {
        glass.Line(outline[i - 1], outline[i], kOutline, kWall);
    }
    // The rear of the rim, seen through the glass.
    glass.Line({left - 8, rim - 3}, {right + 7, rim}, kOutline, 1);
    glass.Line({right - 10, rim + 26}, {right - 10, foot - 30}, kLight, 4);
    glass.Line({right - 17, rim + 26}, {right - 17, rim + 90}, kLight, 2);
}

} // namespace quendal
