// Controls that are pressed or switched.
#pragma once

#include "host/control.h"

namespace quendal {

// Button with an icon and two border colours.
class ctl_Button final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Button; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;

    // The first colour paints the ground and the second the border and the text's accent, so that a
    // light pair says "now"; the system's button colour in both is the plain look.
    Color bordercolor() const { return borderColor_; }
    Color bordercolor2() const { return borderColor2_; }
    void setBorderColors(Color first, Color second) {
        assign(borderColor_, first, Aspect::Colours);
        assign(borderColor2_, second, Aspect::Colours);
    }
    // Free text for whoever works the button from outside; carries no meaning here.
    const std::string& script() const { return script_; }
    void setScript(std::string script) { script_ = std::move(script); }

  private:
    Color borderColor_{240, 240, 240};
    Color borderColor2_{240, 240, 240};
    std::string script_;
};

// One choice of several in the same container; choosing one clears the others.
class OptionButton final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::OptionButton; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;

    bool checked() const { return checked_; }
    // Choosing it clears the other options of the container that have the same name.
    void setChecked(bool checked);

  protected:
    void clicked() override;

  private:
    bool checked_ = false;
};

class CheckBox final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::CheckBox; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;

    bool checked() const { return checked_; }
    void setChecked(bool checked) { assign(checked_, checked, Aspect::Value); }
    // What the learner did; a click is the same as switching over.
    void userChecked(bool checked);

  protected:
    void clicked() override;

  private:
    bool checked_ = false;
};

} // namespace quendal
