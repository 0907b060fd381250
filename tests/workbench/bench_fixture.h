// A workbench on a fake host, shown without its main loop, so that a test calls its routines one by
// one. Which form it is, the fixture of that form says.
#pragma once

#include "shell/shell_fixture.h"
#include "workbench/workbench.h"

#include "shell/forms/frm_DialogphCompare.h"
#include "shell/forms/instances.h"

#include <memory>
#include <string>
#include <vector>

namespace quendal::test {

// A line of the balance.
struct SpeciesLine {
    const char* term;
    int kind;
};

class AnyBenchTest : public ShellTest {
  protected:
    static constexpr const char* kCurve = "Volumen;pH\n0;0,1\n10;7\n20;13,4\n";
    // The total and four ions.
    static constexpr const char* kIonCurve =
        "V(Z);Summe;Teil 1;Teil 2;Teil 3;Teil 4\n0;42;35;7;0;0\n20;31;0;6;8;17\n";

    AnyBenchTest() {
        session().SessionChartFactory = &host.calculator.ChartFactory();
        for (const char* digits : {"06", "08", "10", "12", "14"}) {
            for (const char* stem : {"phstark", "phschwach", "potsilber"}) {
                host.files.write(std::string("data/") + stem + digits + ".crv", kCurve);
            }
            for (const char* stem : {"lf-strong-", "lf-weak-", "lf-silver-"}) {
                host.files.write(std::string("data/") + stem + digits + ".crv", kIonCurve);
            }
        }
        host.files.write("data/lf-ph.crv", kIonCurve);
    }

    virtual std::unique_ptr<Workbench> make() = 0;
    // What the form asks for on its way to the screen.
    virtual void beforeShow() {}
    // Puts the particles into the beaker that are there when all has reacted.
    virtual void settle(int /*millilitres*/) {}

    Workbench& open(double concentration = 1.0, bool demo = false) {
        session().SessionConcentration = concentration;
        session().SessionDemo = demo;
        bench_ = make();
        beforeShow();
        host.windows.Show(*bench_);
        return *bench_;
    }
    Workbench& bench() { return *bench_; }
    // Off the screen, as at the end of a task.
    void close() {
        host.windows.Unload(*bench_);
        bench_.reset();
    }

    // As after the pipette and `millilitres` from the burette.
    void addBase(int millilitres) {
        bench().vPipShown = bench().vPipReady = false;
        bench().vBurShown = bench().vBurReady = true;
        bench().vVol = 10 + millilitres;
        bench().vSourceVol = {10, millilitres};
        bench().sClicks = millilitres;
        settle(millilitres);
        bench().hThinkDo();
    }

    template <class T>
    T& control(const char* name, int index = Control::kNoIndex) {
        return dynamic_cast<T&>(*bench().findControl(name, index));
    }
    std::string term(const char* name, int index) {
        return control<ctl_TermLabel>(name, index).term();
    }
    bool visible(const char* name, int index = Control::kNoIndex) {
        return control<Control>(name, index).visible();
    }
    clt_TermInput& input(int step) { return control<clt_TermInput>("txt_Calc", step); }
    ctl_Button& stepButton(int step) { return control<ctl_Button>("but_CalcStep", step); }

    FieldValue field(const char* name) {
        FieldTable table;
        bench().describe(table);
        return table.find(name).value();
    }
    std::int64_t number(const char* name) { return std::get<std::int64_t>(field(name)); }
    int dueStep() { return static_cast<int>(number("sStep")); }

    void startCalculation() { bench().but_HelpCalc.onClick(); }
    // Types an answer and presses the button of the step.
    void answer(int step, const std::string& text) {
        input(step).userTyped(text);
        stepButton(step).userClicked();
    }
    void choose(int option) {
        control<OptionButton>("opt_Calc", option).setChecked(true);
        stepButton(7).userClicked();
    }
    // The learner closes whatever dialog comes next.
    void closeNextDialog() {
        later([this] { host.windows.userClosed(*host.windows.top()); });
    }

    const RecordingMessageBox::Shown& lastBox() const { return host.boxes.shown.back(); }

    void begin(double concentration, int base, bool demo = false) {
        open(concentration, demo);
        addBase(base);
        startCalculation();
    }
    bool flag(const char* name) { return std::get<bool>(field(name)); }
    bool reached(int step) {
        FieldTable table;
        bench().describe(table);
        return std::get<bool>(table.find("vStepReached", step).value());
    }
    bool headingVisible(int index) { return visible("lab_CalcStep", index); }
    void expectBox(const char* kind, const std::string& text) {
        EXPECT_EQ(lastBox().kind, kind);
        EXPECT_EQ(lastBox().text, text);
        EXPECT_EQ(lastBox().title, "");
    }
    // What a learner without help is told instead of the offer.
    void expectAlarm() {
        EXPECT_EQ(lastBox().kind, "alarm");
        EXPECT_EQ(lastBox().title, "KLICKER-ALARM!");
        EXPECT_EQ(lastBox().extra, "Ico\\32\\Computer\\Signs\\Stop.ico");
        EXPECT_EQ(lastBox().text,
                  "Der Lehrer hat mir verboten, Dir zu helfen! Bist Du etwa ein böser Klicker??? "
                  "Du mußt das schon alleine schaffen! Beachte die Informationen rechts an der "
                  "Seite!");
    }
    // The sheet of a task in `sample` and `reagent`, which changes `quantity`.
    void expectTaskSheet(const std::string& sample, const std::string& reagent,
                         const std::string& quantity) {
        EXPECT_EQ(bench().lab_Step(0).text(), "Klicke auf die            Pipette, um 10 mL " +
                                                  sample + " in das Becherglas fließen zu lassen");
        EXPECT_EQ(bench().lab_Step1.text(),
                  "Klick auf                               , um mit jedem Klick                "
                  "einen  mL " +
                      reagent + " ( c= 1 mol/L) zutropfen zu lassen.");
        EXPECT_EQ(bench().lab_Step(1).text(),
                  "Klick auf                                ,um den genauen pH-Wert zu berechnen.");
        EXPECT_EQ(bench().lab_Step(2).text(),
                  "Du hast die gesamte " + reagent + " zugegeben und dabei nach und nach " +
                      quantity +
                      " verändert. Sieh Dir Dein Ergebnis an, indem Du unten auf "
                      "\"pH-Kurve anzeigen\" klickst.");
    }
    // The balance begins with these lines.
    void expectSpecies(const std::vector<SpeciesLine>& lines) {
        for (int line = 0; line < static_cast<int>(lines.size()); ++line) {
            const SpeciesLine& row = lines[static_cast<std::size_t>(line)];
            EXPECT_EQ(bench().lab_Bilanz(line).term(), row.term);
            EXPECT_EQ(bench().lab_BilanzCount(line).tag(), row.kind);
            for (const char* name : {"pic_Bilanz", "lab_Bilanz", "lab_BilanzCount"}) {
                EXPECT_TRUE(visible(name, line)) << name << " of " << row.term;
            }
        }
    }

  private:
    std::unique_ptr<Workbench> bench_;
};

} // namespace quendal::test
