// GIF pictures as the desktop host loads them. The toolkit's own reader isn't instrumented, so what
// it made of the bytes steers the fuzzer by counters of our own.
#include "desktop/pictures/bit_join.h"
#include "desktop/pictures/desktop_picture.h"
#include "fuzz_input.h"
#include "host/log.h"
#include "host/picture_bytes.h"

#include <QImage>

#include <array>
#include <bit>

namespace quendal {
namespace {

// libFuzzer reads the section as further places that were reached.
__attribute__((section("__libfuzzer_extra_counters"))) std::array<std::uint8_t, 4096> reached;

void tell(std::size_t kind, std::size_t value) {
    constexpr std::size_t kKinds = 8;
    reached[(value * kKinds + kind) % reached.size()] = 1;
}

void tellPixels(const QImage& image) {
    std::size_t sum = 0;
    for (int y = 0; y < image.height(); y += 1 + image.height() / 8) {
        for (int x = 0; x < image.width(); x += 1 + image.width() / 8) {
            sum = sum * 31 + image.pixel(x, y);
        }
    }
    tell(0, sum % 64);
    tell(1, static_cast<std::size_t>(image.format()));
    tell(2, std::bit_width(static_cast<unsigned>(image.width())));
    tell(3, std::bit_width(static_cast<unsigned>(image.height())));
    tell(4, static_cast<std::size_t>(image.colorCount()));
}

// As forms and surfaces use a picture. Not in every size: scaling takes longer than reading.
void use(const DesktopPicture& picture) {
    constexpr QSize kSmall{32, 24};
    require(picture.inSize(kSmall).size() == kSmall);
    require(picture.prepared(QSize{16, 16}).size() == QSize(16, 16));
    const QRectF all(0, 0, picture.width(), picture.height());
    require(picture.cut(all, kSmall).size() == kSmall);
    QImage target(kSmall, QImage::Format_RGB32);
    target.fill(Qt::white);
    for (const RasterOp operation : {RasterOp::SrcAnd, RasterOp::SrcInvert}) {
        const DesktopPicture::Detail best = picture.passingDetail(all, 1);
        joinBits(target, target.rect(), best.image, {target.rect(), best.from}, operation);
    }
}

} // namespace
} // namespace quendal

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quendal;
    const std::string bytes(fuzzText(data, size));
    const QImage image = decodePicture(bytes);
    if (image.isNull()) {
        return 0;
    }
    require(isPictureSize(image.width(), image.height()));
    require(!isGifCutShort(bytes));
    tellPixels(image);
    constexpr int kQuickToScale = 512; // px of a side
    if (image.width() <= kQuickToScale && image.height() <= kQuickToScale) {
        use(DesktopPicture(image));
    }
    return 0;
}
