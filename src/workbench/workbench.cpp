#include "workbench/workbench.h"

#include "host/calculator.h"
#include "host/chart.h"
#include "host/clock.h"
#include "host/graphics.h"
#include "host/host_control.h"
#include "host/message_box.h"
#include "host/number_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/sound.h"
#include "host/window_system.h"
#include "particles/grid_tables.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/forms/frm_DialogDone.h"
#include "shell/forms/frm_DialogHelp.h"
#include "shell/forms/frm_DialogTerms.h"
#include "shell/forms/frm_DialogphCompare.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "workbench/guidance/answer.h"
#include "workbench/liquid_color.h"

#include <cmath>
#include <stdexcept>

namespace quendal {

namespace {

constexpr double kLastPoint = 20.0; // mL of reagent that end a task
constexpr int kSampleMl = 10;       // mL in the beaker before the first reagent
constexpr int kBlackText = 0;
constexpr int kGreyText = 8;
constexpr const char* kStepDue = "Ico\\16\\Abstract\\Arrows\\Black Compact Right.ico";
constexpr const char* kStepDone = "Ico\\16\\Computer\\Signs\\OK.ico";

} // namespace

Workbench::Workbench(const WorkbenchVariant& variant)
    : Form(std::string(variant.formName), {1000, 690}), variant_(variant) {
    setCaption(std::string(variant.caption));
    setWindowState(WindowState::Maximised);
    vMolecules.Parent = this;
    hookEvents();
}

Workbench::~Workbench() = default;

void Workbench::hookEvents() {
    mnu_FileNew.onClick = [this] {
        session().SessionRestart = true;
        vUnload = true;
    };
    mnu_FileQuit.onClick = [this] { vUnload = true; };
    mnu_HelpText.onClick = [this] { showHelp(); };
    mnu_HelpTerms.onClick = [] { CoreLib().Windows.ShowModal(dialogTerms()); };
    mnu_HelpAbout.onClick = [] { HostApp().Calculator.ShowAbout(); };
    but_Help.onClick = [this] { showHelp(); };
    but_phCompare.onClick = [this] { but_phCompare_Click(); };
    but_Calc.onClick = [this] { but_Calc_Click(); };
    ctl_Button2.onClick = [this] { but_Calc_Click(); };
    const auto glassClicked = [this] {
        if (vPipShown) {
            if (vPipReady) {
                but_Add_Click(0);
            }
        } else if (vBurShown && vBurReady) {
            but_Add_Click(1);
        }
    };
    pic_Above.onClick = glassClicked;
    ctl_Button1.onClick = glassClicked;
    ctl_Button3.onClick = glassClicked;
    but_Add.each([this](int index, ctl_Button& button) {
        button.onClick = [this, index] { but_Add_Click(index); };
    });
    but_CalcDone.onClick = [this] { but_CalcDone_Click(); };
    but_HelpCalc.onClick = [this] {
        if (!occupied_) {
            guidance().but_HelpCalc_Click();
        }
    };
    txt_Ph.onKey = [this](Key key) {
        if (key == Key::Enter) {
            but_CalcDone_Click();
        }
        return key == Key::Enter;
    };
    tmr_Unload.onTimer = [this] {
        vUnload = false;
        tmr_Unload.setEnabled(false);
        CoreLib().Windows.Unload(*this);
    };
}

void Workbench::showHelp() {
    frm_DialogHelp help;
    help.FileName = std::string(variant_.helpFile);
    CoreLib().Windows.ShowModal(help);
}

void Workbench::but_phCompare_Click() {
    if (!variant_.compareTitle.empty()) {
        dialogphCompare().setCaption(std::string(variant_.compareTitle));
    }
    CoreLib().Windows.ShowModal(dialogphCompare());
}

void Workbench::Form_Load() {
    vStartTime = CoreLib().Clock.Now();
    if (variant_.chloride != ChlorideSign::AsItStands) {
        session().PlainChloride = true;
    }
    vLastVol = -1.0;
    session().ParticleBackColor = kPlainLiquid;
    openCurve();
    CoreLib().Windows.setPointer(MousePointer::Hourglass);
    vDemo = session().SessionDemo;
    pic_Water.setBackColor(session().ParticleBackColor);
    fillGridTables(CoreLib().Random);
    CoreLib().Random.Randomize();
    hPipetteDraw(1, 132, roundToInt(-1040 / kTwipsPerUnit));
    if (vDemo) {
        hideScore();
        but_Calc.setPictureIcon("Ico\\20\\Computer\\Signs\\Next.ico");
    }
    vMolecules.GRID();
    const PicturePtr tap = buretteFrame(1);
    hBuretteDraw(1, roundToInt(-1240 / kTwipsPerUnit) - 20, tap ? -tap->height() : 0);
    drawLegend();
    setTaskSheet();
    pic_BowlOuter.sendToBack();
    hDrawBeaker();
    hTaskList(0);
    CoreLib().Windows.Unload(appSplash());
    CoreLib().Windows.setPointer(MousePointer::Normal);
}

void Workbench::hideScore() {
    frm_Score.setVisible(false);
    for (Control* control : std::initializer_list<Control*>{
             &ctl_Image1, &ctl_Image2, &Label1, &Label2, &Label3, &Label4, &Lab_Vallmista,
             &lab_punktegerechnet, &lab_solveuse, &lab_helpused}) {
        control->setVisible(false);
    }
}

void Workbench::drawLegend() {
    pic_Bilanz.each([this](int index, PictureBox& picture) {
        const auto position = static_cast<std::size_t>(index);
        const bool used = position < variant_.species.size();
        picture.setVisible(used);
        lab_Bilanz(index).setVisible(used);
        lab_BilanzCount(index).setVisible(used);
        if (!used) {
            return;
        }
        const BalanceLine& species = variant_.species[position];
        lab_Bilanz(index).setTerm(std::string(species.term));
        lab_Bilanz(index).setAccessibleName(std::string(species.spoken));
        lab_BilanzCount(index).setTag(species.kind);
    });
    drawLegendPictures();
}

void Workbench::drawLegendPictures() {
    for (std::size_t i = 0; i < variant_.species.size(); ++i) {
        cls_Molecule sample;
        sample.setSORT(variant_.species[i].legend);
        sample.PosX = 50;
        sample.PosY = 50;
        PictureBox& picture = pic_Bilanz(static_cast<int>(i));
        picture.surface().Clear();
        sample.DRAW(picture.surface());
        picture.drawn();
    }
}

void Workbench::setTaskSheet() {
    const TaskTexts& task = variant_.task;
    lab_Step(0).setText(std::string(task.sampleBefore) +
                        NumberService::pointText(session().SessionConcentration) +
                        std::string(task.sampleAfter));
    lab_Step1.setText(std::string(task.reagent));
    lab_Step(1).setText(std::string(vDemo ? task.calculateDemo : task.calculate));
    lab_Step(2).setText(std::string(task.finished));
    const char* caption = vDemo ? "Demo" : "Berechnen!";
    but_Calc.setText(caption);
    ctl_Button2.setText(caption);
}

void Workbench::hTaskList(int line) {
    vTaskStep = line;
    lab_Step.each([this, line](int index, ctl_Label& label) {
        label.setTextColor(palette(index == line ? kBlackText : kGreyText));
        pic_Step(index).setVisible(index <= line);
        if (index <= line) {
            pic_Step(index).setPictureIcon(index == line ? kStepDue : kStepDone);
        }
    });
    lab_Step1.setTextColor(lab_Step(1).textColor());
    if (line > 0) {
        ctl_Button1.setVisible(false);
    }
}

void Workbench::hShowMainControls() {
    ctl_Button3.setVisible(true);
    but_Help.setVisible(true);
    but_phCompare.setVisible(true);
}

void Workbench::hHideMainControls() {
    for (ctl_Button* button : {&ctl_Button2, &ctl_Button3, &but_Calc, &but_Help, &but_phCompare}) {
        button->setVisible(false);
    }
}

double Workbench::hGetVol(int source) const {
    if (source == -1) {
        return vVol / 1000.0;
    }
    return vSourceVol.at(static_cast<std::size_t>(source)) / 1000.0;
}

void Workbench::Form_Activate() {
    if (sActivated) {
        return;
    }
    sActivated = true;
    mainLoop();
    tmr_Unload.setEnabled(true);
}

bool Workbench::Form_QueryUnload(UnloadReason reason) {
    if (reason == UnloadReason::User) {
        HostApp().Shutdown();
        CoreLib().Windows.EndProcess();
    }
    return true;
}

void Workbench::Form_Unload() {
    if (variant_.chloride == ChlorideSign::PlainWhileOpen) {
        session().PlainChloride = false;
    }
}

bool Workbench::Form_KeyDown(Key key) {
    return key == Key::Enter && guidance().frm_Calc.visible() && guidance().clickDueStep();
}

bool Workbench::dosing() const {
    return session().SessionBusy;
}

int Workbench::learnerSeriesCount() const {
    return session().SessionMySeries != nullptr ? 1 : 0;
}

const ChartSeries* Workbench::learnerSeries(int number) const {
    return number == 1 ? session().SessionMySeries : nullptr;
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
        frm_CalcDirect.setVisible(true);
        frm_CalcDirect.bringToFront();
        txt_Ph.setFocus();
    }
}

void Workbench::but_CalcDone_Click() {
    if (occupied_) {
        return; // a wrong answer would start the tutor in the middle of it
    }
    if (hUnequal(txt_Ph.text(), vPhNow, variant_.directDigits) || !answerable()) {
        HostApp().SoundBank.Signal(1);
        ++vWrong;
        showScoreOfErrors();
        if (CoreLib().MessageBox.YesNo(std::string(variant_.wrongDirect), "") == BoxAnswer::Yes) {
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
    hPointDone(vPhNow);
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

void Workbench::hPointDone(double reading) {
    ChartSeries& series = *session().SessionMySeries;
    series.Data.Add(titrantMl(), reading);
    session().SessionChartView->Redraw(0);
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
    if (series.Data.LastX() == kLastPoint) {
        showResult();
    }
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

void Workbench::describe(FieldTable& table) const {
    Form::describe(table);
    guidance().describe(table);
    table.add("vVol", vVol);
    table.add("vDemo", vDemo);
    table.add("vLastVol", vLastVol);
    table.add("vStartTime", vStartTime);
    table.add("vSolveUsed", vSolveUsed);
    table.add("vHelpUsed", vHelpUsed);
    table.add("vUnload", vUnload);
    table.add("vAcidMol", vAcidMol);
    table.add("vBaseMol", vBaseMol);
    table.add("vConc", vConc);
    table.add("vAcidVol", vAcidVol);
    table.add("vBaseVol", vBaseVol);
    table.add("vBaseConc", vBaseConc);
    table.add("vMismatch", vMismatch);
    table.add("vWrong", vWrong);
    table.add("vPipShown", vPipShown);
    table.add("vPipReady", vPipReady);
    table.add("vPipX", vPipX);
    table.add("vPipY", vPipY);
    table.add("vBurShown", vBurShown);
    table.add("vBurReady", vBurReady);
    table.add("vBurX", vBurX);
    table.add("vBurY", vBurY);
    table.add("vBurGap", vBurGap);
    table.add("vPhNow", vPhNow);
    table.addArray("vCount", vCount);
    table.add("vCalm", vCalm);
    table.add("vStreamFade", vStreamFade);
    table.add("vTaskStep", vTaskStep);
    table.add("vSource", vSource);
    table.addArray("vSourceVol", vSourceVol);
    table.add("vPoints", vPoints);
    table.add("sLastWarned", sLastWarned);
    table.add("sClicks", sClicks);
    table.add("sPipFrame", sPipFrame);
    table.add("sBurFrame", sBurFrame);
    table.add("sActivated", sActivated);
}

} // namespace quendal
