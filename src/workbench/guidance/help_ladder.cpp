// The ladder of help: a reminder first, then the long way, then the number.
#include "workbench/guidance/guided_calculation.h"

#include "host/message_box.h"
#include "host/roots.h"
#include "shell/session/session.h"
#include "workbench/workbench.h"

#include <algorithm>

namespace quendal {

namespace {

constexpr const char* kReminder = "Das ist nicht richtig!\r\nÜberprüfe Deine Eingaben!\r\n"
                                  "Beachte die Informationen rechts an der Seite!";
constexpr const char* kNoHelp =
    "Der Lehrer hat mir verboten, Dir zu helfen! Bist Du etwa ein böser Klicker??? Du mußt das "
    "schon alleine schaffen! Beachte die Informationen rechts an der Seite!";
constexpr const char* kOfferHelp = "Das ist leider immer noch falsch! Soll ich Dir helfen?";
constexpr int kTriesBeforeHelp = 2;

bool asks(const std::string& question) {
    return CoreLib().MessageBox.YesNo(question, "") == BoxAnswer::Yes;
}

} // namespace

void GuidedCalculation::climbLadder(int step) {
    ++vTries_;
    bench_.countWrongAnswer();
    if (vTries_ < kTriesBeforeHelp) {
        CoreLib().MessageBox.Ok(kReminder, "");
        return;
    }
    if (session().SessionNoHelp) {
        CoreLib().MessageBox.Alarm(kNoHelp, "KLICKER-ALARM!", "Ico\\32\\Computer\\Signs\\Stop.ico");
        return;
    }
    const auto rung = std::find_if(tables_.rungs.begin(), tables_.rungs.end(),
                                   [step](const RungRow& row) { return row.step == step; });
    if (rung != tables_.rungs.end() && offersDetail(*rung)) {
        return;
    }
    offerNumbers(step);
}

// True when the learner took the detail, so that the ladder ends here.
bool GuidedCalculation::offersDetail(const RungRow& rung) {
    if (rung.resetsTriesAtOnce) {
        vTries_ = 0;
    }
    if (saysInPlaceOfRung(rung.step) || details_.*rung.detail || !asks(kOfferHelp)) {
        return false;
    }
    details_.*rung.detail = true;
    vTries_ = 0;
    hCalcStepShow(rung.backTo);
    return true;
}

void GuidedCalculation::offerNumbers(int step) {
    // Counted before the learner has answered, and whatever the answer will be.
    ++bench_.vSolveUsed;
    const bool choice = step == tables_.choiceStep;
    const StepRow* row = rowOf(step);
    if (asks(std::string(choice ? tables_.solveChoiceQuestion : tables_.solveQuestion)) &&
        row != nullptr) {
        fillIn(*row);
    }
}

} // namespace quendal
