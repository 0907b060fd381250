// Modal boxes. Each lets the window system work while it waits, so timers of the form go on.
#pragma once

#include <string>

namespace quendal {

enum class BoxAnswer { Yes = 6, No = 7 };

class MessageBox {
  public:
    virtual ~MessageBox() = default;
    virtual void Ok(const std::string& text, const std::string& title) = 0;
    virtual void Info(const std::string& text, const std::string& title) = 0;
    // Closing the box in any other way counts as No.
    virtual BoxAnswer YesNo(const std::string& text, const std::string& title) = 0;
    // One line; cancelling gives the empty text.
    virtual std::string Input(const std::string& prompt, const std::string& title,
                              const std::string& proposal) = 0;
    // `icon` is a path in the icon library; one that isn't there shows none.
    virtual void Alarm(const std::string& text, const std::string& title,
                       const std::string& icon) = 0;
};

} // namespace quendal
