// What the learner sees before a conductometric titration: the apparatus with its electrodes.
#pragma once

#include "workbench/start_form.h"

#include <memory>

namespace quendal {

// Of both forms with hydrochloric acid.
class frm_AppMainConductoStart final : public StartForm {
  public:
    frm_AppMainConductoStart();
};

class frm_AppMainConductoWeakStart final : public StartForm {
  public:
    frm_AppMainConductoWeakStart();
};

class frm_AppMainConductoSilverStart final : public StartForm {
  public:
    frm_AppMainConductoSilverStart();
};

template <class T>
std::unique_ptr<StartForm> makeStart() {
    return std::make_unique<T>();
}

} // namespace quendal
