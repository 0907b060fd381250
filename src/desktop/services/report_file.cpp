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

// A line that broke off, in a crash or on a full disk, must not swallow the next one.
bool endsInALine(const QString& path) {
    QFile file(path);
    char last = '\n';
    return !file.open(QIODevice::ReadOnly) || file.size() == 0 || !file.seek(file.size() - 1) ||
           !file.getChar(&last) || last == '\n';
}

// Half a line can't be read; what another program has written behind it stays.
void takeBack(QFile& file, qint64 before, qint64 written) {
    if (written > 0 && file.size() == before + written) {
        file.resize(before);
    }
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
    const std::string text = endsInALine(path_) ? line : '\n' + line;
    QFile file(path_);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        fault = place.dir().exists() ? "das Recht dazu fehlt" : "den Ordner gibt es nicht";
        return false;
    }
    const qint64 before = file.size();
    const auto length = static_cast<qint64>(text.size());
    // One write for the line, so that two programs never mix their lines.
    const qint64 written = file.write(text.data(), length);
    if (written == length && toDisk(file)) {
        return true;
    }
    fault = written == length || written < 0 ? file.errorString() : "es passt nicht alles hinein";
    takeBack(file, before, written);
    return false;
}

} // namespace quendal
