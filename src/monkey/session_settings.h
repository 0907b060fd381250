// What a session of the monkey begins with, as the lines of a script before "start".
#pragma once

#include "monkey/chance.h"

#include <string>
#include <string_view>
#include <vector>

namespace quendal {

// How the monkey is at present.
enum class Mood {
    Diligent, // works towards the mark
    Playful,  // works, but not for long
    Wild      // does anything
};

Mood anyMood(Chance& chance);

// Whether the form can be played alone, without the way that leads to it.
bool playsAlone(std::string_view form);

// Seed, screen, name, teacher's keys and so on; `form` is the one that the monkey is to stay on,
// empty for the whole program. Teacher's keys never lock the way to that form.
std::vector<std::string> anySettings(Chance& chance, std::string_view form);

} // namespace quendal
