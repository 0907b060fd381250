#include "desktop/pictures/desktop_picture.h"

#include "host/log.h"

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr std::size_t kKeptScales = 3;
constexpr double kTwinFrom = 1.05; // below it the file itself has all the detail

// The format that is copied fastest.
QImage::Format formatFor(const QImage& image) {
    return image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

} // namespace

DesktopPicture::DesktopPicture(QImage image, QString twin)
    : image_(image.convertToFormat(formatFor(image))), twin_(std::move(twin)) {}

QImage DesktopPicture::source(double scale) const {
    if (scale > kTwinFrom && !twin_.isEmpty()) {
        const QImage twin(twin_);
        if (!twin.isNull()) {
            return twin.convertToFormat(formatFor(twin));
        }
        logLine("picture broken: " + twin_.toStdString());
        twin_.clear(); // the file itself has to do; said once
    }
    return image_;
}

const QImage& DesktopPicture::prepared(double scale) const {
    const auto known = std::find_if(prepared_.begin(), prepared_.end(), [&](const Prepared& p) {
        return std::abs(p.scale - scale) < 1e-6;
    });
    if (known != prepared_.end()) {
        return known->image;
    }
    if (prepared_.size() >= kKeptScales) {
        prepared_.erase(prepared_.begin());
    }
    const QSize size(std::max(1, static_cast<int>(std::lround(width() * scale))),
                     std::max(1, static_cast<int>(std::lround(height() * scale))));
    prepared_.push_back({scale, size == image_.size() ? image_ : inSize(size)});
    return prepared_.back().image;
}

QImage DesktopPicture::inSize(QSize devicePixels) const {
    const double scale = static_cast<double>(devicePixels.width()) / std::max(1, width());
    const QImage scaled =
        source(scale).scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return scaled.convertToFormat(formatFor(scaled));
}

} // namespace quendal
