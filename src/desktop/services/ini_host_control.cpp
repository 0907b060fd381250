#include "desktop/services/ini_host_control.h"

#include "desktop/services/observer_link.h"
#include "desktop/services/report_file.h"
#include "host/host_observer.h"
#include "host/log.h"
#include "host/roots.h"
#include "host/window_system.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace quendal {

namespace {

constexpr const char* kControlName = "/quendal/control.ini";

// At most one byte more than a control file may have.
QByteArray firstBytes(const QString& path, QString& fault) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault = "sie lässt sich nicht lesen";
        return {};
    }
    return file.read(static_cast<qint64>(kControlFileLimit) + 1);
}

void report(const QString& path, const std::string& fault) {
    logLine("Steuerdatei \"" + path.toStdString() + "\" zählt nicht: " + fault);
}

} // namespace

ControlPlaces ControlPlaces::standard(const QString& asked) {
    ControlPlaces places{.system = {}, .asked = asked, .user = {}};
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    places.user.append(own + kControlName);
    for (const QString& folder :
         QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        if (folder != own) {
            places.system.append(folder + kControlName);
        }
    }
    return places;
}

void IniHostControl::load(const ControlPlaces& places) {
    keys_.clear();
    for (const QString& path : places.system) {
        loadFile(path, Absence::Silent);
    }
    if (!places.asked.isEmpty()) {
        loadFile(places.asked, Absence::Reported);
    }
    for (const QString& path : places.user) {
        loadFile(path, Absence::Silent);
    }
}

void IniHostControl::loadFile(const QString& path, Absence absence) {
    const QFileInfo place(path);
    if (!place.exists()) {
        if (absence == Absence::Reported) {
            report(path, "es gibt sie nicht");
        }
        return;
    }
    if (!place.isFile()) { // a pipe or a device would never end
        report(path, "das ist keine Datei");
        return;
    }
    QString unread;
    const QByteArray bytes = firstBytes(path, unread);
    std::string fault = unread.toStdString();
    const std::optional<ControlKeys> keys =
        fault.empty()
            ? parseControlFile({bytes.data(), static_cast<std::size_t>(bytes.size())}, fault)
            : std::nullopt;
    if (!keys) {
        report(path, fault);
        return;
    }
    keys_.insert(keys->begin(), keys->end());
}

void IniHostControl::setKey(const std::string& key, const std::string& text) {
    given_[controlKeyName(key)] = text;
}

std::string IniHostControl::Query(const std::string& section, const std::string& verb,
                                  const std::string& key) {
    if (section != kControlSection || verb != "GET") {
        return {};
    }
    const std::string name = controlKeyName(key);
    if (const auto given = given_.find(name); given != given_.end()) {
        return given->second;
    }
    const auto found = keys_.find(name);
    return found != keys_.end() ? found->second : std::string();
}

std::string IniHostControl::task() const {
    if (!task_.empty()) {
        return task_;
    }
    const Form* top = rootsInstalled() ? CoreLib().Windows.top() : nullptr;
    return top != nullptr ? top->caption() : std::string();
}

void IniHostControl::ReportProgress(int points, int wrong, int, int, const std::string&,
                                    const std::string&, const std::string&, int, int, int) {
    lastTask_ = task();
    points_ = points;
    errors_ = wrong;
    if (link_.observer != nullptr) {
        link_.observer->progressReported(points, wrong);
    }
    ReportRecord record{.learner = UserName, .task = lastTask_, .event = "progress"};
    record.points = points;
    record.errors = wrong;
    reports_.append(std::move(record));
}

void IniHostControl::ReportResult(int score, double mark, const std::string& markText, int,
                                  const std::string&) {
    if (link_.observer != nullptr) {
        link_.observer->resultReported(score, mark, markText);
    }
    ReportRecord record{.learner = UserName, .task = lastTask_, .event = "result"};
    if (lastTask_.empty()) { // a result without any progress before it
        record.task = task();
    }
    record.points = points_;
    record.errors = errors_;
    record.score = score;
    record.mark = mark;
    record.markText = markText;
    reports_.append(std::move(record));
}

} // namespace quendal
