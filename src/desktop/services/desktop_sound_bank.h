// Sounds from the data folder through the machine's sound device.
#pragma once

#include "host/sound.h"

#include <QSoundEffect>
#include <QString>

#include <map>
#include <memory>

namespace quendal {

class FileService;
class PathService;
struct ObserverLink;

class DesktopSoundBank final : public SoundBank {
  public:
    DesktopSoundBank(const FileService& files, const PathService& paths,
                     const SoundOptions& options, const ObserverLink& link);
    ~DesktopSoundBank() override;

    void Play(const std::string& name, int unused) override;
    void PlayFile(const std::string& path, int unused) override;
    void Signal(int number) override;

  private:
    // `told` is what an observer hears.
    void play(const std::string& file, const std::string& told);
    bool deviceThere();
    struct Sound {
        bool playable = false;                // what is wrong was logged when that was found out
        std::unique_ptr<QSoundEffect> effect; // made when it is first heard
    };
    Sound& sound(const std::string& file);
    bool isPlayable(const std::string& file) const;
    std::unique_ptr<QSoundEffect> makeEffect(const std::string& file) const;

    enum class Device { Unknown, There, Missing };

    const FileService& files_;
    const PathService& paths_;
    const SoundOptions& options_;
    const ObserverLink& link_;
    Device device_ = Device::Unknown;
    std::map<std::string, Sound> sounds_;
};

} // namespace quendal
