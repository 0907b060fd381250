#include "desktop/files/wmf_objects.h"

#include "desktop/files/text_bytes.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr int kBoldFrom = 550; // between the weights 400, normal, and 700, bold
constexpr double kTenthsOfADegree = 10;

// The bits of a pen's style.
constexpr unsigned kDashBits = 0x000F;
constexpr unsigned kCapBits = 0x0F00;
constexpr unsigned kJoinBits = 0xF000;

WmfPen::Style penStyle(unsigned bits) {
    using Style = WmfPen::Style;
    constexpr Style kStyles[] = {Style::Solid,   Style::Dash,       Style::Dot,
                                 Style::DashDot, Style::DashDotDot, Style::None};
    return bits < std::size(kStyles) ? kStyles[bits] : Style::Solid;
}

WmfPen::Cap penCap(unsigned bits) {
    return bits == 0x0100   ? WmfPen::Cap::Square
           : bits == 0x0200 ? WmfPen::Cap::Flat
                            : WmfPen::Cap::Round;
}

WmfPen::Join penJoin(unsigned bits) {
    return bits == 0x1000   ? WmfPen::Join::Bevel
           : bits == 0x2000 ? WmfPen::Join::Miter
                            : WmfPen::Join::Round;
}

} // namespace

WmfLogicalPen readWmfPen(const WmfWords& words) {
    const unsigned style = words.unsignedAt(0);
    WmfLogicalPen made;
    made.pen.style = penStyle(style & kDashBits);
    made.pen.cap = penCap(style & kCapBits);
    made.pen.join = penJoin(style & kJoinBits);
    made.pen.color = words.colorAt(3);
    made.width = std::abs(words.at(1));
    return made;
}

WmfLogicalBrush readWmfBrush(const WmfWords& words) {
    using Style = WmfLogicalBrush::Style;
    const unsigned style = words.unsignedAt(0);
    return {.style = style == 0   ? Style::Solid
                     : style == 2 ? Style::Hatched
                                  : Style::None,
            .color = words.colorAt(1)};
}

WmfLogicalFont readWmfFont(const WmfWords& words) {
    WmfLogicalFont made;
    made.height = words.at(0);
    made.width = words.at(1);
    made.font.angle = words.at(2) / kTenthsOfADegree;
    made.font.bold = words.at(4) >= kBoldFrom;
    made.font.italic = (words.unsignedAt(5) & 0xFFU) != 0;
    made.font.family.clear();
    constexpr std::size_t kLongestName = 32;
    const std::string_view name = words.bytesFrom(kWmfFontWords).substr(0, kLongestName);
    for (const char c : name.substr(0, name.find('\0'))) {
        appendUtf8(made.font.family, fromCp1252(static_cast<unsigned char>(c)));
    }
    return made;
}

bool WmfObjectTable::add(WmfObject object) {
    const auto free = std::find_if(objects_.begin(), objects_.end(), [](const WmfObject& o) {
        return std::holds_alternative<WmfNothing>(o);
    });
    if (free != objects_.end()) {
        *free = std::move(object);
        return true;
    }
    if (objects_.size() >= kWmfObjectLimit) {
        return false;
    }
    objects_.push_back(std::move(object));
    return true;
}

void WmfObjectTable::remove(std::size_t index) {
    if (index < objects_.size()) {
        objects_[index] = WmfNothing{};
    }
}

const WmfObject& WmfObjectTable::at(std::size_t index) const {
    static const WmfObject nothing;
    return index < objects_.size() ? objects_[index] : nothing;
}

} // namespace quendal
