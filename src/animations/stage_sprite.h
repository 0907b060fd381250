// A picture that a scene moves about on the stage.
#pragma once

#include "host/pictures.h"

#include <cstdint>
#include <string>

namespace quendal {

// The record of one file. Nothing is loaded before its first use.
struct Sprite {
    PictureBox* Pic = nullptr; // the buffer; null until the first use
    std::int32_t Left = 0;     // place on the stage in pixels
    std::int32_t Top = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t SrcWidth = 0; // size of the buffer in pixels
    std::int32_t SrcHeight = 0;
    PicturePtr Dc;              // what copies are taken from; null for a file that is broken
    std::string Name;           // folder, backslash and file name in capitals, without extension
    bool Visible = false;       // drawn with the stage
    std::string File;           // path
    std::int32_t NatWidth = 0;  // size of the picture in design units
    std::int32_t NatHeight = 0; // 0 for a file that is broken
    bool Loaded = false;        // Pic is set up
};

// The key of a file: "H2O-HCL\WANNE" for ".../h2o-hcl/wanne.wmf". Both kinds of separators count.
std::string spriteName(const std::string& file);

} // namespace quendal
