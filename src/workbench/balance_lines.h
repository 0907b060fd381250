// Lines of the balance that more than one workbench shows.
#pragma once

#include "particles/species.h"
#include "workbench/variant.h"

namespace quendal {

inline constexpr BalanceLine kHydroniumLine{.kind = kHydronium,
                                            .legend = -kHydronium,
                                            .term = "H3O+",
                                            .spoken = "Oxonium-Ionen",
                                            .trace = Trace::FromEquivalence};
inline constexpr BalanceLine kHydroxideLine{.kind = kHydroxide,
                                            .legend = -kHydroxide,
                                            .term = "OH-",
                                            .spoken = "Hydroxid-Ionen",
                                            .trace = Trace::UpToEquivalence};
inline constexpr BalanceLine kSodiumLine{
    .kind = kSodium, .legend = -kSodium, .term = "Na+", .spoken = "Natrium-Ionen"};
inline constexpr BalanceLine kChlorideLine{
    .kind = kChloride, .legend = -kChloride, .term = "Cl-", .spoken = "Chlorid-Ionen"};
inline constexpr BalanceLine kAceticAcidLine{
    .kind = kAceticAcid, .legend = kAceticAcid, .term = "HAc", .spoken = "Essigsäure"};
inline constexpr BalanceLine kAcetateLine{
    .kind = kAcetate, .legend = -kAcetate, .term = "Ac-", .spoken = "Acetat-Ionen"};
inline constexpr BalanceLine kSilverLine{
    .kind = kSilver, .legend = -kSilver, .term = "Ag+", .spoken = "Silber-Ionen"};
inline constexpr BalanceLine kNitrateLine{
    .kind = kNitrate, .legend = -kNitrate, .term = "NO3-", .spoken = "Nitrat-Ionen"};

} // namespace quendal
