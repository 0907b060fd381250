// What a frame of the workbench costs on the real windows, without a screen.
#include "conducto/frm_AppMainConducto.h"
#include "conducto/frm_AppMainConductoSilver.h"
#include "conducto/frm_AppMainConductoWeak.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/windows/widget_peer.h"
#include "desktop_bench.h"
#include "particles/species.h"
#include "shell/session/session.h"
#include "weak_silver/frm_AppMainSilver.h"
#include "weak_silver/frm_AppMainWeak.h"
#include "workbench/frm_AppMainStrong.h"

#include <QApplication>
#include <QTimer>

namespace quendal {

namespace {

constexpr int kPairs = 30;
constexpr int kSettlingFrames = 600;

// Two kinds that are left in the beaker of the form at the end and don't react with each other.
struct Kinds {
    int first;
    int second;
};
template <class Bench>
constexpr Kinds kKinds{kHydronium, kChloride};
template <>
constexpr Kinds kKinds<frm_AppMainWeak>{kAcetate, kSodium};
template <>
constexpr Kinds kKinds<frm_AppMainSilver>{kSilverChloride, kNitrate};
template <>
constexpr Kinds kKinds<frm_AppMainConductoWeak>{kAcetate, kSodium};
template <>
constexpr Kinds kKinds<frm_AppMainConductoSilver>{kSilverChloride, kNitrate};

// A form with a start form waits for it in its Load.
void acceptStartForm(DesktopWindowSystem& windows) {
    Form* top = windows.top();
    auto* bar =
        top == nullptr ? nullptr : dynamic_cast<ctl_CmdBar*>(top->findControl("bar_Buttons"));
    if (bar != nullptr) {
        bar->userClicked();
    }
}

// A beaker with 30 mL and 60 particles that have found their places.
template <class Bench>
class SettledWorkbench {
  public:
    SettledWorkbench(DesktopHost& host, QSize size) : host_(host) {
        QTimer::singleShot(0, [&host] { acceptStartForm(host.windows()); });
        host_.windows().Show(form_);
        window_ = host_.windows().windowOf(form_);
        window_->resize(size);
        form_.vVol = kPairs;
        form_.vSourceVol[0] = kPairs;
        for (int i = 0; i < kPairs; ++i) {
            form_.vMolecules.CREATE(kKinds<Bench>.first, 3.0 * i, 20);
            form_.vMolecules.CREATE(kKinds<Bench>.second, 3.0 * i + 1, 60);
        }
        for (int i = 0; i < kSettlingFrames; ++i) {
            frame();
        }
    }
    ~SettledWorkbench() { host_.windows().Unload(form_); }

    void frame() {
        form_.hThinkDo();
        host_.windows().DoEvents();
    }
    // As if every particle had moved. Painted at once: the window system would put several updates
    // together.
    void paintPictures() {
        for (PictureBox* box : {&form_.pic_Bowl, &form_.pic_Water, &form_.pic_Glass}) {
            if (auto* surface = dynamic_cast<PictureSurface*>(&box->surface())) {
                surface->invalidate();
            }
            if (const WidgetPeer* peer = window_->peerOf(*box)) {
                peer->widget()->repaint();
            }
        }
    }

  private:
    DesktopHost& host_;
    Bench form_;
    FormWindow* window_ = nullptr;
};

QSize sizeOf(const benchmark::State& state) {
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

template <class Bench>
void frameAtRest(benchmark::State& state) {
    SettledWorkbench<Bench> workbench(benchHost(), sizeOf(state));
    for (auto _ : state) {
        workbench.frame();
    }
}

template <class Bench>
void frameWithEverythingMoved(benchmark::State& state) {
    SettledWorkbench<Bench> workbench(benchHost(), sizeOf(state));
    for (auto _ : state) {
        workbench.frame();
        workbench.paintPictures();
    }
}

void screens(benchmark::internal::Benchmark* frames) {
    frames->Args({1366, 768})->Args({1920, 1080})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(frameAtRest<frm_AppMainStrong>)->Apply(screens);
BENCHMARK(frameAtRest<frm_AppMainWeak>)->Apply(screens);
BENCHMARK(frameAtRest<frm_AppMainSilver>)->Apply(screens);
BENCHMARK(frameAtRest<frm_AppMainConducto>)->Apply(screens);
BENCHMARK(frameAtRest<frm_AppMainConductoWeak>)->Apply(screens);
BENCHMARK(frameAtRest<frm_AppMainConductoSilver>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainStrong>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainWeak>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainSilver>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainConducto>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainConductoWeak>)->Apply(screens);
BENCHMARK(frameWithEverythingMoved<frm_AppMainConductoSilver>)->Apply(screens);

} // namespace

namespace {
DesktopHost* theHost = nullptr;
}

DesktopHost& benchHost() {
    return *theHost;
}

void runBenchmarks(DesktopHost& host) {
    theHost = &host;
    session().SessionChartFactory = &host.app().Calculator.ChartFactory();
    benchmark::RunSpecifiedBenchmarks();
}

} // namespace quendal

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    quendal::CommandLine line;
    line.dataFolder = QUENDAL_SOURCE_DIR "/data";
    quendal::DesktopHost host(application, line);
    benchmark::Initialize(&argc, argv);
    quendal::runBenchmarks(host);
    return 0;
}
