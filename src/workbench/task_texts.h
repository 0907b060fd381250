// Texts that more than one workbench shows. The blanks in lines of the task sheet leave room for
// the buttons that stand in them.
#pragma once

#include <string_view>

namespace quendal {

inline constexpr std::string_view kBaseLine =
    "Klick auf                               , um mit jedem Klick                einen  mL "
    "Natronlauge ( c= 1 mol/L) zutropfen zu lassen.";
inline constexpr std::string_view kSilverNitrateLine =
    "Klick auf                               , um mit jedem Klick                einen  mL "
    "Silbernitrat-Lösung ( c= 1 mol/L) zutropfen zu lassen.";
inline constexpr std::string_view kWrongPotential =
    "Das von Dir errechnete Potential ist leider falsch! Soll ich Dir beim Errechnen Schritt für "
    "Schritt helfen?";
inline constexpr std::string_view kComparePotential =
    "Vergleich: Deine Potential-Rechnungen und der richtige Verlauf";
inline constexpr std::string_view kAllBaseGiven =
    "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach den pH-Wert verändert. Sieh "
    "Dir Dein Ergebnis an, indem Du unten auf \"pH-Kurve anzeigen\" klickst.";

} // namespace quendal
