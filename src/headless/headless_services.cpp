#include "headless/headless_services.h"

#include "host/file_service.h"
#include "host/host_observer.h"
#include "host/log.h"
#include "host/picture_bytes.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace quendal {

void ReportingSounds::report(const std::string& name) {
    if (watchers_.observer != nullptr && !options_.silent()) {
        watchers_.observer->soundPlayed(name);
    }
}

void ReportingSounds::Play(const std::string& name, int /*unused*/) {
    report(name);
}

void ReportingSounds::PlayFile(const std::string& path, int /*unused*/) {
    report(path);
}

void ReportingSounds::Signal(int number) {
    report("signal " + std::to_string(number));
}

std::string ReportingControl::Query(const std::string& section, const std::string& verb,
                                    const std::string& key) {
    if (section != kControlSection || verb != "GET") {
        return {};
    }
    std::string name = key;
    std::transform(name.begin(), name.end(), name.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    const auto found = keys_.find(name);
    return found == keys_.end() ? std::string() : found->second;
}

void ReportingControl::ReportProgress(int points, int wrong, int, int, const std::string&,
                                      const std::string&, const std::string&, int, int, int) {
    if (watchers_.observer != nullptr) {
        watchers_.observer->progressReported(points, wrong);
    }
}

void ReportingControl::ReportResult(int score, double mark, const std::string& markText, int,
                                    const std::string&) {
    if (watchers_.observer != nullptr) {
        watchers_.observer->resultReported(score, mark, markText);
    }
}

namespace {

class SizeOnlyPicture final : public Picture {
  public:
    SizeOnlyPicture(int width, int height) : width_(width), height_(height) {}
    int width() const override { return width_; }
    int height() const override { return height_; }

  private:
    int width_;
    int height_;
};

} // namespace

PicturePtr sizeOnlyPicture(int width, int height) {
    return std::make_shared<SizeOnlyPicture>(width, height);
}

namespace {

PicturePtr readGifSize(std::string_view bytes) {
    const auto size = gifScreen(bytes);
    return size ? sizeOnlyPicture(wholePx(size->width), wholePx(size->height)) : nullptr;
}

PicturePtr readSpriteSize(std::string_view bytes) {
    const auto head = placeableHead(bytes);
    return head ? sizeOnlyPicture(wholePx(head->size().width), wholePx(head->size().height))
                : nullptr;
}

} // namespace

Color SizeOnlyGraphics::SystemColor(int number) const {
    return number == 15 ? Color{240, 240, 240} : kBlack;
}

PicturePtr SizeOnlyGraphics::LoadPicture(const std::string& path) {
    const auto bytes = files_.read(path);
    PicturePtr picture = bytes ? readGifSize(*bytes) : nullptr;
    if (bytes && picture == nullptr) {
        picture = readSpriteSize(*bytes);
    }
    if (picture == nullptr) {
        logLine((bytes ? "picture broken: " : "picture missing: ") + path);
    }
    return picture;
}

PicturePtr SizeOnlyGraphics::Scaled(const PicturePtr& picture, int width, int height) {
    const bool size = isPictureSize(width, height);
    return picture != nullptr && size ? sizeOnlyPicture(width, height) : nullptr;
}

} // namespace quendal
