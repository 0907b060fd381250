// What all workbench forms share: the life of a task from the pipette to the last point. A form of
// its own gives its data (WorkbenchVariant), its model and its guided calculation.
#pragma once

#include "host/buttons.h"
#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "particles/cls_Molecules.h"
#include "particles/liquid_owner.h"
#include "particles/particle_scene.h"
#include "workbench/guidance/guided_calculation.h"
#include "workbench/variant.h"
#include "workbench/workbench_task.h"

#include <memory>

namespace quendal {

class ChartDocument;

class Workbench : public Form, public WorkbenchTask, public ParticleScene, public LiquidOwner {
  public:
    explicit Workbench(const WorkbenchVariant& variant);
    ~Workbench() override;

    const WorkbenchVariant& variant() const { return variant_; }

    // What the collection's GRID asks for.
    int liquidVolume() const override { return vVol; }

    // Volume in litres: source -1 the beaker, 0 the pipette, 1 the burette, up to 3. Another source
    // is a fault of the program and throws std::out_of_range.
    double hGetVol(int source) const;
    // mL from the burette, computed as the points of the curve carry them.
    double titrantMl() const { return titrantVolume() * 1000; }
    // L of reagent that a calculation is about.
    virtual double titrantVolume() const { return hGetVol(1); }

    // c, V and n of sample and reagent into the fields.
    void readAmounts();
    // The fields as reference values of the present point, without what a model adds.
    PointValues amounts() const;

    void hShowMainControls();
    void hHideMainControls();
    // Marks the line of the task sheet that is due.
    void hTaskList(int line);

    // One frame of everything.
    void hThinkDo();
    // One paced turn of the frame loop; two frames.
    void hXEvents();
    // Waits, going on with the frames; ends early with SessionRestart.
    void hWait(double seconds, bool pump = true);

    // The dosing routine: 0 the pipette, 1 the burette.
    void but_Add_Click(int index);
    void but_Calc_Click();
    void but_CalcDone_Click();
    virtual void but_phCompare_Click();

    // True when the answer counts as wrong: see answer.h. Tells the learner of bad characters.
    bool hUnequal(const std::string& value, double target, int digits);
    // Records a finished point and, behind the last one, opens the result.
    void hPointDone(double reading);
    // A wrong answer: counters, label, report where the form makes one, sound.
    void countWrongAnswer(bool reported);
    // The reading of a finished point.
    void showFinished(double reading, int digits);
    // At the end of a guided calculation.
    void showGuidedReading(double reading);
    void reportProgress() const;

    // ParticleScene
    const cls_Molecules& beaker() const override { return vMolecules; }
    const cls_Molecules& drops() const override { return vDrops; }
    bool dosing() const override;
    int learnerSeriesCount() const override;
    const ChartSeries* learnerSeries(int number) const override;

    void describe(FieldTable& table) const override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    bool Form_QueryUnload(UnloadReason reason) override;
    void Form_Unload() override;
    bool Form_KeyDown(Key key) override;

    Menu mnu_File{*this, "mnu_File", "&Datei"};
    Menu mnu_FileNew{mnu_File, "mnu_FileNew", "&Neu beginnen"};
    Menu mnu_FileQuit{mnu_File, "mnu_FileQuit", "&Beenden"};
    Menu mnu_Help{*this, "mnu_Help", "&Hilfe"};
    Menu mnu_HelpText{mnu_Help, "mnu_HelpText", "Hilfe zur &Berechnung"};
    Menu mnu_HelpTerms{mnu_Help, "mnu_HelpTerms", "&Formelsammlung"};
    Menu mnu_HelpAbout{mnu_Help, "mnu_HelpAbout", "&Info über"};

    ctl_Frame frm_Holder{*this, "frm_Holder"}; // everything stands on it

    PictureBox pic_BowlOuter{*this, "pic_BowlOuter"}; // beaker with its surroundings
    PictureBox pic_Bowl{*this, "pic_Bowl"};           // inside of the glass
    PictureBox pic_Water{*this, "pic_Water"};         // the liquid
    PictureBox pic_Glass{*this, "pic_Glass"};         // glass and scale in front of the liquid
    PictureBox pic_Above{*this, "pic_Above"};         // space above the beaker

    ctl_Frame ctl_Frame2{*this, "ctl_Frame2"}; // task sheet
    ControlArray<ctl_Image> pic_Step{*this, "pic_Step", 0, 2};
    ControlArray<ctl_Label> lab_Step{*this, "lab_Step", 0, 2};
    ctl_Label lab_Step1{*this, "lab_Step1"};
    ctl_Image pic_PipetteMark{*this, "pic_PipetteMark"}; // stands in the gap of the first line
    ctl_Image pic_DropMark{*this, "pic_DropMark"};       // and in that of the second
    ctl_Button ctl_Button1{*this, "ctl_Button1"};        // as a click on the pipette
    ctl_Button ctl_Button3{*this, "ctl_Button3"};        // as a click on the burette
    ctl_Button ctl_Button2{*this, "ctl_Button2"};        // as but_Calc
    ControlArray<ctl_Button> but_Add{*this, "but_Add", 0, 1};

    ctl_Frame frm_Reading{*this, "frm_Reading"};
    ctl_TermLabel lab_pHName{*this, "lab_pHName"};
    ctl_Label lab_pH{*this, "lab_pH"}; // reading of the point finished last

    ctl_Button but_Calc{*this, "but_Calc"};
    ctl_Button but_Help{*this, "but_Help"};
    ctl_Button but_phCompare{*this, "but_phCompare"};

    ctl_Frame frm_Volumes{*this, "frm_Volumes"};
    ControlArray<ctl_TermLabel> lab_VolLabel{*this, "lab_VolLabel", 0, 3};
    ControlArray<ctl_TermLabel> lab_Vol{*this, "lab_Vol", 0, 2};

    ctl_Frame frm_Bilanz{*this, "frm_Bilanz"};
    ControlArray<PictureBox> pic_Bilanz{*this, "pic_Bilanz", 0, 4};
    ControlArray<ctl_TermLabel> lab_Bilanz{*this, "lab_Bilanz", 0, 4};
    ControlArray<ctl_TermLabel> lab_BilanzCount{*this, "lab_BilanzCount", 0, 4};

    ctl_Frame frm_Score{*this, "frm_Score"}; // score of the task, hidden in the demo
    ctl_Image ctl_Image1{*this, "ctl_Image1"};
    ctl_Image ctl_Image2{*this, "ctl_Image2"};
    ctl_Label Label1{*this, "Label1"};
    ctl_Label Label2{*this, "Label2"};
    ctl_Label Label3{*this, "Label3"};
    ctl_Label Label4{*this, "Label4"};
    ctl_Label Lab_Vallmista{*this, "Lab_Vallmista"}; // vWrong
    ctl_Label lab_punktegerechnet{*this, "lab_punktegerechnet"};
    ctl_Label lab_solveuse{*this, "lab_solveuse"};
    ctl_Label lab_helpused{*this, "lab_helpused"};

    ctl_Frame frm_CalcDirect{*this, "frm_CalcDirect"};
    ctl_TermLabel lab_CalcX{*this, "lab_CalcX"};
    clt_TermInput txt_Ph{*this, "txt_Ph"};
    ctl_Button but_CalcDone{*this, "but_CalcDone"};
    ctl_Button but_HelpCalc{*this, "but_HelpCalc"};

    // Leaves the form after its main loop, so that it isn't unloaded from inside that loop.
    Timer tmr_Unload{*this, "tmr_Unload", 100};

  protected:
    // What the model says of the present beaker.
    struct Reading {
        double shown = 0; // given to the places that the form shows
        Color liquid;
    };
    // Once a frame, also while the beaker is empty; none: there is nothing to be said yet.
    virtual std::optional<Reading> presentReading() = 0;
    // What a form adds to the end of a frame, and to an accepted click on the burette.
    virtual void frameDone() {}
    virtual void reagentComing() {}
    // False: no direct answer is right at this point.
    virtual bool answerable() const { return true; }
    // What a direct answer is compared with, and what follows a right one.
    virtual double directTarget() { return vPhNow; }
    virtual void directPassed(double value) { hPointDone(value); }
    // The learner's series on a curve that has just been opened; gives the one that counts points.
    virtual ChartSeries& addLearnersSeries(ChartDocument& curve);
    // A finished point into the learner's series.
    virtual void recordPoint(double reading);
    // A calculation, dosing or another click that takes its time is under way.
    bool busy() const;

    // One paced turn: events, a frame, events, sleep to 20 ms.
    void turn();
    // Lets frames run until what falls has landed and what reacts has reacted, at most 10 s. False:
    // a dosing or another click is under way, or the form is about to go.
    bool settleBeaker();
    // As a click on the glass that stands over the beaker.
    void clickGlass();
    // The form is about to go, so loops end.
    bool leaving() const;
    // Keeps other clicks from dosing or calculating while one is at work. Not taken when another
    // one is.
    class Occupation {
      public:
        explicit Occupation(Workbench& bench) : bench_(bench), taken_(!bench.occupied_) {
            bench_.occupied_ = true;
        }
        ~Occupation() {
            if (taken_) {
                bench_.occupied_ = false;
            }
        }
        Occupation(const Occupation&) = delete;
        Occupation& operator=(const Occupation&) = delete;
        bool taken() const { return taken_; }

      private:
        Workbench& bench_;
        const bool taken_;
    };
    // The guided calculation of the form. Asked for once, at the end of the construction.
    virtual GuidedCalculation& guidance() = 0;
    const GuidedCalculation& guidance() const { return const_cast<Workbench*>(this)->guidance(); }
    // Places of all shared controls, in workbench_design.cpp.
    void design();
    void designApparatus();
    void designTaskSheet();
    void mark(ctl_Image& image, const Rect& place, const char* icon);
    void designReadings();
    void designScore();
    void designDirectInput();

  private:
    static constexpr int kScaleTicks = 35; // of the beaker
    // A glass at this height is out of the window.
    static constexpr int kOutOfWindow = -1000;

    void hookMenus();
    void hookEvents();
    void openCurve();
    void drawLegend();
    void drawLegendPictures();
    void setTaskSheet();
    void showHelp();
    void hideScore();
    void showScoreOfErrors();
    void showResult();
    void announceReading(double reading);
    void mainLoop();

    void hDropsStep();
    void moveDrops();
    void land(int index);
    void drawStream();
    void hBeakerStep(bool calm);
    void hParticleStep(bool calm);
    void topUpWater();
    void hDrawBeaker();
    void placeWater();
    double waterHeight() const; // px
    void showReading();
    void showBalance();
    void tellBeaker();
    int balanceOf(const BalanceLine& species) const;
    void showVolumes();
    void showTotalVolume();

    bool markNextPoint(int index);
    bool dosingRefused();
    bool pointPending() const;
    bool demoWantsStop();
    void markCalcButton(bool due);
    int countingDropsInAir() const;
    void dosePipette();
    void doseBurette();
    void runTap(std::initializer_list<int> frames);
    double dropX() const;
    int pipetteFrameNumber() const;
    bool drawPipetteFrame();

    void hPipetteDraw(int frame, int x, int y);
    void hBuretteDraw(int frame, int x, int y);
    PicturePtr pipetteFrame(int frame) const;
    PicturePtr buretteFrame(int frame) const;
    void drawGlasses();
    void copyGlass(const PicturePtr& clean, const PicturePtr& bowlCopy, int x, int y);
    void hPipetteOut();
    void hBuretteIn();
    void hBuretteOut();
    void drawScale();
    void letterScale(Surface& glass, Point place, int millilitres) const;
    void drawGlassOutline(Surface& glass) const;

    const WorkbenchVariant& variant_;
    bool occupied_ = false; // a click that takes its time is under way

    // What the controls show at present, so that a frame at rest writes nothing.
    struct Shown {
        std::array<int, 5> balance{-1, -1, -1, -1, -1};
        std::array<bool, 5> trace{};
        std::array<int, 2> volume{-1, -1};
        double concentration = -1;
        std::optional<int> total;     // mL
        std::array<int, 21> counts{}; // particles by kind, as the beaker is described
        std::optional<int> told;      // mL in the beaker when it was announced
        bool stillScene = false;      // nothing falls and the glasses stand as drawn
    };
    Shown shown_;
};

} // namespace quendal
