// Sounds and whether they play. None of these blocks or fails; without a device nothing is heard.
#pragma once

#include <string>

namespace quendal {

class SoundBank {
  public:
    virtual ~SoundBank() = default;
    // A sound of the set: "result_good", "clapping", "correct", "say", "wrong", "result_bad".
    virtual void Play(const std::string& name, int unused) = 0;
    virtual void PlayFile(const std::string& path, int unused) = 0;
    // Feedback: 1 a wrong, 2 a right answer.
    virtual void Signal(int number) = 0;
};

// Mode 2 is silent, 3 and 1 are on; 0 means that nobody has chosen yet and counts as on.
struct SoundOptions {
    int Mode = 0;
    std::string Title;       // of the about box
    std::string ProductName; // of the about box
    std::string Version;     // of the about box

    bool silent() const { return Mode == 2; }
};

} // namespace quendal
