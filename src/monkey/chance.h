// Chance for the monkey alone: the program's own goes on from the seed that a script names.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace quendal {

// splitmix64: the same seed gives the same numbers on every machine.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        state_ += 0x9e3779b97f4a7c15U;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
        return z ^ (z >> 31);
    }
    // From 0 to below 1.
    double unit() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }
    bool hit(double share) { return unit() < share; }
    // From 0 to below `limit`, which is above 0.
    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(next() % limit); }
    int between(int least, int most) {
        return least + static_cast<int>(below(static_cast<std::size_t>(most - least) + 1));
    }
    template <class T, std::size_t Count>
    const T& pick(const T (&list)[Count]) {
        return list[below(Count)];
    }

  private:
    std::uint64_t state_;
};

} // namespace quendal
