// A learner who clicks, types and closes at random, on the real windows of the whole program:
// desktop_monkey SEED ACTIONS. Ends with 0 when the program has borne it.
#include "desktop/desktop_host.h"
#include "desktop/synthetic_input.h"
#include "host/event_feed.h"
#include "host/virtual_clock.h"
#include "shell/entry.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>

#include <cstdlib>
#include <iostream>

namespace quendal {

namespace {

constexpr double kPace = 0.05;     // s between two actions
constexpr double kCloses = 0.0005; // share of the actions that close a window
constexpr double kPauses = 0.02;   // share of the actions that wait a while

class Monkey final : public EventFeed {
  public:
    Monkey(std::uint64_t seed, int actions, Clock& clock)
        : chance_(seed), left_(actions), clock_(clock) {}

    void programWaits() override {}
    double due() const override { return next_; }
    void deliver() override {
        if (clock_.Now() < next_) {
            return;
        }
        next_ = clock_.Now() + (chance_.next() < kPauses ? 5 : kPace);
        if (left_-- <= 0) {
            CoreLib().Windows.EndProcess();
        }
        checkTop();
        act();
    }

  private:
    std::size_t pick(std::size_t count) {
        return static_cast<std::size_t>(chance_.next() * static_cast<double>(count));
    }

    // What the learner works with is on the screen.
    void checkTop() {
        const Form* top = CoreLib().Windows.top();
        if (top != nullptr && !top->shown()) {
            std::cerr << "the topmost form is not shown\n";
            std::_Exit(EXIT_FAILURE);
        }
    }

    // A window that takes input: an open list or menu, a box, else the topmost form.
    QWidget* window() const {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            return popup;
        }
        return QApplication::activeModalWidget();
    }

    void act() {
        QWidget* at = window();
        if (at == nullptr) {
            return;
        }
        const double what = chance_.next();
        if (what < kCloses) {
            at->close();
        } else if (what < 0.5) {
            clickAnyWidget(*at);
        } else if (what < 0.75) {
            clickAt(*at, {chance_.next() * at->width(), chance_.next() * at->height()},
                    chance_.next() < 0.1 ? Qt::RightButton : Qt::LeftButton);
        } else if (what < 0.85) {
            typeSomething(*at);
        } else {
            pressSomething(*at);
        }
    }

    void clickAnyWidget(QWidget& at) {
        QWidgetList shown;
        for (QWidget* widget : at.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus) {
                shown.append(widget);
            }
        }
        if (!shown.isEmpty()) {
            clickMiddle(
                *shown[static_cast<qsizetype>(pick(static_cast<std::size_t>(shown.size())))]);
        }
    }

    void typeSomething(QWidget& at) {
        static constexpr const char* kTexts[] = {"0,01", "1",   "7",      "log(",   "1,5*10^-3",
                                                 "abc",  "-,-", "µ(/)^|", "99E999", "0.8"};
        typeText(at, QString::fromUtf8(kTexts[pick(std::size(kTexts))]));
    }

    void pressSomething(QWidget& at) {
        static constexpr int kKeys[] = {Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape,
                                        Qt::Key_Tab,    Qt::Key_Down,   Qt::Key_Backspace,
                                        Qt::Key_Space,  Qt::Key_Delete, Qt::Key_Backtab};
        pressKey(at, kKeys[pick(std::size(kKeys))]);
    }

    class Chance final : public RandomSource {
      public:
        using RandomSource::RandomSource;
        void Randomize() override {}
    };

    Chance chance_;
    int left_;
    Clock& clock_;
    double next_ = 0;
};

class FixedChance final : public RandomSource {
  public:
    void Randomize() override { seed(1); }
};

} // namespace

} // namespace quendal

int main(int argc, char** argv) {
    using namespace quendal;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::uint64_t seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
    const int actions = argc > 2 ? std::atoi(argv[2]) : 2000;
    QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    QApplication application(argc, argv);
    const std::string text = joinArguments({"--data", QUENDAL_SOURCE_DIR "/data", "--report",
                                            folder.path().toStdString() + "/reports.jsonl"});
    VirtualClock clock;
    FixedChance random;
    DesktopHost host(application, parseCommandLine(text), {.clock = &clock, .random = &random});
    Monkey monkey(seed, actions, clock);
    host.setFeed(&monkey);
    host.windows().setScreen({1366, 768});
    host.windows().atEnd([&folder] { folder.remove(); });
    runSession(text);
}
