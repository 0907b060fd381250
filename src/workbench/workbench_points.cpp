// Points of the curve: what is asked, what counts as right, what is counted and told.
#include "host/chart.h"
#include "host/clock.h"
#include "host/host_control.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "shell/forms/frm_DialogDone.h"
#include "shell/forms/frm_DialogphCompare.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "workbench/amounts.h"
#include "workbench/guidance/answer.h"
#include "workbench/workbench.h"

namespace quendal {

namespace {

constexpr double kLastPoint = 20.0; // mL of reagent that end a task
constexpr int kSampleMl = 10;       // mL in the beaker before the first reagent

} // namespace

void Workbench::readAmounts() {
    vConc = session().SessionConcentration;
    vAcidMol = vConc * kSampleVolume;
    vAcidVol = kSampleVolume;
    vBaseConc = kReagentConcentration;
    vBaseVol = hGetVol(1);
    vBaseMol = vBaseVol * vBaseConc;
}

PointValues Workbench::amounts() const {
    return {.concentration = session().SessionConcentration,
            .acidVol = vAcidVol,
            .acidMol = vAcidMol,
            .baseConc = vBaseConc,
            .baseVol = vBaseVol,
            .baseMol = vBaseMol,
            .totalVol = hGetVol(-1)};
}

void Workbench::but_Calc_Click() {
    if (!settleBeaker()) {
        return;
    }
    if (variant_.firstPoint == FirstPoint::AfterReagent && vVol == kSampleMl) {
        but_Add_Click(1); // nothing to calculate yet: the click is taken for the first mL
        return;
    }
    if (vDemo) {
        guidance().but_HelpCalc_Click();
    } else if (!guidance().frm_Calc.visible() && !frm_CalcDirect.visible()) {
        guidance().hideHints();
        if (variant_.directHidesControls) {
            hHideMainControls();
        }
        frm_CalcDirect.setVisible(true);
        frm_CalcDirect.bringToFront();
        txt_Ph.setFocus();
    }
}

void Workbench::but_CalcDone_Click() {
    if (occupied_) {
        return; // a wrong answer would start the tutor in the middle of it
    }
    const double target = directTarget();
    if (hUnequal(txt_Ph.text(), target, variant_.directDigits) || !answerable()) {
        HostApp().SoundBank.Signal(1);
        ++vWrong;
        showScoreOfErrors();
        if (CoreLib().MessageBox.YesNo(std::string(variant_.wrongDirect), "") == BoxAnswer::Yes) {
            vHelpUsed += variant_.countsDirectHelp ? 1 : 0;
            guidance().but_HelpCalc_Click();
        } else {
            txt_Ph.setFocus();
        }
        return;
    }
    HostApp().SoundBank.Signal(2);
    frm_CalcDirect.setVisible(false);
    if (const auto digits = variant_.readingDigits.direct) {
        showFinished(vPhNow, *digits);
    }
    directPassed(target);
}

void Workbench::showGuidedReading(double reading) {
    showFinished(reading, variant_.readingDigits.guided);
}

void Workbench::showFinished(double reading, int digits) {
    lab_pH.setText(CoreLib().NumberService.Format(reading, digits) +
                   std::string(variant_.readingUnit));
}

bool Workbench::hUnequal(const std::string& value, double target, int digits) {
    switch (compareAnswer(CoreLib().NumberService, value, target, digits)) {
    case AnswerVerdict::Equal:
        return false;
    case AnswerVerdict::Empty:
        return true;
    case AnswerVerdict::Unreadable:
        CoreLib().MessageBox.Ok("Deine Eingabe enthält unzulässige Zeichen!", "");
        return true;
    case AnswerVerdict::Differs:
        break;
    }
    ++vMismatch;
    return true;
}

void Workbench::countWrongAnswer(bool reported) {
    ++vWrong;
    showScoreOfErrors();
    if (reported) {
        reportProgress();
    }
    HostApp().SoundBank.Signal(1);
}

void Workbench::showScoreOfErrors() {
    Lab_Vallmista.setText(std::to_string(vWrong));
}

void Workbench::reportProgress() const {
    HostApp().HostControl.ReportProgress(vPoints, vWrong, 0, 0, "", "", "STATUS", 0, 10, 1);
}

void Workbench::recordPoint(double reading) {
    session().SessionMySeries->Data.Add(titrantMl(), reading);
}

void Workbench::hPointDone(double reading) {
    recordPoint(reading);
    session().SessionChartView->Redraw(0);
    announceReading(reading);
    if (vDemo) {
        return;
    }
    ++vPoints;
    CoreLib().MessageBox.Info("Diesen Titrationspunkt hast Du geschafft! Es ist der " +
                                  std::to_string(vPoints) + ". Punkt",
                              "Punktberechnung");
    lab_punktegerechnet.setText(std::to_string(vPoints));
    lab_solveuse.setText(std::to_string(vSolveUsed));
    lab_helpused.setText(std::to_string(vHelpUsed));
    reportProgress();
    if (session().SessionMySeries->Data.LastX() == kLastPoint) {
        showResult();
    }
}

void Workbench::announceReading(double reading) {
    const NumberService& numbers = CoreLib().NumberService;
    announce(std::string(variant_.spokenReading) + " " +
             numbers.Format(reading, variant_.readingDigits.guided) +
             std::string(variant_.spokenUnit) + " nach " +
             numbers.text(roundDecimals(titrantMl(), 2)) + " mL");
}

void Workbench::showResult() {
    constexpr int kTaskPoints = 1000;
    frm_DialogDone result;
    result.Task = kTaskPoints;
    result.SolveUsed = vSolveUsed;
    result.Wrong = vWrong;
    result.Points = vPoints;
    result.HelpUsed = vHelpUsed;
    result.Duration = CoreLib().Clock.Now() - vStartTime;
    CoreLib().Windows.ShowModal(result);
}

void Workbench::but_phCompare_Click() {
    if (!variant_.compareTitle.empty()) {
        dialogphCompare().setCaption(std::string(variant_.compareTitle));
    }
    CoreLib().Windows.ShowModal(dialogphCompare());
}

} // namespace quendal
