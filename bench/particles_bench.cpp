// The particles' shipped form against the plain one, in the same run. BM_GridAfterChange and
// BM_ThinkRatio give the ratios as counters: shipped over plain, so below 1 is faster.
#include "particles/drive.h"
#include "particles/grid_tables.h"
#include "particles/populations.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

namespace quendal::test {
namespace {

constexpr int kVolume = 30; // mL, the fullest beaker

const std::vector<std::vector<int>>& mixes() {
    static const std::vector<std::vector<int>> kMixes{{3, 5, 1, 9}, {3, 5}, {5, 5, 5, 3, 1}, {3}};
    return kMixes;
}

Population beaker(RandomSource& random, int count, const std::vector<int>& kinds) {
    Population population{.volume = kVolume};
    for (int i = 0; i < count; ++i) {
        const double x = random.next() * 100;
        const double y = random.next() * 100;
        population.seedlings.push_back({.sort = kinds[static_cast<std::size_t>(i) % kinds.size()],
                                        .x = x,
                                        .y = y,
                                        .targetX = x,
                                        .targetY = y});
    }
    return population;
}

// The present state of the shipped form, to be planted in both.
Population stateOf(const cls_Molecules& particles) {
    Population population{.volume = kVolume};
    for (const auto& p : particles.particles()) {
        population.seedlings.push_back({.sort = p->SORTREAL(),
                                        .x = p->PosX,
                                        .y = p->PosY,
                                        .targetX = p->TargetX,
                                        .targetY = p->TargetY,
                                        .placed = p->Placed});
    }
    return population;
}

void settle(Twins& twins, int frames) {
    for (int frame = 0; frame < frames; ++frame) {
        twins.shipped.GRID();
        for (int i = 1; i <= twins.shipped.COUNT(); ++i) {
            twins.shipped.share(i)->THINK();
        }
    }
}

// Processor time of this thread in nanoseconds, so that a busy machine weighs on neither form.
double threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

// Best of some calls in nanoseconds.
template <class Call>
double bestTime(int calls, Call call) {
    double best = 1e18;
    for (int i = 0; i < calls; ++i) {
        const double start = threadTime();
        call();
        best = std::min(best, threadTime() - start);
    }
    return best;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Comparison {
    std::vector<double> shipped; // ns
    std::vector<double> plain;   // ns

    void report(benchmark::State& state) const {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < shipped.size(); ++i) {
            ratios.push_back(shipped[i] / plain[i]);
        }
        state.counters["shipped_us"] = median(shipped) / 1000;
        state.counters["plain_us"] = median(plain) / 1000;
        state.counters["median_ratio"] = median(shipped) / median(plain);
        state.counters["worst_ratio"] = *std::max_element(ratios.begin(), ratios.end());
    }
};

void BM_GridShipped(benchmark::State& state) {
    FakeHost host(7);
    fillGridTables(host.random);
    Twins twins(beaker(host.random, static_cast<int>(state.range(0)), mixes()[0]));
    settle(twins, 100);
    for (auto _ : state) {
        twins.shipped.GRID();
    }
    resetSession();
}
BENCHMARK(BM_GridShipped)->Arg(50)->Arg(100)->Arg(200);

void BM_GridPlain(benchmark::State& state) {
    FakeHost host(7);
    fillGridTables(host.random);
    Twins twins(beaker(host.random, static_cast<int>(state.range(0)), mixes()[0]));
    settle(twins, 100);
    Twins settled(stateOf(twins.shipped));
    for (auto _ : state) {
        settled.plain.grid();
    }
    resetSession();
}
BENCHMARK(BM_GridPlain)->Arg(50)->Arg(100)->Arg(200);

// 200 times: a particle leaves a settled population of 200, the others settle, a new one comes, and
// GRID lays out the 200. A repeated call does the same work again, since it gives all cells anew.
void BM_GridAfterChange(benchmark::State& state) {
    FakeHost host(11);
    fillGridTables(host.random);
    const auto& kinds = mixes()[static_cast<std::size_t>(state.range(0))];
    for (auto _ : state) {
        Comparison comparison;
        Twins source(beaker(host.random, 200, kinds));
        settle(source, 100);
        for (int change = 0; change < 200; ++change) {
            const int leaving = static_cast<int>(host.random.next() * 200) + 1;
            const int sort = source.shipped.ITEM(leaving).SORTREAL();
            source.shipped.REMOVE(leaving);
            settle(source, 40);
            source.shipped.CREATE(sort, 45 + host.random.next() * 10, 20);
            Twins twins(stateOf(source.shipped));
            comparison.shipped.push_back(bestTime(3, [&] { twins.shipped.GRID(); }));
            comparison.plain.push_back(bestTime(3, [&] { twins.plain.grid(); }));
            if (const std::string fault = difference(twins); !fault.empty()) {
                state.SkipWithError(fault.c_str());
                break;
            }
            settle(source, 40);
        }
        comparison.report(state);
    }
    resetSession();
}
BENCHMARK(BM_GridAfterChange)->DenseRange(0, 3)->Iterations(1)->Unit(benchmark::kMillisecond);

// One THINK of each of 200 particles, at 50 moments between a disturbance and rest.
void BM_ThinkRatio(benchmark::State& state) {
    FakeHost host(13);
    fillGridTables(host.random);
    const auto& kinds = mixes()[static_cast<std::size_t>(state.range(0))];
    for (auto _ : state) {
        Comparison comparison;
        Twins source(beaker(host.random, 200, kinds));
        for (int moment = 0; moment < 50; ++moment) {
            Twins twins(stateOf(source.shipped));
            comparison.shipped.push_back(bestTime(5, [&] {
                for (const auto& particle : twins.shipped.particles()) {
                    particle->THINK();
                }
            }));
            comparison.plain.push_back(bestTime(5, [&] {
                for (const auto& particle : twins.plain.mol) {
                    particle->think();
                }
            }));
            if (const std::string fault = difference(twins); !fault.empty()) {
                state.SkipWithError(fault.c_str());
                break;
            }
            settle(source, 2);
        }
        comparison.report(state);
    }
    resetSession();
}
BENCHMARK(BM_ThinkRatio)->DenseRange(0, 3)->Iterations(1)->Unit(benchmark::kMillisecond);

// A whole calm frame without drawing on a screen.
void BM_FrameAtRest(benchmark::State& state) {
    FakeHost host(17);
    fillGridTables(host.random);
    Twins twins(beaker(host.random, static_cast<int>(state.range(0)), mixes()[1]));
    settle(twins, 200);
    Shipped shipped(twins.shipped);
    for (auto _ : state) {
        driveFrame(shipped, true);
    }
    resetSession();
}
BENCHMARK(BM_FrameAtRest)->Arg(60)->Arg(200);

} // namespace
} // namespace quendal::test
