// Places of what the conductometric forms have beside the workbench: the graph under the task
// sheet, the longer lines on that sheet.
#include "conducto/conducto_workbench.h"
#include "shell/forms/arrange.h"

namespace quendal {

namespace {

constexpr double kMiddle = 322;
constexpr double kMiddleWidth = 444;
constexpr Rect kGraph{kMiddle, 396, kMiddleWidth, 238};
constexpr double kHead = 34; // of a frame

} // namespace

void ConductoWorkbench::designConducto() {
    // There is nothing to be read off: the graph takes the place.
    frm_Reading.setVisible(false);
    arrange(frm_Graph, frm_Holder, kGraph, {.size = 14, .bold = true});
    frm_Graph.setText(std::string(conducto_.texts.graphTitle));
    frm_Graph.setPictureIcon("Ico\\20\\Science\\Math\\Graph.ico");
    pic_Graph.setContainer(frm_Graph);
    pic_Graph.setPlace(6, kHead, kGraph.width - 12, kGraph.height - kHead - 4);
    pic_Graph.setAccessibleName(std::string(conducto_.texts.graphTitle) +
                                ": die Punkte, die Du berechnet hast");
    // Over all lines of the task sheet but the first.
    frm_CalcDirect.setPlace(kMiddle, 166, kMiddleWidth, 218);
    arrange(lab_CalcUnit, frm_CalcDirect, {102, 98, 130, 24});
    lab_CalcUnit.setText(std::string(conducto_.texts.directUnit));
    // The names of the volumes are longer than on the other forms.
    lab_VolLabel.each([](int index, ctl_TermLabel& name) {
        name.setPlace(10, 42.0 + 29 * index, index == 3 ? 198 : 128, 26);
    });
    lab_Vol.each(
        [](int index, ctl_TermLabel& value) { value.setPlace(142, 42.0 + 29 * index, 70, 26); });
    designTaskLines();
}

void ConductoWorkbench::designTaskLines() {
    constexpr double kSample = 82; // height of the longest line
    constexpr double kReagent = 174;
    constexpr double kCalculate = 236;
    constexpr double kFinished = 296;
    const Rect& sample = lab_Step(0).place();
    lab_Step(0).setPlace(sample.left, sample.top, sample.width, kSample);
    ctl_Button1.setTop(134);
    lab_Step1.setTop(kReagent);
    ctl_Button3.setTop(kReagent - 4);
    pic_DropMark.setTop(kReagent - 3);
    lab_Step(1).setTop(kCalculate);
    ctl_Button2.setTop(kCalculate - 4);
    lab_Step(2).setTop(kFinished);
    pic_Step(1).setTop(kCalculate);
    pic_Step(2).setTop(kFinished);
}

} // namespace quendal
