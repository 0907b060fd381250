// The same seed gives the same beaker to the last bit, on every machine and at every level of
// optimisation.
#include "particles/drive.h"
#include "particles/grid_tables.h"
#include "particles/populations.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace quendal::test {
namespace {

class Hash {
  public:
    void add(std::uint64_t value) {
        for (int byte = 0; byte < 8; ++byte) {
            value_ = (value_ ^ (value >> (8 * byte) & 0xff)) * 0x100000001b3U;
        }
    }
    void add(double value) { add(std::bit_cast<std::uint64_t>(value)); }
    void add(int value) { add(static_cast<std::uint64_t>(static_cast<std::int64_t>(value))); }
    std::uint64_t value() const { return value_; }

  private:
    std::uint64_t value_ = 0xcbf29ce484222325U; // FNV-1a
};

std::uint64_t hashOf(const cls_Molecules& beaker) {
    Hash hash;
    for (const auto& p : beaker.particles()) {
        hash.add(p->SORTREAL());
        for (const double number : {p->PosX, p->PosY, p->TargetX, p->TargetY, p->Fade}) {
            hash.add(number);
        }
        hash.add(p->ContactCount);
        hash.add(p->ReactFlash);
    }
    return hash.value();
}

// Ten pairs of acid at rest, then five pairs of base fall in, one after the other, and all settles.
std::uint64_t neutralise(FakeHost& host, cls_Molecules& beaker, Liquid& liquid) {
    fillGridTables(host.random);
    beaker.Parent = &liquid;
    liquid.volume = 10;
    for (int i = 0; i < 10; ++i) {
        beaker.CREATE(8, 45 + host.random.next() * 10, 20);
        beaker.CREATE(3, 45 + host.random.next() * 10, 20);
    }
    Shipped driven(beaker);
    for (int frame = 0; frame < 600; ++frame) {
        if (frame < 250 && frame % 50 == 0) {
            ++liquid.volume;
            const double x = 45 + host.random.next() * 10;
            beaker.CREATE(5, x - 2, 20);
            beaker.CREATE(9, x + 2, 20);
        }
        driveFrame(driven, true);
        host.clock.now += 0.02;
    }
    return hashOf(beaker);
}

TEST(Golden, ASettledBeaker) {
    FakeHost host(42);
    cls_Molecules beaker;
    Liquid liquid;
    const std::uint64_t hash = neutralise(host, beaker, liquid);
    EXPECT_EQ(beaker.COUNTSORT(9), 0);
    EXPECT_EQ(beaker.COUNTSORT(8), 5);
    EXPECT_EQ(beaker.COUNTSORT(5), 5);
    EXPECT_EQ(hash, 7113885001966819605U);
    resetSession();
}

// One of the two is precipitate: what stays in solution keeps its cells.
TEST(Golden, APrecipitation) {
    FakeHost host(43);
    cls_Molecules beaker;
    Liquid liquid;
    fillGridTables(host.random);
    beaker.Parent = &liquid;
    liquid.volume = 15;
    for (int i = 0; i < 12; ++i) {
        for (const int sort : {3, 5, 13, 12}) {
            const double x = host.random.next() * 100;
            beaker.CREATE(i < 6 ? sort : 5, x, host.random.next() * 100);
        }
    }
    Shipped driven(beaker);
    for (int frame = 0; frame < 400; ++frame) {
        driveFrame(driven, true);
    }
    EXPECT_EQ(beaker.COUNTSORT(14), 6);
    EXPECT_EQ(beaker.COUNT(), 42);
    EXPECT_EQ(hashOf(beaker), 1054233003164503119U);
    resetSession();
}

} // namespace
} // namespace quendal::test
