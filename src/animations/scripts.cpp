#include "animations/scripts.h"

#include <algorithm>
#include <iterator>

namespace quendal {

namespace {

struct ScriptRow {
    std::int32_t scene;
    Script play;
};

constexpr ScriptRow kScripts[] = {
    {0, playLogarithmLesson},    {1, playHydrogenChloride}, {3, playAutoprotolysis},
    {4, playWeakAcid},           {5, playNeutralisation},   {6, playPrecipitation},
    {7, playConductivityLesson},
};

} // namespace

Script scriptOf(std::int32_t scene) {
    const auto row = std::find_if(std::begin(kScripts), std::end(kScripts),
                                  [&](const ScriptRow& r) { return r.scene == scene; });
    return row == std::end(kScripts) ? nullptr : row->play;
}

} // namespace quendal
