// Plays a script on the real windows.
#include "script/desktop_script.h"

#include "desktop/desktop_host.h"
#include "desktop/script/desktop_script_actor.h"
#include "desktop/script/play_on_desktop.h"
#include "host/virtual_clock.h"
#include "script/keyboard_actor.h"
#include "script/script.h"
#include "script/script_options.h"
#include "script/script_player.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <iostream>

namespace quendal {

namespace {

class ScriptUser final : public SystemInfo {
  public:
    explicit ScriptUser(std::string name) : name_(std::move(name)) {}
    User CurrentUser() const override { return {name_}; }

  private:
    std::string name_;
};

// Seeding anew gives the same numbers again, so that a run can be repeated.
class ScriptRandom final : public RandomSource {
  public:
    explicit ScriptRandom(std::uint64_t seedValue) : RandomSource(seedValue), seed_(seedValue) {}
    void Randomize() override { seed(seed_); }

  private:
    std::uint64_t seed_;
};

// What the machine's user has set up or written must not reach a script, nor a script it.
void keepApart(const QString& folder) {
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME"}) {
        qputenv(variable, QFile::encodeName(folder));
    }
}

bool withoutScreen() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform.startsWith("offscreen") ||
           (platform.isEmpty() && !qEnvironmentVariableIsSet("DISPLAY") &&
            !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
}

// A platform without a screen gets one of the script's size.
void makeScreen(const QString& folder, Size size) {
    QFile file(folder + "/screen.json");
    if (!withoutScreen() || !file.open(QIODevice::WriteOnly)) {
        return;
    }
    const QString screen =
        QStringLiteral("{\"windowFrameMargins\": false, \"screens\": [{\"name\": \"script\", "
                       "\"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2, \"logicalDpi\": 96, "
                       "\"logicalBaseDpi\": 96, \"dpr\": 1}]}")
            .arg(static_cast<int>(size.width))
            .arg(static_cast<int>(size.height));
    file.write(screen.toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

std::string commandLineFor(const ScriptSettings& settings, const QString& folder) {
    const std::string thrownAway = folder.toStdString() + "/reports.jsonl";
    std::vector<std::string> words{"--report",
                                   settings.report.empty() ? thrownAway : settings.report};
    if (!settings.data.empty()) {
        words.insert(words.end(), {"--data", settings.data});
    }
    if (!settings.controlFile.empty()) {
        words.insert(words.end(), {"--control", settings.controlFile});
    }
    return joinArguments(words);
}

void applySettings(DesktopHost& host, const ScriptSettings& settings) {
    host.windows().setScreen(
        {static_cast<int>(settings.screen.width), static_cast<int>(settings.screen.height)});
    host.numbers().setDecimalSign(settings.sign);
    host.app().SoundOptions.Mode = settings.sound;
    host.app().HostControl.UserName = settings.name;
    for (const auto& [key, text] : settings.control) {
        host.app().control().setKey(key, text);
    }
}

} // namespace

int runDesktopScript(int argc, char** argv, const ScriptOptions& options,
                     const ProgramChooser& choose) {
    return playOnDesktop(argc, argv, options, choose, [](DesktopWindowSystem& windows) {
        return std::make_unique<DesktopScriptActor>(windows);
    });
}

int playOnDesktop(int argc, char** argv, const ScriptOptions& options, const ProgramChooser& choose,
                  const HandsMaker& makeHands) {
    const auto ready = readyScript(options.files.front(), choose, std::cerr);
    if (!ready) {
        return static_cast<int>(ScriptStatus::Malformed);
    }
    const Script& script = ready->script;
    QTemporaryDir folder;
    keepApart(folder.path());
    makeScreen(folder.path(), script.settings.screen);
    QApplication application(argc, argv);

    VirtualClock clock;
    ScriptUser user(script.settings.user);
    ScriptRandom random(script.settings.seed);
    const std::string line = commandLineFor(script.settings, folder.path());
    DesktopHost host(
        application, parseCommandLine(line),
        {.clock = options.scriptClock ? &clock : nullptr, .systemInfo = &user, .random = &random});
    applySettings(host, script.settings);
    const std::unique_ptr<ScriptActor> actor = makeHands(host.windows());
    KeyboardActor keyboard(*actor);
    ScriptActor& hands = options.byKeys ? keyboard : *actor;
    ScriptPlayer player(script, hands,
                        {.keepGoing = options.keepGoing, .realClock = !options.scriptClock},
                        std::cout, std::cerr);
    host.setObserver(&player);
    host.setFeed(&player);
    host.windows().atEnd([&folder] { folder.remove(); });
    host.windows().setExitStatus([&player] {
        std::cout.flush();
        return player.exitStatus();
    });
    ready->program(line);
    host.windows().EndProcess(); // a program that comes back has ended all the same
}

} // namespace quendal
