// What the four conductometric forms share: every point comes from a completed calculation, and the
// learner's own points build the graph on the form.
#pragma once

#include "conducto/conducto_guidance.h"
#include "conducto/conducto_variant.h"
#include "workbench/workbench.h"

#include <optional>

namespace quendal {

class ChartView;

class ConductoWorkbench : public Workbench {
  public:
    explicit ConductoWorkbench(const ConductoVariant& variant);

    const ConductoVariant& conducto() const { return conducto_; }

    // The model at the volume that a calculation is about; also into IonValues.
    PointValues hCalcPoint();
    // The case of the point that a calculation is about.
    int presentCase() const;
    // A point that the learner has worked out: the total and the ions in mS/cm.
    void addPoint(double total, const std::array<double, 4>& ions);
    void redrawGraph();
    // The calculation has been closed by its last click.
    virtual void calculationClosed();

    void but_phCompare_Click() override;
    int learnerSeriesCount() const override;
    const ChartSeries* learnerSeries(int number) const override;

    void Form_Load() override;
    void describe(FieldTable& table) const override;

    // From 1: the total, then the four ions. The curve's document owns them.
    std::array<ChartSeries*, 6> Series{};
    // From 1: the ions of the point in hand in the order of the rows, then the total, in mS/cm.
    std::array<double, 6> IonValues{};
    bool BreakOpen = true;            // no two points lie on both sides of the equivalence yet
    int BreakIndex = 0;               // points before the equivalence, once the break isn't open
    std::optional<double> LastVolume; // mL from the burette at the point before

    ctl_Frame frm_Graph{*this, "frm_Graph"};
    PictureBox pic_Graph{*this, "pic_Graph"};
    ctl_Label lab_CalcUnit{*this, "lab_CalcUnit"}; // unit of the direct input

  protected:
    std::optional<Reading> presentReading() override;
    GuidedCalculation& guidance() override { return guidance_; }
    double directTarget() override;
    void directPassed(double value) override;
    ChartSeries& addLearnersSeries(ChartDocument& curve) override;
    void recordPoint(double reading) override;
    // "PIPETTE", in any letter case, clicks the pipette; other commands do nothing.
    void obey(ctl_Executor& executor);
    // Where a point goes; `volume` in mL.
    virtual void fillSeries(double volume, double total, const std::array<double, 4>& ions);

  private:
    void designConducto();
    void designTaskLines();
    const SeriesLook& lookOf(int index) const; // from 1
    ChartSeries& addOwnSeries(ChartDocument& curve, const SeriesLook& look,
                              const std::string& name) const;
    std::vector<const ChartSeries*> ownShown() const;
    void showGraph(ChartDocument& curve);
    void keepRoomForTotal();
    void compareShownOnly(ChartDocument& curve) const;
    void openBreak(double volume);
    void fitLines();

    const ConductoVariant& conducto_;
    ConductoGuidance guidance_;
    ChartView* graph_ = nullptr;        // of the learner's series alone
    std::array<double, 4> pointIons_{}; // of the point that is being recorded
};

} // namespace quendal
