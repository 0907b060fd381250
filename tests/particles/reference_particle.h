// The rules of particles and their collection in the plainest form that states them: the shipped
// form has to give the same results to the last bit. Indices run from 1 as in the rules.
#pragma once

#include <memory>
#include <vector>

namespace quendal::reference {

class Collection;

struct Particle {
    Collection* parent = nullptr;
    int sortReal = 0;
    double posX = 0;
    double posY = 0;
    double targetX = 0;
    double targetY = 0;
    double fade = 0;
    bool solid = false;
    int contactCount = 0;
    int reactFlash = 0;
    bool reacting = false;
    bool placed = false;

    int sort() const { return sortReal < 0 ? -sortReal : sortReal; }
    double radius() const;
    double dist(const Particle& other) const { return distCord(other.posX, other.posY); }
    double distCord(double x, double y) const;
    double distTarget() const { return distCord(targetX, targetY); }
    bool coll(const Particle& other) const;
    bool canReact(const Particle& other) const;
    void react(Particle& other);
    void think();
    // What drawing leaves behind in the particle; takes the random numbers that it takes.
    void draw();
};

class Collection {
  public:
    int volume = 0; // mL of the owner's liquid
    std::vector<std::shared_ptr<Particle>> mol;

    int count() const { return static_cast<int>(mol.size()); }
    Particle& item(int index) { return *mol[static_cast<std::size_t>(index - 1)]; }
    Particle& create(int sort, double x, double y);
    void remove(int index);
    int countSort(int sort);

    bool react();
    void grid();
    void snap();

  private:
    void improve(bool kindsApart);
};

} // namespace quendal::reference
