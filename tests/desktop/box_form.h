// A form that is one white picture box.
#pragma once

#include "host/form.h"
#include "host/pictures.h"

namespace quendal::test {

class BoxForm final : public Form {
  public:
    BoxForm() : Form("frm_Box", {200, 100}) {
        box.setPlace(0, 0, 200, 100);
        box.setBackColor({255, 255, 255});
    }
    PictureBox box{*this, "box"};
};

} // namespace quendal::test
