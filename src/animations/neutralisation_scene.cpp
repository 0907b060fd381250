#include "animations/frm_AppIntro.h"
#include "animations/reaction_scene.h"
#include "animations/scripts.h"

namespace quendal {

namespace {

constexpr ReactionFrame kFrame{"Neutralisation: Salzsäure mit Natronlauge", "", "h3o-cl\\wanne4"};

// The ions that take no part stay where they are.
void spectators(frm_AppIntro& stage) {
    particle(stage, 600, 330, "h3o-cl\\cl");
    particle(stage, 450, 330, "h3o-cl\\na");
}

bool showAcid(frm_AppIntro& stage) {
    stage.subtitle("Vorlage: H<SUB>3</SUB>O<SUP>+</SUP> und Cl<SUP>-</SUP>", kSubtitleSize);
    particle(stage, 300, 330, "h3o-cl\\h3o");
    particle(stage, 500, 330, "h3o-cl\\cl");
    return waitForNext(stage);
}

// The newcomers fall in while the others make room.
bool addBase(frm_AppIntro& stage) {
    stage.subtitle("Zugabe von: Na<SUP>+</SUP> und OH<SUP>-</SUP>", kSubtitleSize);
    const bool fallen = stage.tween(3, [&](const Progress& at) {
        const double g = at.g();
        const double y = g * 2 + 130;
        particle(stage, 350, y - 10, "h3o-cl\\oh");
        particle(stage, 450, y, "h3o-cl\\na");
        particle(stage, 300 - g, 330, "h3o-cl\\h3o");
        particle(stage, 500 + g, 330, "h3o-cl\\cl");
    });
    return fallen && waitForNext(stage);
}

bool react(frm_AppIntro& stage) {
    stage.subtitle("Reaktion von: H<SUB>3</SUB>O<SUP>+</SUP> und OH<SUP>-</SUP> zu 2H<SUB>2</SUB>O",
                   kSubtitleSize);
    const bool met = stage.tween(1, [&](const Progress& at) {
        const double u = at.g() * 0.3;
        particle(stage, u + 200, 330, "h3o-cl\\h3o");
        particle(stage, 350 - u, 320, "h3o-cl\\oh");
        spectators(stage);
    });
    stage.hSpriteOff("h3o-cl\\h3o");
    stage.hSpriteOff("h3o-cl\\oh");
    return met;
}

bool makeWater(frm_AppIntro& stage) {
    const bool parted = stage.tween(1, [&](const Progress& at) {
        const double u = at.g() * 0.1;
        particle(stage, 230 - u, 330, "h3o-cl\\h2o");
        particle(stage, u + 320, 330, "h3o-cl\\h2o-2");
        spectators(stage);
    });
    if (!parted) {
        return false;
    }
    stage.hRender();
    stage.subtitle("Das entstandene Wasser 'vermehrt' das umgebende Wasser", 20);
    return waitForNext(stage);
}

// The new water shrinks away into the old.
bool joinWater(frm_AppIntro& stage) {
    return stage.tween(1, [&](const Progress& at) {
        stage.hSprite(220, 330, 100 - at.g(), "h3o-cl\\h2o");
        stage.hSprite(330, 330, 100 - at.g(), "h3o-cl\\h2o-2");
    });
}

} // namespace

void playNeutralisation(frm_AppIntro& stage) {
    setStage(stage, kFrame);
    if (showAcid(stage) && addBase(stage) && react(stage) && makeWater(stage) && joinWater(stage)) {
        stage.subtitle("Letztendlich wurde ein H<SUB>3</SUB>O<SUP>+</SUP> durch ein Na<SUP>+</SUP> "
                       "ersetzt.");
        stage.hRender();
    }
}

} // namespace quendal
