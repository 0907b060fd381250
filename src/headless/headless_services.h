// The small services of the headless host.
#pragma once

#include "headless/watchers.h"
#include "host/graphics.h"
#include "host/host_control.h"
#include "host/path_service.h"
#include "host/random_source.h"
#include "host/sound.h"
#include "host/system_info.h"

#include <map>
#include <string>

namespace quendal {

class FileService;

class FixedPath final : public PathService {
  public:
    explicit FixedPath(std::string folder) : folder_(std::move(folder)) {}
    std::string DataPath() const override { return folder_; }

  private:
    std::string folder_; // ends with a separator
};

class FixedUser final : public SystemInfo {
  public:
    explicit FixedUser(std::string name) : name_(std::move(name)) {}
    User CurrentUser() const override { return {name_}; }

  private:
    std::string name_;
};

// Seeding anew gives the same numbers again, so that a run can be repeated.
class RepeatableRandom final : public RandomSource {
  public:
    explicit RepeatableRandom(std::uint64_t seedValue)
        : RandomSource(seedValue), seed_(seedValue) {}
    void Randomize() override { seed(seed_); }

  private:
    std::uint64_t seed_;
};

// Tells the observer what would be heard.
class ReportingSounds final : public SoundBank {
  public:
    ReportingSounds(const Watchers& watchers, const SoundOptions& options)
        : watchers_(watchers), options_(options) {}
    void Play(const std::string& name, int unused) override;
    void PlayFile(const std::string& path, int unused) override;
    void Signal(int number) override;

  private:
    void report(const std::string& name);

    const Watchers& watchers_;
    const SoundOptions& options_;
};

class ReportingControl final : public HostControl {
  public:
    // Keys in capitals.
    ReportingControl(const Watchers& watchers, std::map<std::string, std::string> keys)
        : watchers_(watchers), keys_(std::move(keys)) {}
    std::string Query(const std::string& section, const std::string& verb,
                      const std::string& key) override;
    void ReportProgress(int points, int wrong, int, int, const std::string&, const std::string&,
                        const std::string& kind, int, int, int) override;
    void ReportResult(int score, double mark, const std::string& markText, int,
                      const std::string&) override;

  private:
    const Watchers& watchers_;
    std::map<std::string, std::string> keys_;
};

// A picture of which only the size is known.
PicturePtr sizeOnlyPicture(int width, int height);

// Knows pictures by their size only.
class SizeOnlyGraphics final : public Graphics {
  public:
    explicit SizeOnlyGraphics(const FileService& files) : files_(files) {}
    Color SystemColor(int number) const override;
    PicturePtr LoadPicture(const std::string& path) override;
    PicturePtr Scaled(const PicturePtr& picture, int width, int height) override;

  private:
    const FileService& files_;
};

} // namespace quendal
