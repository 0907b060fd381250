#include "conducto_fixture.h"

#include "workbench/start_form.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace quendal::test {

const char* nameOf(Titration titration) {
    switch (titration) {
    case Titration::Strong:
        return "Strong";
    case Titration::Weak:
        return "Weak";
    case Titration::Silver:
        return "Silver";
    case Titration::Log:
        break;
    }
    return "Log";
}

void PrintTo(Titration titration, std::ostream* out) {
    *out << nameOf(titration);
}

void PrintTo(const PointTexts& point, std::ostream* out) {
    *out << nameOf(point.titration) << " " << point.concentration << " mol/L " << point.ml << " mL";
}

std::unique_ptr<ConductoWorkbench> makeBench(Titration titration) {
    switch (titration) {
    case Titration::Strong:
        return std::make_unique<frm_AppMainConducto>();
    case Titration::Weak:
        return std::make_unique<frm_AppMainConductoWeak>();
    case Titration::Silver:
        return std::make_unique<frm_AppMainConductoSilver>();
    case Titration::Log:
        break;
    }
    return std::make_unique<frm_AppMainConductolog>();
}

const std::vector<PointTexts> kPoints{
    {Titration::Strong,
     0.6,
     0,
     {"100", "6", "6", "0", "0", "25,57"},
     {"20,99", "4,58", "0,00", "0,00"}},
    {Titration::Strong,
     0.6,
     6,
     {"106", "0", "6", "6", "0", "7,16"},
     {"0,00", "4,32", "2,84", "0,00"}},
    {Titration::Strong,
     0.8,
     5,
     {"105", "3", "8", "5", "0", "18,20"},
     {"9,99", "5,82", "2,39", "0,00"}},
    {Titration::Strong,
     1.0,
     0,
     {"100", "10", "10", "0", "0", "42,62"},
     {"34,98", "7,64", "0,00", "0,00"}},
    {Titration::Strong,
     1.0,
     1,
     {"101", "9", "10", "1", "0", "39,23"},
     {"31,17", "7,56", "0,50", "0,00"}},
    {Titration::Strong,
     1.0,
     10,
     {"110", "0", "10", "10", "0", "11,50"},
     {"0,00", "6,95", "4,55", "0,00"}},
    {Titration::Strong,
     1.0,
     20,
     {"120", "0", "10", "20", "10", "31,27"},
     {"0,00", "6,37", "8,35", "16,55"}},
    {Titration::Strong,
     1.2,
     13,
     {"113", "0", "12", "13", "1", "15,63"},
     {"0,00", "8,11", "5,76", "1,76"}},
    {Titration::Strong,
     1.4,
     14,
     {"114", "0", "14", "14", "0", "15,53"},
     {"0,00", "9,38", "6,15", "0,00"}},
    {Titration::Weak,
     0.6,
     7,
     {"107", "0", "6", "7", "1", "7,43"},
     {"0,00", "2,29", "3,28", "1,86"}},
    {Titration::Weak,
     0.8,
     8,
     {"108", "0", "8", "8", "0", "6,74"},
     {"0,00", "3,03", "3,71", "0,00"}},
    {Titration::Weak,
     1.0,
     0,
     {"100", "0", "0", "0", "0", "0,46"},
     {"0,46", "0,00", "0,00", "0,00"}},
    {Titration::Weak,
     1.0,
     5,
     {"105", "0", "5", "5", "0", "4,34"},
     {"0,00", "1,95", "2,39", "0,00"}},
    {Titration::Weak,
     1.0,
     10,
     {"110", "0", "10", "10", "0", "8,27"},
     {"0,00", "3,72", "4,55", "0,00"}},
    {Titration::Weak,
     1.0,
     20,
     {"120", "0", "10", "20", "10", "28,31"},
     {"0,00", "3,41", "8,35", "16,55"}},
    {Titration::Weak,
     1.4,
     0,
     {"100", "0", "0", "0", "0", "0,55"},
     {"0,55", "0,00", "0,00", "0,00"}},
    {Titration::Weak,
     1.4,
     14,
     {"114", "0", "14", "14", "0", "11,17"},
     {"0,00", "5,02", "6,15", "0,00"}},
    {Titration::Silver,
     0.6,
     6,
     {"106", "0", "6", "6", "0", "6,89"},
     {"0,00", "2,84", "4,05", "0,00"}},
    {Titration::Silver,
     0.8,
     3,
     {"103", "5", "8", "3", "0", "9,68"},
     {"3,71", "3,89", "2,08", "0,00"}},
    {Titration::Silver,
     1.0,
     0,
     {"100", "10", "10", "0", "0", "12,65"},
     {"7,64", "5,01", "0,00", "0,00"}},
    {Titration::Silver,
     1.0,
     10,
     {"110", "0", "10", "10", "0", "11,05"},
     {"0,00", "4,55", "6,50", "0,00"}},
    {Titration::Silver,
     1.0,
     15,
     {"115", "0", "10", "15", "5", "16,38"},
     {"0,00", "4,36", "9,33", "2,69"}},
    {Titration::Silver,
     1.0,
     20,
     {"120", "0", "10", "20", "10", "21,26"},
     {"0,00", "4,18", "11,92", "5,16"}},
    {Titration::Silver,
     1.4,
     14,
     {"114", "0", "14", "14", "0", "14,93"},
     {"0,00", "6,15", "8,78", "0,00"}},
    {Titration::Silver,
     1.4,
     20,
     {"120", "0", "14", "20", "6", "20,86"},
     {"0,00", "5,84", "11,92", "3,10"}},
};

const PointTexts& pointOf(Titration titration, double concentration, int ml) {
    const auto found = std::find_if(kPoints.begin(), kPoints.end(), [&](const PointTexts& point) {
        return point.titration == titration && point.concentration == concentration &&
               point.ml == ml;
    });
    if (found == kPoints.end()) {
        throw std::logic_error("no such point");
    }
    return *found;
}

namespace {

// What comes into view when step `step` is reached, its buttons apart.
Names broughtBy(int step, Titration titration) {
    const bool log = titration == Titration::Log;
    Names names;
    const auto add = [&names](const char* array, int index) { names.insert(member(array, index)); };
    if (step == 1) {
        add("lab_CalcStep", 0);
        add("lab_Calc", 0);
        add("lab_Calc", 1);
        add("lab_Calc", 2);
        add("txt_Calc", 1);
    } else if (step <= 5) {
        add("lab_LF1", step);
        add("lab_LFEquals", step);
        add("lab_LFErg", step);
        if (!log || step % 2 == 0) {
            add("txt_Calc", step);
            add("lab_LFOver", step);
            add("lab_LFVol", step);
        }
        if (!log) {
            add("lab_LFTimes", step);
            add("lab_LFAeq", step);
        }
    } else if (!log) {
        add("lab_CalcStep", 2);
        add("lab_Calc", 6);
        add("txt_Calc", 6);
        add("lin_Calc", 2);
    }
    if (step == 2) {
        add("lab_CalcStep", 1);
        add("lab_Calc", 3);
        add("lab_Calc", 4);
        add("lab_Calc", 5);
        add("lin_Calc", 1);
        names.insert({"lab_LF2", "lab_LF3", "lab_LF5"});
        if (!log) {
            names.insert("lab_LF4");
        }
    }
    return names;
}

} // namespace

Names seenAt(int step, Titration titration, bool calculators) {
    Names names;
    for (int reached = 1; reached <= step; ++reached) {
        names.merge(broughtBy(reached, titration));
    }
    names.insert(member("but_CalcStep", step));
    if (calculators && step >= 2) {
        names.insert(member("but_CalcPH", step));
    }
    return names;
}

void ConductoTest::openForm(Titration titration, double concentration, bool demo) {
    titration_ = titration;
    open(concentration, demo);
}

void ConductoTest::beginPoint(Titration titration, double concentration, int ml, bool demo) {
    openForm(titration, concentration, demo);
    addBase(ml);
    startCalculation();
}

void ConductoTest::command(const std::string& text) {
    later([this, text] {
        dynamic_cast<StartForm&>(*host.windows.top()).bar_Buttons.userCommand(text);
    });
}

Texts ConductoTest::inputs() {
    Texts texts;
    for (int step = 1; step <= 6; ++step) {
        const bool there = bench().findControl("txt_Calc", step) != nullptr;
        texts.push_back(there ? input(step).text() : "");
    }
    return texts;
}

Texts ConductoTest::results() {
    Texts texts;
    for (int row = 2; row <= 5; ++row) {
        texts.push_back(result(row).text());
    }
    return texts;
}

// With the last ion comes the sum.
Texts ConductoTest::inputsUpTo(const PointTexts& point, int step) {
    Texts texts;
    for (int i = 1; i <= 6; ++i) {
        const bool written = i <= step || (i == 6 && step == 5);
        texts.emplace_back(written ? point.inputs[static_cast<std::size_t>(i - 1)] : "");
    }
    return texts;
}

Texts ConductoTest::resultsUpTo(const PointTexts& point, int step) {
    Texts texts;
    for (int row = 2; row <= 5; ++row) {
        texts.emplace_back(row <= step ? point.results[static_cast<std::size_t>(row - 2)] : kOpen);
    }
    return texts;
}

void ConductoTest::workOut(int row, double value) {
    host.calculator.values = {value};
    calculator(row).userClicked();
}

void ConductoTest::answerSteps(const PointTexts& point, int first, int last) {
    for (int step = first; step <= last; ++step) {
        input(step).userTyped(point.inputs[static_cast<std::size_t>(step - 1)]);
        if (step >= 2 && step <= 5) {
            workOut(step, host.numbers.Parse(point.results[static_cast<std::size_t>(step - 2)]));
        }
        stepButton(step).userClicked();
    }
}

void ConductoTest::calculateGuided(const PointTexts& point) {
    answerSteps(point, 1, 6);
    stepButton(6).userClicked();
}

void ConductoTest::answerDirectly(const std::string& text) {
    bench().but_Calc_Click();
    bench().txt_Ph.userTyped(text);
    bench().but_CalcDone.userClicked();
}

void ConductoTest::calculate(int ml) {
    addBase(ml);
    if (ml == 20) {
        closeNextDialog(); // the result
    }
    answerDirectly(commaText(bench().hCalcPoint().ionTotal, 2));
}

Names ConductoTest::seen() {
    Names names;
    const Control* frame = bench().findControl("frm_Calc");
    for (const Control* one : bench().controls()) {
        if (one->visible() && one->container() == frame) {
            names.insert(one->fullName());
        }
    }
    return names;
}

Texts ConductoTest::boxes() const {
    Texts texts;
    for (const auto& box : host.boxes.shown) {
        texts.push_back(box.text);
    }
    return texts;
}

std::string member(const char* name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

std::string commaText(double value, int places) {
    return NumberService(DecimalSign::Comma).Format(value, places);
}

} // namespace quendal::test
