#include "monkey/invariants.h"

#include "host/chart.h"
#include "host/form.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "monkey/monkey_words.h"
#include "script/stage.h"
#include "script/values.h"
#include "workbench/workbench.h"

#include <algorithm>

namespace quendal {

std::string expectOther(const std::string& thing, const std::string& value) {
    return "expect " + thing + " != " + scriptWord(value);
}

std::optional<Finding> checkTop(const Stage& stage) {
    const Form* top = CoreLib().Windows.top();
    if (top == nullptr) {
        return std::nullopt;
    }
    const auto& forms = stage.forms();
    if (forms.empty() || forms.front() != top || !top->shown()) {
        return Finding{"the form in front, " + top->name() + ", isn't the one shown last",
                       {expectOther("top", top->name())}};
    }
    for (const Form* form : forms) {
        if (std::count_if(forms.begin(), forms.end(),
                          [&](const Form* other) { return other->name() == form->name(); }) > 1) {
            return Finding{form->name() + " is on the screen twice",
                           {expectOther("top", top->name())}};
        }
    }
    return std::nullopt;
}

std::optional<Finding> CounterWatch::check(const Workbench& bench) {
    if (form_ != &bench) {
        form_ = &bench;
        last_.clear();
    }
    const ChartSeries* points = bench.learnerSeries(1);
    const std::pair<const char*, int> counters[] = {
        {"vWrong", bench.vWrong},       {"vPoints", bench.vPoints},
        {"vHelpUsed", bench.vHelpUsed}, {"vSolveUsed", bench.vSolveUsed},
        {"sClicks", bench.sClicks},     {"vSourceVol(1)", bench.vSourceVol[1]},
        {"vTaskStep", bench.vTaskStep}, {"series(1).count", points ? points->Data.Count() : 0},
    };
    for (const auto& [name, value] : counters) {
        int& before = last_[name];
        if (value < before) {
            const bool ofForm = !std::string(name).starts_with("series");
            const std::string thing = (ofForm ? bench.name() + "." : "") + name;
            return Finding{thing + " fell from " + std::to_string(before) + " to " +
                               std::to_string(value),
                           {expectOther(thing, std::to_string(value))}};
        }
        before = value;
    }
    return std::nullopt;
}

void CounterWatch::forget(const Form& form) {
    if (form_ == &form) {
        form_ = nullptr;
    }
}

namespace {

// By mark, from 1.
constexpr const char* kMarkTexts[] = {"Sehr gut",    "Gut",        "Befriedigend",
                                      "Ausreichend", "Mangelhaft", "Ungenügend"};
// Least score for the marks from 1; a task is worth 1000.
constexpr int kMarkScores[] = {900, 800, 650, 400, 200};

int markOfScore(int score) {
    const auto* row = std::find_if(std::begin(kMarkScores), std::end(kMarkScores),
                                   [=](int least) { return score >= least; });
    return static_cast<int>(row - std::begin(kMarkScores)) + 1;
}

} // namespace

namespace {

std::string progressWords(int points, int wrong) {
    return "progress " + std::to_string(points) + " " + std::to_string(wrong);
}

std::string resultWords(int score, double mark, const std::string& markText) {
    return "result " + std::to_string(score) + " " + numberText(mark) + " " + scriptWord(markText);
}

} // namespace

void ReportWatch::report(std::string words, const std::string& fault,
                         const std::vector<std::string>& due) {
    if (!fault.empty() && !finding_) {
        finding_ = Finding{"report \"" + words + "\": " + fault, {}};
        reports_.insert(reports_.end(), due.begin(), due.end());
        for (const std::string& one : reports_) {
            finding_->expects.push_back("expect report " + one);
        }
        if (due.empty()) {
            finding_->expects.emplace_back("expect noreport");
        }
    }
    reports_.push_back(std::move(words));
}

void ReportWatch::progress(const Workbench* bench, int points, int wrong) {
    std::string fault;
    std::vector<std::string> due;
    if (bench == nullptr) {
        fault = "there is no task";
    } else if (points != bench->vPoints || wrong != bench->vWrong) {
        fault = "the form has other numbers";
        due = {progressWords(bench->vPoints, bench->vWrong)};
    } else if (points < points_ || wrong < wrong_) {
        fault = "a number has fallen";
    }
    points_ = points;
    wrong_ = wrong;
    report(progressWords(points, wrong), fault, due);
}

void ReportWatch::result(const Workbench* bench, int score, double mark,
                         const std::string& markText) {
    const int place = markOfScore(score);
    const std::string right = resultWords(score, place, kMarkTexts[place - 1]);
    std::string fault;
    std::vector<std::string> due;
    if (bench == nullptr || bench->vDemo) {
        fault = "there is no task that has a result";
    } else if (bench->vPoints == 0) {
        fault = "no point has been calculated";
    } else if (bench->vPoints != points_) {
        fault = "the last point hasn't been reported";
        due = {progressWords(bench->vPoints, bench->vWrong), right};
    } else if (mark != place || markText != kMarkTexts[place - 1]) {
        fault = "the score is worth another mark";
        due = {right};
    }
    report(resultWords(score, mark, markText), fault, due);
}

void ReportWatch::benchClosed() {
    points_ = 0;
    wrong_ = 0;
}

} // namespace quendal
