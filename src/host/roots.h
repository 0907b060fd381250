// The two root objects through which all logic reaches its host. The composition root installs them
// once, before anything else runs.
#pragma once

#include <string>

namespace quendal {

class Calculator;
class Clock;
class FileService;
class Graphics;
class HostControl;
class MessageBox;
class NumberService;
class Packer;
class PathService;
class RandomSource;
class ScreenCapture;
class SoundBank;
class SystemInfo;
class WindowSystem;
struct SoundOptions;

struct CoreLibRoot {
    quendal::Clock& Clock;
    quendal::SystemInfo& SystemInfo;
    quendal::NumberService& NumberService;
    quendal::MessageBox& MessageBox;
    quendal::FileService& FileService;
    quendal::Graphics& Graphics;
    quendal::RandomSource& Random;
    quendal::WindowSystem& Windows;
    quendal::ScreenCapture& Screen;
    // Ends the class names of stored objects.
    std::string classSuffix = "Quendal";
};

class HostAppRoot {
  public:
    HostAppRoot(quendal::PathService& paths, quendal::SoundBank& sounds,
                quendal::SoundOptions& options, quendal::HostControl& control,
                quendal::Calculator& calculator)
        : PathService(paths), SoundBank(sounds), SoundOptions(options), HostControl(control),
          Calculator(calculator) {}
    virtual ~HostAppRoot() = default;

    quendal::PathService& PathService;
    quendal::SoundBank& SoundBank;
    quendal::SoundOptions& SoundOptions;
    quendal::HostControl& HostControl;
    quendal::Calculator& Calculator;

    // Takes the process's command line whole; the program itself reads no option.
    virtual void SetCommandLine(const std::string& text) = 0;
    // The last call before the process ends.
    virtual void Shutdown() = 0;
};

// Valid from installRoots until clearRoots; asking earlier is a fault of the program.
HostAppRoot& HostApp();
CoreLibRoot& CoreLib();

void installRoots(HostAppRoot& hostApp, CoreLibRoot& coreLib);
void clearRoots();
// False between the two; destructors that run late ask for it.
bool rootsInstalled();

} // namespace quendal
