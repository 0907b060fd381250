// A workbench whose liquid can be looked at through a magnifying glass. The glass slides in, the
// view of the particles runs as a form of its own, the glass slides out again.
#pragma once

#include "workbench/workbench.h"

namespace quendal {

class frm_AppMagnify;

// Which scene the glass shows.
enum class LensView { Acid, SilverChloride };

class LensWorkbench : public Workbench {
  public:
    LensWorkbench(const WorkbenchVariant& variant, LensView scene, const char* caption);

    void but_ShowMag_Click();

    void describe(FieldTable& table) const override;

    ctl_Button but_ShowMag{*this, "but_ShowMag"}; // opens the view through the glass
    PictureBox pic_Magnify{*this, "pic_Magnify"}; // the glass while it slides
    // Asks the next frame to open the view. Nothing sets it; the way stays for a later control.
    bool ShowMagRequested = false;

  protected:
    void frameDone() override;

  private:
    enum class Slide { In, Out };

    void designLens(const char* caption);
    void slide(Slide way);
    void moveGlass(double inside);
    void aim(frm_AppMagnify& lens) const;

    const LensView scene_;
    int shownFrame_ = 0; // picture of the glass that is drawn
};

} // namespace quendal
