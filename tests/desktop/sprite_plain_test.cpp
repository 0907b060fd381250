// Sprites: held against the plain form, which paints at the large size, and against hostile files.
#include "desktop/wmf_drawings.h"

#include "desktop/pictures/sprite_outlines.h"
#include "desktop/pictures/sprite_renderer.h"

#include <QPainter>

#include <ctime>
#include <random>

namespace quendal::test {

namespace {

// Of this program alone, so that others on the machine don't count.
double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The plain form: everything in one large image.
QImage paintedPlainly(const WmfDrawing& drawing, QSize size) {
    QImage large(size * 4, QImage::Format_ARGB32_Premultiplied);
    large.fill(Qt::white);
    QPainter painter(&large);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QTransform toPixels = QTransform::fromScale(large.width() / drawing.size.width,
                                                      large.height() / drawing.size.height);
    for (const WmfShape& shape : drawing.shapes) {
        painter.setClipping(false);
        if (shape.clip) {
            const QRectF clip(shape.clip->left, shape.clip->top, shape.clip->width,
                              shape.clip->height);
            painter.setClipRect(toPixels.mapRect(clip).toRect());
        }
        for (const SpriteOutline& outline : spriteOutlines(shape, toPixels, 4)) {
            const QColor color(outline.color.r, outline.color.g, outline.color.b);
            painter.fillPath(outline.path, outline.color == kKeyColor ? QColor(0, 0, 0, 0) : color);
        }
    }
    painter.end();
    QImage small(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            int sums[4] = {8, 8, 8, 8};
            for (int i = 0; i < 16; ++i) {
                const auto* line =
                    reinterpret_cast<const QRgb*>(large.constScanLine(4 * y + i / 4));
                const QRgb pixel = line[4 * x + i % 4];
                sums[0] += qRed(pixel);
                sums[1] += qGreen(pixel);
                sums[2] += qBlue(pixel);
                sums[3] += qAlpha(pixel);
            }
            reinterpret_cast<QRgb*>(small.scanLine(y))[x] =
                qRgba(sums[0] / 16, sums[1] / 16, sums[2] / 16, sums[3] / 16);
        }
    }
    return small;
}

int greatestDifference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

// How far the two forms are apart, in pixels. The toolkit rounds places to a fraction of a pixel,
// so that a fine pixel at an edge may fall to the other side.
void expectSame(const QImage& one, const QImage& other) {
    ASSERT_EQ(one.size(), other.size());
    int apart = 0;
    int far = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = reinterpret_cast<const QRgb*>(one.constScanLine(y))[x];
            const QRgb b = reinterpret_cast<const QRgb*>(other.constScanLine(y))[x];
            apart += a != b ? 1 : 0;
            far += greatestDifference(a, b) > 70 ? 1 : 0; // some four of sixteen fine pixels
        }
    }
    EXPECT_LE(apart, one.width() * one.height() / 50);
    EXPECT_LE(far, 2);
}

class RandomDrawing {
  public:
    explicit RandomDrawing(unsigned seed) : random_(seed) {}

    WmfWriter make() {
        WmfWriter writer(120, 90);
        writer.noPen();
        writer.brush(kKeyColor);
        writer.rectangle({0, 0, 120, 90});
        for (int i = 0; i < 12; ++i) {
            add(writer);
        }
        return writer;
    }

  private:
    int upTo(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
    WmfWriter::At at() { return {upTo(180) - 30, upTo(150) - 30}; }
    WmfWriter::Box box() {
        const auto [x, y] = at();
        return {x, y, x + 5 + upTo(60), y + 5 + upTo(60)};
    }
    Color color() {
        const auto channel = [&] { return static_cast<std::uint8_t>(upTo(256)); };
        return upTo(4) == 0 ? kKeyColor : Color{channel(), channel(), channel()};
    }
    void add(WmfWriter& writer) {
        writer.pen(upTo(6), upTo(6), color());
        writer.brush(color(), upTo(5) == 0 ? 1 : 0);
        writer.fillRule(1 + upTo(2));
        writer.save();
        if (upTo(4) == 0) {
            writer.clip(box());
        }
        draw(writer);
        writer.restore(-1);
    }
    void draw(WmfWriter& writer) {
        switch (upTo(6)) {
        case 0:
            return writer.polygon({at(), at(), at(), at(), at()});
        case 1:
            return writer.polyPolygon({{at(), at(), at()}, {at(), at(), at(), at()}});
        case 2:
            return writer.ellipse(box());
        case 3:
            return writer.roundRectangle(box(), upTo(40), upTo(40));
        case 4:
            return writer.arc(upTo(2) == 0 ? 0x081A : 0x0830, box(), at(), at());
        default:
            return writer.polyline({at(), at(), at()});
        }
    }

    std::mt19937 random_;
};

TEST(Sprite, LooksLikeThePlainForm) {
    const WmfDrawing rich = drawingOf(richWmf());
    for (const QSize size : {QSize(200, 100), QSize(131, 66), QSize(520, 260)}) {
        expectSame(renderSprite(rich, size), paintedPlainly(rich, size));
    }
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        const WmfDrawing drawing = drawingOf(RandomDrawing(seed).make());
        expectSame(renderSprite(drawing, {240, 180}), paintedPlainly(drawing, {240, 180}));
    }
}

// As many points as a file may have, in places as far away as there are.
WmfDrawing hostile(int style, int width, int extent) {
    std::mt19937 random(7);
    WmfWriter writer(200, 200);
    writer.windowExtent(extent, extent);
    writer.pen(style, width, kBlack);
    const auto place = [&] { return static_cast<int>(random() % 65536) - 32768; };
    for (std::size_t line = 0; line < 39; ++line) {
        std::vector<WmfWriter::At> points(1000);
        for (WmfWriter::At& point : points) {
            point = {place(), place()};
        }
        writer.polygon(points);
    }
    for (int i = 0; i < 900; ++i) {
        writer.ellipse({place(), place(), place(), place()});
        writer.arc(0x0817, {place(), place(), place(), place()}, {0, 0}, {place(), place()});
    }
    return drawingOf(writer);
}

// One line through the middle after the other: in the middle row all of them change places.
TEST(Sprite, AStarOfManyThousandLinesEndsSoon) {
    WmfDrawing drawing{.size = {342, 51}};
    std::vector<Point> star;
    constexpr int kLines = 40000;
    for (int i = 0; i < kLines; ++i) {
        const double x = 342.0 * i / kLines;
        star.push_back({x, 0});
        star.push_back({342 - x, 51});
    }
    drawing.shapes.push_back({.form = WmfPolygon{.rings = {star}}, .fill = Color{255, 0, 0}});
    const double start = processorSeconds();
    renderSprite(drawing, {342, 51});
    const double taken = processorSeconds() - start;
    EXPECT_LT(taken, 5);
}

TEST(Sprite, HostileDrawingsEndSoon) {
    struct Case {
        int style;
        int width;
        int extent;
    };
    for (const Case& row : {Case{0, 1, 65}, Case{1, 0, 1}, Case{0, 32767, 200}, Case{4, 1, 32767},
                            Case{2, 9, 32767}}) {
        const WmfDrawing drawing = hostile(row.style, row.width, row.extent);
        const double start = processorSeconds();
        renderSprite(drawing, {1920, 1080});
        const double taken = processorSeconds() - start;
        EXPECT_LT(taken, 10) << row.style << ' ' << row.width << ' ' << row.extent;
    }
}

} // namespace

} // namespace quendal::test
