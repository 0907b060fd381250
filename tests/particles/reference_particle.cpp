#include "particles/reference_particle.h"

#include "host/random_source.h"
#include "host/roots.h"

#include <cmath>
#include <utility>

namespace quendal::reference {

double Particle::radius() const {
    switch (sort()) {
    case 2:
    case 3:
    case 5:
    case 11:
        return 4;
    case 4:
        return 3;
    default:
        return 5;
    }
}

double Particle::distCord(double x, double y) const {
    return std::sqrt((x - posX) * (x - posX) + (y - posY) * (y - posY));
}

bool Particle::coll(const Particle& other) const {
    return radius() + other.radius() > 1.2 * dist(other);
}

bool Particle::canReact(const Particle& other) const {
    switch (sort()) {
    case 1:
        return other.sort() == 7;
    case 7:
        return other.sort() == 1;
    case 3:
        return other.sort() == 12;
    case 12:
        return other.sort() == 3;
    case 8:
        return other.sort() == 9;
    case 9:
        return other.sort() == 8 || other.sort() == 10;
    case 10:
        return other.sort() == 9;
    default:
        return false;
    }
}

void Particle::react(Particle& other) {
    const int a = sort();
    const int b = other.sort();
    if ((a == 1 && b == 7) || (a == 7 && b == 1)) {
        sortReal = 8;
        other.sortReal = 3;
    } else if ((a == 3 && b == 12) || (a == 12 && b == 3)) {
        sortReal = 14;
        solid = true;
        other.sortReal = 0;
    } else if ((a == 8 && b == 9) || (a == 9 && b == 8)) {
        sortReal = 1;
        other.sortReal = 1;
    } else if (a == 9 && b == 10) {
        sortReal = 11;
        other.sortReal = 1;
    } else if (a == 10 && b == 9) {
        sortReal = other.sortReal == -9 ? -11 : 11;
        other.sortReal = 1;
    }
}

void Particle::think() {
    std::shared_ptr<Particle> self;
    double ax = 0;
    double ay = 0;
    for (int i = 1; i <= parent->count(); ++i) {
        Particle& m = parent->item(i);
        if (&m == this || !m.coll(*this)) {
            continue;
        }
        if (m.canReact(*this)) {
            if (m.contactCount < 20 || contactCount < 20) {
                ++m.contactCount;
                ++contactCount;
            } else {
                m.react(*this);
                m.contactCount = 0;
                contactCount = 0;
                m.reactFlash = 20;
                reactFlash = 20;
            }
        }
        ax -= (m.posX - posX) / 4;
        ay -= (m.posY - posY) / 4;
    }
    for (int i = 1; i <= parent->count();) {
        if (parent->item(i).sort() == 0) {
            if (&parent->item(i) == this) {
                self = parent->mol[static_cast<std::size_t>(i - 1)];
            }
            parent->remove(i);
        } else {
            ++i;
        }
    }
    const double r = radius();
    if (targetX - r < 0) {
        targetX = r;
    }
    if (targetX + r > 100) {
        targetX = 100 - r;
    }
    if (targetY - 2 * r < 0) {
        targetY = 2 * r;
    }
    if (targetY + r > 100) {
        targetY = 100 - r;
    }
    if (!placed) {
        targetX += ax;
        targetY += ay;
        ax = 0;
        ay = 0;
    }
    const double dx = targetX - posX + ax;
    const double dy = targetY - posY + ay;
    const double d = std::sqrt(dx * dx + dy * dy);
    if (d > 0.1) {
        double s = d / 5;
        if (s > 1) {
            s = 1;
        }
        posX += s * dx / d;
        posY += s * dy / d;
    }
}

void Particle::draw() {
    if (contactCount != 0) {
        CoreLib().Random.next();
        CoreLib().Random.next();
    }
    if (fade > 100) {
        fade = 100;
    }
    if (contactCount > 0) {
        contactCount = (contactCount > 20 ? 20 : contactCount) - 1;
    }
    if (reactFlash > 0) {
        reactFlash = reactFlash > 5 ? reactFlash - 5 : 0;
    }
}

Particle& Collection::create(int sort, double x, double y) {
    auto particle = std::make_shared<Particle>();
    particle->parent = this;
    particle->sortReal = sort;
    particle->posX = particle->targetX = x;
    particle->posY = particle->targetY = y;
    mol.push_back(particle);
    return *particle;
}

void Collection::remove(int index) {
    std::swap(mol[static_cast<std::size_t>(index - 1)], mol.back());
    mol.pop_back();
}

int Collection::countSort(int sort) {
    int found = 0;
    for (int i = 1; i <= count(); ++i) {
        found += item(i).sort() == (sort < 0 ? -sort : sort) ? 1 : 0;
    }
    return found;
}

} // namespace quendal::reference
