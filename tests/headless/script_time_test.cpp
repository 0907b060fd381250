// How a script and the program take turns, on the clock that moves only when they wait.
#include "headless/play.h"
#include "headless/small_forms.h"
#include "host/clock.h"
#include "host/message_box.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/window_system.h"

namespace quendal::test {
namespace {

void startWithPause(bool ticking) {
    CoreLib().Clock.SleepMs(500); // the script must not begin here
    SmallForm form;
    if (ticking) {
        form.tmr_Tick.setEnabled(true);
    }
    CoreLib().Windows.ShowModal(form);
}

TEST(ScriptTime, BeginsWhenAFormWaits) {
    const Played played =
        play("start\nexpect clock == 0.5\nexpect form frm_Small", [] { startWithPause(false); });
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, AnswersBoxesBeforeTheFirstForm) {
    const auto program = [] {
        SmallForm form;
        form.sLast = CoreLib().MessageBox.Input("Name?", "Anmeldung", "anna");
        CoreLib().Windows.ShowModal(form);
    };
    const Played played = play("answer text Mia\nstart\nexpect form.sLast == Mia\n"
                               "expect box input Anmeldung Name?\nexpect box.default == anna",
                               program);
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(play("start\n", program).status, 3);
}

TEST(ScriptTime, RunsTimersWhileItWaits) {
    const Played played = play("start\nwait 1.05\nexpect form.sTicks == 10\nexpect clock == 1.55\n"
                               "wait 0\nexpect clock == 1.55\nuntil form.sTicks == 12 5\n"
                               "expect clock == 1.7",
                               [] { startWithPause(true); });
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, SumsThatAreNoTicksComeDueAllTheSame) {
    const auto program = [] {
        SmallForm form;
        Timer odd(form, "odd", 200);
        odd.onTimer = [&form] { ++form.sTicks; };
        CoreLib().Clock.SleepMs(100);
        odd.setEnabled(true); // due at 0.1 + 0.2, which is no multiple of a microsecond
        CoreLib().Windows.ShowModal(form);
    };
    const Played played = play("start\nwait 0.2\nwait 0.01\nexpect form.sTicks == 1", program);
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, GoesOnInsideALoopOfTheProgram) {
    // The handler of the click runs for a second; the script looks and clicks meanwhile.
    const Played played = play("start\nclick but_Frames\nexpect form.sBusy == true\n"
                               "expect form.sCount == 0\nclick but_Count\nexpect form.sCount == 1\n"
                               "until form.sBusy == false\nexpect form.sCount == 2\n"
                               "expect clock ~= 1 0.05",
                               showSmallForm);
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, HasOnePlaceHoweverDeepThePumps) {
    const Played played = play("start\nclick but_Frames\nclick but_Frames\nclick but_Dialog\n"
                               "expect form frm_SmallDialog\nclick but_Close\n"
                               "until form.sBusy == false\nwait 2\nexpect form.sCount == 2",
                               showSmallForm);
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, WorksOnAFormThatDrawsFrames) {
    const Played played = play("start\nclick but_Count\nexpect form.sCount == 1\nwait 1\n"
                               "click but_Later\nexpect ended",
                               showBusyForm);
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptTime, AFormOnItsWayOutMayTakeAMoment) {
    const Played played = play("start\nclick but_Later\nexpect ended", showSmallForm);
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(play("start\nexpect ended", showSmallForm).status, 1);
    EXPECT_EQ(play("start\nexpect form frm_Other", showSmallForm).status, 1);
}

TEST(ScriptTime, UntilFailsWhenItsTimeIsUp) {
    const Played played =
        play("start\nuntil form.sCount == 1 5\nprint clock", showSmallForm, {.keepGoing = true});
    EXPECT_EQ(played.status, 1);
    EXPECT_TRUE(played.printed(R"("thing":"clock","value":"5")")) << played.out;
}

TEST(ScriptTime, SettleHasNothingToWaitForWithoutABeaker) {
    EXPECT_EQ(play("start\nsettle\nexpect clock == 0", showSmallForm).status, 0);
}

TEST(ScriptTime, IsLimited) {
    const Played played = play("start\nwait 4000", showSmallForm);
    EXPECT_EQ(played.status, 3);
    EXPECT_NE(played.errors.find("3,600 seconds"), std::string::npos);
    EXPECT_EQ(play("start\nwait 3599", showSmallForm).status, 0);
}

TEST(ScriptTime, ALoopThatNeverShowsAFormIsLimitedToo) {
    const auto program = [] {
        for (;;) {
            CoreLib().Clock.SleepMs(1000);
        }
    };
    EXPECT_EQ(play("start\n", program).status, 3);
}

TEST(ScriptTime, EndsWithTheProgram) {
    EXPECT_EQ(play("start\nclose\nexpect ended\nprint clock\nexpect nobox", showSmallForm).status,
              0);
    EXPECT_EQ(play("start\nclose\nwait 1\nexpect ended", showSmallForm).status, 3);
    EXPECT_EQ(play("start\nclose\nclick but_Count", showSmallForm).status, 3);
    EXPECT_EQ(play("start\nclose\nexpect form frm_Small", showSmallForm).status, 3);
    EXPECT_EQ(play("start\nclick but_Later\nwait 5\nexpect ended", showSmallForm).status, 0);
    EXPECT_EQ(play("start\nexpect ended", [] {}).status, 0);
}

TEST(ScriptTime, EndsTheProgramBehindTheLastLine) {
    bool cameBack = false;
    const Played played = play("start\nclick but_Count", [&] {
        showBusyForm();
        cameBack = true;
    });
    EXPECT_EQ(played.status, 0);
    EXPECT_FALSE(cameBack);
}

TEST(ScriptTime, SameSeedSameRun) {
    const std::string lines = "start\nprint form.sRandom\nclick but_Frames\nwait 2\n"
                              "print form.sRandom\nprint form.sTicks\nprint clock";
    const auto program = [] { startWithPause(true); };
    const Played first = play("seed 5\n" + lines, program);
    EXPECT_EQ(first.status, 0) << first.errors;
    EXPECT_EQ(play("seed 5\n" + lines, program).out, first.out);
    EXPECT_NE(play("seed 6\n" + lines, program).out, first.out);
}

TEST(ScriptTime, SeedingAnewRepeatsTheSeedOfTheScript) {
    const auto program = [] {
        const double first = CoreLib().Random.next();
        CoreLib().Random.next();
        CoreLib().Random.Randomize();
        EXPECT_EQ(CoreLib().Random.next(), first);
    };
    EXPECT_EQ(play("seed 9\nstart\n", program).status, 0);
}

TEST(ScriptTime, AWaitWithoutAFormIsLimitedToo) {
    const auto program = [] { CoreLib().Windows.waitWhile([] { return true; }); };
    EXPECT_EQ(play("start\n", program).status, 3);
}

} // namespace
} // namespace quendal::test
