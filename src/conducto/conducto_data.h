// Data that more than one of the conductometric forms uses.
#pragma once

#include "conducto/conducto_variant.h"
#include "workbench/task_texts.h"

namespace quendal {

// The scale of the beaker: 90 mL of water are in it from the start.
inline constexpr BeakerScale kDilutedScale{.mlPerTick = 4, .waterMl = 90};

// Colours of the ions in the graphs: those of their particles, where these are pale a darker one.
inline constexpr SeriesLook kTotalLook{"gesamt", palette(0), Marker::FilledCircle};
inline constexpr SeriesLook kHydroniumLook{"H3O+", palette(12), Marker::TriangleDown};
inline constexpr SeriesLook kChlorideLook{"Cl-", palette(2), Marker::Square};
inline constexpr SeriesLook kAcetateLook{"Ac-", palette(5), Marker::Square};
inline constexpr SeriesLook kSodiumLook{"Na+", palette(9), Marker::Diamond};
inline constexpr SeriesLook kHydroxideLook{"OH-", palette(1), Marker::Triangle};
inline constexpr SeriesLook kNitrateLook{"NO3-", palette(6), Marker::TriangleDown};
inline constexpr SeriesLook kSilverLook{"Ag+", palette(8), Marker::Triangle};

inline constexpr std::string_view kDilutedSampleAfter =
    " mol/L) in das Becherglas fließen zu lassen. Damit die Elektroden bedeckt werden, sind schon "
    "90 mL dest. Wasser vorgelegt.";
inline constexpr std::string_view kCalculateConductivity =
    "Klick auf                                ,um den genauen LeitWert zu berechnen.";

inline constexpr std::string_view kConductivityTitle = "Leitwert ausrechnen";
inline constexpr std::string_view kConductivityGraph = "Graph der Leitwerte";
inline constexpr std::string_view kConductivityButton = "Leitwert-Kurve anzeigen";
inline constexpr std::string_view kWrongConductivity =
    "Der von Dir errechnete Leitwert ist leider falsch! Soll ich Dir beim Errechnen Schritt für "
    "Schritt helfen?";
inline constexpr std::string_view kAllBaseGivenConductivity =
    "Du hast die gesamte Natronlauge zugegeben und dabei nach und nach die Leitfähigkeit "
    "verändert. Sieh Dir Dein Ergebnis an, indem Du unten auf \"Leitwert-Kurve anzeigen\" klickst.";

inline constexpr std::string_view kRuleInWords =
    "Leitwert = Stoffmenge / Volumen * \" Leitfähigkeit bei unendlicher Verdünnung\"";
inline constexpr std::string_view kRule =
    "G(Ion)   =   n(Ion)      /     V(Ges)     *         l(Ion)";
inline constexpr std::array<std::string_view, 4> kConductivityUnits{"mmol", "cm^3", "mS*cm^2 /mmol",
                                                                    "mS/cm"};

// As printed beside the rows; the text goes into the calculator's line.
inline constexpr std::string_view kPrintedHydronium = "349,8";
inline constexpr std::string_view kPrintedSodium = "50,1";
inline constexpr std::string_view kPrintedHydroxide = "198,6";

inline constexpr std::string_view kSpokenHydronium = "Stoffmenge der Oxonium-Ionen in Millimol";
inline constexpr std::string_view kSpokenSodium = "Stoffmenge der Natrium-Ionen in Millimol";
inline constexpr std::string_view kSpokenHydroxide = "Stoffmenge der Hydroxid-Ionen in Millimol";

} // namespace quendal
