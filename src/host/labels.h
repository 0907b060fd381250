// Controls that show or take a text.
#pragma once

#include "host/control.h"

namespace quendal {

class ctl_Label final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Label; }
    void describe(FieldTable& table) const override;
    bool wordwrap() const { return wordWrap_; }
    void setWordWrap(bool wrap) { assign(wordWrap_, wrap, Aspect::Text); }
    double angle() const { return angle_; } // degrees, counter-clockwise
    void setAngle(double angle) { assign(angle_, angle, Aspect::Text); }

  private:
    bool wordWrap_ = true;
    double angle_ = 0;
};

// Shows a term in the markup of term_markup.h.
class ctl_TermLabel final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::TermLabel; }
    void describe(FieldTable& table) const override;
    const std::string& term() const { return text(); }
    void setTerm(std::string term) { setText(std::move(term)); }
    // Carries the particle kind on balance lines; 0 elsewhere.
    int tag() const { return tag_; }
    void setTag(int tag) { tag_ = tag; }

  private:
    int tag_ = 0;
};

// Input of a number in the look of a term; text() is what was typed.
class clt_TermInput final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::TermInput; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;
    bool locked() const { return locked_; }
    void setLocked(bool locked) { assign(locked_, locked, Aspect::Enabled); }
    // What the learner typed, in place of what stood there; at most kMaxLength characters are kept.
    void userTyped(const std::string& text);

    static constexpr std::size_t kMaxLength = 200;
    std::function<void()> onChange;

  private:
    bool locked_ = false;
};

class RichTextBox final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::RichTextBox; }
    bool takesFocus() const override { return true; }
    // Shows the file; one that is missing or broken gives a short German sentence instead of it.
    void LoadFile(std::string fileName) { assign(fileName_, std::move(fileName), Aspect::Value); }
    const std::string& fileName() const { return fileName_; }
    void describe(FieldTable& table) const override;

  private:
    std::string fileName_;
};

} // namespace quendal
