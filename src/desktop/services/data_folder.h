// Where the program's data lie on this machine.
#pragma once

#include "host/path_service.h"

#include <QString>
#include <QStringList>

namespace quendal {

class DataFolder final : public PathService {
  public:
    DataFolder() = default; // none until one is chosen
    // The folder that was asked for (--data), or else the first that is there of: beside the
    // program, in the share folder of its own prefix (a build folder has one too), where the
    // package was meant to go. One line is logged when none is.
    explicit DataFolder(const QString& asked) { choose(asked); }
    void choose(const QString& asked);

    std::string DataPath() const override { return path_; }

    // The folders that are tried without --data, for a program in `programFolder`.
    static QStringList candidates(const QString& programFolder);

  private:
    std::string path_;
};

} // namespace quendal
