#include "case_fixture.h"

#include "particles/species.h"
#include "weak_silver/frm_AppMainSilverStart.h"

#include <algorithm>
#include <cmath>

namespace quendal::test {

namespace {

// What both forms show alike.
const ViewRow kSharedView[] = {
    {1, "txt_Calc(1)"},
    {1, "lab_Calc(2)", "mol / L"},
    {2, "txt_Calc(2)"},
    {2, "lab_Calc(4)", "L"},
    {3, "txt_Calc(3)"},
    {3, "lab_Calc(7)", "mol"},
    {4, "txt_Calc(4)"},
    {4, "lab_Calc(13)", "mol / L"},
    {5, "txt_Calc(5)"},
    {5, "lab_Calc(11)", "L"},
    {6, "txt_Calc(6)"},
    {6, "lab_Calc(8)", "mol"},
    {7, "opt_CalcStore", "Rechnung beibehalten"},
    {12, "txt_Calc(12)"},
};

bool tells(const Control& control) {
    switch (control.kind()) {
    case ControlKind::Label:
    case ControlKind::TermLabel:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
        return true;
    default:
        return false;
    }
}

std::string member(const char* array, int index) {
    return std::string(array) + "(" + std::to_string(index) + ")";
}

} // namespace

std::map<int, Asked> askedAmounts(double concentration, int ml) {
    const double titrant = ml / 1000.0;
    return {{1, {concentration}}, {2, {0.01}},   {3, {concentration * 0.01}}, {4, {1}},
            {5, {titrant}},       {6, {titrant}}};
}

std::vector<int> helpedTo(std::vector<int> tail) {
    const int amounts[] = {3, 1, 2, 3, 6, 4, 5, 6, 7};
    tail.insert(tail.begin(), std::begin(amounts), std::end(amounts));
    return tail;
}

void CaseTest::beginPoint(double concentration, int ml, bool demo) {
    case_ = lesson_.caseOf(concentration, ml);
    asked_ = lesson_.asked(concentration, ml);
    reached_.clear();
    open_.clear();
    typed_.clear();
    begin(concentration, ml, demo);
}

Seen CaseTest::seen() {
    Seen all;
    const Control* frame = bench().findControl("frm_Calc");
    for (const Control* one : bench().controls()) {
        if (one->visible() && one->container() == frame && one->kind() != ControlKind::Line) {
            all[one->fullName()] = tells(*one) ? one->text() : "";
        }
    }
    return all;
}

std::string CaseTest::filled(std::string text) const {
    for (const auto& [step, typed] : typed_) {
        const std::string mark = "{" + std::to_string(step) + "}";
        if (const auto at = text.find(mark); at != std::string::npos) {
            text.replace(at, mark.size(), typed);
        }
    }
    return text;
}

Seen CaseTest::view(int due) const {
    Seen all;
    const auto show = [&](const ViewRow& row) {
        const bool here = reached_.contains(row.step) && (row.cases & inCase(case_)) != 0;
        if (here && (row.detail == nullptr || open_.contains(row.detail))) {
            all[row.control] = filled(row.text);
        }
    };
    std::for_each(std::begin(kSharedView), std::end(kSharedView), show);
    std::for_each(lesson_.view.begin(), lesson_.view.end(), show);
    all[member("but_CalcStep", due)] = "";
    if (std::find(lesson_.calculators.begin(), lesson_.calculators.end(), due) !=
        lesson_.calculators.end()) {
        all[member("but_CalcPH", due)] = "";
    }
    return all;
}

std::string CaseTest::wrongText(int step, int direction) const {
    const Asked& right = asked(step);
    const int digits = right.digits < 0 ? 4 : right.digits;
    return host.numbers.Format(right.value + direction * std::pow(10.0, -digits), digits);
}

std::string CaseTest::rightText(int step, Care care) const {
    const Asked& right = asked(step);
    const bool exact = right.digits < 0;
    const std::string rounded = host.numbers.Format(right.value, exact ? 3 : right.digits);
    return exact || care == Care::Rounded ? rounded : rounded + "4";
}

void CaseTest::answerWrong(int step, int direction) {
    if (step == 7) {
        choose(case_ % 4);
    } else {
        answer(step, wrongText(step, direction));
    }
}

void CaseTest::answerRight(int step, Care care) {
    reached_.insert(step);
    if (step == 7) {
        choose(case_ - 1);
    } else {
        typed_[step] = rightText(step, care);
        answer(step, typed_[step]);
    }
}

void CaseTest::twoMistakes(int step, std::deque<BoxAnswer> answers) {
    answerWrong(step);
    host.boxes.answers = std::move(answers);
    answerWrong(step);
}

Boxes CaseTest::boxes() const {
    Boxes texts;
    for (const auto& box : host.boxes.shown) {
        texts.push_back(box.text);
    }
    return texts;
}

void CaseTest::goTo(int step) {
    for (int turn = 0; dueStep() != step; ++turn) {
        ASSERT_LT(turn, 13) << "step " << step << " isn't on the way";
        answerRight(dueStep());
    }
    reached_.insert(step);
}

const HelpRow* CaseTest::helpAt(int step) const {
    const auto help = std::find_if(lesson_.help.begin(), lesson_.help.end(), [&](const auto& row) {
        return row.step == step && (row.cases & inCase(case_)) != 0;
    });
    return help == lesson_.help.end() || open_.contains(help->flag) ? nullptr : &*help;
}

void CaseTest::takeHelp(const HelpRow& help) {
    answerWrong(help.step, -1);
    host.boxes.answers = {BoxAnswer::Yes};
    answerWrong(help.step, -1);
    expectBox("yesno", kHelp);
    open_.insert(help.flag);
    reached_.insert(help.backTo);
    reached_.erase(help.notReached);
}

void CaseTest::walk(const std::vector<int>& steps, bool helped) {
    for (std::size_t at = 0; at < steps.size(); ++at) {
        const int step = steps[at];
        ASSERT_EQ(dueStep(), step) << "after " << at << " steps";
        reached_.insert(step);
        EXPECT_EQ(seen(), view(step)) << "step " << step;
        if (const HelpRow* help = helped ? helpAt(step) : nullptr) {
            takeHelp(*help);
            continue;
        }
        answerWrong(step, helped ? -1 : 1);
        EXPECT_EQ(dueStep(), step);
        EXPECT_EQ(number("vTries"), 1);
        if (at + 1 == steps.size()) {
            closeEnd();
        }
        answerRight(step, helped ? Care::Sloppy : Care::Rounded);
    }
    EXPECT_FALSE(visible("frm_Calc"));
}

void CaseTest::closeEnd() {
    if (bench().titrantMl() == 20) {
        closeNextDialog();
    }
    closeNextDialog();
}

std::string CaseTest::checkedOptions() {
    std::string all;
    for (int option = 0; option < 4; ++option) {
        if (control<OptionButton>("opt_Calc", option).checked()) {
            all += std::to_string(option);
        }
    }
    return all;
}

std::vector<std::string> CaseTest::inputTexts() {
    std::vector<std::string> texts;
    for (const int step : {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12}) {
        texts.push_back(input(step).text());
    }
    return texts;
}

std::vector<int> CaseTest::clickThrough() {
    std::vector<int> steps{dueStep()};
    while (steps.back() != 12) {
        stepButton(steps.back()).userClicked();
        if (dueStep() <= steps.back()) {
            ADD_FAILURE() << "step " << steps.back() << " doesn't let go";
            break;
        }
        steps.push_back(dueStep());
    }
    return steps;
}

WeakTest::WeakTest() : CaseTest(weakLesson()) {}

void WeakTest::put(int kind, int count) {
    for (int n = 0; n < count; ++n) {
        bench().vMolecules.CREATE(kind, 4 + 4 * n, 50);
    }
}

void WeakTest::settle(int millilitres) {
    const int acid = static_cast<int>(std::lround(10 * session().SessionConcentration));
    bench().vMolecules.DATABASE_DatabaseClear();
    put(kAceticAcid, std::max(0, acid - millilitres));
    put(kAcetate, std::min(acid, millilitres));
    put(kHydroxide, std::max(0, millilitres - acid));
    put(kSodium, millilitres);
}

SilverTest::SilverTest() : CaseTest(silverLesson()) {}

void SilverTest::command(const std::string& text) {
    later([this, text] {
        dynamic_cast<frm_AppMainSilverStart&>(*host.windows.top()).bar_Buttons.userCommand(text);
    });
}

} // namespace quendal::test
