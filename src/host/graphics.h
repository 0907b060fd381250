// Colours of the system and pictures from files.
#pragma once

#include "host/color.h"
#include "host/picture.h"

#include <string>

namespace quendal {

class Graphics {
  public:
    virtual ~Graphics() = default;
    // 15 is the system's button colour; no other number is asked for.
    virtual Color SystemColor(int number) const = 0;
    // `base` with `percent` percent of `mixed` mixed in.
    Color Blend(Color base, double percent, Color mixed) const {
        return quendal::blend(base, percent, mixed);
    }
    // Null and one logged line when the file is missing or broken.
    virtual PicturePtr LoadPicture(const std::string& path) = 0;
    // The picture in this many pixels, for whoever shows it at that size again and again; null for
    // null and for a size without width or height.
    virtual PicturePtr Scaled(const PicturePtr& picture, int width, int height) = 0;
    // Whoever showed large pictures is done: what is kept only to show them sharp may go.
    virtual void forgetDetail() {}
};

} // namespace quendal
