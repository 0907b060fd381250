// Chance and sounds of a scene as a test tells and hears them.
#pragma once

#include "particles/lens_scene.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <vector>

namespace quendal::test {

// Shared with the scene, which keeps a copy of the functions.
struct LensScript {
    std::deque<double> numbers; // drawn from the front; drawing more than are laid ready fails
    double otherwise = -1;      // what comes then; below 0: nothing may
    std::vector<LensSound> sounds;
    long drawn = 0;
};

class ScriptedLens {
  public:
    LensWorld world() const {
        return {[script = script_] {
                    ++script->drawn;
                    if (script->numbers.empty()) {
                        EXPECT_GE(script->otherwise, 0) << "a random number too many";
                        return script->otherwise < 0 ? 0.999 : script->otherwise;
                    }
                    const double next = script->numbers.front();
                    script->numbers.pop_front();
                    return next;
                },
                [script = script_](LensSound sound) { script->sounds.push_back(sound); }};
    }
    LensScript& operator*() const { return *script_; }
    LensScript* operator->() const { return script_.get(); }

  private:
    std::shared_ptr<LensScript> script_ = std::make_shared<LensScript>();
};

inline const std::vector<LensSound> kNoSound;
inline const std::vector<LensSound> kCollide{LensSound::Collide};
inline const std::vector<LensSound> kBurst{LensSound::Burst};

} // namespace quendal::test
