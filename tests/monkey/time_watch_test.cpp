#include "monkey/time_watch.h"

#include "headless/headless_host.h"
#include "monkey/planted_form.h"
#include "particles/species.h"
#include "script/script.h"
#include "shell/session/session.h"
#include "workbench/frm_AppMainStrong.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

class TimeWatchTest : public testing::Test {
  protected:
    std::string foundAt(const Form* top, double now, EventWaits event = EventWaits::No) {
        const auto finding = watch_.check(top, event, now);
        return finding ? finding->what : "";
    }

    HeadlessHost host_{ScriptSettings{}, "data/"};
    PlantedForm form_{[](PlantedForm&) {}};
    TimeWatch watch_;
};

TEST_F(TimeWatchTest, AnEventIsLetInWithinAMinute) {
    watch_.letsEventsIn(10);
    EXPECT_EQ(foundAt(&form_, 70, EventWaits::Yes), "");
    EXPECT_EQ(foundAt(&form_, 71), "") << "nobody waits";
    EXPECT_NE(foundAt(&form_, 71, EventWaits::Yes), "");
    EXPECT_EQ(foundAt(nullptr, 70), "");
    EXPECT_NE(foundAt(nullptr, 71), "");
}

TEST_F(TimeWatchTest, TheClockMovesOn) {
    std::string found;
    for (int turn = 0; turn < 300000 && found.empty(); ++turn) {
        found = foundAt(&form_, 1);
    }
    EXPECT_EQ(found, "the program turns round and round at one moment");
}

TEST_F(TimeWatchTest, ADosingEnds) {
    frm_AppMainStrong bench;
    session().SessionBusy = true;
    EXPECT_EQ(foundAt(&bench, 5), "");
    EXPECT_EQ(foundAt(&bench, 65), "");
    EXPECT_NE(foundAt(&bench, 66), "");
    EXPECT_EQ(foundAt(&form_, 67), "") << "something stands in front of it";
    EXPECT_EQ(foundAt(&bench, 68), "");
    session().SessionBusy = false;
    EXPECT_EQ(foundAt(&bench, 200), "");
}

TEST_F(TimeWatchTest, APairReactsInTheTimeOfCalm) {
    const double most = TimeWatch::kMostCalm;
    frm_AppMainStrong bench;
    const auto pairIn = [](Workbench& beaker) {
        beaker.vMolecules.CREATE(kHydronium, 10, 10);
        beaker.vMolecules.CREATE(kHydroxide, 90, 90);
    };
    pairIn(bench);
    EXPECT_EQ(foundAt(&bench, 5), "");
    EXPECT_EQ(foundAt(&bench, 5 + most), "");
    bench.vCalm = false; // a dosing
    EXPECT_EQ(foundAt(&bench, 10 + most), "");
    bench.vCalm = true;
    EXPECT_EQ(foundAt(&form_, 15 + most), "") << "something stands in front of it";
    EXPECT_NE(foundAt(&bench, 16 + most), "");
    bench.vMolecules.REMOVE(2);
    EXPECT_EQ(foundAt(&bench, 17 + most), "");
    pairIn(bench);
    EXPECT_EQ(foundAt(&bench, 18 + most), "") << "another pair has time of its own";
    watch_.forget(bench);
    EXPECT_EQ(foundAt(&bench, 18 + 3 * most), "") << "and so has another bench";
}

TEST_F(TimeWatchTest, WhatIsClosedGoes) {
    frm_AppMainStrong bench;
    watch_.toldToClose(form_, 0);
    EXPECT_EQ(foundAt(&form_, 60), "");
    EXPECT_NE(foundAt(&form_, 61), "");
    EXPECT_EQ(foundAt(&bench, 62), "") << "it is no longer in front";
    EXPECT_EQ(foundAt(&form_, 63), "");
    watch_.toldToClose(form_, 70);
    watch_.forget(form_);
    EXPECT_EQ(foundAt(&form_, 200), "");
    bench.vUnload = true; // by its menu
    EXPECT_EQ(foundAt(&bench, 300), "");
    EXPECT_NE(foundAt(&bench, 361), "");
}

} // namespace
} // namespace quendal::test
