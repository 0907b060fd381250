// The ladder of help: a reminder first, then the long way, then the number.
#include "workbench/guidance/guided_calculation.h"

#include "host/message_box.h"
#include "host/roots.h"
#include "shell/session/session.h"
#include "workbench/guidance/ladder_texts.h"
#include "workbench/workbench.h"

#include <algorithm>

namespace quendal {

namespace {

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
    bench_.countWrongAnswer(tables_.counting.reported);
    if (vTries_ < kTriesBeforeHelp) {
        CoreLib().MessageBox.Ok(std::string(tables_.reminder), "");
        return;
    }
    if (session().SessionNoHelp) {
        CoreLib().MessageBox.Alarm(kNoHelp, "KLICKER-ALARM!", "Ico\\32\\Computer\\Signs\\Stop.ico");
        return;
    }
    const LayoutState state = layoutState();
    const auto rung =
        std::find_if(tables_.rungs.begin(), tables_.rungs.end(), [&](const RungRow& row) {
            return row.step == step && (row.when == nullptr || row.when(state));
        });
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
    bench_.vHelpUsed += tables_.counting.help ? 1 : 0;
    // Step 0 is none and shows nothing.
    vStepReached_[static_cast<std::size_t>(rung.reached)] = true;
    vStepReached_[static_cast<std::size_t>(rung.notReached)] = false;
    hCalcStepShow(rung.backTo);
    return true;
}

void GuidedCalculation::offerNumbers(int step) {
    // Counted before the learner has answered, and whatever the answer will be.
    bench_.vSolveUsed += tables_.counting.solve ? 1 : 0;
    const bool choice = step == tables_.choiceStep;
    const StepRow* row = rowOf(step, point_.caseNumber());
    if (asks(std::string(choice ? tables_.solveChoiceQuestion : kGiveNumbers)) && row != nullptr) {
        fillIn(*row);
    }
}

} // namespace quendal
