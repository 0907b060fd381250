#include "host/menu.h"

#include "host/form.h"

namespace quendal {

Menu::Menu(Form& form, std::string name, std::string text)
    : form_(form), name_(std::move(name)), text_(std::move(text)) {
    form_.menus_.push_back(this);
}

Menu::Menu(Menu& parent, std::string name, std::string text)
    : form_(parent.form_), parent_(&parent), name_(std::move(name)), text_(std::move(text)) {
    form_.menus_.push_back(this);
}

void Menu::userClicked() {
    if (onClick) {
        onClick();
    }
}

} // namespace quendal
