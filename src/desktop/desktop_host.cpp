#include "desktop/desktop_host.h"

#include "desktop/services/product.h"
#include "desktop/services/user_settings.h"
#include "desktop/windows/accessible.h"
#include "desktop/windows/look.h"
#include "host/event_feed.h"
#include "host/virtual_clock.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <clocale>

#include <malloc.h>

namespace quendal {

namespace {

template <class T>
T& orOwn(T* standIn, T& own) {
    return standIn != nullptr ? *standIn : own;
}

// Qt takes over the user's locale; numbers of the C library must not follow it.
const ObserverLink& withPlainNumbers(const ObserverLink& link) {
    std::setlocale(LC_NUMERIC, "C");
    return link;
}

// The texts that Qt brings along, those of an input's own menu say.
void speakGerman(QApplication& application) {
    auto* texts = new QTranslator(&application); // the application owns it
    if (texts->load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(texts);
    }
}

// Pictures get memory of their own that goes back to the system with them. Left alone, the library
// soon takes it from the heap, which never shrinks below what lies at its end.
void giveBackLargeBlocks() {
    constexpr int kLargeBlock = 1 << 17; // bytes
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
}

} // namespace

DesktopHost::DesktopHost(QApplication& application, const CommandLine& line,
                         const DesktopStandIns& standIns)
    : scriptClock_(standIns.clock), clock_(orOwn<Clock>(standIns.clock, ownClock_)),
      app_(files_, withPlainNumbers(link_), line),
      icons_(files_, app_.PathService.DataPath() + "icons/"), graphics_(files_),
      boxes_(icons_, link_), windows_(clock_, scriptClock_, icons_, link_),
      capture_(windows_), coreLib_{.Clock = clock_,
                                   .SystemInfo =
                                       orOwn<SystemInfo>(standIns.systemInfo, ownSystemInfo_),
                                   .NumberService = numbers_,
                                   .MessageBox = boxes_,
                                   .FileService = files_,
                                   .Graphics = graphics_,
                                   .Random = orOwn<RandomSource>(standIns.random, ownRandom_),
                                   .Windows = windows_,
                                   .Screen = capture_} {
    giveBackLargeBlocks();
    QApplication::setApplicationName(kProductName);
    QApplication::setApplicationDisplayName(kProductName);
    QApplication::setApplicationVersion(kProductVersion);
    QGuiApplication::setDesktopFileName("quendal"); // its windows belong to this menu entry
    QApplication::setWindowIcon(icons_.own("quendal"));
    look::apply(application);
    look::setZoom(1);
    installAccessible();
    speakGerman(application);
    installRoots(app_, coreLib_);
}

DesktopHost::~DesktopHost() {
    clearRoots();
}

void DesktopHost::useKeptSettings() {
    look::setZoom(keptZoom());
    windows_.setZoomKeeper(keepZoom);
}

void DesktopHost::setFeed(EventFeed* feed) {
    windows_.setFeed(feed);
    const std::function<void()> waits = [feed] { feed->programWaits(); };
    (scriptClock_ != nullptr ? scriptClock_->beforeSleep : ownClock_.beforeSleep) =
        feed != nullptr ? waits : std::function<void()>();
}

} // namespace quendal
