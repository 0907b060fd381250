// Names of ions in the markup that terms are typeset from.
#pragma once

#include <string>
#include <string_view>

namespace quendal {

// Ions among the words of a text get lowered numbers and a raised charge: "Meine H3O+" becomes
// "Meine Hµ3|O^+|". Any other text comes back as it is.
std::string chemicalTerm(std::string_view text);

} // namespace quendal
