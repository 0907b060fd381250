// Message boxes and the input box on the desktop.
#pragma once

#include "host/host_observer.h"
#include "host/message_box.h"

class QLabel;

namespace quendal {

class BoxWindow;
class IconLibrary;
struct ObserverLink;
enum class BoxSign;

class DesktopMessageBox final : public MessageBox {
  public:
    DesktopMessageBox(IconLibrary& icons, const ObserverLink& link) : icons_(icons), link_(link) {}

    void Ok(const std::string& text, const std::string& title) override;
    void Info(const std::string& text, const std::string& title) override;
    BoxAnswer YesNo(const std::string& text, const std::string& title) override;
    // At most 200 characters.
    std::string Input(const std::string& prompt, const std::string& title,
                      const std::string& proposal) override;
    void Alarm(const std::string& text, const std::string& title, const std::string& icon) override;

  private:
    void showWithOk(BoxKind kind, const std::string& text, const std::string& title, BoxSign sign);
    QLabel* iconLabel(BoxWindow& box, const std::string& icon);
    // Tells the observer, if there is one, and shows the box; its answer comes by clicks and keys.
    int show(BoxWindow& box, const BoxEvent& event);

    IconLibrary& icons_;
    const ObserverLink& link_;
};

} // namespace quendal
