#include "workbench/workbench.h"

#include "host/calculator.h"
#include "host/chart.h"
#include "host/clock.h"
#include "host/number_service.h"
#include "host/random_source.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "particles/grid_tables.h"
#include "shell/forms/frm_AppSplash.h"
#include "shell/forms/frm_DialogHelp.h"
#include "shell/forms/frm_DialogTerms.h"
#include "shell/forms/instances.h"
#include "shell/session/session.h"
#include "workbench/liquid_color.h"

namespace quendal {

namespace {

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
    hookMenus();
    hookEvents();
}

Workbench::~Workbench() = default;

void Workbench::hookMenus() {
    mnu_FileNew.onClick = [this] {
        session().SessionRestart = true;
        vUnload = true;
    };
    mnu_FileQuit.onClick = [this] { vUnload = true; };
    mnu_HelpText.onClick = [this] { showHelp(); };
    mnu_HelpTerms.onClick = [] { CoreLib().Windows.ShowModal(dialogTerms()); };
    mnu_HelpAbout.onClick = [] { HostApp().Calculator.ShowAbout(); };
}

void Workbench::hookEvents() {
    but_Help.onClick = [this] { showHelp(); };
    but_phCompare.onClick = [this] { but_phCompare_Click(); };
    but_Calc.onClick = [this] { but_Calc_Click(); };
    ctl_Button2.onClick = [this] { but_Calc_Click(); };
    const auto glassClicked = [this] { clickGlass(); };
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

void Workbench::clickGlass() {
    if (vPipShown) {
        if (vPipReady) {
            but_Add_Click(0);
        }
    } else if (vBurShown && vBurReady) {
        but_Add_Click(1);
    }
}

void Workbench::showHelp() {
    frm_DialogHelp help;
    help.FileName = std::string(variant_.helpFile);
    CoreLib().Windows.ShowModal(help);
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
        picture.setAccessibleName("Zeichen für " + std::string(species.spoken));
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
            pic_Step(index).setAccessibleName(index == line ? "Jetzt dran" : "Erledigt");
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
