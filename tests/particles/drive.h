// One frame of a beaker as a workbench drives it, the same for both forms of the particles.
#pragma once

#include "host/random_source.h"
#include "host/roots.h"
#include "particles/cls_Molecules.h"
#include "particles/reference_particle.h"
#include "support/recording_surface.h"

#include <memory>

namespace quendal::test {

class Shipped {
  public:
    explicit Shipped(cls_Molecules& particles) : all_(particles) {}

    int count() const { return all_.COUNT(); }
    int countSort(int sort) const { return all_.COUNTSORT(sort); }
    std::shared_ptr<cls_Molecule> share(int index) { return all_.share(index); }
    bool react() { return all_.REACT(); }
    void grid() { all_.GRID(); }
    double& createAt(int sort, double x, double y) { return all_.CREATE(sort, x, y).Fade; }
    void remove(const cls_Molecule& particle) { all_.removeParticle(particle); }
    void draw(cls_Molecule& particle) { particle.DRAW(surface_); }
    void clear() { surface_.Clear(); }

    static void think(cls_Molecule& particle) { particle.THINK(); }
    static int sort(const cls_Molecule& particle) { return particle.SORT(); }
    static double& fade(cls_Molecule& particle) { return particle.Fade; }
    static bool reacting(const cls_Molecule& particle) { return particle.Reacting; }

  private:
    cls_Molecules& all_;
    RecordingSurface surface_{400, 300};
};

class Plain {
  public:
    explicit Plain(reference::Collection& particles) : all_(particles) {}

    int count() const { return all_.count(); }
    int countSort(int sort) const { return all_.countSort(sort); }
    std::shared_ptr<reference::Particle> share(int index) {
        return all_.mol[static_cast<std::size_t>(index - 1)];
    }
    bool react() { return all_.react(); }
    void grid() { all_.grid(); }
    double& createAt(int sort, double x, double y) { return all_.create(sort, x, y).fade; }
    void remove(const reference::Particle& particle) {
        for (int i = 1; i <= all_.count(); ++i) {
            if (&all_.item(i) == &particle) {
                all_.remove(i);
                return;
            }
        }
    }
    static void draw(reference::Particle& particle) { particle.draw(); }
    static void clear() {}

    static void think(reference::Particle& particle) { particle.think(); }
    static int sort(const reference::Particle& particle) { return particle.sort(); }
    static double& fade(reference::Particle& particle) { return particle.fade; }
    static bool reacting(const reference::Particle& particle) { return particle.reacting; }

  private:
    reference::Collection& all_;
};

// True when the particle has faded away and left the collection.
template <class Beaker, class Particle>
bool fadeWater(Beaker& beaker, Particle& particle) {
    if (beaker.sort(particle) == 1 && !beaker.reacting(particle)) {
        beaker.fade(particle) += 1;
        if (beaker.fade(particle) >= 100) {
            beaker.remove(particle);
            return true;
        }
    } else if (beaker.fade(particle) > 0) {
        beaker.fade(particle) -= 10;
    }
    return false;
}

template <class Beaker>
void sendParticles(Beaker& beaker) {
    RandomSource& random = CoreLib().Random;
    for (int missing = beaker.countSort(7) - beaker.countSort(1); missing > 0; --missing) {
        const double x = random.next() * 100;
        beaker.createAt(1, x, random.next() * 100) = 99;
    }
    bool found = beaker.react();
    if (!found && beaker.countSort(7) > 0) {
        found = beaker.react();
    }
    if (!found) {
        beaker.grid();
    }
}

template <class Beaker>
void driveFrame(Beaker& beaker, bool calm) {
    if (calm) {
        sendParticles(beaker);
    }
    for (int i = 1; i <= beaker.count();) {
        const auto particle = beaker.share(i);
        if (beaker.fade(*particle) < 0) {
            beaker.fade(*particle) = 0;
        }
        beaker.think(*particle);
        if (!fadeWater(beaker, *particle)) {
            ++i;
        }
    }
    beaker.clear();
    for (int i = 1; i <= beaker.count(); ++i) {
        beaker.draw(*beaker.share(i));
    }
}

} // namespace quendal::test
