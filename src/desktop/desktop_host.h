// The desktop host with all its services; while it lives, the roots are installed.
#pragma once

#include "desktop/boxes/desktop_message_box.h"
#include "desktop/files/command_line.h"
#include "desktop/pictures/desktop_graphics.h"
#include "desktop/pictures/icon_library.h"
#include "desktop/services/desktop_clock.h"
#include "desktop/services/desktop_host_app.h"
#include "desktop/services/desktop_random.h"
#include "desktop/services/desktop_system_info.h"
#include "desktop/services/observer_link.h"
#include "desktop/windows/desktop_screen_capture.h"
#include "desktop/windows/desktop_window_system.h"
#include "host/disk_file_service.h"
#include "host/number_service.h"
#include "host/roots.h"

class QApplication;

namespace quendal {

// Services that stand in for the machine's own, for a player of scripts and for tests; null: the
// machine's own. They outlive the host.
struct DesktopStandIns {
    VirtualClock* clock = nullptr;
    SystemInfo* systemInfo = nullptr;
    RandomSource* random = nullptr;
};

class DesktopHost {
  public:
    // Gives the application the look of the program. `application` outlives the host.
    DesktopHost(QApplication& application, const CommandLine& line,
                const DesktopStandIns& standIns = {});
    ~DesktopHost();
    DesktopHost(const DesktopHost&) = delete;
    DesktopHost& operator=(const DesktopHost&) = delete;

    // Takes over what the user has set before, and keeps what changes from now on. Scripts and
    // tests do without, so that they see the same whoever plays them.
    void useKeptSettings();

    // Who watches and stands in for the learner; null: nobody.
    void setObserver(HostObserver* observer) { link_.observer = observer; }
    void setFeed(EventFeed* feed);

    DesktopWindowSystem& windows() { return windows_; }
    DesktopHostApp& app() { return app_; }
    NumberService& numbers() { return numbers_; }
    Clock& clock() { return clock_; }

  private:
    ObserverLink link_;
    DesktopClock ownClock_;
    VirtualClock* scriptClock_;
    Clock& clock_;
    DesktopSystemInfo ownSystemInfo_;
    DesktopRandom ownRandom_;
    DiskFileService files_;
    NumberService numbers_;
    DesktopHostApp app_;
    IconLibrary icons_;
    DesktopGraphics graphics_;
    DesktopMessageBox boxes_;
    DesktopWindowSystem windows_;
    DesktopScreenCapture capture_;
    CoreLibRoot coreLib_;
};

} // namespace quendal
