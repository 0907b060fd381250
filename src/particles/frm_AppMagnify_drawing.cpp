// What the magnifying glass paints on the form's ground: the screen, its magnified part, and the
// glass with what lies in it.
#include "host/roots.h"
#include "host/screen_capture.h"
#include "particles/frm_AppMagnify.h"
#include "particles/lens_drawing.h"
#include "particles/lens_glass.h"
#include "particles/lens_zoom.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr Color kOutline{43, 74, 80}; // of the glass in the pictures
// Our own choice: still liquid fills the glass, so that the particles stand on a quiet ground
// whatever was magnified.
constexpr Color kLiquid{224, 240, 241};
constexpr Color kPlate{255, 255, 255};

Rect wholeOf(const Picture& picture) {
    return {0, 0, static_cast<double>(picture.width()), static_cast<double>(picture.height())};
}

} // namespace

void frm_AppMagnify::findPlace() {
    const ScreenCapture& screen = CoreLib().Screen;
    const PixelRect own = screen.windowRect(screen.GetForegroundWindow());
    const PixelRect whole = screen.windowRect(screen.GetDesktopWindow());
    const bool known = own.right >= own.left && whole.right >= whole.left;
    origin_ = known ? Point{static_cast<double>(own.left - whole.left),
                            static_cast<double>(own.top - whole.top)}
                    : Point{};
}

Rect frm_AppMagnify::source() const {
    return sourceOnScreen(SourceLeft * SourceScale - origin_.x, SourceTop * SourceScale - origin_.y,
                          SourceRight * SourceScale - origin_.x,
                          SourceBottom * SourceScale - origin_.y, inner());
}

void frm_AppMagnify::drawOriginal(const PicturePtr& screen) {
    if (screen != nullptr) {
        const Rect whole = wholeOf(*screen);
        pic_Fill.surface().StretchBlt({-origin_.x, -origin_.y, whole.width, whole.height}, screen,
                                      whole, RasterOp::SrcCopy);
    }
}

void frm_AppMagnify::drawMagnified(const Rect& to) {
    const PicturePtr& original = pic_Original.picture();
    if (original == nullptr) {
        return;
    }
    const Rect whole = wholeOf(*original);
    Rect part = source();
    part.left += origin_.x;
    part.top += origin_.y;
    pic_Fill.surface().StretchBlt(to, original, magnifiedPart(part, {whole.width, whole.height}),
                                  RasterOp::SrcCopy);
}

void frm_AppMagnify::drawZoom(int hundredths) {
    pic_Fill.surface().Clear();
    drawOriginal(pic_Original.picture());
    drawMagnified(zoomedRect(source(), inner(), hundredths));
    pic_Fill.drawn();
}

void frm_AppMagnify::drawLens() {
    const Rect whole{0, 0, inner().width, inner().height};
    Surface& fill = pic_Fill.surface();
    fill.Clear();
    drawMagnified(whole);
    drawOriginal(pic_Shot.picture());
    drawLiquid();
    if (!ShowWater && !ShowAcid) {
        drawCrystal();
    }
    const PicturePtr& mask = pic_Magnify(0).picture();
    const PicturePtr& glass = pic_Magnify(1).picture();
    if (mask != nullptr && glass != nullptr) { // one without the other spoils the screen
        fill.StretchBlt(whole, mask, wholeOf(*mask), RasterOp::SrcAnd);
        fill.StretchBlt(whole, glass, wholeOf(*glass), RasterOp::SrcInvert);
    }
    drawPlate();
    pic_Fill.drawn();
}

void frm_AppMagnify::fillPolygon(std::span<const Point> corners, Color fill, Color outline) {
    Surface& surface = pic_Fill.surface();
    surface.setFillStyle(FillStyle::Solid);
    surface.setFillColor(fill);
    surface.Polygon(corners, outline);
    surface.setFillStyle(FillStyle::None);
}

Size frm_AppMagnify::unitSize() const {
    return {inner().width / kGlassDesign.width, inner().height / kGlassDesign.height};
}

void frm_AppMagnify::drawLiquid() {
    const GlassOutline outline = glassOutline(unitSize());
    fillPolygon(outline, kLiquid, kOutline);
}

// A disc without what lies beyond the rim.
void frm_AppMagnify::drawDisc(Point centre, double radius, Color color) {
    const Size unit = unitSize();
    if (insideGlass(centre, radius, unit)) {
        Surface& fill = pic_Fill.surface();
        fill.setFillStyle(FillStyle::Solid);
        fill.setFillColor(color);
        fill.Circle(centre, radius, color);
        fill.setFillStyle(FillStyle::None);
    } else {
        fillPolygon(ballInGlass(centre, radius, unit), color, color);
    }
}

void frm_AppMagnify::drawCrystal() {
    const Size unit = unitSize();
    const double radius = hScaleMin(kCrystalRadius);
    const double line = std::min(unit.width, unit.height); // as wide as those of the free ions
    for (const CrystalIon& ion : crystalIons()) {
        const Point centre{static_cast<double>(hScaleX(ion.centre.x)),
                           static_cast<double>(hScaleY(ion.centre.y))};
        if (!insideGlass(centre, -radius, unit)) {
            continue;
        }
        drawDisc(centre, radius + line / 2, kBlack);
        drawDisc(centre, radius - line / 2, ionColor(ion.sign));
        if (insideGlass(centre, radius / 2, unit)) {
            drawSign(pic_Fill.surface(), centre, radius, ion.sign, signColor(ion.sign), 3 * line);
        }
    }
}

// Readable on whatever lies beneath.
void frm_AppMagnify::drawPlate() {
    const Rect& icon = img_Attention.place();
    const Rect& label = lab_Attention.place();
    const double air = icon.width / 4;
    const Rect plate{icon.left - air, label.top - air, label.right() - icon.left + 2 * air,
                     label.height + 2 * air};
    fillPolygon(roundedBox(plate, 2 * air), kPlate, kOutline);
}

void frm_AppMagnify::showAttention(bool shown) {
    img_Attention.setVisible(shown);
    lab_Attention.setVisible(shown);
}

// On the surface of the scene, as LensScene::draw asks for it.
Size frm_AppMagnify::roundUnit() const {
    const double across = std::max(1.0, pic_Screen.place().width) / LensScene::kUnits.width;
    const double down = std::max(1.0, pic_Screen.place().height) / LensScene::kUnits.height;
    const double least = std::min(across, down);
    return {least / across, least / down};
}

} // namespace quendal
