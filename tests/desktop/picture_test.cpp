// Pictures: surfaces, copies, icons, the mascot.
#include "desktop/box_form.h"
#include "desktop/window_rig.h"

#include "desktop/pictures/desktop_picture.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/windows/atom_face.h"
#include "host/file_service.h"
#include "host/log.h"

#include <QPainter>

#include <set>

namespace quendal::test {

namespace {

class SurfaceTest : public testing::Test {
  protected:
    QColor at(int x, int y, double scale = 1) {
        const QSize size(static_cast<int>(200 * scale), static_cast<int>(100 * scale));
        return QColor::fromRgba(surface.image(size, scale).pixel(x, y));
    }
    BoxForm form;
    PictureSurface surface{form.box};
};

TEST_F(SurfaceTest, ABoxHoldsBothItsCorners) {
    surface.Clear();
    surface.Box({10, 10}, {19, 14}, {255, 0, 0});
    surface.finish();
    EXPECT_EQ(at(10, 10), QColor(255, 0, 0));
    EXPECT_EQ(at(19, 14), QColor(255, 0, 0));
    EXPECT_EQ(at(20, 14), QColor(255, 255, 255));
    EXPECT_EQ(at(9, 10), QColor(255, 255, 255));
}

TEST_F(SurfaceTest, TheSameDrawingIsSharpAtAnotherScale) {
    surface.Clear();
    surface.Box({10, 10}, {19, 14}, {255, 0, 0});
    surface.Line({50, 20}, {90, 20}, {0, 0, 255}, 1);
    surface.finish();
    EXPECT_EQ(at(20, 20, 2), QColor(255, 0, 0));
    EXPECT_EQ(at(39, 29, 2), QColor(255, 0, 0));
    EXPECT_EQ(at(40, 29, 2), QColor(255, 255, 255));
    EXPECT_EQ(at(140, 40, 2), QColor(0, 0, 255));
    EXPECT_EQ(at(140, 41, 2), QColor(0, 0, 255));
    EXPECT_EQ(at(140, 42, 2), QColor(255, 255, 255));
}

TEST_F(SurfaceTest, ACircleIsFilledAndOutlined) {
    surface.Clear();
    surface.setFillColor({0, 200, 0});
    surface.Circle({100, 50}, 20, {0, 0, 0});
    surface.finish();
    EXPECT_EQ(at(100, 50), QColor(0, 200, 0));
    EXPECT_LT(at(100, 30).green(), 120);
    EXPECT_EQ(at(100, 20), QColor(255, 255, 255));
}

TEST_F(SurfaceTest, ACircleWithoutFillLeavesWhatIsThere) {
    surface.Clear();
    surface.Box({0, 0}, {199, 99}, {10, 20, 30});
    surface.setFillStyle(FillStyle::None);
    surface.Circle({100, 50}, 20, {255, 0, 0});
    surface.finish();
    EXPECT_EQ(at(100, 50), QColor(10, 20, 30));
}

TEST_F(SurfaceTest, AFrameLikeTheLastOneChangesNothing) {
    const auto draw = [&](double x) {
        surface.Clear();
        surface.setFillColor({0, 200, 0});
        surface.Circle({x, 50}, 8, kBlack);
        surface.Text({5, 5}, "10 mL", {.size = 10}, kBlack);
        const Point corners[] = {{1, 90}, {20, 70}, {40, 90}};
        surface.Polygon(corners, kBlack);
        return surface.finish();
    };
    EXPECT_FALSE(draw(60).isEmpty());
    at(0, 0);
    EXPECT_TRUE(draw(60).isEmpty());
    const QRectF changed = draw(64);
    EXPECT_TRUE(changed.contains(QPointF(60, 50)));
    EXPECT_TRUE(changed.contains(QPointF(64, 50)));
    EXPECT_LT(changed.width(), 40); // not the text, not the polygon
}

TEST_F(SurfaceTest, WhatIsDrawnWithoutClearingStandsOnWhatWasThere) {
    surface.Clear();
    surface.Box({0, 0}, {49, 99}, {255, 0, 0});
    surface.finish();
    at(0, 0);
    surface.Box({50, 0}, {99, 99}, {0, 0, 255});
    surface.finish();
    EXPECT_EQ(at(10, 10), QColor(255, 0, 0));
    EXPECT_EQ(at(60, 10), QColor(0, 0, 255));
    EXPECT_EQ(at(20, 20, 2), QColor(255, 0, 0));
}

TEST_F(SurfaceTest, DrawingForEverWithoutClearingStaysBounded) {
    for (int i = 0; i < 20000; ++i) {
        surface.Box({0, 0}, {9, 9}, {static_cast<std::uint8_t>(i % 200), 0, 0});
        surface.finish();
        if (i % 1000 == 0) {
            at(0, 0);
        }
    }
    EXPECT_EQ(at(5, 5), QColor(19999 % 200, 0, 0));
    EXPECT_EQ(at(10, 10, 2), QColor(19999 % 200, 0, 0));
}

TEST_F(SurfaceTest, AnOverlayIsTransparentWhereNothingIsDrawn) {
    form.box.setOverlay(true);
    surface.Clear();
    surface.Box({10, 10}, {19, 19}, {255, 0, 0});
    surface.finish();
    const QImage& image = surface.image({200, 100}, 1);
    EXPECT_EQ(qAlpha(image.pixel(50, 50)), 0);
    EXPECT_EQ(qAlpha(image.pixel(15, 15)), 255);
}

TEST_F(SurfaceTest, PlacesFarOutsideAndOddSizesAreCutOff) {
    surface.Clear();
    surface.Circle({-1e6, 1e6}, 10, kBlack);
    surface.Circle({50, 50}, -3, kBlack);
    surface.Circle({50, 50}, 0, kBlack);
    surface.Line({-1e7, -1e7}, {1e7, 1e7}, {255, 0, 0}, 1);
    surface.Box({-500, -500}, {-400, -400}, kBlack);
    surface.Polygon({}, kBlack);
    surface.Copy(nullptr, {0, 0});
    surface.Text({0, 0}, "", {.size = 10}, kBlack);
    surface.finish();
    EXPECT_GT(at(50, 50).red(), 0);
}

TEST(PictureCopy, ATwinGivesTheDetailWhereTheScaleAsksForIt) {
    const QString folder = QStringLiteral(QUENDAL_SOURCE_DIR "/data/");
    const DesktopPicture picture(QImage(folder + "header.gif"), folder + "x3/header.gif");
    EXPECT_EQ(picture.width(), 960);
    EXPECT_EQ(picture.height(), 96);
    EXPECT_EQ(picture.prepared(1).size(), QSize(960, 96));
    EXPECT_EQ(picture.prepared(2).size(), QSize(1920, 192));
    const DesktopPicture blurred(QImage(folder + "header.gif"), {});
    EXPECT_NE(picture.prepared(2), blurred.prepared(2));
}

TEST(PictureCopy, ABrokenTwinCostsTheDetailAndOneLoggedLine) {
    std::vector<std::string> lines;
    const LogSink before =
        exchangeLogSink([&](std::string_view line) { lines.emplace_back(line); });
    const QString folder = QStringLiteral(QUENDAL_SOURCE_DIR "/data/");
    const QImage file(folder + "header.gif");
    const DesktopPicture picture(file, folder + "ph.crv");
    const DesktopPicture plain(file);
    EXPECT_EQ(picture.prepared(2), plain.prepared(2));
    EXPECT_EQ(picture.prepared(3), plain.prepared(3));
    exchangeLogSink(before);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("ph.crv"), std::string::npos);
}

using GraphicsTest = WindowTest;

TEST_F(GraphicsTest, PicturesAreFoundWithUmlautsInAnyFormAndInAnyCase) {
    const std::string data = HostApp().PathService.DataPath();
    EXPECT_NE(CoreLib().Graphics.LoadPicture(data + "bürette1.gif"), nullptr);
    EXPECT_NE(CoreLib().Graphics.LoadPicture(data + "bu\xCC\x88rette1.gif"), nullptr);
    EXPECT_NE(CoreLib().Graphics.LoadPicture(data + "WIN.gif"), nullptr);
}

TEST_F(GraphicsTest, AMissingOrBrokenPictureIsNullAndOneLoggedLine) {
    std::vector<std::string> lines;
    const LogSink before =
        exchangeLogSink([&](std::string_view line) { lines.emplace_back(line); });
    const std::string data = HostApp().PathService.DataPath();
    EXPECT_EQ(CoreLib().Graphics.LoadPicture(data + "nothing.gif"), nullptr);
    EXPECT_EQ(CoreLib().Graphics.LoadPicture(data + "ph.crv"), nullptr);
    exchangeLogSink(before);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NE(lines[0].find("nothing.gif"), std::string::npos);
    EXPECT_NE(lines[1].find("ph.crv"), std::string::npos);
}

TEST_F(GraphicsTest, APictureCutShortIsBroken) {
    const std::string data = HostApp().PathService.DataPath();
    const std::string whole = CoreLib().FileService.read(data + "lens_mask.gif").value();
    EXPECT_EQ(decodePicture(whole).size(), QSize(592, 444));
    EXPECT_FALSE(decodePicture(whole + std::string(3, '\0')).isNull());
    for (const std::size_t size : {whole.size() / 2, whole.size() - 1, std::size_t{20}}) {
        EXPECT_TRUE(decodePicture(whole.substr(0, size)).isNull()) << size;
    }
}

TEST_F(GraphicsTest, AScreenWiderThanItsImageMayBeNoMore) {
    const std::string data = HostApp().PathService.DataPath();
    std::string bytes = CoreLib().FileService.read(data + "lens_mask.gif").value();
    constexpr std::size_t kHighByteOfWidth = 7;
    bytes[kHighByteOfWidth] = '\x20';
    EXPECT_TRUE(decodePicture(bytes).isNull()); // 8272 px
    bytes[kHighByteOfWidth] = '\x03';
    EXPECT_EQ(decodePicture(bytes).size(), QSize(848, 444));
}

TEST_F(GraphicsTest, TheButtonColourIsThePlainOne) {
    EXPECT_EQ(CoreLib().Graphics.SystemColor(15), (Color{240, 240, 240}));
}

TEST_F(GraphicsTest, WhatIsDrawnInLoadIsOnTheScreen) {
    GalleryForm form;
    FormWindow& window = show(form);
    form.tabs.setTab(1);
    const QImage shot = window.peerOf(form.picture)->widget()->grab().toImage();
    EXPECT_EQ(shot.pixelColor(static_cast<int>(150 * window.scale()),
                              static_cast<int>(215 * window.scale())),
              QColor(47, 143, 143));
    host.windows().Unload(form);
}

TEST_F(GraphicsTest, EveryIconOfTheProgramIsThere) {
    std::vector<std::string> lines;
    const LogSink before =
        exchangeLogSink([&](std::string_view line) { lines.emplace_back(line); });
    DiskFileService files;
    IconLibrary icons(files, HostApp().PathService.DataPath() + "icons/");
    for (const char* path :
         {"Ico\\16\\Abstract\\Arrows\\Black Compact Right.ico",
          "Ico\\16\\Business\\Office\\Calculator.ico", "Ico\\16\\Computer\\Signs\\Help.ico",
          "Ico\\16\\Computer\\Signs\\No.ico", "Ico\\16\\Computer\\Signs\\OK.ico",
          "Ico\\20\\Computer\\Signs\\Abort.ico", "Ico\\20\\Computer\\Signs\\Checked.ico",
          "Ico\\20\\Computer\\Signs\\Next.ico", "Ico\\20\\Computer\\Signs\\Quit.ico",
          "Ico\\20\\Computer\\Signs\\Search.ico", "Ico\\20\\Multimedia\\Video\\Camera.ico",
          "Ico\\20\\Science\\Math\\Generic.ico", "Ico\\20\\Science\\Math\\Graph.ico",
          "Ico\\20\\Science\\Math\\Point.ico", "Ico\\32\\Computer\\Signs\\Stop.ico"}) {
        EXPECT_FALSE(icons.pixmap(path, 1, 1).isNull()) << path;
    }
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(icons.pixmap("Ico\\20\\No\\Such.ico", 1, 1).isNull());
    EXPECT_TRUE(icons.pixmap("Ico\\20\\No\\Such.ico", 2, 1).isNull());
    EXPECT_TRUE(icons.pixmap("", 1, 1).isNull());
    exchangeLogSink(before);
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(IconLibrary::designSize("Ico\\32\\Computer\\Signs\\Help.ico"), 32);
    EXPECT_EQ(IconLibrary::designSize("x.ico"), 20);
}

QImage faceOf(const AtomLook& look) {
    QImage image(120, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    AtomFace().paint(painter, image.rect(), look);
    return image;
}

TEST(Atom, EveryMoodHasAFaceOfItsOwn) {
    const int moods[] = {1, 2, 3, 5, 6};
    for (const int one : moods) {
        for (const int other : moods) {
            EXPECT_EQ(faceOf({.mood = one}) == faceOf({.mood = other}), one == other);
        }
    }
}

TEST(Atom, EyesMouthAndElectronsMove) {
    const QImage calm = faceOf({});
    EXPECT_NE(calm, faceOf({.gaze = {1, 0}}));
    EXPECT_NE(calm, faceOf({.mouthOpen = true}));
    EXPECT_NE(calm, faceOf({.blink = true}));
    EXPECT_NE(calm, faceOf({.turn = 0.3}));
}

} // namespace

} // namespace quendal::test
