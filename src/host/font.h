// How a text is set.
#pragma once

#include <string>

namespace quendal {

struct FontSpec {
    std::string family = "Arial";
    double size = 13; // design px
    bool bold = false;
    bool italic = false;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

// A size in points as design px; the design grid has 96 px to the inch.
constexpr double points(double pt) {
    return pt * 96.0 / 72.0;
}

} // namespace quendal
