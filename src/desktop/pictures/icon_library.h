// The icons of the program, asked for by a path such as "Ico\20\Computer\Signs\Next.ico": size in
// design px, group, name.
#pragma once

#include "host/file_service.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

#include <map>
#include <string>

namespace quendal {

class IconLibrary {
  public:
    // Our own drawings lie in `folder`; what isn't there or can't be read comes from the icon
    // theme, and is logged, each file once.
    IconLibrary(const FileService& files, std::string folder);

    // An empty icon, and one logged line, for a path that the library doesn't know.
    QIcon icon(const std::string& path);
    // One of our own drawings, `name` without its ending; empty when it can't be had.
    const QIcon& own(const std::string& name);
    // The size that stands in the path, 20 where none does.
    static int designSize(const std::string& path);
    // The icon in its size at `scale`; null when there is none.
    QPixmap pixmap(const std::string& path, double scale, double devicePixelRatio,
                   QIcon::Mode mode = QIcon::Normal);

  private:
    QIcon load(const std::string& path);
    QIcon loadOwn(const std::string& name) const;

    const FileService& files_;
    std::string folder_;
    bool folderThere_; // without one there is nothing to tell of single drawings
    std::map<std::string, QIcon> own_;
    std::map<std::string, QIcon> icons_;
};

} // namespace quendal
