// Ions between two electrodes, an ammeter, a switch and a board of conditions: what a current in a
// solution depends on.
#include "animations/frm_AppIntro.h"
#include "animations/ion_drawing.h"
#include "animations/scripts.h"
#include "host/clock.h"
#include "host/roots.h"
#include "host/window_system.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quendal {

namespace {

constexpr double kStepTime = 0.05; // s; the ions move when more than that has passed
constexpr double kTick = 1e-6;     // s, of the clock
constexpr double kSlice = 0.0126;  // s, longest rest between two looks for clicks; four to a step
constexpr int kLead = 10;          // steps that one phase may be ahead of the other
constexpr double kPi = 3.14159;    // all that the needle needs

constexpr Rect kReactor{179, 255, 534 - 179, 470 - 255};
constexpr Point kNeedleFoot{627, 392};
constexpr double kNeedleLength = 70;
constexpr double kNeedleWidth = 2.4;

enum class Press { Off, Direct, Reversed, Alternating, Ten, Twenty, Forty, Faster, Doubled };

struct PressArea {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    Press press = Press::Off;
};

// The first one that a click is in counts. Those of the switch have two parts each.
constexpr PressArea kAreas[] = {
    {81, 314, 95, 336, Press::Off},           {92, 319, 120, 332, Press::Off},
    {82, 286, 100, 309, Press::Direct},       {101, 299, 122, 316, Press::Direct},
    {116, 273, 140, 292, Press::Reversed},    {122, 295, 134, 314, Press::Reversed},
    {150, 284, 170, 302, Press::Alternating}, {138, 298, 155, 316, Press::Alternating},
    {639, 89, 655, 105, Press::Ten},          {640, 117, 655, 133, Press::Twenty},
    {638, 145, 656, 161, Press::Forty},       {640, 181, 655, 197, Press::Faster},
    {639, 209, 655, 225, Press::Doubled},
};

constexpr Point middleOf(Press press) {
    const PressArea* area = kAreas;
    while (area->press != press) {
        ++area;
    }
    return {(area->left + area->right) / 2, (area->top + area->bottom) / 2};
}

constexpr KeyPlace kKeys[] = {
    {"1", middleOf(Press::Off)},      {"2", middleOf(Press::Direct)},
    {"3", middleOf(Press::Reversed)}, {"4", middleOf(Press::Alternating)},
    {"5", middleOf(Press::Ten)},      {"6", middleOf(Press::Twenty)},
    {"7", middleOf(Press::Forty)},    {"8", middleOf(Press::Faster)},
    {"9", middleOf(Press::Doubled)},
};

// The circuit with its switch, by the mode of the current.
constexpr const char* kCircuits[] = {"ionen\\aus", "ionen\\ein", "ionen\\einup", "ionen\\ws1",
                                     "ionen\\ws2"};
// The same for a screen reader.
constexpr const char* kSettings[] = {"aus", "Gleichstrom", "Gleichstrom umgepolt", "Wechselstrom",
                                     "Wechselstrom"};
constexpr Point kCircuitPlace{400, 280};
constexpr const char* kBoard = "ionen\\bedingungen";
constexpr Point kBoardPlace{700, 150};
constexpr const char* kCountMark = "ionen\\grün1";
constexpr const char* kFastMark = "ionen\\grün2";
constexpr const char* kDoubleMark = "ionen\\grün3";
constexpr double kMarkColumn = 647;
constexpr double kFastRow = 189;
constexpr double kDoubleRow = 216;

constexpr double countRow(int ions) {
    return ions == 10 ? 97 : ions == 20 ? 124 : 152;
}

class ConductivityLesson {
  public:
    explicit ConductivityLesson(frm_AppIntro& stage) : stage_(stage), ions_(stage.Ions) {}

    void play();

  private:
    void setUp();
    void loadPictures();
    void showReactor();
    void pass();
    void moveIons();
    void drawReactor();
    void turnPolarity();
    void takeClick();
    void apply(Press press);
    void showCircuit();
    void showMark(const char* name, double row, bool shown);
    void setNeedle();
    void rest();

    frm_AppIntro& stage_;
    IonField& ions_;
    IonField::Chance chance_ = [this] { return stage_.chance(); };
    double lastStep_ = 0;    // s
    int phaseA_ = 0;         // steps with the alternating current in its first half
    int phaseB_ = 0;         // and in its second
    bool newPicture_ = true; // the circuit isn't shown as it is
};

void ConductivityLesson::play() {
    setUp();
    while (!stage_.Aborted) {
        pass();
    }
    // The stage asks whether to repeat, unless the form has left the screen.
    stage_.Aborted = !stage_.loaded();
    stage_.Clicked = false;
}

void ConductivityLesson::setUp() {
    stage_.Clicked = false; // the click that asked for a repeat isn't one on the switch
    stage_.pic_IonenReaktor.setVisible(false);
    stage_.shp_Indicator.setVisible(false);
    stage_.hSpriteClear();
    stage_.clearStage();
    stage_.title(250, "Wie kann man die Stromstärke beeinflussen? ", 25, Anchor::Left);
    stage_.hClearText();
    stage_.ShowPanel = true;
    stage_.setKeys(kKeys);
    loadPictures();
    ions_.setUp(chance_);
    showReactor();
    lastStep_ = CoreLib().Clock.Now();
}

// All pictures of the circuit now, so that none has to be loaded while the ions move.
void ConductivityLesson::loadPictures() {
    for (const char* circuit : kCircuits) {
        stage_.hSprite(kCircuitPlace.x, kCircuitPlace.y, 100, circuit);
    }
    stage_.hSprite(kBoardPlace.x, kBoardPlace.y, 100, kBoard);
    for (const char* circuit : kCircuits) {
        if (circuit != kCircuits[0]) {
            stage_.hSpriteOff(circuit);
        }
    }
    stage_.hRender();
}

void ConductivityLesson::showReactor() {
    const double left = stage_.hX(kReactor.left);
    const double top = stage_.hY(kReactor.top);
    stage_.pic_IonenReaktor.setPlace(left, top, stage_.hX(kReactor.right()) - left,
                                     stage_.hY(kReactor.bottom()) - top);
    stage_.pic_IonenReaktor.setVisible(true);
}

// A round that has moved the ions doesn't rest: the next one draws them at once.
void ConductivityLesson::pass() {
    const double now = CoreLib().Clock.Now();
    const bool due = now - lastStep_ > kStepTime;
    if (due) {
        moveIons();
        lastStep_ = now;
    } else {
        drawReactor();
    }
    CoreLib().Windows.DoEvents();
    turnPolarity();
    if (stage_.Clicked || newPicture_) {
        takeClick();
        showCircuit();
    }
    setNeedle();
    if (!due) {
        rest();
    }
}

void ConductivityLesson::moveIons() {
    phaseA_ += ions_.Mode == Current::AlternatingA ? 1 : 0;
    phaseB_ += ions_.Mode == Current::AlternatingB ? 1 : 0;
    ions_.step(chance_);
}

void ConductivityLesson::drawReactor() {
    PictureBox& box = stage_.pic_IonenReaktor;
    const double across = std::max(1.0, box.place().width) / IonField::kWidth;
    const double down = std::max(1.0, box.place().height) / IonField::kHeight;
    const double least = std::min(across, down);
    drawIons(box.surface(), ions_, {least / across, least / down});
    box.drawn();
}

// The counters run on for the whole lesson, so that the first phase takes 11 steps and each of the
// others 22.
void ConductivityLesson::turnPolarity() {
    if (ions_.Mode == Current::AlternatingA && phaseA_ > phaseB_ + kLead) {
        ions_.Mode = Current::AlternatingB;
        newPicture_ = true;
    } else if (ions_.Mode == Current::AlternatingB && phaseB_ > phaseA_ + kLead) {
        ions_.Mode = Current::AlternatingA;
        newPicture_ = true;
    }
}

// The flag goes before anything lets events in again: a click that comes meanwhile counts next.
void ConductivityLesson::takeClick() {
    if (!stage_.Clicked) {
        return;
    }
    stage_.Clicked = false;
    const auto hit =
        std::find_if(std::begin(kAreas), std::end(kAreas), [this](const PressArea& area) {
            return stage_.hClickIn(area.left, area.top, area.right, area.bottom);
        });
    if (hit != std::end(kAreas)) {
        apply(hit->press);
        drawReactor(); // ions, marks and needle change together
    }
}

void ConductivityLesson::apply(Press press) {
    switch (press) {
    case Press::Off:
        ions_.Mode = Current::Off;
        break;
    case Press::Direct:
        ions_.Mode = Current::Direct;
        break;
    case Press::Reversed:
        ions_.Mode = Current::Reversed;
        break;
    case Press::Alternating:
        ions_.spread(chance_);
        ions_.Mode = Current::AlternatingA;
        break;
    case Press::Ten:
        ions_.IonCount = 10;
        break;
    case Press::Twenty:
        ions_.IonCount = 20;
        break;
    case Press::Forty:
        ions_.IonCount = 40;
        break;
    case Press::Faster:
        ions_.FastIons = !ions_.FastIons;
        break;
    case Press::Doubled:
        ions_.DoubleCharge = !ions_.DoubleCharge;
        break;
    }
}

// From back to front: the board covers part of the circuit, and the marks lie on the board.
void ConductivityLesson::showCircuit() {
    newPicture_ = false;
    stage_.say(std::string(kSettings[static_cast<std::size_t>(ions_.Mode)]) + ", " +
               std::to_string(ions_.IonCount) + " Ionen");
    for (const char* circuit : kCircuits) {
        stage_.hSpriteOff(circuit);
    }
    stage_.hSprite(kCircuitPlace.x, kCircuitPlace.y, 100,
                   kCircuits[static_cast<std::size_t>(ions_.Mode)]);
    stage_.hSprite(kBoardPlace.x, kBoardPlace.y, 100, kBoard);
    showMark(kCountMark, countRow(ions_.IonCount), true);
    showMark(kFastMark, kFastRow, ions_.FastIons);
    showMark(kDoubleMark, kDoubleRow, ions_.DoubleCharge);
    stage_.hRender();
}

void ConductivityLesson::showMark(const char* name, double row, bool shown) {
    if (shown) {
        stage_.hSprite(kMarkColumn, row, 100, name);
    } else {
        stage_.hSpriteOff(name);
    }
}

void ConductivityLesson::setNeedle() {
    const double angle = ions_.needleAngle() * kPi / 180;
    const Point foot{static_cast<double>(stage_.hX(kNeedleFoot.x)),
                     static_cast<double>(stage_.hY(kNeedleFoot.y))};
    const Point tip{foot.x + stage_.hX(kNeedleLength) * std::cos(angle),
                    foot.y + stage_.hY(kNeedleLength) * std::sin(angle)};
    stage_.shp_Indicator.setTextColor(palette(4));
    stage_.shp_Indicator.setEnds(foot, tip, std::max(2, stage_.hY(kNeedleWidth)));
    stage_.shp_Indicator.setVisible(true);
}

// So long that the next step isn't late, and never longer than a click may wait.
void ConductivityLesson::rest() {
    const double left = lastStep_ + kStepTime + kTick - CoreLib().Clock.Now();
    stage_.rest(std::clamp(left, 0.0, kSlice));
}

} // namespace

void playConductivityLesson(frm_AppIntro& stage) {
    ConductivityLesson(stage).play();
}

} // namespace quendal
