#include "desktop/services/user_settings.h"

#include "host/log.h"

#include <QSettings>
#include <QStandardPaths>

namespace quendal {

namespace {

constexpr const char* kZoom = "Zoom";
constexpr double kLeast = 0.5; // a file may hold anything
constexpr double kMost = 4;

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/quendal/quendal.ini";
}

} // namespace

double keptZoom() {
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    bool number = false;
    const double zoom = settings.value(kZoom, 1).toDouble(&number);
    if (number && zoom >= kLeast && zoom <= kMost) {
        return zoom;
    }
    logLine("Die Vergrößerung in \"" + settingsFile().toStdString() +
            "\" zählt nicht: sie ist keine Zahl von 0.5 bis 4");
    return 1;
}

void keepZoom(double zoom) {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(kZoom, zoom);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        logLine("Die Vergrößerung kann nicht in \"" + settingsFile().toStdString() +
                "\" behalten werden");
    }
}

} // namespace quendal
