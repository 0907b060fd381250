// The icons of the program, asked for by a path such as "Ico\20\Computer\Signs\Next.ico": size in
// design px, group, name.
#pragma once

#include "host/file_service.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

#include <map>
#include <set>
#include <string>

namespace quendal {

class IconLibrary {
  public:
    // Our own drawings lie in `folder`; what isn't there comes from the icon theme.
    IconLibrary(const FileService& files, std::string folder);

    // An empty icon, and one logged line, for a path that the library doesn't know.
    QIcon icon(const std::string& path);
    // The size that stands in the path, 20 where none does.
    static int designSize(const std::string& path);
    // The icon in its size at `scale`; null when there is none.
    QPixmap pixmap(const std::string& path, double scale, double devicePixelRatio,
                   QIcon::Mode mode = QIcon::Normal);

  private:
    QIcon load(const std::string& path) const;

    const FileService& files_;
    std::string folder_;
    std::map<std::string, QIcon> icons_;
};

} // namespace quendal
