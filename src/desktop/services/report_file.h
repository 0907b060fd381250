// The file that progress and results are appended to.
#pragma once

#include "desktop/files/report_record.h"

#include <QString>

namespace quendal {

class ReportFile {
  public:
    // quendal/reports.jsonl in the user's data folder.
    static QString defaultPath();

    explicit ReportFile(QString path = defaultPath()) : path_(std::move(path)) {}
    void setPath(QString path);
    const QString& path() const { return path_; }

    // Appends the line and has it written to the disk before it comes back; `time` is filled in
    // here. When it can't be written one line is logged, once for each path.
    void append(ReportRecord record);

  private:
    bool write(const std::string& line, QString& fault) const;

    QString path_;
    bool complained_ = false;
};

} // namespace quendal
