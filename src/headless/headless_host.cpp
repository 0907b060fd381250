#include "headless/headless_host.h"

namespace quendal {

HeadlessHost::HeadlessHost(const ScriptSettings& settings, const std::string& dataFolder)
    : system_(settings.user), numbers_(settings.sign), random_(settings.seed),
      windows_(clock_, watchers_, settings.screen), paths_(dataFolder),
      control_(watchers_, settings.control) {
    soundOptions_.Mode = settings.sound;
    control_.UserName = settings.name;
    installRoots(app_, coreLib_);
}

HeadlessHost::~HeadlessHost() {
    clearRoots();
}

} // namespace quendal
