// Pairs that meet, hand a proton over, and take it back: the autoprotolysis of water and the
// dissociation of acetic acid.
#pragma once

#include "particles/lens_scene.h"

#include <array>

namespace quendal {

enum class PairKind { Water, AceticAcid };

class PairScene final : public LensScene {
  public:
    static constexpr int kPairs = 50;

    PairScene(PairKind kind, LensWorld world) : LensScene(std::move(world)), kind_(kind) {}

    void place() override;
    void draw(Surface& surface, Size unit) const override;
    std::span<LensParticle> particles() override { return pairs_; }
    std::span<const LensParticle> particles() const override { return pairs_; }

  private:
    void stepParticle(LensParticle& pair, int active) override;
    void approach(LensParticle& pair, int next);
    void part(LensParticle& pair, int next);
    bool mayReturn(int active) const;
    int mostActive() const;
    void placePair(std::size_t number);

    PairKind kind_;
    std::array<LensParticle, kPairs> pairs_{};
};

} // namespace quendal
