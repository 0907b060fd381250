// Controls that hold others or give a form its look.
#pragma once

#include "host/control.h"
#include "host/picture.h"

#include <vector>

namespace quendal {

// Frame with a title in its head.
class ctl_Frame final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Frame; }
    // A plain frame shows neither border nor title: it only holds others.
    bool plain() const { return plain_; }
    void setPlain(bool plain) { assign(plain_, plain, Aspect::Colours); }

  private:
    bool plain_ = false;
};

class ctl_Pannel final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Panel; }
    void describe(FieldTable& table) const override;
    Color bordercolor() const { return borderColor_; }
    void setBorderColor(Color color) { assign(borderColor_, color, Aspect::Colours); }
    Color backcolor() const { return backColor_; }
    void setBackColor(Color color) { assign(backColor_, color, Aspect::Colours); }

  private:
    Color borderColor_{201, 212, 214};
    Color backColor_ = kWhite;
};

// Heading of a dialog: a title, a line of text, an icon.
class ctl_Title final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Title; }
    const std::string& title() const { return title_; }
    void setTitle(std::string title) { assign(title_, std::move(title), Aspect::Text); }
    void describe(FieldTable& table) const override;

  private:
    std::string title_;
};

// Picture header of the start dialog.
class ctl_Header final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Header; }
    const PicturePtr& picture() const { return picture_; }
    void setPicture(PicturePtr picture) { assign(picture_, std::move(picture), Aspect::Picture); }

  private:
    PicturePtr picture_;
};

// Bar of dialog buttons; raises a command with the text of the pressed one.
class ctl_CmdBar final : public Control {
  public:
    struct Button {
        std::string command; // "DIALOG.OK();", "DIALOG.ABORT();" ...
        std::string text;    // German caption with its mnemonic
        std::string icon;

        friend bool operator==(const Button&, const Button&) = default;
    };

    using Control::Control;
    ControlKind kind() const override { return ControlKind::CmdBar; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;
    const std::vector<Button>& buttons() const { return buttons_; }
    void setButtons(std::vector<Button> buttons) {
        assign(buttons_, std::move(buttons), Aspect::Items);
    }
    void userCommand(const std::string& command);
    std::function<void(const std::string& command)> onCommand;

  protected:
    // A click on the bar as a whole is a click on its first button.
    void clicked() override;

  private:
    std::vector<Button> buttons_;
};

class ctl_StatusBar final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::StatusBar; }
};

class ctl_Seperator final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Separator; }
};

// A straight line from one point of its container to another, in the colour of its text.
class Line final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Line; }
    void describe(FieldTable& table) const override;
    Point from() const { return from_; }
    Point to() const { return to_; }
    double thickness() const { return thickness_; }
    // Sets its place too, to the box around the line.
    void setEnds(Point from, Point to, double thickness = 1);

  private:
    Point from_;
    Point to_;
    double thickness_ = 1;
};

// Takes commands from outside the program's own windows; never shown.
class ctl_Executor final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::Executor; }
    void userCommand(const std::string& command);
    std::function<void(const std::string& command)> onCommand;
};

// Tab control; controls stand on its pages (Control::setContainer with a page).
class TabControl final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::TabControl; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;
    const std::vector<std::string>& captions() const { return captions_; }
    void setCaptions(std::vector<std::string> captions) {
        assign(captions_, std::move(captions), Aspect::Items);
    }
    int tab() const { return tab_; }
    // Cut to the pages that are there.
    void setTab(int tab);
    // What the learner chose; raises onClick after the page has changed.
    void userChose(int tab);

  private:
    std::vector<std::string> captions_;
    int tab_ = 0;
};

// Drop-down list.
class ListBox final : public Control {
  public:
    using Control::Control;
    ControlKind kind() const override { return ControlKind::ListBox; }
    bool takesFocus() const override { return true; }
    void describe(FieldTable& table) const override;
    const std::vector<std::string>& items() const { return items_; }
    void setItems(std::vector<std::string> items);
    // -1 when nothing is chosen.
    int listIndex() const { return listIndex_; }
    // text() becomes the chosen item; an index that isn't there changes nothing and gives false.
    bool setListIndex(int index);
    void userChose(int index);

  private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

} // namespace quendal
