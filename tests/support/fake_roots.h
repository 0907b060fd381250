// A whole host for unit tests: services that record what they are told and answer what the test has
// laid ready. The roots are installed for as long as a FakeHost lives; one at a time.
#pragma once

#include "host/calculator.h"
#include "host/chart.h"
#include "host/clock.h"
#include "host/graphics.h"
#include "host/host_control.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/path_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/screen_capture.h"
#include "host/sound.h"
#include "host/system_info.h"
#include "host/window_system.h"
#include "support/fake_files.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quendal::test {

// Thrown where a real process would end.
struct ProcessEnded {};

// Moves only by hand and by sleeping.
class ManualClock final : public Clock {
  public:
    double Now() const override { return now; }
    void SleepMs(double milliseconds) override;

    double now = 0;                // seconds
    double slept = 0;              // seconds of all sleeps so far
    std::function<void()> onSleep; // called before a sleep moves the clock
};

class SeededRandom final : public RandomSource {
  public:
    void Randomize() override;

    std::uint64_t nextSeed = 1; // what Randomize seeds with; each call raises it by 1
    int randomized = 0;         // calls of Randomize
};

class RecordingMessageBox final : public MessageBox {
  public:
    struct Shown {
        std::string kind; // "ok", "info", "yesno", "input", "alarm"
        std::string text;
        std::string title;
        std::string extra; // proposal of an input box, icon of an alarm
    };

    void Ok(const std::string& text, const std::string& title) override;
    void Info(const std::string& text, const std::string& title) override;
    // No unless an answer is laid ready.
    BoxAnswer YesNo(const std::string& text, const std::string& title) override;
    // The empty text unless one is laid ready.
    std::string Input(const std::string& prompt, const std::string& title,
                      const std::string& proposal) override;
    void Alarm(const std::string& text, const std::string& title, const std::string& icon) override;

    std::vector<Shown> shown;
    std::deque<BoxAnswer> answers;
    std::deque<std::string> inputs;
    std::function<void()> whileOpen; // runs once for each box, as events of a waiting box would
};

class FakeSystemInfo final : public SystemInfo {
  public:
    User CurrentUser() const override { return {name}; }
    std::string name = "lerner";
};

// A picture of this size that nobody looks into.
PicturePtr blankPicture(int width, int height);

class FakeGraphics final : public Graphics {
  public:
    Color SystemColor(int /*number*/) const override { return buttonColor; }
    PicturePtr LoadPicture(const std::string& path) override;
    PicturePtr Scaled(const PicturePtr& picture, int width, int height) override;

    // A blank picture of this size; takes the place of the file `path`.
    void addPicture(const std::string& path, int width, int height);

    Color buttonColor{240, 240, 240};

  private:
    std::map<std::string, PicturePtr> pictures_;
};

// Forms are shown at their design size; nobody sees them.
class FakeWindows final : public WindowSystem {
  public:
    explicit FakeWindows(ManualClock& clock) : clock_(clock) {}

    Size screen() const override { return size; }
    double scaleOf(const Form& form) const override { return form.scalesItself() ? 1 : scale; }
    void setPointer(MousePointer shape) override { pointer = shape; }
    [[noreturn]] void EndProcess() override { throw ProcessEnded{}; }

    Size size{1366, 768};
    double scale = 1; // of forms that don't scale themselves
    MousePointer pointer = MousePointer::Normal;
    std::deque<std::function<void()>> events; // one is taken by each turn of the pump

  protected:
    void deliverEvents() override;
    // Moves the clock. Throws std::logic_error when nothing can ever happen again, in place of a
    // test that hangs.
    void waitForEvents(double until) override;
    void realise(Form& form, bool modal) override;
    void withdraw(Form& /*form*/) override {}

  private:
    ManualClock& clock_;
};

// A screen with a window in front that has a child; each of the three can be taken away. Pictures
// are blank.
class FakeCapture final : public ScreenCapture {
  public:
    static constexpr WindowHandle kDesktop = 11;
    static constexpr WindowHandle kFront = 12;
    static constexpr WindowHandle kChild = 13;

    struct Grab {
        WindowHandle window = kNoWindow;
        PixelRect part;
        friend bool operator==(const Grab&, const Grab&) = default;
    };

    WindowHandle GetDesktopWindow() const override { return hasDesktop ? kDesktop : kNoWindow; }
    WindowHandle GetForegroundWindow() const override { return hasFront ? kFront : kNoWindow; }
    WindowHandle GetWindow(WindowHandle window, int relation) const override;
    PixelRect windowRect(WindowHandle window) const override;
    PicturePtr grab(WindowHandle window, const PixelRect& part) const override;

    bool hasDesktop = true;
    bool hasFront = true;
    bool hasChild = true;
    bool givesPictures = true;
    PixelRect desktop{0, 0, 1365, 767};
    PixelRect front{0, 0, 1365, 767};
    PixelRect child{0, 30, 1365, 767};
    mutable std::vector<Grab> grabs; // also those that gave no picture
};

class FakePaths final : public PathService {
  public:
    std::string DataPath() const override { return path; }
    std::string path = "data/";
};

class RecordingSounds final : public SoundBank {
  public:
    void Play(const std::string& name, int /*unused*/) override { played.push_back(name); }
    void PlayFile(const std::string& path, int /*unused*/) override { played.push_back(path); }
    void Signal(int number) override { played.push_back("signal " + std::to_string(number)); }

    std::vector<std::string> played;
};

class FakeHostControl final : public HostControl {
  public:
    struct Progress {
        int points = 0;
        int wrong = 0;
    };
    struct Result {
        int score = 0;
        double mark = 0;
        std::string markText;
    };

    std::string Query(const std::string& section, const std::string& verb,
                      const std::string& key) override;
    void ReportProgress(int points, int wrong, int, int, const std::string&, const std::string&,
                        const std::string&, int, int, int) override {
        progress.push_back({points, wrong});
    }
    void ReportResult(int score, double mark, const std::string& markText, int,
                      const std::string&) override {
        results.push_back({score, mark, markText});
    }

    std::map<std::string, std::string> keys; // teacher keys that are set
    std::vector<Progress> progress;
    std::vector<Result> results;
};

class BlindPainter final : public ChartPainter {
  public:
    void render(const ChartView& view, PictureBox& target, double /*scale*/) override {
        ++renders;
        lastView = &view;
        lastTarget = &target;
    }
    int renders = 0;
    const ChartView* lastView = nullptr; // both may be gone by now
    const PictureBox* lastTarget = nullptr;
};

class FakeCalculator final : public Calculator {
  public:
    explicit FakeCalculator(FileService& files) : factory_(files, painter) {}

    void ShowAbout() override { ++abouts; }
    // Aborts unless a value is laid ready.
    std::optional<double> Show(int, int, double x, double y, const CalcPresets& presets) override;
    quendal::ChartFactory& ChartFactory() override { return factory_; }

    BlindPainter painter;
    int abouts = 0;
    std::deque<double> values;
    std::vector<std::string> offered; // lines of the last call
    Point place;                      // of the last call, in twips

  private:
    quendal::ChartFactory factory_;
};

class FakeApp final : public HostAppRoot {
  public:
    using HostAppRoot::HostAppRoot;
    void SetCommandLine(const std::string& text) override { commandLine = text; }
    void Shutdown() override { shutDown = true; }

    std::string commandLine;
    bool shutDown = false;
};

class FakeHost {
  public:
    explicit FakeHost(std::uint64_t seed = 1);
    ~FakeHost();
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    ManualClock clock;
    FakeSystemInfo system;
    NumberService numbers;
    RecordingMessageBox boxes;
    MemoryFiles files;
    FakeGraphics graphics;
    SeededRandom random;
    FakeWindows windows{clock};
    FakeCapture capture;
    CoreLibRoot coreLib{clock, system, numbers, boxes, files, graphics, random, windows, capture};

    FakePaths paths;
    RecordingSounds sounds;
    SoundOptions soundOptions;
    FakeHostControl control;
    FakeCalculator calculator{files};
    FakeApp app{paths, sounds, soundOptions, control, calculator};
};

} // namespace quendal::test
