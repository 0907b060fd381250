#include "conducto/conductivity.h"

#include "host/number_service.h"
#include "shell/session/session.h"

#include <algorithm>
#include <cmath>

namespace quendal {

double twoDecimals(double value) {
    static const NumberService numbers(DecimalSign::Point);
    return numbers.Parse(numbers.Format(value, 2));
}

PointValues conductoPoint(const Mixture& mixture, const std::array<double, 4>& amounts,
                          const std::array<double, 4>& values) {
    constexpr int kAmountDecimals = 9;
    PointValues point{.titrantMl = mixture.reagent,
                      .totalMl = mixture.volume,
                      .choice = mixture.reagentLeft() ? kReagentLeft - 1 : kSampleLeft - 1};
    for (std::size_t i = 0; i < amounts.size(); ++i) {
        point.ionAmounts[i] = std::max(0.0, roundDecimals(amounts[i], kAmountDecimals));
        point.ionValues[i] = twoDecimals(values[i]);
    }
    const auto& v = point.ionValues;
    // The order of the sum decides about its last bit.
    point.ionTotal = v[1] + v[0] + v[2] + v[3];
    return point;
}

// before:  G(H3O+) = (n(S) - n(Z)) / V * 349.8
// behind:  G(OH-) = (n(Z) - n(S)) / V * 198.6
// always:  G(Cl-) = n(S) / V * 76.4, G(Na+) = n(Z) / V * 50.1
PointValues strongConductivity(double concentration, double titrantMl) {
    const Mixture m(concentration, titrantMl);
    const bool base = m.reagentLeft();
    return conductoPoint(m, {m.sampleExcess(), m.sample, m.reagent, m.reagentExcess()},
                         {base ? 0 : m.share(m.sampleExcess(), kHydroniumConductivity),
                          m.share(m.sample, kChlorideConductivity),
                          m.share(m.reagent, kSodiumConductivity),
                          base ? m.share(m.reagentExcess(), kHydroxideConductivity) : 0});
}

// The acid alone: c(H3O+) = 10^(-(pKs - log c) / 2), G(H3O+) = c(H3O+) * 349.8 with c in mmol/cm^3.
// With the first drop the buffer leaves so little of it that it counts as nothing.
// up to the equivalence: n(Ac-) = n(Z); behind it n(Ac-) = n(S), G(OH-) = (n(Z) - n(S)) / V * 198.6
PointValues weakConductivity(double concentration, double titrantMl) {
    constexpr double kPKs = 4.76; // acetic acid
    const Mixture m(concentration, titrantMl);
    double hydronium = 0;
    if (!m.reagentLeft() && titrantMl == 0) {
        const double acid = m.sampleExcess() / m.volume;
        hydronium = std::pow(10.0, -(kPKs - hLog10(acid)) * 0.5) * kHydroniumConductivity;
    }
    const double acetate = 10 * concentration < m.reagent ? 10 * concentration : m.reagent;
    // The amount of H3O+ that is asked for is 0 even where its share isn't: meant.
    return conductoPoint(
        m, {0, acetate, m.reagent, m.reagentExcess()},
        {hydronium, m.share(acetate, kAcetateConductivity), m.share(m.reagent, kSodiumConductivity),
         m.reagentLeft() ? m.share(m.reagentExcess(), kHydroxideConductivity) : 0});
}

// Silver chloride has left the solution:
// before:  G(Cl-) = (n(S) - n(Z)) / V * 76.4
// behind:  G(Ag+) = (n(Z) - n(S)) / V * 61.9
// always:  G(Na+) = n(S) / V * 50.1, G(NO3-) = n(Z) / V * 71.5
PointValues silverConductivity(double concentration, double titrantMl) {
    const Mixture m(concentration, titrantMl);
    const bool silver = m.reagentLeft();
    return conductoPoint(m, {m.sampleExcess(), m.sample, m.reagent, m.reagentExcess()},
                         {silver ? 0 : m.share(m.sampleExcess(), kChlorideConductivity),
                          m.share(m.sample, kSodiumConductivity),
                          m.share(m.reagent, kNitrateConductivity),
                          silver ? m.share(m.reagentExcess(), kSilverConductivity) : 0});
}

// before:  c(H3O+) = (n(S) - n(Z)) / V, pH = -ln c / ln 10
// behind:  c(OH-) = (n(Z) - n(S)) / V, pOH = -ln c / ln 10
PointValues strongLogarithms(double concentration, double titrantMl) {
    const Mixture m(concentration, titrantMl);
    const double excess = m.reagentLeft() ? m.reagentExcess() : m.sampleExcess();
    const double c = excess / m.volume;
    const double pX = c > 0 ? -std::log(c) / std::log(10.0) : 0;
    const auto values =
        m.reagentLeft() ? std::array<double, 4>{0, 0, c, pX} : std::array<double, 4>{c, pX, 0, 0};
    return conductoPoint(m, {m.sampleExcess(), 0, m.reagentExcess(), 0}, values);
}

} // namespace quendal
