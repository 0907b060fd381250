// The scripts that run on the stage.
#pragma once

#include <cstdint>

namespace quendal {

class frm_AppIntro;

// Each plays once, from an empty stage to its end, and leaves early when the learner breaks off.
void playHydrogenChloride(frm_AppIntro& stage);
void playAutoprotolysis(frm_AppIntro& stage);
void playWeakAcid(frm_AppIntro& stage);
void playNeutralisation(frm_AppIntro& stage);
void playPrecipitation(frm_AppIntro& stage);
void playLogarithmLesson(frm_AppIntro& stage);
void playConductivityLesson(frm_AppIntro& stage);

// The script of a scene; null for a number that has none.
using Script = void (*)(frm_AppIntro& stage);
Script scriptOf(std::int32_t scene);

} // namespace quendal
