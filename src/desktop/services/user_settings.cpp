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
    return number && zoom >= kLeast && zoom <= kMost ? zoom : 1;
}

void keepZoom(double zoom) {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(kZoom, zoom);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        logLine("the scale can't be kept in " + settingsFile().toStdString());
    }
}

} // namespace quendal
