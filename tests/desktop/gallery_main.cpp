// Shows the gallery, or writes a picture of it: quendal_desktop_gallery [FILE.png WIDTH HEIGHT
// [TAB]]
#include "desktop/desktop_host.h"
#include "desktop/gallery_form.h"

#include <QApplication>
#include <QPixmap>

int main(int argc, char** argv) {
    using namespace quendal;
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    CommandLine line;
    line.dataFolder = QUENDAL_SOURCE_DIR "/data";
    DesktopHost host(application, line);
    test::GalleryForm form;
    if (arguments.size() < 4) {
        host.windows().ShowModal(form);
        return 0;
    }
    host.windows().Show(form);
    FormWindow* window = host.windows().windowOf(form);
    window->resize(arguments[2].toInt(), arguments[3].toInt());
    if (arguments.size() > 4) {
        form.tabs.setTab(arguments[4].toInt());
    }
    host.windows().DoEvents();
    const bool written = window->grab().save(arguments[1]);
    host.windows().Unload(form);
    return written ? 0 : 1;
}
