// What the program is, who may use it how, and what it is built with.
#pragma once

#include "desktop/boxes/box_window.h"

namespace quendal {

struct SoundOptions;

class AboutBox final : public BoxWindow {
    Q_OBJECT
  public:
    AboutBox(const SoundOptions& product, double scale);
    QPushButton& okButton() { return *ok_; }

  private:
    void addText(const QString& text, double size, bool bold = false);
    void addLine();

    QPushButton* ok_ = nullptr;
};

} // namespace quendal
