#include "desktop/files/wmf_reader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quendal {

namespace {

constexpr std::size_t kRecordHead = 6; // bytes: length in words, function
constexpr int kNoGround = 1;           // background mode: transparent
constexpr int kAlternate = 1;          // polygon fill mode
constexpr double kHatchGround = 75;    // percent of a hatched area that its lines leave

double bounded(double px) {
    return std::clamp(px, -kWmfFarthest, kWmfFarthest);
}

Rect intersection(const Rect& a, const Rect& b) {
    const double left = std::max(a.left, b.left);
    const double top = std::max(a.top, b.top);
    return {left, top, std::max(0.0, std::min(a.right(), b.right()) - left),
            std::max(0.0, std::min(a.bottom(), b.bottom()) - top)};
}

} // namespace

WmfReading readWmf(std::string_view bytes) {
    if (bytes.size() > kWmfFileLimit) {
        return {.fault = "the file is too large"};
    }
    const auto head = placeableHead(bytes);
    if (!head) {
        return {.fault = "no placeable metafile, or one that is cut short"};
    }
    return WmfReader(bytes, *head).read();
}

WmfReader::WmfReader(std::string_view bytes, const PlaceableHead& head)
    : records_(bytes.substr(kPlaceableHeadSize + kMetafileHeadSize)) {
    drawing_.size = head.size();
    states_.push_back({.origin = {head.left, head.top},
                       .extent = {head.right - head.left, head.bottom - head.top}});
}

WmfReading WmfReader::read() {
    for (std::size_t count = 0; fault_.empty(); ++count) {
        // The head was only given because all records are there.
        const std::size_t words = WmfWords(records_).unsignedAt(0) +
                                  std::size_t{65536} * WmfWords(records_).unsignedAt(1);
        const unsigned function = WmfWords(records_).unsignedAt(2);
        if (function == 0) {
            return {.drawing = std::move(drawing_)};
        }
        if (count >= kWmfRecordLimit) {
            fail("too many records");
        }
        take(function, WmfWords(records_.substr(kRecordHead, 2 * words - kRecordHead)));
        records_.remove_prefix(2 * words);
    }
    return {.fault = fault_};
}

const WmfReader::Row* WmfReader::rowOf(unsigned function) {
    using R = WmfReader;
    static constexpr std::array kRows{
        Row{0x001E, 0, &R::save},
        Row{0x00F7, 0, &R::createUnused}, // palette
        Row{0x0102, 1, &R::setGroundMode},
        Row{0x0106, 1, &R::setFillRule},
        Row{0x0127, 1, &R::restore},
        Row{0x012D, 1, &R::select},
        Row{0x012E, 1, &R::setTextAlign},
        Row{0x0142, 0, &R::createUnused}, // brush with a picture
        Row{0x01F0, 1, &R::remove},
        Row{0x01F9, 0, &R::createUnused}, // brush with a pattern
        Row{0x0201, 2, &R::setGround},
        Row{0x0209, 2, &R::setTextColor},
        Row{0x020B, 2, &R::setWindowOrigin},
        Row{0x020C, 2, &R::setWindowExtent},
        Row{0x020F, 2, &R::offsetWindowOrigin},
        Row{0x0213, 2, &R::lineTo},
        Row{0x0214, 2, &R::moveTo},
        Row{0x02FA, kWmfPenWords, &R::createPen},
        Row{0x02FB, kWmfFontWords, &R::createFont},
        Row{0x02FC, kWmfBrushWords, &R::createBrush},
        Row{0x0324, 1, &R::polygon},
        Row{0x0325, 1, &R::polyline},
        Row{0x0416, 4, &R::intersectClip},
        Row{0x0418, 4, &R::ellipse},
        Row{0x041B, 4, &R::rectangle},
        Row{0x041F, 4, &R::pixel},
        Row{0x0521, 1, &R::textOut},
        Row{0x0538, 1, &R::polyPolygon},
        Row{0x061C, 6, &R::roundRectangle},
        Row{0x06FF, 0, &R::createUnused}, // region
        Row{0x0817, 8, &R::arc},
        Row{0x081A, 8, &R::pie},
        Row{0x0830, 8, &R::chord},
        Row{0x0A32, 4, &R::extTextOut},
    };
    const auto row = std::find_if(kRows.begin(), kRows.end(),
                                  [&](const Row& r) { return r.function == function; });
    return row != kRows.end() ? &*row : nullptr;
}

void WmfReader::take(unsigned function, const WmfWords& words) {
    const Row* row = rowOf(function);
    if (row == nullptr) {
        return;
    }
    if (words.size() < row->leastWords) {
        fail("a record is too short");
        return;
    }
    (this->*row->take)(words);
}

void WmfReader::fail(std::string_view fault) {
    if (fault_.empty()) {
        fault_ = fault;
    }
}

void WmfReader::setWindowOrigin(const WmfWords& words) {
    state().origin = {words.at(1), words.at(0)};
}

void WmfReader::setWindowExtent(const WmfWords& words) {
    if (words.at(0) != 0 && words.at(1) != 0) {
        state().extent = {words.at(1), words.at(0)};
    }
}

void WmfReader::offsetWindowOrigin(const WmfWords& words) {
    Place& origin = state().origin;
    const auto kept = [](int units) { return std::clamp(units, -0xFFFF, 0xFFFF); };
    origin = {kept(origin.x + words.at(1)), kept(origin.y + words.at(0))};
}

void WmfReader::setFillRule(const WmfWords& words) {
    state().rule = words.at(0) == kAlternate ? WmfFillRule::Alternate : WmfFillRule::Winding;
}

void WmfReader::setTextColor(const WmfWords& words) {
    state().textColor = words.colorAt(0);
}

void WmfReader::setTextAlign(const WmfWords& words) {
    state().align = words.unsignedAt(0);
}

void WmfReader::setGround(const WmfWords& words) {
    state().ground = words.colorAt(0);
}

void WmfReader::setGroundMode(const WmfWords& words) {
    state().groundShows = words.at(0) != kNoGround;
}

void WmfReader::intersectClip(const WmfWords& words) {
    state().clip = clipWithin(boxAt(words, 0));
}

void WmfReader::save(const WmfWords& /*words*/) {
    if (states_.size() > kWmfStateLimit) {
        fail("too many saved states");
        return;
    }
    states_.push_back(State(state()));
}

// A positive number names a saved state, a negative one counts back from the present.
void WmfReader::restore(const WmfWords& words) {
    const int saved = static_cast<int>(states_.size()) - 1;
    const int number = words.at(0) > 0 ? words.at(0) : saved + 1 + words.at(0);
    if (number >= 1 && number <= saved) {
        states_.resize(static_cast<std::size_t>(number));
    }
}

void WmfReader::createPen(const WmfWords& words) {
    create(readWmfPen(words));
}

void WmfReader::createBrush(const WmfWords& words) {
    create(readWmfBrush(words));
}

void WmfReader::createFont(const WmfWords& words) {
    create(readWmfFont(words));
}

void WmfReader::createUnused(const WmfWords& /*words*/) {
    create(WmfUnused{});
}

void WmfReader::create(WmfObject object) {
    if (!objects_.add(std::move(object))) {
        fail("too many objects");
    }
}

void WmfReader::select(const WmfWords& words) {
    const WmfObject& object = objects_.at(words.unsignedAt(0));
    if (const auto* outline = std::get_if<WmfLogicalPen>(&object)) {
        state().outline = *outline;
    } else if (const auto* brush = std::get_if<WmfLogicalBrush>(&object)) {
        state().brush = *brush;
    } else if (const auto* font = std::get_if<WmfLogicalFont>(&object)) {
        state().font = *font;
    }
}

void WmfReader::remove(const WmfWords& words) {
    objects_.remove(words.unsignedAt(0));
}

double WmfReader::acrossPx(double units) const {
    return units * drawing_.size.width / state().extent.x;
}

double WmfReader::downPx(double units) const {
    return units * drawing_.size.height / state().extent.y;
}

Point WmfReader::px(Place place) const {
    return {bounded(acrossPx(place.x - state().origin.x)),
            bounded(downPx(place.y - state().origin.y))};
}

Rect WmfReader::boxBetween(Point a, Point b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

Rect WmfReader::boxAt(const WmfWords& words, std::size_t first) const {
    return boxBetween(px({words.at(first + 3), words.at(first + 2)}),
                      px({words.at(first + 1), words.at(first)}));
}

Rect WmfReader::clipWithin(const Rect& box) const {
    return state().clip ? intersection(*state().clip, box) : box;
}

WmfPen WmfReader::pen() const {
    WmfPen pen = state().outline.pen;
    // Width 0 asks for the thinnest line there is.
    const double width =
        state().outline.width > 0 ? std::abs(acrossPx(state().outline.width)) : 1.0;
    pen.width = std::min(width, kWmfWidestPen);
    return pen;
}

WmfFont WmfReader::font() const {
    WmfFont font = state().font.font;
    const int height = state().font.height;
    font.meaning = height > 0 ? WmfFont::Height::Cell : WmfFont::Height::Em;
    if (height != 0) {
        font.height = std::min(std::abs(downPx(height)), kWmfTallestText);
    }
    font.width = std::min(std::abs(acrossPx(state().font.width)), kWmfTallestText);
    return font;
}

std::optional<Color> WmfReader::fill() const {
    const WmfLogicalBrush& brush = state().brush;
    switch (brush.style) {
    case WmfLogicalBrush::Style::Solid:
        return brush.color;
    case WmfLogicalBrush::Style::Hatched:
        // Its fine lines would be lost: the tone that they come to.
        return blend(brush.color, kHatchGround, state().ground);
    case WmfLogicalBrush::Style::None:
        break;
    }
    return std::nullopt;
}

} // namespace quendal
