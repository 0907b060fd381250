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
    QSoundEffect* effect(const std::string& file);

    enum class Device { Unknown, There, Missing };

    const FileService& files_;
    const PathService& paths_;
    const SoundOptions& options_;
    const ObserverLink& link_;
    Device device_ = Device::Unknown;
    // Null for a file that can't be played; it was logged when that was found out.
    std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
};

} // namespace quendal
