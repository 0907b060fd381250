#include "desktop/pictures/desktop_picture.h"

#include "desktop/pictures/sprite_renderer.h"
#include "host/log.h"
#include "host/picture_bytes.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr std::size_t kKeptSizes = 3;
constexpr std::size_t kKeptCuts = 4;
constexpr int kLargestTwin = 4;         // times the file's own size
constexpr std::size_t kKeptDetails = 2; // 8 MB each; a step between two pictures needs both
constexpr qsizetype kSmall = 1 << 16;   // bytes of pixels that are kept with their picture
constexpr qsizetype kHuge = 8 << 20;    // bytes of pixels that are kept packed
constexpr int kQuickly = 1;             // of 9; what was drawn packs well whatever the effort
constexpr double kTwinFrom = 1.05;      // below it the file itself has all the detail
constexpr int kDrawingTwin = 2;         // size of the twin of a drawing
constexpr double kHalfFrom =
    0.5; // smooth copies look at two pixels only: beyond it they'd skip some

// The format that is copied fastest.
QImage::Format formatFor(const QImage& image) {
    return image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

QImage readyImage(const QImage& image) {
    return image.convertToFormat(formatFor(image));
}

QRectF scaled(const QRectF& box, double across, double down) {
    return {box.x() * across, box.y() * down, box.width() * across, box.height() * down};
}

// A drawing that can't be painted leaves a hole.
QImage painted(const WmfDrawing& drawing, QSize size) {
    QImage image = renderSprite(drawing, size);
    if (image.isNull()) {
        image = QImage(QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    return image;
}

// Room for one more; the oldest goes.
template <class Kept>
void makeRoom(std::vector<Kept>& kept, std::size_t most) {
    if (kept.size() >= most) {
        kept.erase(kept.begin());
    }
}

// The pictures whose pixels are kept, the one that was asked for last at the end.
std::vector<const DesktopPicture*>& keepers() {
    static std::vector<const DesktopPicture*> kept;
    return kept;
}

} // namespace

DesktopPicture::~DesktopPicture() {
    std::erase(keepers(), this);
}

void DesktopPicture::forgetDetail() {
    for (const DesktopPicture* keeper : keepers()) {
        keeper->dropPixels();
    }
    keepers().clear();
}

std::size_t DesktopPicture::keptDetails() {
    return keepers().size();
}

void DesktopPicture::dropPixels() const {
    // What came with the picture can't be loaded again.
    if (!twinFile_.isEmpty()) {
        twin_ = QImage();
    }
    if (!bytes_.empty() || !packed_.isEmpty()) {
        image_ = QImage();
    }
}

void DesktopPicture::keepPixels(double scale) const {
    std::erase(keepers(), this);
    if (scale > kTwinFrom) {
        twin_ = loadTwin();
    }
    if (twin_.isNull() || scale <= kTwinFrom) {
        image_ = own();
    }
    if (twinFile_.isEmpty() && bytes_.empty() && packed_.isEmpty()) {
        return;
    }
    if (keepers().size() >= kKeptDetails) {
        keepers().front()->dropPixels();
        keepers().erase(keepers().begin());
    }
    keepers().push_back(this);
}

DesktopPicture::DesktopPicture(QImage image, QString twin)
    : size_(image.size()), image_(readyImage(image)), twinFile_(std::move(twin)) {
    opaque_ = image_.format() == QImage::Format_RGB32;
}

std::shared_ptr<const DesktopPicture> DesktopPicture::withDetail(QImage image,
                                                                 const QImage& sharper) {
    auto picture = std::make_shared<DesktopPicture>(std::move(image));
    picture->twin_ = readyImage(sharper);
    return picture;
}

std::shared_ptr<const DesktopPicture> DesktopPicture::fromFile(std::string bytes, QString twin) {
    QImage image = decodePicture(bytes);
    if (image.isNull()) {
        return nullptr;
    }
    auto picture = std::make_shared<DesktopPicture>(std::move(image), std::move(twin));
    if (picture->image_.sizeInBytes() > kSmall) {
        picture->image_ = QImage();
        picture->bytes_ = std::move(bytes);
    }
    return picture;
}

std::shared_ptr<const DesktopPicture> DesktopPicture::fromPixels(const QImage& image) {
    auto picture = std::make_shared<DesktopPicture>(image);
    const QImage& own = picture->image_;
    if (own.sizeInBytes() > kHuge) {
        picture->packed_ = qCompress(own.constBits(), own.sizeInBytes(), kQuickly);
        picture->image_ = QImage();
    }
    return picture;
}

std::shared_ptr<const DesktopPicture> DesktopPicture::fromDrawing(WmfDrawing drawing) {
    auto picture = std::make_shared<DesktopPicture>(QImage());
    picture->size_ = QSize(wholePx(drawing.size.width), wholePx(drawing.size.height));
    picture->drawing_ = std::make_shared<const WmfDrawing>(std::move(drawing));
    return picture;
}

QImage decodePicture(const std::string& bytes) {
    // The toolkit tells the size of a GIF's first image and makes room for its screen.
    if (isGifCutShort(bytes) || (isGif(bytes) && !gifScreen(bytes))) {
        return {};
    }
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    // Some formats don't tell their size before they are read.
    if (!size.isEmpty() && !isPictureSize(size.width(), size.height())) {
        return {};
    }
    QImage image = reader.read();
    return isPictureSize(image.width(), image.height()) ? image : QImage();
}

QImage DesktopPicture::unpacked() const {
    const auto format = opaque_ ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    auto bytes = std::make_unique<QByteArray>(qUncompress(packed_));
    const auto* pixels = reinterpret_cast<const uchar*>(bytes->constData());
    const auto release = [](void* kept) { delete static_cast<QByteArray*>(kept); };
    return {pixels, size_.width(), size_.height(), format, release, bytes.release()};
}

QImage DesktopPicture::own() const {
    if (image_.isNull() && !packed_.isEmpty()) {
        return unpacked();
    }
    if (image_.isNull() && drawing_ != nullptr) {
        image_ = painted(*drawing_, size_);
    }
    return image_.isNull() && !bytes_.empty() ? readyImage(decodePicture(bytes_)) : image_;
}

QImage DesktopPicture::loadTwin() const {
    if (twin_.isNull() && drawing_ != nullptr) {
        const QSize twin =
            (kDrawingTwin * size_).boundedTo({kLargestPictureSide, kLargestPictureSide});
        return isPictureSize(twin.width(), twin.height()) ? painted(*drawing_, twin) : QImage();
    }
    if (!twin_.isNull() || twinFile_.isEmpty()) {
        return twin_;
    }
    QFile file(twinFile_);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QImage twin = decodePicture(bytes.toStdString());
    const QSize most = kLargestTwin * size_;
    if (twin.isNull() || twin.width() > most.width() || twin.height() > most.height()) {
        logLine("picture broken: " + twinFile_.toStdString());
        twinFile_.clear(); // the file itself has to do; said once
        return {};
    }
    return readyImage(twin);
}

QImage DesktopPicture::source(double scale) const {
    const QImage twin = scale > kTwinFrom ? loadTwin() : QImage();
    return twin.isNull() ? own() : twin;
}

const QImage& DesktopPicture::prepared(double scale) const {
    return prepared(QSize(std::max(1, static_cast<int>(std::lround(width() * scale))),
                          std::max(1, static_cast<int>(std::lround(height() * scale)))));
}

const QImage& DesktopPicture::prepared(QSize size) const {
    const auto known = std::find_if(prepared_.begin(), prepared_.end(),
                                    [&](const Prepared& p) { return p.size == size; });
    if (known != prepared_.end()) {
        return known->image;
    }
    makeRoom(prepared_, kKeptSizes);
    prepared_.push_back({size, size == size_ ? own() : inSize(size)});
    return prepared_.back().image;
}

QImage DesktopPicture::inSize(QSize devicePixels) const {
    if (drawing_ != nullptr) {
        return painted(*drawing_, devicePixels);
    }
    const double scale = static_cast<double>(devicePixels.width()) / std::max(1, width());
    return readyImage(
        source(scale).scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

const QImage& DesktopPicture::half(std::size_t times) const {
    while (halves_.size() < times) {
        const QImage larger = halves_.empty() ? own() : halves_.back();
        const QSize size = (larger.size() / 2).expandedTo({1, 1});
        halves_.push_back(
            readyImage(larger.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    }
    return halves_[times - 1];
}

DesktopPicture::Detail DesktopPicture::detail(const QRectF& from, double scale) const {
    keepPixels(scale);
    return passingDetail(from, scale);
}

DesktopPicture::Detail DesktopPicture::passingDetail(const QRectF& from, double scale) const {
    std::size_t halvings = 0;
    for (double left = scale; left < kHalfFrom && halvings < 16; left *= 2) {
        ++halvings;
    }
    QImage image = halvings > 0 ? half(halvings) : source(scale);
    const QRectF part = scaled(from, static_cast<double>(image.width()) / width(),
                               static_cast<double>(image.height()) / height());
    return {std::move(image), part};
}

QImage DesktopPicture::makeCut(const QRectF& from, QSize size) const {
    const double scale = std::max(size.width() / from.width(), size.height() / from.height());
    const Detail best = detail(from, scale);
    if (best.from == QRectF(best.image.rect()) && best.image.size() == size) {
        return best.image;
    }
    const QRect part = best.from.toAlignedRect();
    const QImage cut = part == best.image.rect() ? best.image : best.image.copy(part);
    return readyImage(cut.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

const QImage& DesktopPicture::cut(const QRectF& from, QSize devicePixels) const {
    const auto known = std::find_if(cuts_.begin(), cuts_.end(), [&](const Cut& cut) {
        return cut.from == from && cut.size == devicePixels;
    });
    if (known != cuts_.end()) {
        return known->image;
    }
    makeRoom(cuts_, kKeptCuts);
    cuts_.push_back({from, devicePixels, makeCut(from, devicePixels)});
    return cuts_.back().image;
}

} // namespace quendal
