// What the learner sees before the titration of chloride with silver: the apparatus.
#pragma once

#include "workbench/start_form.h"

namespace quendal {

class frm_AppMainSilverStart final : public StartForm {
  public:
    frm_AppMainSilverStart();
};

} // namespace quendal
