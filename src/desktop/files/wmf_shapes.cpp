// The records of a metafile that draw.
#include "desktop/files/text_bytes.h"
#include "desktop/files/wmf_reader.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quendal {

namespace {

constexpr double kFullTurn = 360; // degrees

// Options of a text in a box.
constexpr unsigned kBoxFilled = 0x0002;
constexpr unsigned kBoxClips = 0x0004;
// Bits of the alignment of texts.
constexpr unsigned kAtThePen = 0x0001;
constexpr unsigned kAcrossBits = 0x0006;
constexpr unsigned kRight = 0x0002;
constexpr unsigned kCentre = 0x0006;
constexpr unsigned kDownBits = 0x0018;
constexpr unsigned kBottom = 0x0008;
constexpr unsigned kBaseline = 0x0018;

WmfText::Across acrossOf(unsigned align) {
    const unsigned bits = align & kAcrossBits;
    return bits == kCentre  ? WmfText::Across::Centre
           : bits == kRight ? WmfText::Across::Right
                            : WmfText::Across::Left;
}

WmfText::Down downOf(unsigned align) {
    const unsigned bits = align & kDownBits;
    return bits == kBaseline ? WmfText::Down::Baseline
           : bits == kBottom ? WmfText::Down::Bottom
                             : WmfText::Down::Top;
}

// Where the ray from the middle of the box through `end` meets the ellipse in it.
double angleOn(const Rect& box, Point end) {
    const double x = (end.x - box.left - box.width / 2) * box.height;
    const double y = (end.y - box.top - box.height / 2) * box.width;
    return std::atan2(-y, x) * kFullTurn / (2 * std::numbers::pi);
}

std::string toUtf8(std::string_view bytes) {
    constexpr unsigned char kFirstVisible = 32;
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte < kFirstVisible ? U' ' : fromCp1252(byte));
    }
    return text;
}

// Words that this many bytes fill.
std::size_t wordsFor(std::size_t bytes) {
    return (bytes + 1) / 2;
}

} // namespace

void WmfReader::add(WmfShape shape) {
    if (drawing_.shapes.size() >= kWmfShapeLimit) {
        fail("too many shapes");
        return;
    }
    drawing_.shapes.push_back(std::move(shape));
}

void WmfReader::addForm(decltype(WmfShape::form) form, Filled filled) {
    add({.form = std::move(form),
         .pen = pen(),
         .fill = filled == Filled::Yes ? fill() : std::nullopt,
         .clip = state().clip});
}

void WmfReader::addBlank(const Rect& box, Color color, const std::optional<Rect>& clip) {
    add({.form = WmfRectangle{.box = box},
         .pen = {.style = WmfPen::Style::None},
         .fill = color,
         .clip = clip});
}

bool WmfReader::takePoints(const WmfWords& words, std::size_t first, std::size_t count,
                           std::vector<Point>& points) {
    if (first + 2 * count > words.size()) {
        fail("more points told of than there are");
        return false;
    }
    points_ += count;
    if (points_ > kWmfPointLimit) {
        fail("too many points");
        return false;
    }
    points.reserve(count);
    for (std::size_t i = first; i < first + 2 * count; i += 2) {
        points.push_back(px({words.at(i), words.at(i + 1)}));
    }
    return true;
}

void WmfReader::moveTo(const WmfWords& words) {
    state().pen = {words.at(1), words.at(0)};
}

void WmfReader::lineTo(const WmfWords& words) {
    points_ += 2;
    if (points_ > kWmfPointLimit) {
        fail("too many points");
        return;
    }
    const Place end{words.at(1), words.at(0)};
    addForm(WmfPolyline{{px(state().pen), px(end)}}, Filled::No);
    state().pen = end;
}

void WmfReader::polyline(const WmfWords& words) {
    WmfPolyline line;
    if (takePoints(words, 1, words.unsignedAt(0), line.points)) {
        addForm(std::move(line), Filled::No);
    }
}

void WmfReader::polygon(const WmfWords& words) {
    WmfPolygon polygon{.rule = state().rule, .rings = {{}}};
    if (takePoints(words, 1, words.unsignedAt(0), polygon.rings.front())) {
        addForm(std::move(polygon), Filled::Yes);
    }
}

void WmfReader::polyPolygon(const WmfWords& words) {
    const std::size_t rings = words.unsignedAt(0);
    if (1 + rings > words.size()) {
        fail("more polygons told of than there are");
        return;
    }
    WmfPolygon polygon{.rule = state().rule};
    std::size_t at = 1 + rings;
    for (std::size_t ring = 0; ring < rings; ++ring) {
        const std::size_t count = words.unsignedAt(1 + ring);
        if (!takePoints(words, at, count, polygon.rings.emplace_back())) {
            return;
        }
        at += 2 * count;
    }
    addForm(std::move(polygon), Filled::Yes);
}

void WmfReader::rectangle(const WmfWords& words) {
    addForm(WmfRectangle{.box = boxAt(words, 0)}, Filled::Yes);
}

void WmfReader::roundRectangle(const WmfWords& words) {
    const Rect box = boxAt(words, 2);
    const Size corner{std::min(std::abs(acrossPx(words.at(1))), box.width),
                      std::min(std::abs(downPx(words.at(0))), box.height)};
    addForm(WmfRectangle{.box = box, .corner = corner}, Filled::Yes);
}

void WmfReader::ellipse(const WmfWords& words) {
    addForm(WmfEllipse{boxAt(words, 0)}, Filled::Yes);
}

void WmfReader::arc(const WmfWords& words) {
    addArc(WmfArc::Kind::Open, words);
}

void WmfReader::pie(const WmfWords& words) {
    addArc(WmfArc::Kind::Pie, words);
}

void WmfReader::chord(const WmfWords& words) {
    addArc(WmfArc::Kind::Chord, words);
}

void WmfReader::addArc(WmfArc::Kind kind, const WmfWords& words) {
    const Rect box = boxAt(words, 4);
    const double start = angleOn(box, px({words.at(3), words.at(2)}));
    const double end = angleOn(box, px({words.at(1), words.at(0)}));
    // Two ends in one place are those of a whole turn.
    double sweep = end - start;
    while (sweep <= 0) {
        sweep += kFullTurn;
    }
    addForm(WmfArc{.kind = kind, .box = box, .start = start, .sweep = sweep},
            kind == WmfArc::Kind::Open ? Filled::No : Filled::Yes);
}

void WmfReader::pixel(const WmfWords& words) {
    const Point place = px({words.at(3), words.at(2)});
    addBlank({place.x, place.y, 1, 1}, words.colorAt(0), state().clip);
}

WmfText WmfReader::textAt(Place place) const {
    const State& now = state();
    return {.place = px((now.align & kAtThePen) != 0 ? now.pen : place),
            .across = acrossOf(now.align),
            .down = downOf(now.align),
            .font = font(),
            .color = now.textColor,
            .ground = now.groundShows ? std::optional(now.ground) : std::nullopt};
}

void WmfReader::addText(WmfText text, std::string_view bytes, const std::optional<Rect>& clip) {
    characters_ += bytes.size();
    if (characters_ > kWmfTextLimit) {
        fail("too much text");
        return;
    }
    if (!bytes.empty()) {
        text.text = toUtf8(bytes);
        add({.form = std::move(text), .clip = clip});
    }
}

void WmfReader::textOut(const WmfWords& words) {
    const std::size_t length = words.unsignedAt(0);
    const std::size_t place = 1 + wordsFor(length);
    if (place + 2 > words.size()) {
        fail("more text told of than there is");
        return;
    }
    addText(textAt({words.at(place + 1), words.at(place)}), words.bytesFrom(1).substr(0, length),
            state().clip);
}

void WmfReader::extTextOut(const WmfWords& words) {
    const std::size_t length = words.unsignedAt(2);
    const unsigned options = words.unsignedAt(3);
    const bool boxed = (options & (kBoxFilled | kBoxClips)) != 0;
    const std::size_t first = boxed ? 8 : 4;
    const std::size_t behind = first + wordsFor(length);
    if (behind > words.size()) {
        fail("more text told of than there is");
        return;
    }
    std::optional<Rect> clip = state().clip;
    if (boxed) {
        const Rect box = boxBetween(px({words.at(4), words.at(5)}), px({words.at(6), words.at(7)}));
        if ((options & kBoxFilled) != 0) {
            addBlank(box, state().ground, clip);
        }
        if ((options & kBoxClips) != 0) {
            clip = clipWithin(box);
        }
    }
    WmfText text = textAt({words.at(1), words.at(0)});
    if (behind + length <= words.size()) {
        for (std::size_t i = 0; i < length; ++i) {
            text.advances.push_back(std::abs(acrossPx(words.at(behind + i))));
        }
    }
    addText(std::move(text), words.bytesFrom(first).substr(0, length), clip);
}

} // namespace quendal
