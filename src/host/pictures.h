// Controls that show pictures.
#pragma once

#include "host/control.h"
#include "host/picture.h"
#include "host/surface.h"
#include "host/text_size.h"

#include <memory>

namespace quendal {

class PictureBox;

// Size of the box's surface in the units of its scale.
Size surfaceScale(const PictureBox& box);

// A surface for boxes that no host has given one: it knows its size and draws nothing.
class NullSurface final : public Surface {
  public:
    explicit NullSurface(const PictureBox& owner) : owner_(owner) {}
    double ScaleWidth() const override { return surfaceScale(owner_).width; }
    double ScaleHeight() const override { return surfaceScale(owner_).height; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {}
    void Line(Point, Point, Color, double) override {}
    void Box(Point, Point, Color) override {}
    void Circle(Point, double, Color) override {}
    void Polygon(std::span<const Point>, Color) override {}
    void Text(Point, std::string_view, const FontSpec&, Color) override {}
    void Copy(const PicturePtr&, Point) override {}
    void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}

  private:
    const PictureBox& owner_;
};

// A picture with drawing into it.
class PictureBox final : public Control {
  public:
    PictureBox(Form& form, std::string name, int index = kNoIndex)
        : Control(form, std::move(name), index), none_(*this) {}
    ControlKind kind() const override { return ControlKind::PictureBox; }
    void describe(FieldTable& table) const override;

    const PicturePtr& picture() const { return picture_; }
    void setPicture(PicturePtr picture) { assign(picture_, std::move(picture), Aspect::Picture); }
    Color backcolor() const { return backColor_; }
    void setBackColor(Color color) { assign(backColor_, color, Aspect::Colours); }
    // Shows what lies behind where nothing is drawn, and lets clicks through unless it waits for
    // them itself.
    bool overlay() const { return overlay_; }
    void setOverlay(bool overlay) { assign(overlay_, overlay, Aspect::Colours); }

    // Units that the surface counts across the box; none (0 by 0) means design px.
    Size scaleSize() const { return scaleSize_; }
    void setScaleSize(Size units) { assign(scaleSize_, units, Aspect::Picture); }

    // Whoever draws calls drawn() once at the end of the drawing.
    Surface& surface() { return surface_ != nullptr ? *surface_ : none_; }
    void drawn() { notify(Aspect::Drawing); }
    // The host's surface must live as long as it is attached; null takes it away.
    void attachSurface(Surface* surface) { surface_ = surface; }
    // Ends with the box, for whoever keeps a pointer to it for later.
    std::weak_ptr<const void> life() const { return life_; }

  private:
    std::shared_ptr<const void> life_ = std::make_shared<char>();
    NullSurface none_;
    Surface* surface_ = nullptr;
    PicturePtr picture_;
    Color backColor_ = kWhite;
    Size scaleSize_;
    bool overlay_ = false;
};

inline Size surfaceScale(const PictureBox& box) {
    const bool units = box.scaleSize().width > 0 && box.scaleSize().height > 0;
    return units ? box.scaleSize() : Size{box.place().width, box.place().height};
}

// Small picture from the icon library.
class ctl_Image final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Image; }
};

// The mascot: a friendly atom. Moods: 1 content, 2 happy, 3 sad, 5 worried, 6 thoughtful.
class ctl_DrAtom final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::DrAtom; }
    void describe(FieldTable& table) const override;
    int Mood() const { return mood_; }
    void setMood(int mood) { assign(mood_, mood, Aspect::Value); }
    // Where the eyes look when they don't follow: degrees, 0 to the right, counter-clockwise.
    double eyedirection() const { return eyeDirection_; }
    void setEyeDirection(double angle) { assign(eyeDirection_, angle, Aspect::Value); }
    bool eyemove() const { return eyeMove_; } // the eyes follow the pointer
    void setEyeMove(bool move) { assign(eyeMove_, move, Aspect::Value); }
    bool mouthopen() const { return mouthOpen_; }
    void setMouthOpen(bool open) { assign(mouthOpen_, open, Aspect::Value); }
    double orbspped() const { return orbitSpeed_; } // turns of the electrons a second
    void setOrbitSpeed(double speed) { assign(orbitSpeed_, speed, Aspect::Value); }
    bool buble() const { return bubble_; } // a speech bubble with text() in it
    void setBubble(bool bubble) { assign(bubble_, bubble, Aspect::Value); }

  private:
    int mood_ = 1;
    double eyeDirection_ = 90;
    double orbitSpeed_ = 0.2;
    bool eyeMove_ = true;
    bool mouthOpen_ = false;
    bool bubble_ = false;
};

} // namespace quendal
