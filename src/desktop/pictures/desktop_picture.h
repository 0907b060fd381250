// A picture as the desktop host keeps it: the file in its own size, and prepared copies of it in
// device pixels.
#pragma once

#include "host/picture.h"

#include <QImage>
#include <QString>

#include <vector>

namespace quendal {

class DesktopPicture final : public Picture {
  public:
    // `twin` is the file with the same picture three times its size, empty when there is none.
    explicit DesktopPicture(QImage image, QString twin = {});

    int width() const override { return image_.width(); }
    int height() const override { return image_.height(); }

    // The picture at `scale` device pixels for one design px. Made once a scale; a few scales are
    // kept, because a picture may be used in two windows at the same time.
    const QImage& prepared(double scale) const;
    // The same in any size, for headers and backdrops. Not kept.
    QImage inSize(QSize devicePixels) const;

  private:
    struct Prepared {
        double scale = 0;
        QImage image;
    };
    QImage source(double scale) const;

    QImage image_;
    mutable QString twin_; // emptied when the file turns out to be broken
    mutable std::vector<Prepared> prepared_;
};

} // namespace quendal
