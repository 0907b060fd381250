// Faults in the beaker of a workbench, which the program draws at each frame.
#include "monkey/hunt.h"
#include "particles/species.h"
#include "shell/entry.h"
#include "shell/forms/instances.h"
#include "workbench/frm_AppMainStrong.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

using Fault = std::function<void(Workbench&)>;

// Does its harm when the beaker has been drawn.
class Harm final : public ControlPeer {
  public:
    Harm(Workbench& bench, Fault fault) : bench_(bench), fault_(std::move(fault)) {
        bench_.pic_Water.attachPeer(this);
    }
    ~Harm() override { bench_.pic_Water.attachPeer(nullptr); }
    Harm(const Harm&) = delete;
    Harm& operator=(const Harm&) = delete;
    void changed(Aspect aspect) override {
        if (aspect == Aspect::Drawing) {
            fault_(bench_);
        }
    }

  private:
    Workbench& bench_;
    Fault fault_;
};

Program benchWith(const Fault& fault) {
    return [fault] {
        frm_AppMainStrong bench;
        const Harm harm(bench, fault);
        runSingleForm(bench, "");
    };
}

void expectFoundAndGone(const Fault& fault, const std::string& what) {
    const Hunt found =
        hunt(benchWith(fault), {.seed = 3, .events = 6000, .form = "frm_AppMainStrong"});
    EXPECT_EQ(found.status, 1);
    EXPECT_NE(found.errors.find(what), std::string::npos) << found.errors;
    EXPECT_EQ(replay(found.script, benchWith(fault), 60), 1) << found.script;
    EXPECT_EQ(replay(found.script, benchWith([](Workbench&) {}), 60), 0) << found.script;
}

TEST(PlantedBeaker, NothingIsFoundInAGoodOne) {
    const Hunt nothing = hunt(benchWith([](Workbench&) {}),
                              {.seed = 3, .events = 3000, .form = "frm_AppMainStrong"});
    EXPECT_EQ(nothing.status, 0) << nothing.errors;
    EXPECT_EQ(nothing.errors, "");
}

TEST(PlantedBeaker, PairsThatNeverReact) {
    expectFoundAndGone(
        [](Workbench& bench) {
            for (const auto& particle : bench.vMolecules.particles()) {
                particle->ContactCount = 0;
            }
        },
        "a pair in the beaker doesn't react");
}

TEST(PlantedBeaker, ReactionsThatStopInAFullBeaker) {
    constexpr int kFull = 18;
    expectFoundAndGone(
        [](Workbench& bench) {
            const bool full = bench.vMolecules.COUNT() >= kFull;
            for (const auto& particle : bench.vMolecules.particles()) {
                particle->ContactCount = full ? 0 : particle->ContactCount;
            }
        },
        "a pair in the beaker doesn't react");
}

// While a hydroxide is on its way to an acid, one of `kind` is lost.
Fault losesWhileReacting(int kind) {
    return [kind](Workbench& bench) {
        for (const auto& particle : bench.vMolecules.particles()) {
            if (bench.vMolecules.hasPairThatCanReact() && particle->SORT() == kind) {
                bench.vMolecules.removeParticle(*particle);
                return;
            }
        }
    };
}

TEST(PlantedBeaker, AParticleThatIsLostWhileOthersReact) {
    expectFoundAndGone(losesWhileReacting(kSodium), "beaker.countsort(5) is ");
    expectFoundAndGone(losesWhileReacting(kHydronium), "beaker.countsort(");
}

} // namespace
} // namespace quendal::test
