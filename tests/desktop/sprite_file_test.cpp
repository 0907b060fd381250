// Sprites: pictures from metafiles.
#include "desktop/box_form.h"
#include "desktop/window_rig.h"
#include "desktop/wmf_drawings.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/pictures/sprite_renderer.h"
#include "host/log.h"
#include "host/picture_bytes.h"

#include <QTemporaryDir>

#include <fstream>

namespace quendal::test {

namespace {

const QColor kRedPixel(200, 0, 0);
const QColor kBluePixel(0, 0, 200);
constexpr Color kRed{200, 0, 0};
constexpr Color kBlue{0, 0, 200};

class SpriteFiles : public WindowTest {
  protected:
    std::string write(const std::string& name, const std::string& bytes) {
        const std::string path = folder_.filePath(QString::fromStdString(name)).toStdString();
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    static const DesktopPicture& pixels(const PicturePtr& picture) {
        return dynamic_cast<const DesktopPicture&>(*picture);
    }

  private:
    QTemporaryDir folder_;
};

TEST_F(SpriteFiles, AMetafileIsAPictureOfItsNaturalSize) {
    WmfWriter writer(1000, 500, 1440);
    writer.noPen();
    writer.brush(kRed);
    writer.rectangle({0, 0, 1000, 500});
    const PicturePtr picture = CoreLib().Graphics.LoadPicture(write("a.wmf", writer.bytes()));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->width(), 67); // 66.7
    EXPECT_EQ(picture->height(), 33);
    EXPECT_EQ(pixels(picture).prepared(1).size(), QSize(67, 33));
    EXPECT_EQ(pixels(picture).prepared(3).pixelColor(200, 98), kRedPixel);
}

TEST_F(SpriteFiles, AMissingOrBrokenMetafileIsNullAndOneLoggedLine) {
    std::vector<std::string> lines;
    const LogSink before =
        exchangeLogSink([&](std::string_view line) { lines.emplace_back(line); });
    const std::string whole = richWmf().bytes();
    EXPECT_EQ(CoreLib().Graphics.LoadPicture("nowhere/missing.wmf"), nullptr);
    for (const std::string& bytes :
         {std::string(), whole.substr(0, 30), whole.substr(0, whole.size() - 1)}) {
        EXPECT_EQ(CoreLib().Graphics.LoadPicture(write("b.wmf", bytes)), nullptr);
    }
    exchangeLogSink(before);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_NE(lines[0].find("missing.wmf"), std::string::npos);
    EXPECT_NE(lines[3].find("b.wmf"), std::string::npos);
}

TEST_F(SpriteFiles, ScaledPicturesHaveTheSizeAskedFor) {
    Graphics& graphics = CoreLib().Graphics;
    const PicturePtr sprite = graphics.LoadPicture(write("c.wmf", richWmf().bytes()));
    const PicturePtr photo = graphics.LoadPicture(HostApp().PathService.DataPath() + "win.gif");
    for (const PicturePtr& picture : {sprite, photo}) {
        ASSERT_NE(picture, nullptr);
        const PicturePtr large = graphics.Scaled(picture, 300, 150);
        ASSERT_NE(large, nullptr);
        EXPECT_EQ(large->width(), 300);
        EXPECT_EQ(large->height(), 150);
        EXPECT_EQ(graphics.Scaled(picture, 0, 10), nullptr);
        EXPECT_EQ(graphics.Scaled(picture, 10, -5), nullptr);
        EXPECT_EQ(graphics.Scaled(picture, kLargestPictureSide + 1, 10), nullptr);
    }
    EXPECT_EQ(graphics.Scaled(nullptr, 10, 10), nullptr);
    EXPECT_EQ(pixels(graphics.Scaled(sprite, 300, 150)).prepared(1),
              renderSprite(drawingOf(richWmf()), {300, 150}));
}

TEST_F(SpriteFiles, NothingLargerThanAnyScreenIsPainted) {
    std::vector<std::string> lines;
    const LogSink before =
        exchangeLogSink([&](std::string_view line) { lines.emplace_back(line); });
    Graphics& graphics = CoreLib().Graphics;
    EXPECT_EQ(graphics.LoadPicture(write("g.wmf", WmfWriter(4790, 6390).bytes())), nullptr);
    const PicturePtr large = graphics.LoadPicture(write("h.wmf", WmfWriter(3000, 4000).bytes()));
    EXPECT_NE(large, nullptr);
    EXPECT_EQ(graphics.Scaled(large, 4000, 4000), nullptr);
    exchangeLogSink(before);
    EXPECT_EQ(lines.size(), 2U);
}

TEST_F(SpriteFiles, TheTwinsOfTwoPicturesAreKeptUntilNobodyNeedsThem) {
    std::vector<PicturePtr> pictures;
    for (const char* name : {"win.gif", "bad.gif", "lens.gif"}) {
        pictures.push_back(CoreLib().Graphics.LoadPicture(HostApp().PathService.DataPath() + name));
        ASSERT_NE(pictures.back(), nullptr);
    }
    const auto sharp = [](const PicturePtr& picture) {
        const QRectF whole(0, 0, picture->width(), picture->height());
        return pixels(picture).detail(whole, 3).image.width();
    };
    CoreLib().Graphics.forgetDetail();
    for (const PicturePtr& picture : pictures) {
        EXPECT_EQ(sharp(picture), 3 * picture->width());
    }
    EXPECT_EQ(DesktopPicture::keptDetails(), 2U);
    pictures.pop_back();
    EXPECT_EQ(DesktopPicture::keptDetails(), 1U);
    CoreLib().Graphics.forgetDetail();
    EXPECT_EQ(DesktopPicture::keptDetails(), 0U);
    EXPECT_EQ(sharp(pictures.front()), 3 * pictures.front()->width());
}

TEST_F(SpriteFiles, AScaledSpriteIsCopiedWithoutAnotherCopy) {
    const PicturePtr sprite = CoreLib().Graphics.LoadPicture(write("d.wmf", richWmf().bytes()));
    const PicturePtr scaled = CoreLib().Graphics.Scaled(sprite, 300, 150);
    const QImage& own = pixels(scaled).prepared(1);
    const QImage& cut = pixels(scaled).cut({0, 0, 300, 150}, {300, 150});
    EXPECT_EQ(own.constBits(), cut.constBits()); // the same memory
}

// Three of them in pixels would be 27 MB.
TEST_F(SpriteFiles, HugeScaledSpritesTakeRoomWhileTheyAreDrawnAlone) {
    constexpr QSize kSize(1500, 1500);
    const PicturePtr sprite = CoreLib().Graphics.LoadPicture(write("g.wmf", richWmf().bytes()));
    const Rect whole{0, 0, kSize.width() * 1.0, kSize.height() * 1.0};
    const QImage expected = renderSprite(drawingOf(richWmf()), kSize);
    CoreLib().Graphics.forgetDetail();
    std::vector<PicturePtr> scaled;
    for (int copy = 0; copy < 3; ++copy) {
        scaled.push_back(CoreLib().Graphics.Scaled(sprite, kSize.width(), kSize.height()));
    }
    EXPECT_EQ(DesktopPicture::keptDetails(), 0U);
    BoxForm form;
    PictureSurface surface(form.box);
    for (int round = 0; round < 4; ++round) {
        const PicturePtr& picture = scaled[static_cast<std::size_t>(round) % scaled.size()];
        surface.Clear();
        surface.StretchBlt(whole, picture, whole, RasterOp::SrcCopy);
        surface.finish();
        surface.image({200, 100}, 1);
        EXPECT_LE(DesktopPicture::keptDetails(), 2U);
        EXPECT_EQ(pixels(picture).detail({0, 0, 1500, 1500}, 1).image, expected) << round;
    }
    CoreLib().Graphics.forgetDetail();
    EXPECT_EQ(DesktopPicture::keptDetails(), 0U);
}

TEST_F(SpriteFiles, ASpriteOnASurfaceLeavesWhatItsKeyColourUncovers) {
    const PicturePtr sprite = CoreLib().Graphics.LoadPicture(write("e.wmf", richWmf().bytes()));
    BoxForm form;
    PictureSurface surface(form.box);
    surface.Clear();
    surface.Box({0, 0}, {199, 99}, kBlue);
    surface.StretchBlt({0, 0, 200, 100}, sprite, {0, 0, 200, 100}, RasterOp::SrcCopy);
    surface.finish();
    const QImage image = surface.image({200, 100}, 1);
    EXPECT_EQ(image.pixelColor(2, 2), kBluePixel);
    EXPECT_EQ(image.pixelColor(27, 27), QColor(200, 100, 50));
    // At twice the size the drawing gives the detail: edges are as sharp as the screen.
    surface.Clear();
    surface.StretchBlt({0, 0, 200, 100}, sprite, {0, 0, 200, 100}, RasterOp::SrcCopy);
    surface.finish();
    const QImage sharp = surface.image({400, 200}, 2);
    const QImage drawn = renderSprite(drawingOf(richWmf()), {400, 200});
    EXPECT_EQ(sharp.pixelColor(54, 54), drawn.pixelColor(54, 54));
    EXPECT_EQ(sharp.pixelColor(300, 40), drawn.pixelColor(300, 40));
}

TEST_F(SpriteFiles, ADrawingOfTheLargestSizeIsDrawn) {
    WmfWriter writer(8192, 20);
    writer.noPen();
    writer.brush(kRed);
    writer.rectangle({0, 0, 8192, 20});
    const PicturePtr wide = CoreLib().Graphics.LoadPicture(write("f.wmf", writer.bytes()));
    ASSERT_NE(wide, nullptr);
    const QImage& cut = pixels(wide).cut({0, 0, 100, 10}, {150, 15});
    EXPECT_EQ(cut.pixelColor(70, 7), kRedPixel);
}

} // namespace

} // namespace quendal::test
