// The dissolving of a silver chloride crystal: six ions of its upper layer, of which up to three at
// a time rise into the liquid and come back to some hole in the layer.
#pragma once

#include "particles/lens_scene.h"

#include <array>

namespace quendal {

class CrystalScene final : public LensScene {
  public:
    static constexpr int kColumns = 6;
    static constexpr int kRestHeight = 200; // PY of the upper layer

    explicit CrystalScene(LensWorld world) : LensScene(std::move(world)) {}

    void place() override;
    void draw(Surface& surface, Size unit) const override;
    std::span<LensParticle> particles() override { return ions_; }
    std::span<const LensParticle> particles() const override { return ions_; }

    static constexpr int columnPlace(int column) { return (column - 1) * 40 + 20; }

    // By column from 1: true where the crystal has a hole.
    std::array<bool, kColumns + 1> ColumnOpen{};

  private:
    void stepParticle(LensParticle& ion, int active) override;
    void rest(LensParticle& ion, int active);
    void rise(LensParticle& ion);
    void drift(LensParticle& ion, int active);
    void settle(LensParticle& ion);
    void sink(LensParticle& ion);
    bool isOpen(int column) const;
    int chooseColumn(const LensParticle& ion);

    std::array<LensParticle, kColumns> ions_{};
};

} // namespace quendal
