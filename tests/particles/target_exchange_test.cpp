#include "particles/target_exchange.h"

#include "particles/cls_Molecule.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace quendal::test {
namespace {

// The plain search, begun again after each exchange.
void exchangePlainly(const std::vector<cls_Molecule*>& all) {
    for (bool again = true; std::exchange(again, false);) {
        for (std::size_t i = 0; i < all.size() && !again; ++i) {
            const double way = all[i]->DISTTARGET();
            for (std::size_t j = 0; j < all.size() && !again; ++j) {
                if (i != j && !all[i]->Reacting && !all[j]->Reacting &&
                    all[j]->DISTCORD(all[i]->TargetX, all[i]->TargetY) < way &&
                    all[i]->DISTCORD(all[j]->TargetX, all[j]->TargetY) < way) {
                    std::swap(all[i]->TargetX, all[j]->TargetX);
                    std::swap(all[i]->TargetY, all[j]->TargetY);
                    again = true;
                }
            }
        }
    }
}

struct Crowd {
    std::vector<std::unique_ptr<cls_Molecule>> owned;
    std::vector<cls_Molecule*> all;

    void add(Point place, Point target, bool reacting) {
        owned.push_back(std::make_unique<cls_Molecule>());
        all.push_back(owned.back().get());
        all.back()->PosX = place.x;
        all.back()->PosY = place.y;
        all.back()->TargetX = target.x;
        all.back()->TargetY = target.y;
        all.back()->Reacting = reacting;
    }
};

// Targets far from their particles: hundreds of exchanges, in every order.
TEST(Exchange, FarTargetsEndWhereThePlainSearchPutsThem) {
    FakeHost host(77);
    RandomSource& random = host.random;
    TargetExchange exchange;
    for (int round = 0; round < 400; ++round) {
        Crowd fast;
        Crowd plain;
        const bool lattice = round % 2 == 0;
        const auto coordinate = [&] {
            return lattice ? static_cast<int>(random.next() * 12) : random.next() * 100;
        };
        for (int left = static_cast<int>(random.next() * 90); left > 0; --left) {
            const double x = coordinate();
            const double y = coordinate();
            const double targetX = coordinate();
            const Point target{targetX, coordinate()};
            const bool reacting = random.next() < 0.05;
            fast.add({x, y}, target, reacting);
            plain.add({x, y}, target, reacting);
        }
        exchange.run(fast.all);
        exchangePlainly(plain.all);
        for (std::size_t i = 0; i < plain.all.size(); ++i) {
            ASSERT_EQ(fast.all[i]->TargetX, plain.all[i]->TargetX) << "round " << round;
            ASSERT_EQ(fast.all[i]->TargetY, plain.all[i]->TargetY) << "round " << round;
        }
    }
}

TEST(Exchange, CrossedWaysAreUncrossed) {
    FakeHost host;
    Crowd crowd;
    crowd.add({0, 0}, {10, 0}, false);
    crowd.add({10, 0}, {0, 0}, false);
    TargetExchange exchange;
    exchange.run(crowd.all);
    EXPECT_EQ(crowd.all[0]->TargetX, 0);
    EXPECT_EQ(crowd.all[1]->TargetX, 10);
    crowd.all[0]->TargetX = 10;
    crowd.all[1]->TargetX = 0;
    crowd.all[1]->Reacting = true;
    exchange.run(crowd.all);
    EXPECT_EQ(crowd.all[0]->TargetX, 10);
}

} // namespace
} // namespace quendal::test
