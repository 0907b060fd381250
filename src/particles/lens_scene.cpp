#include "particles/lens_scene.h"

#include <algorithm>

namespace quendal {

int LensScene::active() const {
    const auto all = particles();
    return static_cast<int>(std::count_if(
        all.begin(), all.end(), [](const LensParticle& particle) { return particle.State > 0; }));
}

void LensScene::step() {
    int count = active();
    for (LensParticle& particle : particles()) {
        const bool atRest = particle.State == 0;
        stepParticle(particle, count);
        // One that starts counts at once: else several could start in one frame, and more would be
        // active than the scene allows.
        count += atRest && particle.State > 0 ? 1 : 0;
    }
}

} // namespace quendal
