// Shortens the ways of like particles: two of them exchange their targets where that leaves both
// with a shorter way than the first of them had.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quendal {

class cls_Molecule;

class TargetExchange {
  public:
    // Particles that are Reacting keep their targets. The exchanges and their order are those of
    // the plain search: the first particle in order that has a partner, the first such partner,
    // exchange, and all over again until nothing is left to exchange. It ends, since each exchange
    // makes the longer way of its pair shorter.
    void run(std::span<cls_Molecule* const> particles);

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    void load(std::span<cls_Molecule* const> particles);
    void measure(std::size_t row);
    std::size_t partnerOf(std::size_t row);
    std::size_t partnerAmongAll(std::size_t row);
    std::size_t partnerAmongChanged(std::size_t row) const;
    bool bothGain(std::size_t row, std::size_t other) const;
    void exchange(std::size_t row, std::size_t other);

    std::vector<cls_Molecule*> particles_;
    std::vector<double> x_;
    std::vector<double> y_;
    std::vector<double> targetX_;
    std::vector<double> targetY_;
    std::vector<double> way_; // square of the distance of each to its own target
    std::vector<double>
        longer_; // for one row: the longer square of the two new ways with each other

    // What saves the plain search its repetitions: a row that found no partner can find one later
    // only among those whose targets have changed since. `changed_` lists them in the order of the
    // exchanges, and `seen_` tells how much of that list a row has been held against.
    std::vector<std::size_t> changed_;
    std::vector<std::size_t> seen_; // kNone: against nothing yet, or its own target has changed
};

} // namespace quendal
