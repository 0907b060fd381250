// Steps through the powers of ten: how one oxonium ion gets lost among more and more water, and how
// the pH counts the zeros.
#include "animations/frm_AppIntro.h"
#include "animations/scripts.h"
#include "animations/stage_layout.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

struct Power {
    const char* count; // water molecules for one oxonium ion
    const char* exponent;
};

// From 5 to 7 at the end: the last one is pure water.
constexpr Power kPowers[] = {{"10", "1"},     {"100", "2"},     {"1.000", "3"},
                             {"10.000", "4"}, {"100.000", "5"}, {"10.000.000", "7"}};
constexpr int kLast = 6;

constexpr Color kResultGround{255, 100, 100};

Zoom zoomBetween(int first, int second, double seconds) {
    return {.first = first, .second = second, .factor = 0.333, .inner = 0.9, .duration = seconds};
}

void drawBoxes(frm_AppIntro& stage) {
    const Color white = palette(15);
    stage.hBox(kZoomPanel, white, session().ParticleBackColor);
    stage.hBox(520, 50, 780, 210, white, palette(1));
    stage.hBox(520, 230, 780, 440, white, palette(4));
    stage.hBox(520, 460, 780, 520, white, kResultGround);
    stage.hBox(kFooter, white, palette(7));
}

void tellFraction(frm_AppIntro& stage, const Power& power) {
    const PrintStyle plain{.color = palette(15)};
    const PrintStyle centred{.color = palette(15), .anchor = Anchor::Centre};
    const Color white = palette(15);
    stage.hPrint(530, 260, "Bruchteil (H)=", plain);
    stage.hPrint(540, 295, "n(Hµ3|O^+|)", plain);
    stage.hLine(530, 315, 660, 315, white);
    stage.hPrint(670, 315, "=", plain);
    stage.hPrint(540, 335, "nges.(Hµ2|O)", plain);
    stage.hPrint(600, 375, "1", centred);
    stage.hLine(530, 395, 660, 395, white);
    stage.hPrint(600, 415, power.count, centred);
    stage.hPrint(670, 395, std::string("= 10^-") + power.exponent, plain);
}

void tell(frm_AppIntro& stage, const Power& power) {
    stage.clearStage();
    stage.title(432, "Negativer dekadischer Logarithmus p=-log / wie: pH=-log c(Hµ3|O^+|)", 20,
                Anchor::Centre);
    stage.say(std::string("Von ") + power.count +
              " Wasser-Molekülen liegt 1 Molekül als H3O+ vor. pH = " + power.exponent);
    drawBoxes(stage);
    stage.hPrint(530, 70,
                 std::string("Von ") + power.count +
                     "\rWasser-Molekülen\rliegt 1 Molekül\rals Hµ3|O^+| vor",
                 {.size = 23, .color = palette(15)});
    tellFraction(stage, power);
    stage.hPrint(660, 490, std::string("pH = -log(10^-") + power.exponent + "|)=" + power.exponent,
                 {.size = 20, .color = palette(15), .anchor = Anchor::Centre});
    stage.hPrint(30, 560, kNextStep, {.size = 20, .color = kBlack});
}

// One step shown and the choice after it. The step that comes next; 7 for a new start.
int showStep(frm_AppIntro& stage, int step) {
    tell(stage, kPowers[step - 1]);
    stage.hZoom({.first = step, .second = step});
    if (stage.Aborted) {
        return step;
    }
    const bool last = step == kLast;
    const bool back = stage.hAskChoice("< Zurück", last ? "Neustart" : "Weiter >");
    if (stage.Aborted) {
        return step;
    }
    if (back) {
        const int before = std::max(1, step - 1);
        stage.hZoomOut(zoomBetween(before, step, 1));
        return before;
    }
    if (!last) {
        stage.hZoom(zoomBetween(step, step + 1, 2));
    }
    return step + 1;
}

// All the way back to the first picture.
void rewind(frm_AppIntro& stage) {
    for (int step = kLast - 1; step >= 1 && !stage.Aborted; --step) {
        stage.hZoomOut(zoomBetween(step, step + 1, 1));
    }
}

} // namespace

void playLogarithmLesson(frm_AppIntro& stage) {
    while (!stage.Aborted) {
        for (int step = 1; step <= kLast && !stage.Aborted;) {
            step = showStep(stage, step);
        }
        rewind(stage);
    }
}

} // namespace quendal
