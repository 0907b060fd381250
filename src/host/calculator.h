// The popup calculator and what else the host's calculator service gives.
#pragma once

#include "host/calc_presets.h"

#include <optional>

namespace quendal {

class ChartFactory;

// The title of the calculator's window, the same on every host.
inline constexpr const char* kCalculatorCaption = "Rechner";

class Calculator {
  public:
    virtual ~Calculator() = default;
    // The product's about box, modal.
    virtual void ShowAbout() = 0;
    // Modal calculator with its left upper corner at (x, y) in twips of the screen, moved inside
    // the screen where needed; the first two arguments are always 0. nullopt when the learner
    // aborts.
    virtual std::optional<double> Show(int, int, double x, double y,
                                       const CalcPresets& presets) = 0;
    virtual quendal::ChartFactory& ChartFactory() = 0;
};

} // namespace quendal
