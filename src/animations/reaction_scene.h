// What the reaction scenes have in common.
#pragma once

namespace quendal {

class frm_AppIntro;

inline constexpr double kFormulaZoom = 65; // percent, of the formula pictures
inline constexpr double kParticleZoom = 100;
inline constexpr double kSubtitleSize = 30; // points

inline constexpr const char* kCollideSound = "sounds\\collide.wav";
inline constexpr const char* kReactionSound = "sounds\\ex.wav";

struct ReactionFrame {
    const char* title;
    const char* footer; // empty: none
    const char* basin;  // sprite
};

// The stage empty but for title, footer and basin.
void setStage(frm_AppIntro& stage, const ReactionFrame& frame);

// A particle in the basin, by its middle.
void particle(frm_AppIntro& stage, double x, double y, const char* sprite);

// Shows what was placed, waits for a click and clears the footer. False when the learner broke off.
bool waitForNext(frm_AppIntro& stage);

// A coordinate that trembles around `centre`, another one with every call.
double shaken(const frm_AppIntro& stage, double centre);

} // namespace quendal
