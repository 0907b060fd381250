#include "desktop/desktop_host.h"

#include "desktop/services/product.h"
#include "desktop/windows/look.h"
#include "host/event_feed.h"
#include "host/virtual_clock.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <clocale>

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
    QApplication::setApplicationName(kProductName);
    QApplication::setApplicationDisplayName(kProductName);
    QApplication::setApplicationVersion(kProductVersion);
    QApplication::setWindowIcon(
        QIcon(QString::fromStdString(app_.PathService.DataPath() + "icons/quendal.svg")));
    look::apply(application);
    speakGerman(application);
    installRoots(app_, coreLib_);
}

DesktopHost::~DesktopHost() {
    clearRoots();
}

void DesktopHost::setFeed(EventFeed* feed) {
    windows_.setFeed(feed);
    const std::function<void()> waits = [feed] { feed->programWaits(); };
    (scriptClock_ != nullptr ? scriptClock_->beforeSleep : ownClock_.beforeSleep) =
        feed != nullptr ? waits : std::function<void()>();
}

} // namespace quendal
