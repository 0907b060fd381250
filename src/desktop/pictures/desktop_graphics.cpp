#include "desktop/pictures/desktop_graphics.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/windows/look.h"
#include "host/log.h"
#include "host/picture_bytes.h"

namespace quendal {

namespace {

// `folder/x3/name` for `folder/name`.
std::string twinName(const std::string& path) {
    const std::size_t cut = path.find_last_of("/\\");
    const std::size_t start = cut == std::string::npos ? 0 : cut + 1;
    return path.substr(0, start) + "x3/" + path.substr(start);
}

PicturePtr loadDrawing(const std::string& path, const std::string& bytes) {
    WmfReading reading = readWmf(bytes);
    if (!reading.drawing) {
        logLine("picture broken: " + path + " (" + std::string(reading.fault) + ")");
        return nullptr;
    }
    return DesktopPicture::fromDrawing(std::move(*reading.drawing));
}

} // namespace

Color DesktopGraphics::SystemColor(int number) const {
    return number == 15 ? look::kButtonColor : kBlack;
}

PicturePtr DesktopGraphics::LoadPicture(const std::string& path) {
    const auto bytes = files_.read(path);
    if (!bytes) {
        logLine("picture missing: " + path);
        return nullptr;
    }
    if (isPlaceable(*bytes)) {
        return loadDrawing(path, *bytes);
    }
    const std::string twin = twinName(path);
    const QString twinFile =
        files_.FileExists(twin) ? QString::fromStdString(files_.realName(twin)) : QString();
    auto picture = DesktopPicture::fromFile(*bytes, twinFile);
    if (picture == nullptr) {
        logLine("picture broken: " + path);
    }
    return picture;
}

void DesktopGraphics::forgetDetail() {
    DesktopPicture::forgetDetail();
}

PicturePtr DesktopGraphics::Scaled(const PicturePtr& picture, int width, int height) {
    const auto* known = dynamic_cast<const DesktopPicture*>(picture.get());
    if (known == nullptr) {
        return nullptr;
    }
    if (!isPictureSize(width, height)) {
        logLine("picture too large: " + std::to_string(width) + " x " + std::to_string(height));
        return nullptr;
    }
    return DesktopPicture::fromPixels(known->inSize({width, height}));
}

} // namespace quendal
