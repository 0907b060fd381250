// What a frame costs that stretches a picture over the whole screen, the painting of the window
// included: zooms must be fluid at 1920 x 1080.
#include "desktop/pictures/desktop_picture.h"
#include "desktop/windows/widget_peer.h"
#include "desktop_bench.h"
#include "host/form.h"
#include "host/pictures.h"
#include "host/roots.h"
#include "host/window_system.h"

#include <QPainter>

namespace quendal {

namespace {

class ScreenForm final : public Form {
  public:
    ScreenForm() : Form("frm_Screen", {592, 444}) {
        setScalesItself(true);
        setFrameless(true);
        setWindowState(WindowState::Maximised);
    }
    void Form_Resize() override { box.setPlace(0, 0, inner().width, inner().height); }

    PictureBox box{*this, "box"};
};

PicturePtr screenPicture(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient colours(0, 0, size.width(), size.height());
    colours.setColorAt(0, Qt::darkCyan);
    colours.setColorAt(0.5, Qt::white);
    colours.setColorAt(1, Qt::darkRed);
    QPainter painter(&image);
    painter.fillRect(image.rect(), colours);
    return std::make_shared<DesktopPicture>(image);
}

void countFrames(benchmark::State& state) {
    state.counters["fps"] =
        benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

class Screen {
  public:
    explicit Screen(benchmark::State& state)
        : size_(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))),
          picture_(screenPicture(size_)) {
        benchHost().windows().setScreen(size_);
        benchHost().windows().Show(form_);
        widget_ = benchHost().windows().windowOf(form_)->peerOf(form_.box)->widget();
        if (!widget_->isVisible() || widget_->size() != size_) {
            state.SkipWithError("the window hasn't the size of the screen");
        }
    }
    ~Screen() {
        benchHost().windows().Unload(form_);
        benchHost().windows().setScreen({});
    }

    // The whole picture, and `from` of it over `to`, both of them shares of the whole.
    void draw(const QRectF& to, const QRectF& from) {
        const Rect whole{0, 0, double(size_.width()), double(size_.height())};
        const auto part = [&](const QRectF& share) {
            return Rect{share.x() * whole.width, share.y() * whole.height,
                        share.width() * whole.width, share.height() * whole.height};
        };
        Surface& surface = form_.box.surface();
        surface.StretchBlt(whole, picture_, whole, RasterOp::SrcCopy);
        surface.StretchBlt(part(to), picture_, part(from), RasterOp::SrcCopy);
        form_.box.drawn();
        widget_->repaint(); // at once: updates would be put together
    }

  private:
    QSize size_;
    PicturePtr picture_;
    ScreenForm form_;
    QWidget* widget_ = nullptr;
};

const QRectF kSource(0.6, 0.3, 0.15, 0.3);

// One frame of a zoom from a small part of the screen to the whole, in hundredths.
void frameOfAZoom(benchmark::State& state) {
    Screen screen(state);
    int hundredth = 0;
    for (auto _ : state) {
        const double share = hundredth / 100.0;
        const QRectF to(kSource.x() * (1 - share), kSource.y() * (1 - share),
                        kSource.width() + (1 - kSource.width()) * share,
                        kSource.height() + (1 - kSource.height()) * share);
        screen.draw(to, kSource);
        hundredth = (hundredth + 1) % 101;
    }
    countFrames(state);
}
BENCHMARK(frameOfAZoom)->Args({1366, 768})->Args({1920, 1080})->Unit(benchmark::kMillisecond);

// The most that a zoom's frame can cost: all of the screen, nearly in its own size.
void wholeScreenStretched(benchmark::State& state) {
    Screen screen(state);
    bool one = false;
    for (auto _ : state) {
        one = !one;
        screen.draw({0, 0, 1, 1}, {0, 0, one ? 0.95 : 0.96, 0.95});
    }
    countFrames(state);
}
BENCHMARK(wholeScreenStretched)
    ->Args({1366, 768})
    ->Args({1920, 1080})
    ->Unit(benchmark::kMillisecond);

// A small part over all of the screen.
void smallPartStretched(benchmark::State& state) {
    Screen screen(state);
    double left = 0;
    for (auto _ : state) {
        left = left > 0.8 ? 0 : left + 0.01;
        screen.draw({0, 0, 1, 1}, {left, 0.2, 0.1, 0.1});
    }
    countFrames(state);
}
BENCHMARK(smallPartStretched)->Args({1366, 768})->Args({1920, 1080})->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quendal
