#include "animations/reaction_scene.h"

#include "animations/frm_AppIntro.h"

namespace quendal {

void setStage(frm_AppIntro& stage, const ReactionFrame& frame) {
    stage.hSpriteClear();
    stage.clearStage();
    stage.title(400, frame.title, 25, Anchor::Centre);
    stage.footer(frame.footer);
    stage.ShowPanel = true;
    stage.hSprite(400, 300, kParticleZoom, frame.basin);
}

void particle(frm_AppIntro& stage, double x, double y, const char* sprite) {
    stage.hSprite(x, y, kParticleZoom, sprite);
}

bool waitForNext(frm_AppIntro& stage) {
    stage.hWaitClick();
    stage.hClearText();
    return !stage.Aborted;
}

double shaken(const frm_AppIntro& stage, double centre) {
    return centre + stage.chance() * 10 - 5;
}

} // namespace quendal
