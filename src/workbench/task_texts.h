// Lines of the task sheet that more than one workbench shows. Their blanks leave room for the
// buttons that stand in them.
#pragma once

#include <string_view>

namespace quendal {

inline constexpr std::string_view kBaseLine =
    "Klick auf                               , um mit jedem Klick                einen  mL "
    "Natronlauge ( c= 1 mol/L) zutropfen zu lassen.";
inline constexpr std::string_view kAllBaseGiven =
    "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach den pH-Wert verändert. Sieh "
    "Dir Dein Ergebnis an, indem Du unten auf \"pH-Kurve anzeigen\" klickst.";

} // namespace quendal
