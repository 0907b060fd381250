// A form with a fault that comes out when its button has been pressed a few times.
#pragma once

#include "host/buttons.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/panels.h"

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

  private:
    std::function<void(PlantedForm&)> fault_;
};

} // namespace quendal::test
