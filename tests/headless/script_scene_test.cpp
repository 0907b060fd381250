// What a script asks of a form with a beaker.
#include "headless/play.h"
#include "host/buttons.h"
#include "host/chart.h"
#include "host/form.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "particles/cls_Molecules.h"
#include "particles/particle_scene.h"

namespace quendal::test {
namespace {

// After 1 s the dosing ends, after 2 s the drop lands, after 3 s the last pair is gone.
class BeakerForm final : public Form, public ParticleScene {
  public:
    BeakerForm() : Form("frm_Beaker", {500, 500}) {
        beaker_.CREATE(kHydronium, 10, 10);
        beaker_.CREATE(kHydroxide, 20, 20);
        drops_.CREATE(kSodium, 50, 0);
        series_.Data.Add(1, 0.5);
        series_.fittedLines = {{.slope = 2, .intercept = -1.5}, {.slope = 0, .intercept = 0.5}};
        tmr_Second.onTimer = [this] { passSecond(); };
        but_Dialog.onClick = [] {
            Form dialog("frm_Over", {100, 100});
            CoreLib().Windows.ShowModal(dialog);
        };
    }

    const cls_Molecules& beaker() const override { return beaker_; }
    const cls_Molecules& drops() const override { return drops_; }
    bool dosing() const override { return seconds_ < 1; }
    int learnerSeriesCount() const override { return 2; }
    const ChartSeries* learnerSeries(int number) const override {
        return number == 1 ? &series_ : nullptr;
    }

    ctl_Button but_Dialog{*this, "but_Dialog"};
    Timer tmr_Second{*this, "tmr_Second", 1000};

  private:
    void passSecond() {
        ++seconds_;
        if (seconds_ == 2) {
            drops_.REMOVE(1);
        } else if (seconds_ == 3) {
            beaker_.REMOVE(1);
        }
    }

    int seconds_ = 0;
    cls_Molecules beaker_;
    cls_Molecules drops_;
    ChartSeries series_{"Werte"};
};

Played playBeaker(const std::string& lines) {
    return play("start\n" + lines, [] {
        BeakerForm form;
        form.tmr_Second.setEnabled(true);
        CoreLib().Windows.ShowModal(form);
    });
}

TEST(ScriptScene, SettlesWhenNothingMovesAndNothingCanReact) {
    const Played played = playBeaker("settle\nexpect clock == 3\nexpect beaker.count == 1");
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptScene, SettleFailsWhenItsTimeIsUp) {
    const Played played = playBeaker("settle 2.5");
    EXPECT_EQ(played.status, 1);
    EXPECT_NE(played.errors.find("found it still moving"), std::string::npos);
}

TEST(ScriptScene, CountsParticles) {
    const Played played = playBeaker("expect beaker.count == 2\nexpect beaker.countsort(9) == 1\n"
                                     "expect beaker.countsort(3) == 0\nexpect drops.count == 1");
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(ScriptScene, ReadsTheLearnersSeries) {
    const Played played = playBeaker("expect series(1).count == 1\nexpect series(1).x(1) == 1\n"
                                     "expect series(1).y(1) == 0.5\nexpect series(1).x(2) == \"\"\n"
                                     "expect series(2).count == 0");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(playBeaker("print series(3).count").status, 2);
    EXPECT_EQ(playBeaker("print series(0).count").status, 2);
}

TEST(ScriptScene, ReadsTheLooksAndTheFittedLinesOfASeries) {
    const Played played = playBeaker(
        "expect series(1).name == Werte\nexpect series(1).joined == true\n"
        "expect series(1).lines == 2\nexpect series(1).line(1).slope == 2\n"
        "expect series(1).line(1).intercept == -1.5\nexpect series(1).line(2).slope == 0\n"
        "expect series(1).line(2).intercept == 0.5\nexpect series(1).line(3).slope == \"\"\n"
        "expect series(1).line(0).intercept == \"\"\nexpect series(2).lines == 0\n"
        "expect series(2).line(1).slope == \"\"\nexpect series(2).name == \"\"");
    EXPECT_EQ(played.status, 0) << played.errors;
    EXPECT_EQ(playBeaker("print series(3).line(1).slope").status, 2);
}

TEST(ScriptScene, StaysInViewBehindADialog) {
    const Played played = playBeaker("click but_Dialog\nexpect form frm_Over\n"
                                     "expect beaker.count == 2\nsettle\nexpect clock == 3\nclose\n"
                                     "expect form frm_Beaker");
    EXPECT_EQ(played.status, 0) << played.errors;
}

} // namespace
} // namespace quendal::test
