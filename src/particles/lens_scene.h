// What the scenes behind the magnifying glass have in common. They show single particles and
// equilibria; the particles of a titration are those of cls_Molecules. A scene knows no form:
// chance comes in and sounds go out through functions, and it draws on whatever surface it is
// given.
#pragma once

#include "host/geometry.h"

#include <cstdint>
#include <functional>
#include <span>

namespace quendal {

class Surface;

enum class LensSound { Collide, Burst };

// A particle, or a pair of them; all in whole units of the scene's surface and in frames.
struct LensParticle {
    std::int32_t PX = 0; // place
    std::int32_t PY = 0;
    std::int32_t State = 0; // 0 at rest, else active
    std::int32_t Gap = 0;   // distance of the parts of a pair, or how far an ion has come loose
    std::int32_t Wait = 0;  // frames spent in a state
    // Crystal only.
    std::int32_t Goal = 0; // height that it rises to
    std::int32_t Fast = 0; // 1 when it rises two units a frame
    std::int32_t Wobble1 = 0;
    std::int32_t Wobble2 = 0;
    std::int32_t Wobble3 = 0;
    std::int32_t Wobble4 = 0;
    std::int32_t Column = 0; // of the lattice that it belongs to, 1 to 6
};

struct LensWorld {
    std::function<double()> random; // uniform in [0, 1)
    std::function<void(LensSound)> play;
};

class LensScene {
  public:
    // The scale of the surface that all places are told for.
    static constexpr Size kUnits{280, 249};

    explicit LensScene(LensWorld world) : world_(std::move(world)) {}
    virtual ~LensScene() = default;
    LensScene(const LensScene&) = delete;
    LensScene& operator=(const LensScene&) = delete;

    virtual void place() = 0;
    // Every particle does its step of one frame.
    void step();
    // `unit` holds the units across and down that are as long as a unit of a circle's radius: 1 and
    // 1, unless the screen stretches the axes differently.
    virtual void draw(Surface& surface, Size unit) const = 0;

    virtual std::span<LensParticle> particles() = 0;
    virtual std::span<const LensParticle> particles() const = 0;
    // Particles whose State is above 0.
    int active() const;

  protected:
    // `active` counts those that were active at the beginning of the frame and those that have
    // started in it before.
    virtual void stepParticle(LensParticle& particle, int active) = 0;

    double random() { return world_.random(); }
    bool chance(double percent) { return random() * 100 < percent; }
    // The more are active the rarer a new one starts.
    bool chanceToStart(int active) { return random() * (active * 1000 + 1500) < 10; }
    void play(LensSound sound) { world_.play(sound); }

  private:
    LensWorld world_;
};

} // namespace quendal
