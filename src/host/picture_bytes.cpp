#include "host/picture_bytes.h"

#include <cmath>
#include <cstdint>

namespace quendal {

namespace {

constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7U;
constexpr unsigned kMemoryKind = 1; // both kinds look alike in a file
constexpr unsigned kDiskKind = 2;
constexpr unsigned kPlainHeadWords = 9;
constexpr std::size_t kWord = 2;             // bytes; lengths are counted in words
constexpr std::size_t kLeastRecordWords = 3; // its length and its function
constexpr double kPxPerInch = 96;

// Low byte first.
unsigned wordAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) + 256U * static_cast<unsigned char>(bytes[at + 1]);
}
std::uint32_t doubleWordAt(std::string_view bytes, std::size_t at) {
    return wordAt(bytes, at) + 65536U * wordAt(bytes, at + kWord);
}
int signedAt(std::string_view bytes, std::size_t at) {
    return static_cast<std::int16_t>(wordAt(bytes, at));
}

bool hasPlainHead(std::string_view bytes) {
    const unsigned kind = wordAt(bytes, kPlaceableHeadSize);
    return (kind == kMemoryKind || kind == kDiskKind) &&
           wordAt(bytes, kPlaceableHeadSize + kWord) == kPlainHeadWords;
}

bool leadsToTheEnd(std::string_view records) {
    while (records.size() >= kLeastRecordWords * kWord) {
        const std::size_t words = doubleWordAt(records, 0);
        if (words < kLeastRecordWords || words > records.size() / kWord) {
            return false;
        }
        if (wordAt(records, 2 * kWord) == 0) {
            return true;
        }
        records.remove_prefix(words * kWord);
    }
    return false;
}

bool isSide(double length) {
    return length > 0 && length <= kLargestPictureSide;
}

} // namespace

std::optional<Size> gifScreen(std::string_view bytes) {
    constexpr std::size_t kHeaderSize = 13; // the signature, and the screen behind it
    constexpr std::size_t kWidthAt = 6;
    if (!isGif(bytes) || bytes.size() < kHeaderSize || isGifCutShort(bytes)) {
        return std::nullopt;
    }
    const int width = static_cast<int>(wordAt(bytes, kWidthAt));
    const int height = static_cast<int>(wordAt(bytes, kWidthAt + kWord));
    return isPictureSize(width, height) ? std::optional(Size{double(width), double(height)})
                                        : std::nullopt;
}

Size PlaceableHead::size() const {
    const auto px = [&](int from, int to) {
        return unitsPerInch > 0 ? std::abs(to - from) * kPxPerInch / unitsPerInch : 0;
    };
    return {px(left, right), px(top, bottom)};
}

bool isPlaceable(std::string_view bytes) {
    return bytes.size() >= 2 * kWord && doubleWordAt(bytes, 0) == kPlaceableKey;
}

std::optional<PlaceableHead> placeableHead(std::string_view bytes) {
    if (bytes.size() < kPlaceableHeadSize + kMetafileHeadSize || !isPlaceable(bytes) ||
        !hasPlainHead(bytes) ||
        !leadsToTheEnd(bytes.substr(kPlaceableHeadSize + kMetafileHeadSize))) {
        return std::nullopt;
    }
    const PlaceableHead head{.left = signedAt(bytes, 6),
                             .top = signedAt(bytes, 8),
                             .right = signedAt(bytes, 10),
                             .bottom = signedAt(bytes, 12),
                             .unitsPerInch = static_cast<int>(wordAt(bytes, 14))};
    const Size size = head.size();
    const bool fits = isSide(size.width) && isSide(size.height) &&
                      size.width * size.height <= kLargestPictureArea;
    return fits ? std::optional(head) : std::nullopt;
}

} // namespace quendal
