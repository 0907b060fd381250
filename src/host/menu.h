// Menus of a form.
#pragma once

#include <functional>
#include <string>

namespace quendal {

class Form;

// A menu of the bar, or an item of one.
class Menu {
  public:
    // A menu of the bar.
    Menu(Form& form, std::string name, std::string text);
    // An item of `parent`.
    Menu(Menu& parent, std::string name, std::string text);
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    Form& form() const { return form_; }
    const std::string& name() const { return name_; }
    const std::string& text() const { return text_; }
    const Menu* parent() const { return parent_; }

    void userClicked();
    std::function<void()> onClick;

  private:
    Form& form_;
    Menu* parent_ = nullptr;
    std::string name_;
    std::string text_;
};

} // namespace quendal
