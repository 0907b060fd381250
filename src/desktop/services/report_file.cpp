#include "desktop/services/report_file.h"

#include "host/log.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdlib>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quendal {

namespace {

bool toDisk(QFile& file) {
#ifdef Q_OS_WIN
    return file.flush() && _commit(file.handle()) == 0;
#else
    return file.flush() && fsync(file.handle()) == 0;
#endif
}

std::string localTime() {
    const QDateTime now = QDateTime::currentDateTime();
    const int minutes = now.offsetFromUtc() / 60;
    const QString offset = QString("%1%2:%3")
                               .arg(QLatin1Char(minutes < 0 ? '-' : '+'))
                               .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
                               .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
    return (now.toString("yyyy-MM-ddTHH:mm:ss") + offset).toStdString();
}

} // namespace

QString ReportFile::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/quendal/reports.jsonl";
}

void ReportFile::setPath(QString path) {
    if (path != path_) {
        path_ = std::move(path);
        complained_ = false;
    }
}

void ReportFile::append(ReportRecord record) {
    record.time = localTime();
    QString fault;
    if (!write(reportLine(record), fault) && !complained_) {
        complained_ = true;
        logLine("Berichte können nicht nach \"" + path_.toStdString() +
                "\" geschrieben werden: " + fault.toStdString());
    }
}

bool ReportFile::write(const std::string& line, QString& fault) const {
    const QFileInfo place(path_);
    // Opening a pipe or a device could wait for ever.
    if (place.exists() && !place.isFile()) {
        fault = "das ist keine Datei";
        return false;
    }
    QDir().mkpath(place.absolutePath());
    QFile file(path_);
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
    // One write for the line, so that two programs never mix their lines.
    const bool written = opened && file.write(line.data(), static_cast<qint64>(line.size())) ==
                                       static_cast<qint64>(line.size());
    if (!written || !toDisk(file)) {
        fault = file.errorString();
        return false;
    }
    return true;
}

} // namespace quendal
