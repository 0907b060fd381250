#include "desktop/services/desktop_sound_bank.h"

#include "desktop/files/wav_check.h"
#include "desktop/services/observer_link.h"
#include "host/file_service.h"
#include "host/host_observer.h"
#include "host/log.h"
#include "host/path_service.h"

#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QUrl>

namespace quendal {

namespace {

// More different sounds than the program has; beyond it the oldest names are forgotten.
constexpr std::size_t kMostSounds = 64;

} // namespace

DesktopSoundBank::DesktopSoundBank(const FileService& files, const PathService& paths,
                                   const SoundOptions& options, const ObserverLink& link)
    : files_(files), paths_(paths), options_(options), link_(link) {}

DesktopSoundBank::~DesktopSoundBank() = default;

void DesktopSoundBank::Play(const std::string& name, int) {
    play(paths_.DataPath() + "sounds/" + name + ".wav", name);
}

void DesktopSoundBank::Signal(int number) {
    const std::string text = std::to_string(number);
    play(paths_.DataPath() + "sounds/signal" + text + ".wav", "signal " + text);
}

void DesktopSoundBank::PlayFile(const std::string& path, int) {
    const bool whole = QFileInfo(QString::fromStdString(path)).isAbsolute();
    play(whole ? path : paths_.DataPath() + path, path);
}

void DesktopSoundBank::play(const std::string& file, const std::string& told) {
    if (options_.silent()) {
        return;
    }
    if (link_.observer != nullptr) {
        link_.observer->soundPlayed(told);
    }
    // A file that is at fault is told of on a machine without a device too.
    Sound& asked = sound(file);
    if (!asked.playable || !deviceThere()) {
        return;
    }
    if (asked.effect == nullptr) {
        asked.effect = makeEffect(file);
    }
    // Also while it still loads: it then sounds as soon as it can. Nothing waits for that.
    asked.effect->play();
}

// Asked at the first sound, since looking for devices takes its time at the start.
bool DesktopSoundBank::deviceThere() {
    if (device_ == Device::Unknown) {
        device_ = QMediaDevices::audioOutputs().isEmpty() ? Device::Missing : Device::There;
        if (device_ == Device::Missing) {
            logLine("Es gibt kein Tonausgabegerät; das Programm bleibt stumm.");
        }
    }
    return device_ == Device::There;
}

DesktopSoundBank::Sound& DesktopSoundBank::sound(const std::string& file) {
    if (const auto known = sounds_.find(file); known != sounds_.end()) {
        return known->second;
    }
    if (sounds_.size() >= kMostSounds) {
        sounds_.clear();
    }
    Sound& made = sounds_[file];
    made.playable = isPlayable(file);
    return made;
}

bool DesktopSoundBank::isPlayable(const std::string& file) const {
    const auto bytes = files_.read(file);
    if (!bytes) {
        logLine("Der Ton \"" + file + "\" fehlt oder ist nicht lesbar.");
        return false;
    }
    const std::string fault(wavFault(*bytes));
    if (!fault.empty()) {
        logLine("Der Ton \"" + file + "\" kann nicht gespielt werden: " + fault);
    }
    return fault.empty();
}

std::unique_ptr<QSoundEffect> DesktopSoundBank::makeEffect(const std::string& file) const {
    auto effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(QString::fromStdString(files_.realName(file))));
    QSoundEffect* made = effect.get();
    QObject::connect(made, &QSoundEffect::statusChanged, made, [made, file] {
        if (made->status() == QSoundEffect::Error) {
            logLine("Der Ton \"" + file + "\" kann nicht gespielt werden.");
        }
    });
    return effect;
}

} // namespace quendal
