// The root object of the desktop host with all its services.
#pragma once

#include "desktop/boxes/desktop_calculator.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/files/command_line.h"
#include "desktop/services/data_folder.h"
#include "desktop/services/desktop_sound_bank.h"
#include "desktop/services/ini_host_control.h"
#include "desktop/services/observer_link.h"
#include "desktop/services/report_file.h"
#include "host/roots.h"
#include "host/sound.h"

namespace quendal {

// The services themselves; a base of its own so that they are there before the root refers to them.
struct DesktopHostServices {
    DesktopHostServices(FileService& files, const ObserverLink& link)
        : sounds(files, data, soundOptions, link), control(reports, link),
          calculator(files, charts, soundOptions, link) {}

    DataFolder data;
    quendal::SoundOptions soundOptions;
    DesktopSoundBank sounds;
    ReportFile reports;
    IniHostControl control;
    QCustomPlotChartPainter charts;
    DesktopCalculator calculator;
};

class DesktopHostApp final : private DesktopHostServices, public HostAppRoot {
  public:
    // `files` and `link` outlive it. Obeys `line` at once, because the first window already shows
    // pictures from the data folder.
    DesktopHostApp(FileService& files, const ObserverLink& link, const CommandLine& line);

    void SetCommandLine(const std::string& text) override;
    void Shutdown() override {} // every report is on the disk when its call comes back

    // For a player of scripts, which sets keys and the place of reports itself.
    IniHostControl& control() { return DesktopHostServices::control; }

  private:
    void obey(const CommandLine& line);

    CommandLine obeyed_;
};

} // namespace quendal
