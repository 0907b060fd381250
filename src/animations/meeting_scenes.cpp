// Two particles meet, a proton changes over, two others part: HCl in water, and the two equilibria
// with the way back.
#include "animations/frm_AppIntro.h"
#include "animations/reaction_scene.h"
#include "animations/scripts.h"
#include "animations/stage_layout.h"

#include <array>

namespace quendal {

namespace {

constexpr double kMeet = 1.4; // s
constexpr double kShake = 2;  // s
constexpr double kPart = 1;   // s
constexpr double kPause = 3;  // s, before an equilibrium begins again

// A sprite where it touches its partner; apart from it, it stands 100 units to its side.
struct Actor {
    const char* sprite;
    double x;
    double y;
    double side; // -1 left, 1 right
    double zoom;
};

using Actors = std::array<Actor, 4>;

// Both partners joined; the particles shake.
struct Joined {
    const char* formula;
    Point formulaPlace;
    const char* particles;
    Point particlePlace;
};

struct Meeting {
    ReactionFrame frame;
    const char* forward; // captions
    const char* back;
    Actors educts;
    Joined joined;
    Actors products;
};

constexpr const char* kEscFooter = "Mit ESC beenden";

constexpr Meeting kHydrogenChloride{
    .frame = {"Säure-Base Reaktion: HCl in wässriger Lösung:", kNextStep, "h2o-hcl\\wanne"},
    .forward = "Hinreaktion: HCl + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Cl<SUP>-</SUP>",
    .back = "Keine Rückreaktion!",
    .educts = {{{"h2o-hcl\\_h2o", 345, 135, -1, kFormulaZoom},
                {"h2o-hcl\\_hcl", 467, 110, 1, kFormulaZoom},
                {"h2o-hcl\\h2o", 350, 330, -1, kParticleZoom},
                {"h2o-hcl\\hcl", 450, 330, 1, kParticleZoom}}},
    .joined = {"h2o-hcl\\_h2ohcl", {410, 135}, "h2o-hcl\\h2ohcl", {400, 330}},
    .products = {{{"h2o-hcl\\_h3o", 377, 123, -1, kFormulaZoom},
                  {"h2o-hcl\\_cl", 498, 124, 1, kFormulaZoom},
                  {"h2o-hcl\\h3o", 350, 330, -1, kParticleZoom},
                  {"h2o-hcl\\cl", 450, 330, 1, kParticleZoom}}}};

constexpr Meeting kAutoprotolysis{
    .frame = {"Säure-Base Reaktion: Wasser mit Wasser (Autoprotolyse)", kEscFooter,
              "h2o-h2o\\wanne"},
    .forward = "Hinreaktion: H<SUB>2</SUB>O + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + "
               "OH<SUP>-</SUP>",
    .back = "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + OH<SUP>-</SUP> -> H<SUB>2</SUB>O + "
            "H<SUB>2</SUB>O",
    .educts = {{{"h2o-h2o\\_h2o", 345, 140, -1, kFormulaZoom},
                {"h2o-h2o\\_h2o2", 466, 140, 1, kFormulaZoom},
                {"h2o-h2o\\h2o", 350, 330, -1, kParticleZoom},
                {"h2o-h2o\\h2o2", 450, 315, 1, kParticleZoom}}},
    .joined = {"h2o-h2o\\_h2oh2o", {404, 140}, "h2o-h2o\\h2oh2o", {400, 330}},
    .products = {{{"h2o-h2o\\_h3o", 377, 128, -1, kFormulaZoom},
                  {"h2o-h2o\\_oh", 498, 129, 1, kFormulaZoom},
                  {"h2o-h2o\\h3o", 350, 330, -1, kParticleZoom},
                  {"h2o-h2o\\oh", 450, 315, 1, kParticleZoom}}}};

constexpr Meeting kWeakAcid{
    .frame = {"Säure-Base Reaktion: Schwache Säure mit Wasser", kEscFooter, "h2o-hac\\wanne"},
    .forward = "Hinreaktion: HAc + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP>",
    .back = "Rückreaktion: H<SUB>3</SUB>O<SUP>+</SUP> + Ac<SUP>-</SUP> -> HAc + H<SUB>2</SUB>O",
    .educts = {{{"h2o-hac\\_h2o", 345, 140, -1, kFormulaZoom},
                {"h2o-hac\\_hac", 466, 110, 1, kFormulaZoom},
                {"h2o-hac\\h2o", 350, 330, -1, kParticleZoom},
                {"h2o-hac\\hac", 450, 325, 1, kParticleZoom}}},
    .joined = {"h2o-hac\\_h2ohac", {404, 140}, "h2o-hac\\h2ohac", {400, 330}},
    .products = {{{"h2o-hac\\_h3o", 377, 128, -1, kFormulaZoom},
                  {"h2o-hac\\_ac", 498, 129, 1, kFormulaZoom},
                  {"h2o-hac\\h3o", 350, 330, -1, kParticleZoom},
                  {"h2o-hac\\ac", 450, 320, 1, kParticleZoom}}}};

// `percent` of the way apart.
void place(frm_AppIntro& stage, const Actors& actors, double percent) {
    for (const Actor& actor : actors) {
        stage.hSprite(actor.x + actor.side * percent, actor.y, actor.zoom, actor.sprite);
    }
}

void takeOff(frm_AppIntro& stage, const Actors& actors) {
    for (const Actor& actor : actors) {
        stage.hSpriteOff(actor.sprite);
    }
}

bool meet(frm_AppIntro& stage, const Actors& actors) {
    return stage.tween(kMeet, [&](const Progress& at) { place(stage, actors, at.m()); });
}

bool part(frm_AppIntro& stage, const Actors& actors, double seconds) {
    return stage.tween(seconds, [&](const Progress& at) { place(stage, actors, at.g()); });
}

// From the touch of the partners to the reaction, with nothing left of either.
bool react(frm_AppIntro& stage, const Actors& partners, const Joined& joined) {
    takeOff(stage, partners);
    const auto [x, y] = joined.particlePlace;
    particle(stage, x, y, joined.particles);
    stage.hSprite(joined.formulaPlace.x, joined.formulaPlace.y, kFormulaZoom, joined.formula);
    const bool finished = stage.tween(kShake, [&](const Progress&) {
        const double atX = shaken(stage, x);
        particle(stage, atX, shaken(stage, y), joined.particles);
    });
    if (!finished) {
        return false;
    }
    stage.playSound(kReactionSound);
    stage.hSpriteOff(joined.particles);
    stage.hSpriteOff(joined.formula);
    return true;
}

bool forward(frm_AppIntro& stage, const Meeting& meeting) {
    stage.playSound(kCollideSound);
    return meet(stage, meeting.educts) && react(stage, meeting.educts, meeting.joined) &&
           part(stage, meeting.products, kPart);
}

bool back(frm_AppIntro& stage, const Meeting& meeting) {
    return meet(stage, meeting.products) && react(stage, meeting.products, meeting.joined) &&
           part(stage, meeting.educts, kMeet);
}

// The reaction there and back, for as long as the learner looks: it never stops by itself.
void playEquilibrium(frm_AppIntro& stage, const Meeting& meeting, Equilibrium kind) {
    for (;;) {
        setStage(stage, meeting.frame);
        stage.showLensButton(kind);
        stage.subtitle(meeting.forward, kSubtitleSize);
        place(stage, meeting.educts, 100);
        if (!forward(stage, meeting)) {
            return;
        }
        setStage(stage, meeting.frame);
        stage.showLensButton(kind);
        stage.subtitle(meeting.back, kSubtitleSize);
        if (!back(stage, meeting) || !stage.tween(kPause, [](const Progress&) {})) {
            return;
        }
    }
}

} // namespace

void playHydrogenChloride(frm_AppIntro& stage) {
    const Meeting& meeting = kHydrogenChloride;
    setStage(stage, meeting.frame);
    stage.subtitle(meeting.forward, kSubtitleSize);
    place(stage, meeting.educts, 100);
    if (!waitForNext(stage) || !forward(stage, meeting)) {
        return;
    }
    stage.subtitle(meeting.back);
    stage.hRender();
}

void playAutoprotolysis(frm_AppIntro& stage) {
    playEquilibrium(stage, kAutoprotolysis, Equilibrium::Water);
}

void playWeakAcid(frm_AppIntro& stage) {
    playEquilibrium(stage, kWeakAcid, Equilibrium::Acid);
}

} // namespace quendal
