// The calculator service on the desktop: popup calculator, about box, charts.
#pragma once

#include "desktop/boxes/calculator_window.h"
#include "host/calculator.h"
#include "host/chart.h"

namespace quendal {

struct ObserverLink;
struct SoundOptions;

class DesktopCalculator final : public Calculator {
  public:
    DesktopCalculator(FileService& files, ChartPainter& painter, const SoundOptions& options,
                      const ObserverLink& link)
        : charts_(files, painter), options_(options), link_(link) {}

    void ShowAbout() override;
    std::optional<double> Show(int, int, double x, double y, const CalcPresets& presets) override;
    quendal::ChartFactory& ChartFactory() override { return charts_; }

  private:
    quendal::ChartFactory charts_;
    const SoundOptions& options_;
    const ObserverLink& link_;
    std::vector<WorkedLine> history_; // of the whole session
};

} // namespace quendal
