// A control: a plain object with text, place, colours and events, without any window system. A host
// shows it through a peer and reports back what the learner did through the user... operations.
#pragma once

#include "host/color.h"
#include "host/field_table.h"
#include "host/font.h"
#include "host/geometry.h"

#include <functional>
#include <string>

namespace quendal {

class Form;

enum class Aspect {
    Text,
    Visible,
    Enabled,
    Place,
    Colours,
    Font,
    Picture, // icon or picture
    Value,   // checked, chosen index, mood ...
    Items,
    Focus,   // the control wants the focus
    Order,   // brought to the front or sent to the back
    Drawing, // the picture box was drawn on
    Spoken   // what a screen reader is told beside the text, and the tool tip
};

// What a host attaches to a control. Told of real changes only, after the fact.
class ControlPeer {
  public:
    virtual ~ControlPeer() = default;
    virtual void changed(Aspect aspect) = 0;
};

enum class ControlKind {
    Button,
    Panel,
    Image,
    Label,
    Frame,
    Title,
    Header,
    CmdBar,
    StatusBar,
    Separator,
    Executor,
    TermLabel,
    TermInput,
    DrAtom,
    PictureBox,
    OptionButton,
    CheckBox,
    ListBox,
    TabControl,
    RichTextBox,
    Line
};

enum class TextAlign { Left, Centre, Right };
enum class MouseButton { Left, Right };
enum class Key { Enter = 13, Escape = 27, Tab = 9, Other = 0 };

// Why a learner can't reach a control at the moment.
enum class Reach { Reachable, Hidden, Disabled, Beneath };

class Control {
  public:
    static constexpr int kNoIndex = -1;

    Control(Form& form, std::string name, int index = kNoIndex);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual ControlKind kind() const = 0;

    Form& form() const { return form_; }
    const std::string& name() const { return name_; }
    int index() const { return index_; }
    // Name as in the code, with the index in parentheses where there is one.
    std::string fullName() const;

    // The container it stands in (null: the form itself) and, on a tab control, its page from 0.
    Control* container() const { return container_; }
    int page() const { return page_; }
    void setContainer(Control& container, int page = -1);

    const std::string& text() const { return text_; }
    void setText(std::string text) { assign(text_, std::move(text), Aspect::Text); }
    // The control's own flag; see reach() for what the learner sees.
    bool visible() const { return visible_; }
    void setVisible(bool visible) { assign(visible_, visible, Aspect::Visible); }
    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled) { assign(enabled_, enabled, Aspect::Enabled); }

    // Place in the container, in design units.
    const Rect& place() const { return place_; }
    void setPlace(const Rect& place) { assign(place_, place, Aspect::Place); }
    void setPlace(double left, double top, double width, double height) {
        setPlace(Rect{left, top, width, height});
    }
    void setTop(double top) { setPlace(place_.left, top, place_.width, place_.height); }

    const FontSpec& font() const { return font_; }
    void setFont(FontSpec font) { assign(font_, std::move(font), Aspect::Font); }
    Color textColor() const { return textColor_; }
    void setTextColor(Color color) { assign(textColor_, color, Aspect::Colours); }
    TextAlign textAlign() const { return textAlign_; }
    void setTextAlign(TextAlign align) { assign(textAlign_, align, Aspect::Text); }

    // Path in the icon library, empty for none.
    const std::string& pictureIcon() const { return pictureIcon_; }
    void setPictureIcon(std::string icon) {
        assign(pictureIcon_, std::move(icon), Aspect::Picture);
    }

    // What a screen reader says when the text alone doesn't tell; empty: the text.
    const std::string& accessibleName() const { return accessibleName_; }
    void setAccessibleName(std::string name) {
        assign(accessibleName_, std::move(name), Aspect::Spoken);
    }
    // What a picture or a reading says in words, for who doesn't see it; the name doesn't repeat
    // it.
    const std::string& description() const { return description_; }
    void setDescription(std::string text) { assign(description_, std::move(text), Aspect::Spoken); }
    const std::string& toolTip() const { return toolTip_; }
    void setToolTip(std::string text) { assign(toolTip_, std::move(text), Aspect::Spoken); }

    void bringToFront();
    void sendToBack();

    // Asks for the focus; nothing happens when the control can't have it.
    void setFocus();
    bool hasFocus() const;
    virtual bool takesFocus() const { return false; }

    // Visible and enabled through all containers, on the chosen tab page, on the topmost form.
    Reach reach() const;
    bool shownThroughContainers() const;
    bool enabledThroughContainers() const;

    // What the learner did. Each returns without effect when the control is hidden or disabled.
    void userClicked();
    // True when the key was used up.
    bool userKey(Key key, const std::string& character = {});
    void userMouse(double x, double y, MouseButton button);

    std::function<void()> onClick;
    // True swallows the key.
    std::function<bool(Key key)> onKey;
    // In the control's own scale units.
    std::function<void(double x, double y, MouseButton button)> onMouse;

    // Text, visible, enabled, colours, place ... under the names that scripts use.
    virtual void describe(FieldTable& table) const;

    void attachPeer(ControlPeer* peer) { peer_ = peer; }
    ControlPeer* peer() const { return peer_; }

  protected:
    template <class T>
    void assign(T& field, T value, Aspect aspect) {
        if (!(field == value)) {
            field = std::move(value);
            notify(aspect);
        }
    }
    void notify(Aspect aspect) {
        if (peer_ != nullptr) {
            peer_->changed(aspect);
        }
    }
    virtual void clicked();

  private:
    Form& form_;
    std::string name_;
    int index_;
    Control* container_ = nullptr;
    int page_ = -1;
    ControlPeer* peer_ = nullptr;
    std::string text_;
    std::string pictureIcon_;
    std::string accessibleName_;
    std::string description_;
    std::string toolTip_;
    Rect place_;
    FontSpec font_;
    Color textColor_ = kBlack;
    TextAlign textAlign_ = TextAlign::Left;
    bool visible_ = true;
    bool enabled_ = true;
};

} // namespace quendal
