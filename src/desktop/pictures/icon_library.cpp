#include "desktop/pictures/icon_library.h"

#include "host/log.h"

#include <QLoggingCategory>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace quendal {

namespace {

struct IconRow {
    const char* name;  // the path without its size, in lower case
    const char* own;   // our drawing
    const char* theme; // name in the icon theme
};

constexpr std::array kIcons = {
    IconRow{"computer/signs/next", "next", "go-next"},
    IconRow{"computer/signs/quit", "quit", "application-exit"},
    IconRow{"multimedia/video/camera", "camera", "camera-video"},
    IconRow{"science/math/generic", "math", "labplot-xy-equation-curve"},
    IconRow{"science/math/graph", "graph", "labplot-xy-curve-segments"},
    IconRow{"science/math/point", "add_point", "list-add"},
    IconRow{"science/chemistry/drop", "drop", "color-picker"},
    IconRow{"science/chemistry/pipette", "pipette", "color-picker"},
    IconRow{"computer/signs/help", "help", "help-contents"},
    IconRow{"computer/signs/checked", "checked", "checkmark"},
    IconRow{"computer/signs/ok", "ok", "dialog-ok"},
    IconRow{"computer/signs/no", "no", "dialog-cancel"},
    IconRow{"abstract/arrows/black compact right", "arrow_right", "arrow-right"},
    IconRow{"business/office/calculator", "calculator", "accessories-calculator"},
    IconRow{"computer/signs/stop", "stop", "dialog-error"},
    IconRow{"computer/signs/search", "search", "search"},
    IconRow{"computer/signs/abort", "abort", "dialog-cancel"},
    IconRow{"computer/signs/attention", "attention", "dialog-warning"},
};

constexpr int kUsualSize = 20;

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) {
        return c == '\\' ? '/' : static_cast<char>(std::tolower(c));
    });
    return text;
}

// "Ico\20\Computer\Signs\Next.ico" as "computer/signs/next".
std::string nameIn(const std::string& path) {
    std::string name = lowered(path);
    if (name.starts_with("ico/")) {
        name.erase(0, 4);
    }
    const std::size_t digits = name.find_first_not_of("0123456789");
    if (digits != std::string::npos && digits > 0 && name[digits] == '/') {
        name.erase(0, digits + 1);
    }
    if (name.ends_with(".ico")) {
        name.resize(name.size() - 4);
    }
    return name;
}

bool isDrawing(const std::string& bytes) {
    return QSvgRenderer(QByteArray::fromStdString(bytes)).isValid();
}

} // namespace

IconLibrary::IconLibrary(const FileService& files, std::string folder)
    : files_(files), folder_(std::move(folder)),
      folderThere_(files.FindFiles(folder_ + "*.svg").Count() > 0) {
    // What it says of broken drawings names no file; loadOwn tells of them.
    QLoggingCategory::setFilterRules("qt.svg.warning=false");
    // Not every window system says where the themes lie.
    const QStringList folders = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                          "icons", QStandardPaths::LocateDirectory);
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() + folders);
    QIcon::setThemeName("breeze");
}

QIcon IconLibrary::loadOwn(const std::string& name) const {
    const std::string file = folder_ + name + ".svg";
    const auto bytes = files_.read(file);
    if (bytes && isDrawing(*bytes)) {
        return QIcon(QString::fromStdString(files_.realName(file)));
    }
    if (folderThere_) {
        logLine((bytes ? "picture broken: " : "picture missing: ") + file);
    }
    return {};
}

const QIcon& IconLibrary::own(const std::string& name) {
    const auto known = own_.find(name);
    return known != own_.end() ? known->second : own_.emplace(name, loadOwn(name)).first->second;
}

QIcon IconLibrary::load(const std::string& path) {
    const std::string name = nameIn(path);
    const auto row = std::find_if(kIcons.begin(), kIcons.end(),
                                  [&](const IconRow& r) { return name == r.name; });
    if (row == kIcons.end()) {
        logLine("icon missing: " + path);
        return {};
    }
    const QIcon& drawn = own(row->own);
    return drawn.isNull() ? QIcon::fromTheme(row->theme) : drawn;
}

QIcon IconLibrary::icon(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    const auto known = icons_.find(path);
    return known != icons_.end() ? known->second : icons_.emplace(path, load(path)).first->second;
}

int IconLibrary::designSize(const std::string& path) {
    const std::string name = lowered(path);
    int size = 0;
    for (std::size_t i = name.starts_with("ico/") ? 4 : 0;
         i < name.size() && name[i] >= '0' && name[i] <= '9' && size < 1000; ++i) {
        size = size * 10 + (name[i] - '0');
    }
    return size >= 8 && size <= 256 ? size : kUsualSize;
}

QPixmap IconLibrary::pixmap(const std::string& path, double scale, double devicePixelRatio,
                            QIcon::Mode mode) {
    const int side = std::max(1, static_cast<int>(std::lround(designSize(path) * scale)));
    const QIcon found = icon(path);
    return found.isNull() ? QPixmap() : found.pixmap(QSize(side, side), devicePixelRatio, mode);
}

} // namespace quendal
