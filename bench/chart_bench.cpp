// What a redraw of a chart costs on the real windows, without a screen: of the learner's graph as a
// panel of a form and of the comparison in its window, all points of five series with fitted lines.
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/windows/widget_peer.h"
#include "desktop_bench.h"
#include "host/form.h"
#include "host/pictures.h"
#include "support/conductivity_chart.h"

namespace quendal {

namespace {

constexpr int kPoints = 21;

// On the design grid of the program's forms.
class ChartForm final : public Form {
  public:
    explicit ChartForm(Size chart) : Form("frm_Chart", {1000, 690}) {
        setWindowState(WindowState::Maximised);
        pic_Graph.setPlace(10, 10, chart.width, chart.height);
    }
    PictureBox pic_Graph{*this, "pic_Graph"};
};

class ShownChart {
  public:
    ShownChart(benchmark::State& state, Size size) : form_(size) {
        DesktopWindowSystem& windows = benchHost().windows();
        windows.setScreen({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
        windows.Show(form_);
        widget_ = windows.windowOf(form_)->peerOf(form_.pic_Graph)->widget();
        state.counters["width"] = widget_->width();
        state.counters["height"] = widget_->height();
        chart.calculate(kPoints);
    }
    ~ShownChart() {
        benchHost().windows().Unload(form_);
        benchHost().windows().setScreen({});
    }

    void show(ChartView& view) {
        constexpr double kLettering = 8; // points
        view.RenderTo(form_.pic_Graph, 0, 0, kLettering);
        widget_->repaint();
    }
    void redraw(ChartView& view) {
        view.Redraw(0);
        widget_->repaint(); // at once: updates would be put together
    }

  private:
    QCustomPlotChartPainter painter_;
    ChartDocument document_{painter_, "bench"};
    ChartForm form_;
    QWidget* widget_ = nullptr;

  public:
    test::ConductivityChart chart{document_};
};

void measure(benchmark::State& state, ShownChart& shown, ChartView& view) {
    shown.show(view);
    for (auto _ : state) {
        shown.redraw(view);
    }
}

void graphOnTheForm(benchmark::State& state) {
    ShownChart shown(state, {428, 196});
    measure(state, shown, shown.chart.mine());
}

void comparison(benchmark::State& state) {
    ShownChart shown(state, {908, 520});
    measure(state, shown, shown.chart.all());
}

void screens(benchmark::internal::Benchmark* charts) {
    charts->Args({1366, 768})->Args({1920, 1080})->Unit(benchmark::kMillisecond);
}

BENCHMARK(graphOnTheForm)->Apply(screens);
BENCHMARK(comparison)->Apply(screens);

} // namespace

} // namespace quendal
