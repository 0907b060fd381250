// From a click to the drops: the pipette empties, the burette gives one mL.
#include "workbench/workbench.h"

#include "host/chart.h"
#include "host/graphics.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "particles/species.h"
#include "shell/forms/frm_AppResource.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr int kPipette = 0;
constexpr int kBurette = 1;
constexpr int kBeakerLimit = 30;    // mL that the beaker takes
constexpr double kSampleMl = 10;    // mL in the pipette at any concentration
constexpr double kFrameTime = 0.05; // s for a frame of the tap
constexpr Color kNowLight{192, 255, 192};
constexpr Color kNowDark{0, 128, 0};

} // namespace

bool Workbench::busy() const {
    return guidance().frm_Calc.visible() || frm_CalcDirect.visible() || session().SessionBusy ||
           vUnload || occupied_;
}

void Workbench::but_Add_Click(int index) {
    if (busy()) {
        return;
    }
    if (!markNextPoint(index)) {
        return;
    }
    if (countingDropsInAir() * 0.001 + hGetVol(-1) >= kBeakerLimit * 0.001) {
        return;
    }
    if (index == kBurette) {
        reagentComing();
    }
    session().SessionBusy = true;
    vCalm = false;
    lab_pH.setText("?");
    if (index == kBurette) {
        doseBurette();
    } else {
        dosePipette();
        if (session().SessionRestart) {
            session().SessionBusy = false;
            return;
        }
    }
    vCalm = true;
    session().SessionBusy = false;
    but_Calc.setVisible(true);
    ctl_Button2.setVisible(true);
    ctl_Button3.setVisible(true);
    if (!vMolecules.REACT()) {
        vMolecules.GRID();
    }
}

// Counts the click and shows by the button whether the point that it leads to is due. False when it
// is refused.
bool Workbench::markNextPoint(int index) {
    const StringList& required = session().SessionRequiredPoints;
    if (index == kPipette) {
        markCalcButton(variant_.firstPoint == FirstPoint::SampleAlone && required.Contains("0"));
        return true;
    }
    if (dosingRefused()) {
        return false;
    }
    ++sClicks;
    const bool due = required.Contains(std::to_string(sClicks)) &&
                     session().SessionMySeries->Data.LastX() < sClicks;
    markCalcButton(due || vDemo);
    return true;
}

bool Workbench::dosingRefused() {
    if (vDemo) {
        return demoWantsStop();
    }
    if (pointPending()) {
        CoreLib().MessageBox.Ok("Nach der Vorgabe soll dieser Punkt gerechnet werden!", "");
        return true;
    }
    return false;
}

bool Workbench::pointPending() const {
    if (sClicks == 0 && variant_.firstPoint == FirstPoint::AfterReagent) {
        return false;
    }
    const SeriesData& points = session().SessionMySeries->Data;
    const bool required = session().SessionRequiredPoints.Contains(std::to_string(sClicks));
    return required && (points.LastX() < sClicks || (points.Count() == 0 && sClicks == 0));
}

// A demo, whose concentration is always 1.0, warns where the way of calculating changes.
bool Workbench::demoWantsStop() {
    const bool atStart = sClicks == 0 && session().SessionMySeries->Data.Count() == 0;
    const bool atChange = (sClicks == 10 || sClicks == 11) && sLastWarned != sClicks;
    if (!atStart && !atChange) {
        return false;
    }
    if (atChange) {
        sLastWarned = sClicks;
    }
    return CoreLib().MessageBox.YesNo(
               "Ab diesem Punkt beginnt ein neuer Abschnitt, dessen Rechnung man sich mit Klick "
               "auf 'DEMO' ansehen sollte. Wollen Sie das Zutropfen abbrechen?",
               "") != BoxAnswer::No;
}

void Workbench::markCalcButton(bool due) {
    const Color plain = CoreLib().Graphics.SystemColor(15);
    but_Calc.setBorderColors(due ? kNowLight : plain, due ? kNowDark : plain);
}

int Workbench::countingDropsInAir() const {
    // The pipette's counting drops never fall together with those of the burette; the 7 is the
    // sample that never falls and stands for it.
    return vDrops.COUNTSORT(variant_.buretteCountingKind) + vDrops.COUNTSORT(kHydrogenChloride);
}

double Workbench::dropX() const {
    return CoreLib().Random.next() * 10 + 50 - 5;
}

void Workbench::runTap(std::initializer_list<int> frames) {
    for (const int frame : frames) {
        hBuretteDraw(frame, -1, -1);
        hWait(kFrameTime);
    }
}

void Workbench::doseBurette() {
    runTap({2, 3, 4, 5});
    const double x = dropX();
    vSource = kBurette;
    vDrops.CREATE(variant_.burette.first, x - 2, 0);
    vDrops.CREATE(variant_.burette.second, x + 2, 0);
    if (vVol + countingDropsInAir() < kBeakerLimit) {
        runTap({5, 2, 1});
    } else {
        hBuretteOut();
        hTaskList(3);
    }
}

int Workbench::pipetteFrameNumber() const {
    const int frames = appResource().pic_AblasserBuffer.last();
    const double full = 10 * session().SessionConcentration; // mmol in the pipette
    const double emptied = std::min(vVol + 1.0, full);
    int frame = std::max(1, roundToInt(frames * emptied / full));
    if (frame == frames && vStreamFade > 0) {
        --frame; // not empty while the stream runs
    }
    return frame;
}

// True when the frame was another one.
bool Workbench::drawPipetteFrame() {
    const int frame = pipetteFrameNumber();
    if (frame == sPipFrame) {
        return false;
    }
    hPipetteDraw(frame, -1, -1);
    return true;
}

void Workbench::dosePipette() {
    vSource = kPipette;
    RandomSource& random = CoreLib().Random;
    const double millimoles = 10 * session().SessionConcentration;
    for (int pair = static_cast<int>(session().SessionConcentration * 10); pair > 0; --pair) {
        for (const int kind : variant_.pipette) {
            drawPipetteFrame();
            vDrops.CREATE(kind, dropX(), 0);
            hWait(random.next() * 0.1 + 0.1);
        }
    }
    // A pipette holds 10 mL at any concentration; the drops count only the millimoles.
    vVol = roundToInt(vVol + kSampleMl - millimoles);
    vSourceVol[kPipette] = roundToInt(vSourceVol[kPipette] + kSampleMl - millimoles);
    while (vDrops.COUNT() > 0) {
        if (drawPipetteFrame()) {
            hWait(0.1);
        }
        hXEvents();
        if (session().SessionRestart) {
            return;
        }
    }
    hPipetteDraw(appResource().pic_AblasserBuffer.last(), -1, -1);
    hPipetteOut();
    hPipetteDraw(-1, -1, kOutOfWindow);
    hBuretteIn();
    hTaskList(1);
}

} // namespace quendal
