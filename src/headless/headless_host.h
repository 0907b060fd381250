// The host without a screen: all services on the script's settings, installed as the roots for as
// long as it lives.
#pragma once

#include "headless/headless_boxes.h"
#include "headless/headless_capture.h"
#include "headless/headless_services.h"
#include "headless/headless_windows.h"
#include "host/disk_file_service.h"
#include "host/roots.h"
#include "host/virtual_clock.h"
#include "script/script.h"

namespace quendal {

class HeadlessHost {
  public:
    // `dataFolder` ends with a separator.
    HeadlessHost(const ScriptSettings& settings, const std::string& dataFolder);
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    // Both must outlive the host; null takes them away.
    void watch(EventFeed* feed, HostObserver* observer) { watchers_ = {feed, observer}; }

    VirtualClock& clock() { return clock_; }
    HeadlessWindows& windows() { return windows_; }
    const CountingChartPainter& charts() const { return calculator_.painter(); }

  private:
    class App final : public HostAppRoot {
      public:
        using HostAppRoot::HostAppRoot;
        void SetCommandLine(const std::string&) override {}
        void Shutdown() override {}
    };

    Watchers watchers_;
    VirtualClock clock_;
    FixedUser system_;
    NumberService numbers_;
    HeadlessMessageBox boxes_{watchers_};
    DiskFileService files_;
    SizeOnlyGraphics graphics_{files_};
    RepeatableRandom random_;
    HeadlessWindows windows_;
    HeadlessCapture capture_{windows_};
    CoreLibRoot coreLib_{clock_,    system_, numbers_, boxes_,  files_,
                         graphics_, random_, windows_, capture_};

    FixedPath paths_;
    SoundOptions soundOptions_;
    ReportingSounds sounds_{watchers_, soundOptions_};
    ReportingControl control_;
    HeadlessCalculator calculator_{watchers_, files_, soundOptions_, numbers_};
    App app_{paths_, sounds_, soundOptions_, control_, calculator_};
};

} // namespace quendal
