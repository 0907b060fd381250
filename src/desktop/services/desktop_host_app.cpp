#include "desktop/services/desktop_host_app.h"

#include "host/log.h"

namespace quendal {

DesktopHostApp::DesktopHostApp(FileService& files, const ObserverLink& link,
                               const CommandLine& line)
    : DesktopHostServices(files, link),
      HostAppRoot(data, sounds, soundOptions, DesktopHostServices::control, calculator) {
    obey(line);
}

void DesktopHostApp::SetCommandLine(const std::string& text) {
    const CommandLine line = parseCommandLine(text);
    for (const std::string& fault : line.faults) {
        logLine(fault);
    }
    // The same line a second time would only report the same missing files again.
    if (!(line == obeyed_)) {
        obey(line);
    }
}

void DesktopHostApp::obey(const CommandLine& line) {
    obeyed_ = line;
    data.choose(QString::fromStdString(line.dataFolder));
    DesktopHostServices::control.load(
        ControlPlaces::standard(QString::fromStdString(line.controlFile)));
    reports.setPath(line.reportFile.empty() ? ReportFile::defaultPath()
                                            : QString::fromStdString(line.reportFile));
}

} // namespace quendal
