// The view through the magnifying glass: the screen as it stands, a rectangle of it zoomed up to
// the whole form, a small scene of particles behind the glass until the learner has seen enough,
// and the way back. Filled in, shown modally, and made afresh for each opening.
#pragma once

#include "host/control_array.h"
#include "host/form.h"
#include "host/labels.h"
#include "host/pictures.h"
#include "particles/lens_scene.h"

#include <cstdint>
#include <memory>
#include <span>

namespace quendal {

class frm_AppMagnify final : public Form {
  public:
    frm_AppMagnify();

    // Set before the form is shown. With neither flag the scene is the silver chloride crystal.
    bool ShowWater = false; // autoprotolysis of water; goes before ShowAcid
    bool ShowAcid = false;  // acetic acid
    // The rectangle that is magnified. Edges may come in any order, and what lies off the screen is
    // cut off.
    std::int32_t SourceLeft = 0;
    std::int32_t SourceTop = 0;
    std::int32_t SourceRight = 0;
    std::int32_t SourceBottom = 0;
    // Pixels of the screen for one unit of these four: a form that is shown scaled gives the scale,
    // and its design px above.
    double SourceScale = 1;

    bool Closing = false; // a click
    bool Escaped = false; // the escape key, or the window was closed
    bool Started = false; // the run happens once a showing

    PictureBox pic_Fill{*this, "pic_Fill"};     // the form's own ground
    PictureBox pic_Screen{*this, "pic_Screen"}; // the scene
    ctl_Image img_Attention{*this, "img_Attention"};
    ctl_Label lab_Attention{*this, "lab_Attention"};
    // Hidden holders of pictures.
    ControlArray<PictureBox> pic_Magnify{*this, "pic_Magnify", 0, 1}; // mask and glass
    PictureBox pic_Original{*this, "pic_Original"};                   // the screen beneath the form
    PictureBox pic_Shot{*this, "pic_Shot"};                           // the magnified screen
    Timer tmr_Ani{*this, "tmr_Ani", 10};                              // starts the run

    void Form_Load() override;
    void Form_Resize() override;
    bool Form_QueryUnload(UnloadReason reason) override;
    bool Form_KeyDown(Key key) override;
    void Form_MouseDown(double x, double y, MouseButton button) override;
    void describe(FieldTable& table) const override;

    // Null but while a scene runs.
    LensScene* scene() const { return scene_.get(); }

    // Design units of 592 by 444 in px of the form, rounded half to even.
    int hScaleX(double units) const;
    int hScaleY(double units) const;
    int hScaleMin(double units) const; // the smaller of the two

  private:
    enum class Zoom { In, Out };

    void design();
    void loadPictures();
    void run();
    void zoom(Zoom direction);
    void runScene();
    void frame();
    std::unique_ptr<LensScene> makeScene() const;

    void findPlace();
    Rect source() const;
    void drawZoom(int hundredths);
    void drawOriginal(const PicturePtr& screen);
    void drawMagnified(const Rect& to);
    void drawLens();
    void drawLiquid();
    void drawCrystal();
    void drawDisc(Point centre, double radius, Color color);
    void drawPlate();
    void fillPolygon(std::span<const Point> corners, Color fill, Color outline);
    void showAttention(bool shown);
    Size unitSize() const;
    Size roundUnit() const;

    std::unique_ptr<LensScene> scene_;
    Point origin_;                // of the form on the screen, px
    double sceneStart_ = 0;       // s
    std::int64_t frames_ = 0;     // of the scene
    std::int64_t zoomRounds_ = 0; // of both zooms
};

} // namespace quendal
