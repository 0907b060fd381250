#include "desktop/wmf_samples.h"
#include "headless/choose_data_folder.h"
#include "headless/headless_host.h"
#include "headless/small_forms.h"
#include "host/clock.h"
#include "host/graphics.h"
#include "host/log.h"
#include "host/screen_capture.h"
#include "host/system_info.h"
#include "support/temporary_name.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

namespace quendal::test {
namespace {

struct Playground {
    explicit Playground(const ScriptSettings& settings = {}) : host(settings, "data/") {}
    HeadlessHost host;
};

TEST(HeadlessHost, FormsFillTheScreenWithOneScale) {
    Playground ground;
    SmallForm form;
    CoreLib().Windows.Show(form); // 1000 x 500 on 1366 x 768
    EXPECT_DOUBLE_EQ(form.inner().width, 1000);
    EXPECT_DOUBLE_EQ(form.inner().height, 768 / 1.366);
    EXPECT_DOUBLE_EQ(CoreLib().Windows.screen().width, 1000);
    CoreLib().Windows.Unload(form);
}

TEST(HeadlessHost, OtherFormsHaveTheirDesignSizeOrTheOneAskedFor) {
    Playground ground;
    SmallDialog dialog;
    CoreLib().Windows.Show(dialog);
    EXPECT_EQ(dialog.inner(), (Size{300, 200}));
    dialog.moveTo({10, 10, 400, 250});
    EXPECT_EQ(dialog.inner(), (Size{400, 250}));
    CoreLib().Windows.Unload(dialog);
}

TEST(HeadlessHost, FormsThatScaleThemselvesAreShownInPixels) {
    ScriptSettings settings;
    settings.screen = {1920, 1080};
    Playground ground(settings);
    SmallForm form;
    form.setScalesItself(true);
    CoreLib().Windows.Show(form);
    EXPECT_EQ(form.inner(), (Size{1920, 1080}));
    CoreLib().Windows.Unload(form);
}

TEST(HeadlessHost, TellsTheScaleOfAForm) {
    Playground ground;
    SmallForm form; // 1000 x 500 on 1366 x 768
    SmallDialog dialog;
    const WindowSystem& windows = CoreLib().Windows;
    EXPECT_EQ(windows.scaleOf(form), 1); // not shown
    CoreLib().Windows.Show(form);
    EXPECT_DOUBLE_EQ(windows.scaleOf(form), 1.366);
    CoreLib().Windows.Show(dialog);
    EXPECT_EQ(windows.scaleOf(dialog), 1);
    dialog.moveTo({10, 10, 300, 200});
    EXPECT_DOUBLE_EQ(windows.scaleOf(dialog), 1.366);
    CoreLib().Windows.UnloadAll(nullptr);
    form.setScalesItself(true);
    CoreLib().Windows.Show(form);
    EXPECT_EQ(windows.scaleOf(form), 1);
    CoreLib().Windows.Unload(form);
}

// Runs `look` from a timer of the form while it is shown modally.
void whileShown(SmallForm& form, const std::function<void()>& look) {
    form.tmr_Tick.onTimer = [&] {
        look();
        CoreLib().Windows.Unload(form);
    };
    form.tmr_Tick.setEnabled(true);
    CoreLib().Windows.ShowModal(form);
}

TEST(HeadlessCapture, KnowsWhereTheFormInFrontStands) {
    Playground ground;
    const ScreenCapture& screen = CoreLib().Screen;
    EXPECT_EQ(screen.GetForegroundWindow(), ScreenCapture::kNoWindow);
    EXPECT_EQ(screen.windowRect(screen.GetDesktopWindow()), (PixelRect{0, 0, 1365, 767}));
    SmallForm form;
    whileShown(form, [&] {
        const auto front = screen.GetForegroundWindow();
        ASSERT_NE(front, ScreenCapture::kNoWindow);
        EXPECT_EQ(screen.windowRect(front), (PixelRect{0, 0, 1365, 767}));
        const auto child = screen.GetWindow(front, ScreenCapture::kFirstChild);
        EXPECT_NE(child, ScreenCapture::kNoWindow);
        EXPECT_NE(child, front);
        EXPECT_EQ(screen.GetWindow(front, 4), ScreenCapture::kNoWindow);
        EXPECT_EQ(screen.GetWindow(child, ScreenCapture::kFirstChild), ScreenCapture::kNoWindow);
        form.setWindowState(WindowState::Normal);
        form.moveTo({100, 50, 600, 400});
        EXPECT_EQ(screen.windowRect(front), (PixelRect{137, 68, 955, 614}));
    });
    EXPECT_EQ(screen.GetForegroundWindow(), ScreenCapture::kNoWindow);
}

TEST(HeadlessCapture, GivesPicturesOfTheRightSize) {
    Playground ground;
    const ScreenCapture& screen = CoreLib().Screen;
    const PicturePtr part = screen.grab(screen.GetDesktopWindow(), {10, 20, 109, 69});
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(part->width(), 100);
    EXPECT_EQ(part->height(), 50);
    EXPECT_EQ(screen.grab(screen.GetDesktopWindow(), {10, 20, 9, 69}), nullptr);
    EXPECT_EQ(screen.grab(screen.GetDesktopWindow(), {-2147483647, 0, 2147483647, 9}), nullptr);
    EXPECT_EQ(screen.grab(ScreenCapture::kNoWindow, {0, 0, 9, 9}), nullptr);
    EXPECT_EQ(screen.grab(99, {0, 0, 9, 9}), nullptr);
    EXPECT_EQ(screen.grab(screen.GetForegroundWindow(), {0, 0, 9, 9}), nullptr);
}

TEST(HeadlessHost, CountsWhatIsDrawn) {
    Playground ground;
    SmallForm form;
    CoreLib().Windows.Show(form);
    Surface& surface = form.pic_Field.surface();
    EXPECT_EQ(surface.ScaleWidth(), 100);
    surface.Clear();
    surface.Circle({5, 5}, 3, kBlack);
    surface.Copy(nullptr, {0, 0});
    surface.StretchBlt({0, 0, 9, 9}, nullptr, {0, 0, 9, 9}, RasterOp::SrcCopy);
    EXPECT_EQ(ground.host.windows().drawn().circles, 1);
    EXPECT_EQ(ground.host.windows().drawn().clears, 1);
    EXPECT_EQ(ground.host.windows().drawn().copies, 0);
    const PicturePtr picture = CoreLib().Screen.grab(CoreLib().Screen.GetDesktopWindow(), {});
    EXPECT_EQ(picture, nullptr);
    surface.StretchBlt({0, 0, 9, 9},
                       CoreLib().Screen.grab(CoreLib().Screen.GetDesktopWindow(), {0, 0, 9, 9}),
                       {0, 0, 9, 9}, RasterOp::SrcAnd);
    EXPECT_EQ(ground.host.windows().drawn().copies, 1);
    form.pic_Field.setScaleSize({28, 10});
    EXPECT_EQ(surface.ScaleWidth(), 28);
    EXPECT_EQ(surface.ScaleHeight(), 10);
    CoreLib().Windows.Unload(form);
}

TEST(HeadlessHost, SurfacesGoWithTheHost) {
    auto ground = std::make_unique<Playground>();
    SmallForm form;
    CoreLib().Windows.Show(form);
    CoreLib().Windows.Unload(form);
    ground.reset();
    form.pic_Field.surface().Clear(); // the control's own surface again
    EXPECT_EQ(form.pic_Field.surface().ScaleHeight(), 50);
}

class PictureFile {
  public:
    explicit PictureFile(const std::string& bytes)
        : name_(test::temporaryName("quendal-picture", ".gif").string()) {
        std::ofstream(name_, std::ios::binary) << bytes;
    }
    ~PictureFile() { std::remove(name_.c_str()); }
    const std::string& name() const { return name_; }

  private:
    std::string name_;
};

TEST(HeadlessHost, KnowsPicturesByTheirSize) {
    Playground ground;
    const PictureFile file(std::string("GIF89a\x2c\x01\x20\x00\x00\x00\x00;\x00", 15));
    const PicturePtr picture = CoreLib().Graphics.LoadPicture(file.name());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->width(), 300);
    EXPECT_EQ(picture->height(), 32);
}

TEST(HeadlessHost, KnowsSpritesByTheirNaturalSize) {
    Playground ground;
    const std::string whole = test::WmfWriter(1000, 500, 1440).bytes();
    Graphics& graphics = CoreLib().Graphics;
    const PicturePtr sprite = graphics.LoadPicture(PictureFile(whole).name());
    ASSERT_NE(sprite, nullptr);
    EXPECT_EQ(sprite->width(), 67); // 66.7
    EXPECT_EQ(sprite->height(), 33);
    const PicturePtr scaled = graphics.Scaled(sprite, 300, 150);
    ASSERT_NE(scaled, nullptr);
    EXPECT_EQ(scaled->width(), 300);
    EXPECT_EQ(scaled->height(), 150);
    EXPECT_EQ(graphics.Scaled(sprite, 0, 150), nullptr);
    EXPECT_EQ(graphics.Scaled(sprite, 300, 8193), nullptr);
    EXPECT_EQ(graphics.Scaled(nullptr, 300, 150), nullptr);
}

TEST(HeadlessHost, SpritesCutShortAreBroken) {
    Playground ground;
    int lines = 0;
    const LogSink before = exchangeLogSink([&](std::string_view) { ++lines; });
    const std::string whole = test::richWmf().bytes();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const PictureFile file(whole.substr(0, size));
        EXPECT_EQ(CoreLib().Graphics.LoadPicture(file.name()), nullptr) << size;
    }
    exchangeLogSink(before);
    EXPECT_EQ(lines, static_cast<int>(whole.size()));
}

TEST(HeadlessHost, LogsPicturesThatAreMissingOrBroken) {
    Playground ground;
    int lines = 0;
    const LogSink before = exchangeLogSink([&](std::string_view) { ++lines; });
    for (const std::string bytes : {"", "GIF89a", "GIF89a\x01\x01\x01\x01 cut short",
                                    "GIF89a\x10\x80\x10\x01 far too wide;"}) {
        const PictureFile file(bytes);
        EXPECT_EQ(CoreLib().Graphics.LoadPicture(file.name()), nullptr);
    }
    EXPECT_EQ(CoreLib().Graphics.LoadPicture("data/no_such_picture.gif"), nullptr);
    EXPECT_EQ(lines, 5);
    exchangeLogSink(before);
}

TEST(HeadlessHost, NobodyAnswersWithoutAnObserver) {
    Playground ground;
    EXPECT_EQ(CoreLib().MessageBox.YesNo("?", ""), BoxAnswer::No);
    EXPECT_EQ(CoreLib().MessageBox.Input("?", "", "x"), "");
    EXPECT_FALSE(HostApp().Calculator.Show(0, 0, 0, 0, {}));
}

TEST(HeadlessHost, AWaitWithoutEndIsRefused) {
    Playground ground;
    EXPECT_THROW(CoreLib().Windows.waitWhile([] { return true; }), std::logic_error);
}

TEST(HeadlessHost, EndsByAnException) {
    Playground ground;
    EXPECT_THROW(CoreLib().Windows.EndProcess(), ProcessEnded);
}

TEST(HeadlessHost, DataFolderEndsWithASeparator) {
    const std::string folder = chooseDataFolder(QUENDAL_SOURCE_DIR "/src");
    EXPECT_TRUE(folder.ends_with("/src/"));
    EXPECT_TRUE(chooseDataFolder(QUENDAL_SOURCE_DIR "/src/").ends_with("/src/"));
    int lines = 0;
    const LogSink before = exchangeLogSink([&](std::string_view) { ++lines; });
    EXPECT_TRUE(chooseDataFolder("no/such/folder").ends_with("/no/such/folder/"));
    EXPECT_EQ(lines, 1);
    exchangeLogSink(before);
}

TEST(HeadlessHost, SettingsReachTheServices) {
    ScriptSettings settings;
    settings.user = "anna";
    settings.sound = 2;
    settings.sign = DecimalSign::Point;
    Playground ground(settings);
    EXPECT_EQ(CoreLib().SystemInfo.CurrentUser().Name, "anna");
    EXPECT_EQ(CoreLib().NumberService.text(0.5), "0.5");
    EXPECT_TRUE(HostApp().SoundOptions.silent());
    EXPECT_EQ(CoreLib().Graphics.SystemColor(15), (Color{240, 240, 240}));
}

} // namespace
} // namespace quendal::test
