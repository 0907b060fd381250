// How long the frames of a script take on the real windows without a screen: the processor's time
// from one rest of the program to the next, painting included, as a row of a table. A turn in which
// a form or a box opens is no frame of anything that moves; the longest of them stands apart.
#include "desktop/desktop_host.h"
#include "desktop/script/desktop_script_actor.h"
#include "host/random_source.h"
#include "host/virtual_clock.h"
#include "script/script_player.h"
#include "script/script_program.h"
#include "shell/entry.h"

#include <QApplication>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <utility>
#include <vector>

using namespace quendal;

namespace {

// Of this thread, so that other programs on the machine don't count.
double processorMs() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// Every run throws the same.
class SameRandom final : public RandomSource {
  public:
    SameRandom() : RandomSource(1) {}
    void Randomize() override { seed(1); }
};

class FrameTimes {
  public:
    void start() { from_ = processorMs(); }
    void stop() {
        const double time = processorMs() - from_;
        if (std::exchange(opening_, false)) {
            longestOpening_ = std::max(longestOpening_, time);
        } else {
            times_.push_back(time);
        }
    }
    // The present turn opens a window.
    void noteOpening() { opening_ = true; }

    void print(const std::string& name) {
        if (times_.empty()) { // nothing was played, and the player has said why
            return;
        }
        std::sort(times_.begin(), times_.end());
        std::printf("| %s | %zu | %.2f | %.2f | %.2f | %.0f |\n", name.c_str(), times_.size(),
                    share(0.5), share(0.99), times_.back(), longestOpening_);
    }

  private:
    double share(double part) const {
        return times_[static_cast<std::size_t>(part * static_cast<double>(times_.size() - 1))];
    }

    std::vector<double> times_; // ms
    double from_ = 0;
    double longestOpening_ = 0;
    bool opening_ = false;
};

// The script's player, with an eye on windows.
class WatchingPlayer final : public HostObserver {
  public:
    WatchingPlayer(ScriptPlayer& player, FrameTimes& frames) : player_(player), frames_(frames) {}

    BoxReply boxOpened(const BoxEvent& event) override {
        frames_.noteOpening();
        return player_.boxOpened(event);
    }
    void soundPlayed(const std::string& name) override { player_.soundPlayed(name); }
    void progressReported(int points, int wrong) override {
        player_.progressReported(points, wrong);
    }
    void resultReported(int score, double mark, const std::string& markText) override {
        player_.resultReported(score, mark, markText);
    }
    void formShown(const Form& form) override {
        frames_.noteOpening();
        player_.formShown(form);
    }
    void formClosed(const Form& form) override {
        frames_.noteOpening();
        player_.formClosed(form);
    }
    void processEnded() override { player_.processEnded(); }

  private:
    ScriptPlayer& player_;
    FrameTimes& frames_;
};

int play(QApplication& application, const ReadyScript& ready, QSize size) {
    const Script& script = ready.script;
    VirtualClock clock;
    SameRandom random;
    CommandLine line;
    line.dataFolder = QUENDAL_SOURCE_DIR "/data";
    DesktopHost host(application, line, {.clock = &clock, .random = &random});
    host.windows().setScreen(size);
    host.app().SoundOptions.Mode = script.settings.sound;
    host.app().HostControl.UserName = script.settings.name;
    DesktopScriptActor actor(host.windows());
    std::ostream nowhere(nullptr);
    ScriptPlayer player(script, actor, {}, nowhere, std::cerr);
    FrameTimes frames;
    WatchingPlayer watching(player, frames);
    host.setObserver(&watching);
    host.setFeed(&player);
    frames.start();
    clock.beforeSleep = [&] {
        frames.stop();
        player.programWaits();
        frames.start();
    };
    const std::string name =
        QFileInfo(QString::fromStdString(script.file)).baseName().toStdString();
    host.windows().atEnd([&] { frames.print(name); });
    host.windows().setExitStatus([&] {
        std::fflush(stdout);
        return player.exitStatus();
    });
    ready.program({});
    host.windows().EndProcess();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() != 4) {
        std::cerr << "Usage: quendal_frame_histogram WIDTH HEIGHT SCRIPT\n";
        return 2;
    }
    const auto whole = [](const ScriptSettings&, std::string&) {
        return ScriptProgram(runSession);
    };
    const auto ready = readyScript(words[3].toStdString(), whole, std::cerr);
    return ready ? play(application, *ready, {words[1].toInt(), words[2].toInt()}) : 2;
}
