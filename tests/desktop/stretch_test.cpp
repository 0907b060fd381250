// Stretched copies, raster operations and surfaces with a scale of their own.
#include "desktop/box_form.h"
#include "desktop/window_rig.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/pictures/stretch.h"

#include <QPainter>

#include <set>

namespace quendal::test {

namespace {

QImage plain(QSize size, QColor color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// Every pixel its own colour.
QImage manyColours(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 37 % 256, y * 61 % 256, (x + y) * 17 % 256));
        }
    }
    return image;
}

PicturePtr picture(const QImage& image) {
    return std::make_shared<DesktopPicture>(image);
}

Rect wholeOf(const PicturePtr& picture) {
    return {0, 0, double(picture->width()), double(picture->height())};
}

class StretchTest : public testing::Test {
  protected:
    const QImage& image(double scale = 1) {
        return surface.image({int(200 * scale), int(100 * scale)}, scale);
    }
    QColor at(int x, int y, double scale = 1) { return QColor::fromRgba(image(scale).pixel(x, y)); }
    void fill(Color color) { surface.Box({0, 0}, {199, 99}, color); }

    BoxForm form;
    PictureSurface surface{form.box};
};

TEST_F(StretchTest, ACopyInItsOwnSizeIsExact) {
    const QImage source = manyColours({200, 100});
    surface.StretchBlt({0, 0, 200, 100}, picture(source), {0, 0, 200, 100}, RasterOp::SrcCopy);
    surface.finish();
    EXPECT_EQ(image(), source);
}

TEST_F(StretchTest, APartOfThePictureFillsTheBoxAndNothingElse) {
    QImage source = plain({20, 20}, Qt::red);
    QPainter(&source).fillRect(10, 10, 10, 10, Qt::blue);
    surface.StretchBlt({50, 20, 100, 60}, picture(source), {10, 10, 10, 10}, RasterOp::SrcCopy);
    surface.finish();
    for (const QPoint corner : {QPoint(50, 20), QPoint(149, 20), QPoint(50, 79), QPoint(149, 79)}) {
        EXPECT_EQ(at(corner.x(), corner.y()), QColor(Qt::blue)); // no red from beyond the part
    }
    EXPECT_EQ(at(49, 40), QColor(Qt::white));
    EXPECT_EQ(at(150, 40), QColor(Qt::white));
    EXPECT_EQ(at(100, 19), QColor(Qt::white));
    EXPECT_EQ(at(100, 80), QColor(Qt::white));
}

TEST_F(StretchTest, TransitionsAreSmooth) {
    QImage source(2, 1, QImage::Format_RGB32);
    source.setPixel(0, 0, qRgb(0, 0, 0));
    source.setPixel(1, 0, qRgb(200, 200, 200));
    surface.StretchBlt({0, 0, 200, 100}, picture(source), {0, 0, 2, 1}, RasterOp::SrcCopy);
    surface.finish();
    EXPECT_EQ(at(10, 50).red(), 0);
    EXPECT_EQ(at(190, 50).red(), 200);
    EXPECT_NEAR(at(100, 50).red(), 100, 3);
    for (int x = 1; x < 200; ++x) {
        EXPECT_GE(at(x, 50).red(), at(x - 1, 50).red());
    }
}

TEST_F(StretchTest, APartialRepaintShowsTheSameAsAWholeOne) {
    const PicturePtr source = picture(manyColours({31, 17}));
    const auto draw = [&](PictureSurface& onto) {
        onto.StretchBlt({3, 2, 190, 95}, source, {1, 2, 28, 13}, RasterOp::SrcCopy);
        onto.Box({60, 30}, {70, 50}, {1, 2, 3});
    };
    surface.Clear();
    surface.StretchBlt({3, 2, 190, 95}, source, {1, 2, 28, 13}, RasterOp::SrcCopy);
    surface.finish();
    image();
    surface.Clear();
    draw(surface);
    EXPECT_LT(surface.finish().width(), 30); // only the box
    PictureSurface fresh(form.box);
    draw(fresh);
    fresh.finish();
    EXPECT_EQ(image(), fresh.image({200, 100}, 1));
}

TEST_F(StretchTest, AndIsBitByBit) {
    fill({0b11001100, 0xff, 0x0f});
    surface.StretchBlt({10, 10, 20, 20}, picture(plain({5, 5}, QColor(0b10101010, 0x3c, 0xf0))),
                       {0, 0, 5, 5}, RasterOp::SrcAnd);
    surface.finish();
    EXPECT_EQ(at(15, 15), QColor(0b10001000, 0x3c, 0x00));
    EXPECT_EQ(at(9, 15), QColor(0b11001100, 0xff, 0x0f));
    EXPECT_EQ(at(30, 15), QColor(0b11001100, 0xff, 0x0f));
}

TEST_F(StretchTest, InvertIsBitByBitAndTakesItselfBack) {
    const PicturePtr source = picture(plain({5, 5}, QColor(0b10101010, 0x3c, 0xf0)));
    fill({0b11001100, 0xff, 0x0f});
    surface.StretchBlt({10, 10, 20, 20}, source, {0, 0, 5, 5}, RasterOp::SrcInvert);
    surface.finish();
    EXPECT_EQ(at(15, 15), QColor(0b01100110, 0xc3, 0xff));
    surface.StretchBlt({10, 10, 20, 20}, source, {0, 0, 5, 5}, RasterOp::SrcInvert);
    surface.finish();
    EXPECT_EQ(at(15, 15), QColor(0b11001100, 0xff, 0x0f));
}

// A disc: the mask white outside and black inside, the picture black outside.
QImage discPicture(QColor ground, QColor disc) {
    QImage image = plain({100, 100}, ground);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawEllipse(20, 20, 60, 60);
    return image;
}

TEST_F(StretchTest, MaskAndPictureLayAShapeOverWhatIsThere) {
    const PicturePtr mask = picture(discPicture(Qt::white, Qt::black));
    const PicturePtr disc = picture(discPicture(Qt::black, QColor(200, 30, 60)));
    fill({90, 150, 210});
    for (const auto& [source, operation] :
         {std::pair(mask, RasterOp::SrcAnd), std::pair(disc, RasterOp::SrcInvert)}) {
        surface.StretchBlt({0, 0, 200, 100}, source, wholeOf(source), operation);
    }
    surface.finish();
    for (const double scale : {1.0, 1.7, 3.0}) {
        const auto pixel = [&](double x, double y) {
            return at(int(x * scale), int(y * scale), scale);
        };
        EXPECT_EQ(pixel(100, 50), QColor(200, 30, 60)) << scale;
        EXPECT_EQ(pixel(50, 50), QColor(200, 30, 60)) << scale;
        EXPECT_EQ(pixel(10, 10), QColor(90, 150, 210)) << scale;
        EXPECT_EQ(pixel(195, 95), QColor(90, 150, 210)) << scale;
    }
}

TEST_F(StretchTest, WhatAStretchedMaskSparesIsNoBrighterThanBefore) {
    fill({90, 150, 210});
    const PicturePtr mask = picture(discPicture(Qt::white, Qt::black));
    surface.StretchBlt({0, 0, 200, 100}, mask, wholeOf(mask), RasterOp::SrcAnd);
    surface.finish();
    std::set<int> reds;
    for (int x = 0; x < 600; ++x) {
        const QColor color = at(x, 150, 3);
        EXPECT_LE(color.red(), 90);
        EXPECT_LE(color.blue(), 210);
        reds.insert(color.red());
    }
    EXPECT_GT(reds.size(), 2U); // edges are soft
}

TEST_F(StretchTest, OnAnOverlayOnlyTheShapeIsOpaque) {
    form.box.setOverlay(true);
    const PicturePtr mask = picture(discPicture(Qt::white, Qt::black));
    const PicturePtr disc = picture(discPicture(Qt::black, QColor(200, 30, 60)));
    surface.StretchBlt({0, 0, 100, 100}, mask, wholeOf(mask), RasterOp::SrcAnd);
    surface.StretchBlt({0, 0, 100, 100}, disc, wholeOf(disc), RasterOp::SrcInvert);
    surface.finish();
    EXPECT_EQ(image().pixel(50, 50), qRgba(200, 30, 60, 255));
    EXPECT_EQ(qAlpha(image().pixel(5, 5)), 0);
    EXPECT_EQ(qAlpha(image().pixel(150, 50)), 0);
}

TEST_F(StretchTest, TransparentPartsStayUntouched) {
    QImage clear(10, 10, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    QPainter(&clear).fillRect(0, 0, 5, 10, QColor(10, 20, 30));
    for (const RasterOp operation : {RasterOp::SrcCopy, RasterOp::SrcAnd, RasterOp::SrcInvert}) {
        surface.Clear();
        fill({0, 0, 0});
        surface.StretchBlt({0, 0, 100, 100}, picture(clear), {0, 0, 10, 10}, operation);
        surface.finish();
        const bool darkens = operation == RasterOp::SrcAnd;
        EXPECT_EQ(at(20, 50), darkens ? QColor(0, 0, 0) : QColor(10, 20, 30));
        EXPECT_EQ(at(90, 50), QColor(0, 0, 0));
    }
}

TEST_F(StretchTest, EmptyBoxesAndForeignPicturesDrawNothing) {
    class Foreign final : public Picture {
        int width() const override { return 10; }
        int height() const override { return 10; }
    };
    const PicturePtr red = picture(plain({10, 10}, Qt::red));
    const Rect whole{0, 0, 10, 10};
    surface.StretchBlt({0, 0, 0, 50}, red, whole, RasterOp::SrcCopy);
    surface.StretchBlt({0, 0, 50, -5}, red, whole, RasterOp::SrcCopy);
    surface.StretchBlt({0, 0, 50, 50}, red, {5, 5, 0, 0}, RasterOp::SrcCopy);
    surface.StretchBlt({0, 0, 50, 50}, red, {10, 0, 10, 10}, RasterOp::SrcCopy);
    surface.StretchBlt({0, 0, 50, 50}, nullptr, whole, RasterOp::SrcCopy);
    surface.StretchBlt({0, 0, 50, 50}, std::make_shared<Foreign>(), whole, RasterOp::SrcInvert);
    surface.finish();
    EXPECT_EQ(image(), plain({200, 100}, Qt::white));
}

TEST_F(StretchTest, WhatLiesBeyondThePictureStaysUndrawn) {
    const PicturePtr red = picture(plain({10, 10}, Qt::red));
    surface.StretchBlt({0, 0, 100, 100}, red, {-5, 0, 10, 10}, RasterOp::SrcCopy);
    surface.finish();
    EXPECT_EQ(at(49, 50), QColor(Qt::white));
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
}

TEST_F(StretchTest, HugeAndDistantBoxesAreBorne) {
    const PicturePtr mask = picture(discPicture(Qt::white, Qt::black));
    const PicturePtr red = picture(plain({10, 10}, Qt::red));
    surface.StretchBlt({-1e12, -1e12, 1e13, 1e13}, mask, wholeOf(mask), RasterOp::SrcAnd);
    surface.StretchBlt({1e7, 1e7, 1e6, 1e6}, red, wholeOf(red), RasterOp::SrcCopy);
    surface.finish();
    EXPECT_EQ(at(0, 0), QColor(Qt::white));
    surface.StretchBlt({-1e6, -1e6, 2e6, 2e6}, red, wholeOf(red), RasterOp::SrcCopy);
    surface.StretchBlt({-1e6, -1e6, 2e6, 2e6}, mask, wholeOf(mask), RasterOp::SrcAnd);
    surface.finish();
    EXPECT_EQ(at(100, 50), QColor(Qt::black));
}

TEST_F(StretchTest, AFrameLikeTheLastOneChangesNothingAndAnotherItsBoxes) {
    const PicturePtr one = picture(manyColours({50, 50}));
    const PicturePtr two = picture(manyColours({50, 50}));
    const auto draw = [&](const PicturePtr& source, double left, RasterOp operation) {
        surface.Clear();
        surface.StretchBlt({10, 10, 40, 40}, source, {left, 0, 20, 20}, operation);
        return surface.finish();
    };
    EXPECT_FALSE(draw(one, 0, RasterOp::SrcCopy).isEmpty());
    image();
    EXPECT_TRUE(draw(one, 0, RasterOp::SrcCopy).isEmpty());
    for (const QRectF& changed : {draw(one, 5, RasterOp::SrcCopy), draw(two, 5, RasterOp::SrcCopy),
                                  draw(two, 5, RasterOp::SrcAnd)}) {
        EXPECT_TRUE(changed.contains(QRectF(10, 10, 40, 40)));
        EXPECT_LT(changed.width(), 45);
    }
}

TEST_F(StretchTest, FramesWithoutClearingDontPileUp) {
    const PicturePtr screen = picture(manyColours({200, 100}));
    for (int i = 0; i <= 300; ++i) {
        const double grown = i % 101;
        surface.StretchBlt({0, 0, 200, 100}, screen, wholeOf(screen), RasterOp::SrcCopy);
        surface.Line({0, 0}, {199, 99}, kBlack, 1);
        surface.Text({5, 5}, "Text", {.size = 12}, kBlack);
        surface.StretchBlt({50 - grown / 2, 25 - grown / 4, 100 + grown, 50 + grown / 2}, screen,
                           {80, 40, 20, 10}, RasterOp::SrcCopy);
        surface.finish();
        EXPECT_LE(surface.kept(), 4U);
    }
    // A growing copy alone hides the one before it.
    for (int i = 0; i < 100; ++i) {
        surface.StretchBlt({100.0 - i, 50.0 - i / 2.0, 2.0 * i + 1, i + 1.0}, screen,
                           {80, 40, 20, 10}, RasterOp::SrcCopy);
        surface.finish();
        EXPECT_LE(surface.kept(), 5U);
    }
}

TEST_F(StretchTest, WhatIsDroppedWasNotSeen) {
    const PicturePtr screen = picture(manyColours({200, 100}));
    const auto draw = [&](PictureSurface& onto) {
        onto.Box({0, 0}, {99, 49}, {255, 0, 0});
        onto.Circle({150, 50}, 30, kBlack);
        onto.finish();
        onto.Copy(screen, {20, 10});
        onto.finish();
        onto.StretchBlt({120, 20, 80, 80}, screen, {3, 4, 50, 50}, RasterOp::SrcCopy);
        onto.finish();
    };
    draw(surface);
    QImage expected = plain({200, 100}, Qt::white);
    for (const auto& [size, scale] : {std::pair(QSize(200, 100), 1.0), {QSize(334, 167), 1.67}}) {
        PictureSurface step(form.box);
        step.Box({0, 0}, {99, 49}, {255, 0, 0});
        step.Circle({150, 50}, 30, kBlack);
        step.Copy(screen, {20, 10});
        step.StretchBlt({120, 20, 80, 80}, screen, {3, 4, 50, 50}, RasterOp::SrcCopy);
        step.finish(); // in one go: nothing is dropped
        EXPECT_EQ(surface.image(size, scale), step.image(size, scale));
    }
}

TEST_F(StretchTest, AScaleOfItsOwnStretchesPlacesOnEitherAxis) {
    form.box.setScaleSize({100, 100}); // 2 by 1 px a unit
    EXPECT_EQ(surface.ScaleWidth(), 100);
    EXPECT_EQ(surface.ScaleHeight(), 100);
    surface.Box({10, 10}, {19, 19}, {255, 0, 0});
    surface.StretchBlt({50, 50, 10, 10}, picture(plain({3, 3}, Qt::blue)), {0, 0, 3, 3},
                       RasterOp::SrcCopy);
    surface.Line({0, 90}, {99, 90}, {0, 200, 0}, 2);
    surface.finish();
    EXPECT_EQ(at(20, 10), QColor(Qt::red));
    EXPECT_EQ(at(39, 19), QColor(Qt::red));
    EXPECT_EQ(at(40, 19), QColor(Qt::white));
    EXPECT_EQ(at(39, 20), QColor(Qt::white));
    EXPECT_EQ(at(100, 50), QColor(Qt::blue));
    EXPECT_EQ(at(119, 59), QColor(Qt::blue));
    EXPECT_EQ(at(120, 59), QColor(Qt::white));
    EXPECT_EQ(at(100, 90), QColor(0, 200, 0));
    EXPECT_EQ(at(100, 88), QColor(Qt::white)); // two px wide, the smaller stretch
    EXPECT_EQ(at(100, 92), QColor(Qt::white));
}

TEST_F(StretchTest, CirclesStayRoundOnEveryScale) {
    form.box.setScaleSize({50, 50}); // 4 by 2 px a unit
    surface.setFillColor({0, 0, 255});
    surface.Circle({24.5, 24.5}, 10, {0, 0, 255}); // radius 20 px around (100, 50)
    surface.finish();
    EXPECT_EQ(at(100 - 18, 50), QColor(Qt::blue));
    EXPECT_EQ(at(100 + 17, 50), QColor(Qt::blue));
    EXPECT_EQ(at(100, 50 - 18), QColor(Qt::blue));
    EXPECT_EQ(at(100 + 24, 50), QColor(Qt::white));
    EXPECT_EQ(at(100 - 24, 50), QColor(Qt::white));
}

TEST_F(StretchTest, ChangesAreToldInDesignPx) {
    form.box.setScaleSize({100, 1000});
    surface.Box({10, 100}, {19, 199}, {255, 0, 0});
    const QRectF changed = surface.finish();
    EXPECT_TRUE(changed.contains(QRectF(20, 10, 20, 10)));
    EXPECT_LT(changed.width(), 32);
    EXPECT_LT(changed.height(), 12);
}

TEST_F(StretchTest, AnotherScaleDrawsAnew) {
    surface.Box({10, 10}, {19, 19}, {255, 0, 0});
    surface.finish();
    EXPECT_EQ(at(15, 15), QColor(Qt::red));
    form.box.setScaleSize({20, 10});
    EXPECT_EQ(at(15, 15), QColor(Qt::white));
    surface.Clear();
    surface.Box({1, 1}, {1, 1}, {255, 0, 0});
    surface.finish();
    EXPECT_EQ(at(15, 15), QColor(Qt::red));
    EXPECT_EQ(at(20, 15), QColor(Qt::white));
}

TEST(PictureDetail, ATwinGivesItWhereTheStretchAsksForIt) {
    QImage sharp(30, 30, QImage::Format_RGB32);
    sharp.fill(Qt::black);
    sharp.setPixel(15, 15, qRgb(255, 255, 255));
    const auto both = DesktopPicture::withDetail(plain({10, 10}, Qt::black), sharp);
    EXPECT_EQ(both->width(), 10);
    EXPECT_EQ(both->detail({0, 0, 10, 10}, 1).image.width(), 10);
    const DesktopPicture::Detail fine = both->detail({5, 5, 2, 1}, 3);
    EXPECT_EQ(fine.image.width(), 30);
    EXPECT_EQ(fine.from, QRectF(15, 15, 6, 3));
}

TEST(PictureDetail, AFarSmallerCopyLooksAtAllPixels) {
    QImage stripes(64, 64, QImage::Format_RGB32);
    for (int x = 0; x < 64; ++x) {
        QPainter(&stripes).fillRect(x, 0, 1, 64, x % 8 == 0 ? Qt::white : Qt::black);
    }
    const DesktopPicture source(stripes);
    const DesktopPicture::Detail coarse = source.detail({0, 0, 64, 64}, 0.1);
    EXPECT_LE(coarse.image.width(), 16);
    EXPECT_EQ(coarse.from, QRectF(0, 0, coarse.image.width(), coarse.image.height()));
    EXPECT_NEAR(qRed(coarse.image.pixel(3, 3)), 255 / 8, 8);
}

TEST(PictureDetail, TheSameCutIsMadeOnce) {
    const DesktopPicture source(manyColours({40, 40}));
    const qint64 made = source.cut({0, 0, 40, 40}, {100, 80}).cacheKey();
    EXPECT_EQ(source.cut({0, 0, 40, 40}, {100, 80}).cacheKey(), made);
    EXPECT_NE(source.cut({0, 0, 40, 40}, {80, 100}).cacheKey(), made);
    EXPECT_NE(source.cut({0, 0, 40, 20}, {100, 80}).cacheKey(), made);
}

} // namespace

} // namespace quendal::test
