// Boxes, about box and calculator that nobody sees: the observer is told of each and answers it at
// once. Without one every question is declined.
#pragma once

#include "headless/watchers.h"
#include "host/calculator.h"
#include "host/chart.h"
#include "host/host_observer.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/sound.h"

namespace quendal {

class HeadlessMessageBox final : public MessageBox {
  public:
    explicit HeadlessMessageBox(const Watchers& watchers) : watchers_(watchers) {}

    void Ok(const std::string& text, const std::string& title) override;
    void Info(const std::string& text, const std::string& title) override;
    BoxAnswer YesNo(const std::string& text, const std::string& title) override;
    std::string Input(const std::string& prompt, const std::string& title,
                      const std::string& proposal) override;
    void Alarm(const std::string& text, const std::string& title, const std::string& icon) override;

  private:
    const Watchers& watchers_;
};

// Counts the charts that would be drawn.
class CountingChartPainter final : public ChartPainter {
  public:
    void render(const ChartView&, PictureBox&, double) override { ++renders_; }
    long renders() const { return renders_; }

  private:
    long renders_ = 0;
};

class HeadlessCalculator final : public Calculator {
  public:
    HeadlessCalculator(const Watchers& watchers, FileService& files, const SoundOptions& product,
                       const NumberService& numbers)
        : watchers_(watchers), product_(product), numbers_(numbers), factory_(files, painter_) {}

    void ShowAbout() override;
    std::optional<double> Show(int, int, double x, double y, const CalcPresets& presets) override;
    quendal::ChartFactory& ChartFactory() override { return factory_; }
    const CountingChartPainter& painter() const { return painter_; }

  private:
    const Watchers& watchers_;
    const SoundOptions& product_;
    const NumberService& numbers_;
    CountingChartPainter painter_;
    quendal::ChartFactory factory_;
};

} // namespace quendal
