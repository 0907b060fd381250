// A form with a fault that comes out when its button has been pressed a few times.
#pragma once

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"
#include "host/pictures.h"

#include <functional>
#include <string>

namespace quendal::test {

class PlantedForm final : public Form {
  public:
    // `fault` happens at the third press.
    explicit PlantedForm(std::function<void(PlantedForm&)> fault)
        : Form("frm_Planted", {400, 300}), fault_(std::move(fault)) {
        lab_Text.setPlace(10, 10, 200, 20);
        lab_Text.setText("Alles gut");
        but_Press.setPlace(10, 50, 100, 30);
        but_Press.setText("Drück mich");
        txt_Any.setPlace(10, 100, 100, 30);
        frm_Lid.setPlace(200, 200, 100, 90);
        lab_Volume.setPlace(230, 10, 50, 20);
        lab_Result.setPlace(300, 10, 50, 20);
        pan_Ground.setPlace(230, 50, 150, 30);
        lab_OnGround.setContainer(pan_Ground);
        lab_OnGround.setPlace(5, 5, 100, 20);
        lab_OnGround.setText("Grund");
        pic_Ground.setPlace(230, 100, 150, 30);
        lab_InPicture.setContainer(pic_Ground);
        lab_InPicture.setPlace(5, 5, 100, 20);
        lab_InPicture.setText("Bild");
        but_Press.onClick = [this] {
            if (++presses == 3) {
                fault_(*this);
            }
        };
    }

    int presses = 0;
    ctl_Label lab_Text{*this, "lab_Text"};
    ctl_Button but_Press{*this, "but_Press"};
    clt_TermInput txt_Any{*this, "txt_Any"};
    ctl_Frame frm_Lid{*this, "frm_Lid"};
    ctl_Label lab_Volume{*this, "lab_LFVol", 2}; // repeats, on the workbenches, what was typed
    ctl_Label lab_Result{*this, "lab_LFErg", 2}; // and this one what the calculator gave
    ctl_Pannel pan_Ground{*this, "pan_Ground"};
    ctl_Label lab_OnGround{*this, "lab_OnGround"};
    PictureBox pic_Ground{*this, "pic_Ground"};
    ctl_Label lab_InPicture{*this, "lab_InPicture"};

  private:
    std::function<void(PlantedForm&)> fault_;
};

} // namespace quendal::test
