// Lines, boxes, pictures and the zoom of the stage.
#include "animations/frm_AppIntro.h"
#include "animations/stage_layout.h"
#include "host/clock.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

Rect between(Point from, Point to) {
    return {from.x, from.y, to.x - from.x, to.y - from.y};
}

Rect common(const Rect& one, const Rect& two) {
    return between({std::max(one.left, two.left), std::max(one.top, two.top)},
                   {std::min(one.right(), two.right()), std::min(one.bottom(), two.bottom())});
}

} // namespace

int frm_AppIntro::hX(double x) const {
    return roundToInt(x * inner().width / kStage.width);
}

int frm_AppIntro::hY(double y) const {
    return roundToInt(y * inner().height / kStage.height);
}

double frm_AppIntro::hH(double size) const {
    const double width = inner().width;
    const double height = inner().height;
    const bool wide = height / kStage.height <= width / kStage.width;
    return (wide ? height : width) * size / 800 * 0.9;
}

double frm_AppIntro::lineWidth() const {
    const double width = inner().width;
    return width < 800 ? 1 : width < 1024 ? 2 : 3;
}

void frm_AppIntro::hLine(double x1, double y1, double x2, double y2, Color color) {
    pic_Stage.surface().Line({double(hX(x1)), double(hY(y1))}, {double(hX(x2)), double(hY(y2))},
                             color, lineWidth());
}

void frm_AppIntro::hBox(double x1, double y1, double x2, double y2, Color color,
                        std::optional<Color> fill) {
    pic_Stage.surface().Box({double(hX(x1)), double(hY(y1))}, {double(hX(x2)), double(hY(y2))},
                            fill.value_or(color));
    hFrame(x1, y1, x2, y2, color);
}

void frm_AppIntro::hBox(const Rect& box, Color color, Color fill) {
    hBox(box.left, box.top, box.right(), box.bottom(), color, fill);
}

void frm_AppIntro::hFrame(double x1, double y1, double x2, double y2, Color color) {
    Surface& surface = pic_Stage.surface();
    const double width = lineWidth();
    const double left = hX(x1);
    const double top = hY(y1);
    const double right = hX(x2);
    const double bottom = hY(y2);
    const double reach = width / 2; // so that the corners are filled
    surface.Line({left - reach, top}, {right + reach, top}, color, width);
    surface.Line({left - reach, bottom}, {right + reach, bottom}, color, width);
    surface.Line({left, top - reach}, {left, bottom + reach}, color, width);
    surface.Line({right, top - reach}, {right, bottom + reach}, color, width);
}

Rect frm_AppIntro::onScreen(const Rect& design) const {
    return between({double(hX(design.left)), double(hY(design.top))},
                   {double(hX(design.right())), double(hY(design.bottom()))});
}

void frm_AppIntro::hBlit(const Rect& to, const PicturePtr& picture, RasterOp operation) {
    hBlitClip(to, picture, to, operation);
}

void frm_AppIntro::hBlitClip(const Rect& to, const PicturePtr& picture, const Rect& clip,
                             RasterOp operation) {
    const Rect whole = onScreen(to);
    const Rect seen = common(whole, onScreen(clip));
    if (picture == nullptr || !(seen.width > 0 && seen.height > 0)) {
        return;
    }
    const double across = picture->width() / whole.width;
    const double down = picture->height() / whole.height;
    pic_Stage.surface().StretchBlt(seen, picture,
                                   {(seen.left - whole.left) * across,
                                    (seen.top - whole.top) * down, seen.width * across,
                                    seen.height * down},
                                   operation);
}

// Null for a number that has no picture.
PicturePtr frm_AppIntro::powerOfTen(int number) {
    const auto& pictures = appResource().pic_phF;
    if (pictures.has(number)) {
        return pictures(number).picture();
    }
    if (pictures.last() == 0) { // a single one has been told of where they were loaded
        logOnce("phn", "pictures missing: phn\\f*.gif");
    }
    return nullptr;
}

void frm_AppIntro::hZoom(const Zoom& zoom) {
    runZoom(zoom, [](const Progress& at) { return at; });
}

void frm_AppIntro::hZoomOut(const Zoom& zoom) {
    runZoom(zoom, [](const Progress& at) { return Progress{at.d - at.t, at.d}; });
}

void frm_AppIntro::runZoom(const Zoom& zoom, Progress (*direction)(const Progress&)) {
    tween(zoom.duration, [&](const Progress& at) { drawZoom(zoom, direction(at)); });
}

void frm_AppIntro::drawZoom(const Zoom& zoom, const Progress& at) {
    const Rect& panel = kZoomPanel;
    hBox(panel, palette(15), session().ParticleBackColor);
    const double p = at.g();
    const double away = (1 - 1 / zoom.factor) * p / 100 + 1 / zoom.factor;
    hBlitClip({panel.left, panel.top, panel.width * away, panel.height * away},
              powerOfTen(zoom.second), panel, RasterOp::SrcCopy);
    const double s = (zoom.factor - 1) * p / 100 + 1;
    const Size size{panel.width * s, panel.height * s};
    const double q = at.d > 0 ? (at.d - at.t) * zoom.inner / at.d : 1;
    hBlitClip({(1 - q) * size.width / 10 + panel.left, (1 - q) * size.height / 10 + panel.top,
               q * size.width, q * size.height},
              powerOfTen(zoom.first), panel, RasterOp::SrcCopy);
    hFrame(panel.left, panel.top, panel.right(), panel.bottom(), palette(15));
}

} // namespace quendal
