#include "desktop/services/data_folder.h"

#include "host/log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quendal {

namespace {

QString firstFolder(const QStringList& candidates) {
    const auto found =
        std::find_if(candidates.begin(), candidates.end(),
                     [](const QString& folder) { return QFileInfo(folder).isDir(); });
    return found != candidates.end() ? *found : candidates.front();
}

} // namespace

QStringList DataFolder::candidates(const QString& programFolder) {
    return {programFolder + "/data", programFolder + "/../share/quendal/data",
            QUENDAL_INSTALLED_DATA};
}

void DataFolder::choose(const QString& asked) {
    const QString folder =
        asked.isEmpty() ? firstFolder(candidates(QCoreApplication::applicationDirPath())) : asked;
    const QString whole = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    path_ = whole.toStdString();
    if (path_.empty() || path_.back() != '/') {
        path_ += '/';
    }
    if (!QFileInfo(whole).isDir()) {
        logLine("Der Datenordner \"" + whole.toStdString() +
                "\" ist nicht da; Bilder, Kurven, Hilfetexte und Töne fehlen.");
    }
}

} // namespace quendal
