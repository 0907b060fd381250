// Gives a form any size, as a window does that was pulled larger.
#pragma once

#include "support/fake_roots.h"

namespace quendal::test {

class FormSizer final : public WindowSystem {
  public:
    void give(Form& form, Size inner) { resize(form, inner); }
    Size screen() const override { return {}; }
    double scaleOf(const Form&) const override { return 1; }
    void setPointer(MousePointer) override {}
    [[noreturn]] void EndProcess() override { throw ProcessEnded{}; }

  protected:
    void deliverEvents() override {}
    void waitForEvents(double) override {}
    void realise(Form&, bool) override {}
    void withdraw(Form&) override {}
};

} // namespace quendal::test
