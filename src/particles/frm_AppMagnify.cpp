#include "particles/frm_AppMagnify.h"

#include "host/clock.h"
#include "host/graphics.h"
#include "host/path_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "particles/lens_crystal.h"
#include "particles/lens_pairs.h"
#include "particles/lens_zoom.h"
#include "particles/mdl_Capture.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kFrame = 0.1;       // s, of a scene
constexpr double kSlice = 0.01;      // s between two looks for events while a frame waits
constexpr double kZoomRound = 0.01;  // s; the screen shows hardly more rounds than that
constexpr double kHalfTick = 5e-7;   // s, of the clock: what is left below it has passed
constexpr double kLeastRest = 0.001; // s; on a clock of its own time only passes by resting

void playSound(LensSound sound) {
    if (HostApp().SoundOptions.silent()) {
        return;
    }
    const char* file = sound == LensSound::Collide ? "sounds\\collide.wav" : "sounds\\ex.wav";
    HostApp().SoundBank.PlayFile(HostApp().PathService.DataPath() + file, 0);
}

} // namespace

frm_AppMagnify::frm_AppMagnify() : Form("frm_AppMagnify", {592, 444}) {
    design();
    const auto close = [this] { Closing = true; };
    for (Control* control :
         {static_cast<Control*>(&pic_Fill), static_cast<Control*>(&pic_Screen),
          static_cast<Control*>(&img_Attention), static_cast<Control*>(&lab_Attention)}) {
        control->onClick = close;
    }
    pic_Screen.onKey = [this](Key key) {
        Escaped = Escaped || key == Key::Escape;
        return key == Key::Escape;
    };
    tmr_Ani.onTimer = [this] { run(); };
}

void frm_AppMagnify::Form_Load() {
    Closing = false;
    Escaped = false;
    Started = false;
    loadPictures();
    tmr_Ani.setEnabled(true);
}

void frm_AppMagnify::loadPictures() {
    const std::string data = HostApp().PathService.DataPath();
    pic_Original.setPicture(hCaptureScreen(0)); // the form itself isn't on the screen yet
    pic_Magnify(0).setPicture(CoreLib().Graphics.LoadPicture(data + "lens_mask.gif"));
    pic_Magnify(1).setPicture(CoreLib().Graphics.LoadPicture(data + "lens.gif"));
}

bool frm_AppMagnify::Form_QueryUnload(UnloadReason reason) {
    if (reason == UnloadReason::Code) {
        return true;
    }
    // The run takes the form down itself, at its end.
    Escaped = true;
    Closing = true;
    return false;
}

bool frm_AppMagnify::Form_KeyDown(Key key) {
    if (key != Key::Escape) {
        return false;
    }
    Escaped = true;
    Closing = true;
    return true;
}

void frm_AppMagnify::Form_MouseDown(double /*x*/, double /*y*/, MouseButton button) {
    Closing = Closing || button == MouseButton::Left;
}

// Whatever lets events in may come back to a form that the program has unloaded meanwhile; then all
// that is left is to leave.
void frm_AppMagnify::run() {
    tmr_Ani.setEnabled(false);
    if (Started) {
        return;
    }
    Started = true;
    findPlace();
    zoom(Zoom::In);
    if (loaded()) {
        runScene();
    }
    if (loaded()) {
        zoom(Zoom::Out);
    }
    if (loaded()) {
        CoreLib().Windows.Unload(*this);
    }
}

void frm_AppMagnify::zoom(Zoom direction) {
    Clock& clock = CoreLib().Clock;
    const double start = clock.Now();
    double share = 0;
    while (loaded() && share < 1) {
        const double now = clock.Now();
        share = std::min(now - start, 1.0); // the zoom lasts a second
        drawZoom(zoomHundredths(direction == Zoom::In ? share : 1 - share));
        ++zoomRounds_;
        CoreLib().Windows.DoEvents();
        clock.Sleep(std::max(kLeastRest, kZoomRound - (clock.Now() - now)), 0);
    }
}

std::unique_ptr<LensScene> frm_AppMagnify::makeScene() const {
    LensWorld world{[] { return CoreLib().Random.next(); }, playSound};
    if (ShowWater) {
        return std::make_unique<PairScene>(PairKind::Water, std::move(world));
    }
    if (ShowAcid) {
        return std::make_unique<PairScene>(PairKind::AceticAcid, std::move(world));
    }
    return std::make_unique<CrystalScene>(std::move(world));
}

void frm_AppMagnify::runScene() {
    pic_Shot.setPicture(hCaptureScreen(0));
    scene_ = makeScene();
    drawLens();
    showAttention(true);
    sceneStart_ = CoreLib().Clock.Now();
    CoreLib().Random.Randomize();
    scene_->place();
    do {
        frame();
    } while (loaded() && !Closing && !Escaped);
    showAttention(false);
    pic_Screen.surface().Clear();
    pic_Screen.drawn();
    scene_.reset();
}

void frm_AppMagnify::frame() {
    Clock& clock = CoreLib().Clock;
    const double end = clock.Now() + kFrame;
    pic_Screen.surface().Clear();
    scene_->step();
    scene_->draw(pic_Screen.surface(), roundUnit());
    pic_Screen.drawn();
    ++frames_;
    CoreLib().Windows.DoEvents();
    while (loaded() && clock.Now() < end - kHalfTick) {
        clock.Sleep(std::clamp(end - clock.Now(), kLeastRest, kSlice), 0);
        CoreLib().Windows.DoEvents();
    }
}

void frm_AppMagnify::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("ShowWater", ShowWater);
    table.add("ShowAcid", ShowAcid);
    table.add("SourceLeft", SourceLeft);
    table.add("SourceTop", SourceTop);
    table.add("SourceRight", SourceRight);
    table.add("SourceBottom", SourceBottom);
    table.add("SourceScale", SourceScale);
    table.add("Closing", Closing);
    table.add("Escaped", Escaped);
    table.add("Started", Started);
    table.add("SceneStart", sceneStart_);
    table.add("Frames", frames_);
    table.add("ZoomRounds", zoomRounds_);
    if (const auto* crystal = dynamic_cast<const CrystalScene*>(scene_.get())) {
        table.addArray("ColumnOpen", crystal->ColumnOpen);
    }
    table.addGetter("Active", [this] {
        return FieldValue(std::int64_t{scene_ == nullptr ? 0 : scene_->active()});
    });
}

} // namespace quendal
