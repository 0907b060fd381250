// A loaded picture. Only a host can look inside; the logic knows its size and hands it on.
#pragma once

#include <memory>

namespace quendal {

class Picture {
  public:
    virtual ~Picture() = default;
    // Size in design px, always that of the file itself, never of a larger twin of it.
    virtual int width() const = 0;
    virtual int height() const = 0;
};

// Null stands for a picture that is missing or broken: it draws nothing and has no size.
using PicturePtr = std::shared_ptr<const Picture>;

} // namespace quendal
