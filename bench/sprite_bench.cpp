// What the sprites of the learning animations cost: their first placement on a screen of
// 1920 x 1080, which has to stay under 30 ms, and their frames, of which 50 fit in a second.
#include "desktop/files/wmf_drawing.h"
#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/sprite_renderer.h"
#include "desktop/wmf_writer.h"
#include "desktop_bench.h"
#include "host/random_source.h"
#include "host/roots.h"

#include <QPainter>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace quendal {

namespace {

using test::kKeyColor;
using test::WmfWriter;

// A ball as the sprites draw them: ten discs, one inside the other, the first outlined.
void addBall(WmfWriter& writer, WmfWriter::At middle, int radius, Color color) {
    constexpr int kShades = 10;
    for (int shade = 0; shade < kShades; ++shade) {
        const int r = radius - radius * shade / (kShades + 1);
        const auto light = [&](int channel) {
            return static_cast<std::uint8_t>(channel + (255 - channel) * shade / kShades);
        };
        writer.brush({light(color.r), light(color.g), light(color.b)});
        if (shade == 0) {
            writer.pen(0, 2, kBlack);
        }
        writer.ellipse({middle.x - r, middle.y - r, middle.x + r, middle.y + r});
        if (shade == 0) {
            writer.noPen();
        }
    }
}

// 708 x 292 design px, 60 shapes: five large balls, a few polygons and labels.
std::string largeSprite() {
    WmfWriter writer(708, 292);
    writer.noPen();
    writer.brush(kKeyColor);
    writer.rectangle({0, 0, 708, 292});
    for (int ball = 0; ball < 5; ++ball) {
        addBall(writer, {100 + 125 * ball, 150 + ball % 2 * 20}, 95,
                {static_cast<std::uint8_t>(40 * ball), 60, 120});
    }
    writer.groundMode(1);
    writer.font({.height = -24, .weight = 700});
    for (int i = 0; i < 4; ++i) {
        writer.polygon({{150 * i, 10}, {150 * i + 80, 20}, {150 * i + 40, 90}});
        writer.text({150 * i, 250}, "S\xE4ure");
    }
    return writer.bytes();
}

class SpriteFile {
  public:
    SpriteFile()
        : name_((std::filesystem::temp_directory_path() / "quendal_sprite_bench.wmf").string()) {
        std::ofstream(name_, std::ios::binary) << largeSprite();
    }
    ~SpriteFile() { std::remove(name_.c_str()); }
    const std::string& name() const { return name_; }

  private:
    std::string name_;
};

// A sprite's first placement: read the file, paint it in the size of the screen.
void firstPlacement(benchmark::State& state) {
    benchHost();
    const SpriteFile file;
    const auto width = static_cast<int>(state.range(0));
    for (auto _ : state) {
        Graphics& graphics = CoreLib().Graphics;
        const PicturePtr picture = graphics.LoadPicture(file.name());
        benchmark::DoNotOptimize(graphics.Scaled(picture, width, width * 292 / 708));
    }
}
BENCHMARK(firstPlacement)->Arg(500)->Arg(960)->Arg(1700)->Arg(3400)->Unit(benchmark::kMillisecond);

QImage largeImage() {
    const WmfReading reading = readWmf(largeSprite());
    return renderSprite(*reading.drawing, {1700, 700});
}

// A sprite copied in its own size.
void spriteCopied(benchmark::State& state) {
    benchHost();
    const DesktopPicture picture(largeImage());
    QImage screen(1920, 1080, QImage::Format_RGB32);
    screen.fill(Qt::gray);
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.drawImage(QPoint(100, 100), picture.cut(QRectF(0, 0, 1700, 700), {1700, 700}));
    }
}
BENCHMARK(spriteCopied)->Unit(benchmark::kMillisecond);

// A frame of a sprite that shrinks away, in percent of its size: no two frames have the same.
void spriteShrinks(benchmark::State& state) {
    benchHost();
    const DesktopPicture picture(largeImage());
    QImage screen(1920, 1080, QImage::Format_RGB32);
    screen.fill(Qt::gray);
    const auto percent = static_cast<double>(state.range(0));
    int odd = 0;
    for (auto _ : state) {
        odd = (odd + 1) % 7; // more sizes than are kept
        const QSize size(static_cast<int>(17 * percent) + odd, static_cast<int>(7 * percent));
        QPainter painter(&screen);
        painter.drawImage(QPoint(100, 100), picture.cut(QRectF(0, 0, 1700, 700), size));
    }
}
BENCHMARK(spriteShrinks)->Arg(99)->Arg(65)->Arg(51)->Arg(25)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quendal
