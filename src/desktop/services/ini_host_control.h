// The teacher's keys from control files, reports into a file.
#pragma once

#include "desktop/files/control_file.h"
#include "host/host_control.h"

#include <QString>
#include <QStringList>

namespace quendal {

class ReportFile;
struct ObserverLink;

// Where control files are looked for. A key that an earlier group sets can't be changed by a later
// one: a learner can hand over an option and write into the own folder, but not into the system's.
struct ControlPlaces {
    QStringList system;
    QString asked; // --control, empty when not given
    QStringList user;

    // quendal/control.ini in the folders for settings of the system and the user.
    static ControlPlaces standard(const QString& asked = {});
};

class IniHostControl final : public HostControl {
  public:
    IniHostControl(ReportFile& reports, const ObserverLink& link)
        : reports_(reports), link_(link) {}

    // Reads all files anew. A file that is no control file, and an asked one that isn't there, is
    // reported with one line each and treated as absent.
    void load(const ControlPlaces& places);
    // Sets a key in place of all files, also of those read later, for a player of scripts.
    void setKey(const std::string& key, const std::string& text);
    // What reports name as the task in place of the caption of the form on the screen.
    void setTask(std::string task) { task_ = std::move(task); }

    std::string Query(const std::string& section, const std::string& verb,
                      const std::string& key) override;
    void ReportProgress(int points, int wrong, int, int, const std::string&, const std::string&,
                        const std::string& kind, int, int, int) override;
    void ReportResult(int score, double mark, const std::string& markText, int,
                      const std::string&) override;

  private:
    enum class Absence { Silent, Reported };
    void loadFile(const QString& path, Absence absence);
    std::string task() const;

    ReportFile& reports_;
    const ObserverLink& link_;
    ControlKeys keys_;
    ControlKeys given_; // by setKey
    std::string task_;
    std::string lastTask_; // that the counts below belong to
    int points_ = 0;
    int errors_ = 0;
};

} // namespace quendal
