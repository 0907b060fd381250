// What the learning animations cost on the real windows, without a screen. To reach: 50 frames a
// second with all sprites of a scene, 30 ms for the first placement of a sprite, and a fifth of a
// core for the conductivity lesson.
#include "animations/frm_AppIntro.h"
#include "animations/ion_drawing.h"
#include "desktop/windows/widget_peer.h"
#include "desktop_bench.h"
#include "host/random_source.h"
#include "host/roots.h"

namespace quendal {

namespace {

// A stage on which no script runs.
class QuietStage {
  public:
    QuietStage(DesktopHost& host, QSize size) : host_(host) {
        form_.Scene = -1;
        host_.windows().Show(form_);
        form_.tmr_Startup.setEnabled(false);
        window_ = host_.windows().windowOf(form_);
        window_->resize(size);
        host_.windows().DoEvents();
        form_.ShowPanel = true;
        form_.title(400, "Neutralisation", 25, Anchor::Centre);
        form_.hClearText();
    }
    ~QuietStage() { host_.windows().Unload(form_); }

    frm_AppIntro& form() { return form_; }
    // Painted at once: the window system would put several updates together.
    void paint(const Control& control) { window_->peerOf(control)->widget()->repaint(); }

  private:
    DesktopHost& host_;
    frm_AppIntro form_;
    FormWindow* window_ = nullptr;
};

QSize sizeOf(const benchmark::State& state) {
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

void screens(benchmark::internal::Benchmark* frames) {
    frames->Args({1366, 768})->Args({1920, 1080})->Unit(benchmark::kMillisecond);
}

// All sprites of the scene with the largest ones, four of them on the move.
void tweenFrame(benchmark::State& state) {
    QuietStage stage(benchHost(), sizeOf(state));
    frm_AppIntro& form = stage.form();
    form.hSprite(400, 300, 100, "h2o-hac\\wanne");
    form.subtitle("Hinreaktion: HAc + H<SUB>2</SUB>O -> H<SUB>3</SUB>O<SUP>+</SUP>", 30);
    int percent = 0;
    for (auto _ : state) {
        percent = (percent + 1) % 100;
        form.hSprite(345 - percent, 140, 65, "h2o-hac\\_h2o");
        form.hSprite(466 + percent, 110, 65, "h2o-hac\\_hac");
        form.hSprite(350 - percent, 330, 100, "h2o-hac\\h2o");
        form.hSprite(450 + percent, 325, 100, "h2o-hac\\hac");
        form.hRender();
    }
}
BENCHMARK(tweenFrame)->Apply(screens);

// Water that shrinks away: no frame shows a sprite in a size that it had before.
void shrinkingFrame(benchmark::State& state) {
    QuietStage stage(benchHost(), sizeOf(state));
    frm_AppIntro& form = stage.form();
    form.hSprite(400, 300, 100, "h3o-cl\\wanne4");
    double percent = 100;
    for (auto _ : state) {
        percent = percent > 1 ? percent - 1.7 : 100;
        form.hSprite(220, 330, percent, "h3o-cl\\h2o");
        form.hSprite(330, 330, percent, "h3o-cl\\h2o-2");
        form.hRender();
    }
}
BENCHMARK(shrinkingFrame)->Apply(screens);

void firstSprite(benchmark::State& state, const char* name) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            QuietStage stage(benchHost(), sizeOf(state));
            state.ResumeTiming();
            stage.form().hSprite(400, 300, 100, name);
            stage.form().hRender();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(firstSprite, basin, "h2o-hac\\wanne")->Apply(screens);
BENCHMARK_CAPTURE(firstSprite, particle, "h2o-hac\\h2ohac")->Apply(screens);
BENCHMARK_CAPTURE(firstSprite, circuit, "ionen\\ein")->Apply(screens);

// The conductivity lesson has twenty of these a second: a step of 40 ions, drawn and painted.
void lessonStep(benchmark::State& state) {
    QuietStage stage(benchHost(), sizeOf(state));
    frm_AppIntro& form = stage.form();
    const IonField::Chance chance = [] { return CoreLib().Random.next(); };
    form.Ions.setUp(chance);
    form.Ions.IonCount = 40;
    form.Ions.Mode = Current::AlternatingA;
    form.hSprite(400, 280, 100, "ionen\\ws1");
    form.pic_IonenReaktor.setPlace(form.hX(179), form.hY(255), form.hX(355), form.hY(215));
    form.pic_IonenReaktor.setVisible(true);
    form.hRender();
    for (auto _ : state) {
        form.Ions.step(chance);
        drawIons(form.pic_IonenReaktor.surface(), form.Ions, {0.8, 1});
        form.pic_IonenReaktor.drawn();
        benchHost().windows().DoEvents();
        stage.paint(form.pic_IonenReaktor);
    }
}
BENCHMARK(lessonStep)->Apply(screens);

// A frame of the zoom between two powers of ten.
void zoomFrame(benchmark::State& state) {
    QuietStage stage(benchHost(), sizeOf(state));
    frm_AppIntro& form = stage.form();
    form.ShowPanel = false;
    const std::string folder = QUENDAL_SOURCE_DIR "/data/phn/";
    const PicturePtr small = CoreLib().Graphics.LoadPicture(folder + "f3.gif");
    const PicturePtr large = CoreLib().Graphics.LoadPicture(folder + "f4.gif");
    const Rect panel{20, 50, 480, 470};
    double s = 1;
    for (auto _ : state) {
        s = s < 3 ? s + 0.01 : 1;
        form.hBox(20, 50, 500, 520, palette(15), palette(3));
        form.hBlitClip({20, 50, 480 * s, 470 * s}, large, panel, RasterOp::SrcCopy);
        form.hBlitClip({30, 60, 160 * s, 156 * s}, small, panel, RasterOp::SrcCopy);
        form.hRender();
    }
}
BENCHMARK(zoomFrame)->Apply(screens);

} // namespace

} // namespace quendal
