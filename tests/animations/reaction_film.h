// Reaction scenes held against a table of what stands where at which moment.
#pragma once

#include "stage_fixture.h"

#include <functional>
#include <string>
#include <vector>

namespace quendal::test {

// A sprite in a step of a scene: its centre in design units by the percent that is done.
struct Moving {
    std::string name; // as the stage knows it
    double zoom = 100;
    std::function<Point(double done)> centre;
    double shake = 0; // units around its centre at most
};

Moving standing(const std::string& name, double x, double y, double zoom = 100);
// Within 5 units of its place.
Moving shaking(const std::string& name, double x, double y);

// What stays the same in a step.
struct Look {
    std::string caption;
    std::string footer;
    std::size_t sounds = 0; // played so far
};

class ReactionTest : public StageTest {
  protected:
    static constexpr const char* kRepeat =
        "Mit Mausklick weiter Animation wiederholen. Mit ESC beenden";
    static constexpr const char* kGoOn = "Weiter mit Klick, Ende mit ESC";

    // The sprites that a scene needs, each of another size.
    void addSprites(const std::string& folder, const std::vector<std::string>& names);
    void addAllSprites();

    // All sprites of the step but the basin, which lies beneath them.
    void expectStage(const Shot& shot, const std::vector<Moving>& sprites, double done);
    void expectLook(const Shot& shot, const Look& look);
    // The next shots are a motion of so many seconds with these sprites in it.
    void expectMotion(Film& film, double seconds, const std::vector<Moving>& sprites,
                      const Look& look);
    // The next two shots are a wait for a click.
    void expectWait(Film& film, const std::vector<Moving>& sprites, const Look& look);
    void expectStill(Film& film, const std::vector<Moving>& sprites, const Look& look);

    std::string basin; // name of the scene's basin

  private:
    struct NaturalSize {
        int width = 0;
        int height = 0;
    };
    std::map<std::string, NaturalSize> sizes_; // by name in capitals
};

} // namespace quendal::test
