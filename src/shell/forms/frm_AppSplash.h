// The picture that bridges the start of the program. Never shown modally.
#pragma once

#include "host/form.h"
#include "host/pictures.h"

namespace quendal {

class frm_AppSplash final : public Form {
  public:
    frm_AppSplash();

    PictureBox pic_Splash{*this, "pic_Splash"};

  private:
    void design();
};

} // namespace quendal
