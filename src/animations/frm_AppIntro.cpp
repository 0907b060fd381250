#include "animations/frm_AppIntro.h"

#include "animations/scripts.h"
#include "animations/stage_layout.h"
#include "host/clock.h"
#include "host/graphics.h"
#include "host/number_service.h"
#include "host/path_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "particles/frm_AppMagnify.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr double kFrame = 1.0 / 60;  // s
constexpr double kLeastRest = 0.001; // s; on a clock of its own time only passes by resting
constexpr double kFarthest = 1e6;    // of a click, design units
constexpr Point kNoPlace{-1, -1};

constexpr const char* kRepeat = "Mit Mausklick weiter Animation wiederholen. Mit ESC beenden";

} // namespace

frm_AppIntro::frm_AppIntro() : Form("frm_AppIntro", {800, 600}) {
    design();
    pic_Stage.onMouse = [this](double x, double y, MouseButton button) { takePress(x, y, button); };
    pic_IonenReaktor.onMouse = [this](double x, double y, MouseButton button) {
        const Rect& place = pic_IonenReaktor.place();
        takePress(place.left + x * place.width / IonField::kWidth,
                  place.top + y * place.height / IonField::kHeight, button);
    };
    but_Magnify.onClick = [this] { openLens(Equilibrium::Water); };
    but_Acid.onClick = [this] { openLens(Equilibrium::Acid); };
    tmr_Startup.onTimer = [this] { run(); };
}

void frm_AppIntro::Form_Load() {
    ShowPanel = false;
    Clicked = false;
    Aborted = false;
    LastText = {};
    findSprites();
    tmr_Startup.setEnabled(true);
}

void frm_AppIntro::Form_Unload() {
    Aborted = true; // for a script that is still on the stack
    CoreLib().Graphics.forgetDetail();
}

bool frm_AppIntro::Form_QueryUnload(UnloadReason reason) {
    // The script leaves first; the form goes at the end of the routine that runs it.
    Aborted = Aborted || reason == UnloadReason::User;
    return reason == UnloadReason::Code;
}

bool frm_AppIntro::Form_KeyDown(Key key) {
    if (key == Key::Escape) {
        Aborted = true;
        return true;
    }
    const bool forButton = focus() != nullptr && focus()->shownThroughContainers();
    if (key == Key::Enter && !forButton) {
        takeKey("\r");
        return true;
    }
    return false;
}

bool frm_AppIntro::Form_KeyPress(const std::string& character) {
    const bool forButton = focus() != nullptr && focus()->shownThroughContainers();
    if (character == "\r" || (character == " " && forButton)) {
        return false;
    }
    takeKey(character);
    return true;
}

void frm_AppIntro::Form_MouseDown(double x, double y, MouseButton button) {
    takePress(x, y, button);
}

void frm_AppIntro::takeKey(std::string_view character) {
    const auto known = std::find_if(keys_.begin(), keys_.end(), [&](const KeyPlace& key) {
        return key.character == character;
    });
    const Point place = known == keys_.end() ? kNoPlace : known->place;
    Clicked = true;
    ClickX = roundToInt(place.x);
    ClickY = roundToInt(place.y);
}

// `x` and `y` in pixels of the form.
void frm_AppIntro::takePress(double x, double y, MouseButton button) {
    if (button != MouseButton::Left) {
        Aborted = true;
        return;
    }
    Clicked = true;
    ClickX = roundToInt(std::clamp(x * kStage.width / inner().width, -kFarthest, kFarthest));
    ClickY = roundToInt(std::clamp(y * kStage.height / inner().height, -kFarthest, kFarthest));
}

bool frm_AppIntro::hClickIn(double x1, double y1, double x2, double y2) const {
    return ClickX >= x1 && ClickX <= x2 && ClickY >= y1 && ClickY <= y2;
}

void frm_AppIntro::openLens(Equilibrium kind) {
    frm_AppMagnify lens;
    lens.ShowWater = kind == Equilibrium::Water;
    lens.ShowAcid = kind == Equilibrium::Acid;
    lens.SourceRight = roundToInt(inner().width);
    lens.SourceBottom = roundToInt(inner().height);
    CoreLib().Windows.ShowModal(lens);
}

void frm_AppIntro::runScript() {
    keys_ = {};
    if (const Script script = scriptOf(Scene)) {
        script(*this);
    }
    but_Magnify.setVisible(false);
    but_Acid.setVisible(false);
}

// The life of the form: scripts run inside this one tick.
void frm_AppIntro::run() {
    tmr_Startup.setEnabled(false);
    do {
        runScript();
        footer(kRepeat);
        hRender();
        keys_ = {};
        Clicked = false;
        waitForClick();
    } while (loaded() && !Aborted);
    if (loaded()) {
        CoreLib().Windows.Unload(*this);
    }
}

void frm_AppIntro::waitForClick() {
    CoreLib().Windows.waitWhile([this] { return !Clicked && !Aborted; });
}

void frm_AppIntro::tellStage() {
    const std::string told = spokenStage();
    if (told != pic_Stage.accessibleName()) {
        pic_Stage.setAccessibleName(told);
        announce(told);
    }
}

void frm_AppIntro::hRender() {
    if (ShowPanel) {
        hBox(20, 50, 780, 520, palette(15), palette(8));
    }
    drawSprites();
    hTextRepeat();
    tellStage();
    pic_Stage.drawn();
    ++frames_;
    CoreLib().Windows.DoEvents();
}

bool frm_AppIntro::tween(double seconds, const std::function<void(const Progress&)>& frame) {
    Clock& clock = CoreLib().Clock;
    const double start = clock.Now();
    for (;;) {
        const double now = clock.Now();
        const Progress at{std::min(now - start, seconds), seconds};
        if (Aborted) {
            return false;
        }
        frame(at);
        hRender();
        if (at.t >= seconds) {
            return !Aborted;
        }
        rest(kFrame - (clock.Now() - now));
    }
}

void frm_AppIntro::rest(double seconds) const {
    CoreLib().Clock.Sleep(std::max(kLeastRest, seconds), 0);
}

double frm_AppIntro::chance() const {
    return CoreLib().Random.next();
}

void frm_AppIntro::playSound(const char* file) const {
    if (!Aborted && !HostApp().SoundOptions.silent()) {
        HostApp().SoundBank.PlayFile(HostApp().PathService.DataPath() + file, 0);
    }
}

void frm_AppIntro::hWaitClick() {
    hRender();
    footer("Weiter mit Klick, Ende mit ESC");
    pic_Stage.drawn();
    Clicked = false;
    waitForClick();
}

bool frm_AppIntro::hAskChoice(const std::string& back, const std::string& forward) {
    struct Field {
        double left;
        double right;
        const std::string& text;
        double x;
        Anchor anchor;
    };
    static const std::string kEnd = "Ende der Simulation mit ESC";
    static const std::string kCross = "X";
    static constexpr KeyPlace kKeys[] = {{"<", {550, 560}}, {"-", {550, 560}}, {">", {730, 560}},
                                         {"+", {730, 560}}, {" ", {730, 560}}, {"\r", {730, 560}}};
    footer_ = kEnd;
    hBox(kFooter, kBlack, kBlack); // the stage shows between the buttons
    for (const Field& field :
         {Field{20, 500, kEnd, 30, Anchor::Left}, Field{520, 620, back, 570, Anchor::Centre},
          Field{640, 660, kCross, 650, Anchor::Centre},
          Field{680, 780, forward, 730, Anchor::Centre}}) {
        hBox(field.left, 540, field.right, 580, palette(15), palette(7));
        hPrint(field.x, 560, field.text, {.size = 20, .color = kBlack, .anchor = field.anchor});
    }
    hRender();
    setKeys(kKeys);
    const bool chosen = waitForChoice();
    setKeys({});
    return chosen;
}

// True for back. The area of the first button ends before its right edge: that is meant.
bool frm_AppIntro::waitForChoice() {
    for (;;) {
        Clicked = false;
        waitForClick();
        if (Aborted) {
            return false;
        }
        if (hClickIn(520, 540, 580, 580)) {
            return true;
        }
        if (hClickIn(640, 540, 659, 580)) {
            Aborted = true;
            return false;
        }
        if (hClickIn(680, 540, 780, 580)) {
            return false;
        }
    }
}

} // namespace quendal
