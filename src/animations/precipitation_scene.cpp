#include "animations/frm_AppIntro.h"
#include "animations/reaction_scene.h"
#include "animations/scripts.h"

namespace quendal {

namespace {

constexpr ReactionFrame kFrame{"Fällung: Silberionen mit Chloridionen", "", "fällung\\wanne"};

bool showChloride(frm_AppIntro& stage) {
    stage.subtitle("Vorlage von: Cl<SUP>-</SUP> und Na<SUP>+</SUP>", kSubtitleSize);
    const bool fallen = stage.tween(2, [&](const Progress& at) {
        const double y = at.g() * 2 + 100;
        particle(stage, 300, y, "fällung\\cl");
        particle(stage, 500, y, "fällung\\na");
    });
    return fallen && waitForNext(stage);
}

bool addSilver(frm_AppIntro& stage) {
    stage.subtitle("Zugabe von: Ag<SUP>+</SUP> und NO<SUB>3</SUB><SUP>-</SUP>", kSubtitleSize);
    const bool fallen = stage.tween(2, [&](const Progress& at) {
        const double g = at.g();
        const double y = g * 2 + 100;
        particle(stage, 350, y, "fällung\\ag");
        particle(stage, 450, y, "fällung\\no3");
        particle(stage, 300 - g, 300, "fällung\\cl");
        particle(stage, 500 + g, 300, "fällung\\na");
    });
    return fallen && waitForNext(stage);
}

bool meet(frm_AppIntro& stage) {
    stage.subtitle("Reaktion von: Ag<SUP>+</SUP> und Cl<SUP>-</SUP>", kSubtitleSize);
    return stage.tween(1, [&](const Progress& at) {
        const double u = at.g() * 0.35;
        particle(stage, u + 200, 300, "fällung\\cl");
        particle(stage, 350 - u, 300, "fällung\\ag");
        particle(stage, 600, 300, "fällung\\na");
        particle(stage, 450, 300, "fällung\\no3");
    });
}

// The pair goes down to the bottom as one.
bool sink(frm_AppIntro& stage) {
    return stage.tween(2, [&](const Progress& at) {
        const double g = at.g();
        particle(stage, 235 + g * 1.15, 300 + g * 1.5, "fällung\\cl");
        particle(stage, 315 + g * 1.15, 300 + g * 1.5, "fällung\\ag");
        particle(stage, 600 - g / 1.5, 300, "fällung\\na");
        particle(stage, 450, 300, "fällung\\no3");
    });
}

} // namespace

void playPrecipitation(frm_AppIntro& stage) {
    setStage(stage, kFrame);
    if (showChloride(stage) && addSilver(stage) && meet(stage) && sink(stage)) {
        stage.subtitle("Das gebildete Silberchlorid setzt sich als Bodenkörper unten ab", 20);
        stage.hWaitClick();
    }
}

} // namespace quendal
