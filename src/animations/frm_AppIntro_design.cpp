#include "animations/frm_AppIntro.h"

#include <cmath>

namespace quendal {

namespace {

constexpr const char* kSearchIcon = "Ico\\20\\Computer\\Signs\\Search.ico";
constexpr double kButtonText = 18; // points

} // namespace

void frm_AppIntro::design() {
    setCaption("Intro Quendal");
    setWindowState(WindowState::Maximised);
    setFrameless(true);
    setScalesItself(true);
    pic_Stage.setBackColor(kBlack);
    pic_Stage.setAccessibleName("Bühne der Lernanimation");
    pic_IonenReaktor.setOverlay(true);
    pic_IonenReaktor.setScaleSize({IonField::kWidth, IonField::kHeight});
    pic_IonenReaktor.setAccessibleName("Ionen zwischen zwei Elektroden");
    pic_IonenReaktor.setVisible(false);
    shp_Indicator.setAccessibleName("Zeiger des Strommessers");
    shp_Indicator.setVisible(false);
    pic_Sprite(0).setVisible(false);
    but_Magnify.setText("Reaktion mit mehreren Teilchen");
    but_Acid.setText("Säure-Base-Gleichgewicht ansehen");
    for (ctl_Button* button : {&but_Magnify, &but_Acid}) {
        button->setPictureIcon(kSearchIcon);
        button->setVisible(false);
    }
}

void frm_AppIntro::Form_Resize() {
    pic_Stage.setPlace(0, 0, inner().width, inner().height);
}

void frm_AppIntro::showLensButton(Equilibrium kind) {
    ctl_Button& button = kind == Equilibrium::Water ? but_Magnify : but_Acid;
    button.setPlace(hX(405), hY(545), hX(365), hY(30));
    button.setFont({.size = points(hH(kButtonText))});
    button.setVisible(true);
}

void frm_AppIntro::describe(FieldTable& table) const {
    Form::describe(table);
    table.add("Scene", Scene);
    table.add("ShowPanel", ShowPanel);
    table.add("Clicked", Clicked);
    table.add("ClickX", ClickX);
    table.add("ClickY", ClickY);
    table.add("Aborted", Aborted);
    table.add("LastText", LastText.text);
    table.add("Footer", footer_);
    table.addGetter("Spoken", [this] { return FieldValue(spokenStage()); });
    table.add("Frames", frames_);
    describeSprites(table);
    describeIons(table);
}

void frm_AppIntro::describeIons(FieldTable& table) const {
    table.add("IonCount", Ions.IonCount);
    table.add("IonSlots", Ions.IonSlots);
    table.add("Mode", Ions.Mode);
    table.add("FastIons", Ions.FastIons);
    table.add("DoubleCharge", Ions.DoubleCharge);
    table.add("DepositedCount", Ions.DepositedCount);
    table.add("LeftPlate", Ions.LeftPlate);
    table.add("RightPlate", Ions.RightPlate);
    table.addGetter("Needle", [this] { return FieldValue(Ions.needleAngle()); });
    const auto add = [&](const char* name, auto field) {
        table.addIndexedGetter(name, [this, field](int index) -> std::optional<FieldValue> {
            if (index < 1 || index > Ions.IonSlots) {
                return std::nullopt;
            }
            return toFieldValue(Ions.Ions[static_cast<std::size_t>(index)].*field);
        });
    };
    add("IonX", &Ion::X);
    add("IonY", &Ion::Y);
    add("IonRest", &Ion::Rest);
    add("IonNegative", &Ion::Negative);
    add("IonDeposited", &Ion::Deposited);
}

} // namespace quendal
