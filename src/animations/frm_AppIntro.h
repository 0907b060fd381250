// The stage of the learning animations: the whole screen, on which a script prints, draws, moves
// sprites and waits for clicks. The scripts know nothing of its real size: all their places are
// those of a space of 800 by 600, and sizes of texts are points of it.
#pragma once

#include "animations/ion_field.h"
#include "animations/stage_sprite.h"
#include "host/buttons.h"
#include "host/control_array.h"
#include "host/form.h"
#include "host/key_list.h"
#include "host/panels.h"
#include "host/pictures.h"
#include "host/rich_text.h"
#include "host/timer.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace quendal {

// Where a text stands: its column begins, is centred or ends at the place, its row is centred on
// it, below or above. The last of each four is a second name for the first and left out.
enum class Anchor {
    Left = 0,
    Centre = 1,
    Right = 2,
    BelowLeft = 4,
    BelowCentre = 5,
    BelowRight = 6,
    AboveLeft = 8,
    AboveCentre = 9,
    AboveRight = 10
};

// How a text is printed; everything but the text and its place has a default.
struct PrintStyle {
    double size = -1;           // points; -1: the default of 20
    std::optional<Color> color; // none: the one in use, white for rich text
    Anchor anchor = Anchor::Left;
    bool rich = false; // with tags; a text with "->" is rich without it
};

// Where a motion stands.
struct Progress {
    double t = 0; // s since its start, at most d
    double d = 1; // s that it lasts; 0: it is over at once

    double g() const { return d > 0 ? t * 100 / d : 100; }     // percent that is done
    double m() const { return d > 0 ? (d - t) * 100 / d : 0; } // percent that is left
};

// A key that stands for a click at a place of the design space.
struct KeyPlace {
    std::string_view character; // "\r" is Enter
    Point place;
};

// A step between two pictures of pic_phF.
struct Zoom {
    int first = 1;
    int second = 1;
    double factor = 1;   // size of the first within the second, once both are there
    double inner = 1;    // part of the panel that the first fills at the start
    double duration = 0; // s
};

// What the lens shows more of.
enum class Equilibrium { Water, Acid };

class frm_AppIntro final : public Form {
  public:
    static constexpr Size kStage{800, 600}; // the space that scripts think in

    frm_AppIntro();

    // Which script runs, set before the form is shown: 0 logarithm lesson, 1 HCl in water,
    // 3 autoprotolysis, 4 weak acid, 5 neutralisation, 6 precipitation, 7 conductivity lesson.
    std::int32_t Scene = 0;
    bool ShowPanel = false; // hRender draws the panel first
    bool Clicked = false;   // a left button went down since the flag was last cleared
    // Where, in design coordinates; -1 for a key that stands for no place.
    std::int32_t ClickX = 0;
    std::int32_t ClickY = 0;
    bool Aborted = false; // ESC, another button, the window closed: every script must leave
    KeyList SpriteList;   // the sprites on the stage, by their index, in drawing order
    std::vector<Sprite> Sprites{1}; // counted from 1; the first is never used
    class RichText RichText;        // paints rich text for hPrint
    // The last rich text with its rectangle in pixels, painted anew with every hRender.
    struct {
        double Left = 0;
        double Top = 0;
        double Right = 0;
        double Bottom = 0;
        std::string text;
        class RichText painter;
    } LastText;
    IonField Ions; // the conductivity lesson

    PictureBox pic_Stage{*this, "pic_Stage"};               // the form's own surface
    PictureBox pic_IonenReaktor{*this, "pic_IonenReaktor"}; // ions of the conductivity lesson
    Line shp_Indicator{*this, "shp_Indicator"};             // the needle of the ammeter
    ControlArray<PictureBox> pic_Sprite{*this, "pic_Sprite", 0, 0}; // hidden buffers
    ctl_Button but_Magnify{*this, "but_Magnify"};                   // the lens with water
    ctl_Button but_Acid{*this, "but_Acid"};                         // the lens with acetic acid
    Timer tmr_Startup{*this, "tmr_Startup", 10};                    // starts the script

    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload() override;
    bool Form_QueryUnload(UnloadReason reason) override;
    bool Form_KeyDown(Key key) override;
    bool Form_KeyPress(const std::string& character) override;
    void Form_MouseDown(double x, double y, MouseButton button) override;
    void describe(FieldTable& table) const override;

    // The primitives of the scripts. Places and lengths are design units unless told otherwise.

    // Prints a text at a place. Plain texts: a carriage return begins a new line, "^" raises and
    // "µ" lowers what follows up to "|". Rich texts have the tags of rich_text.h, stand centred on
    // the place whatever the anchor and are kept in LastText; an empty one empties it.
    void hPrint(double x, double y, const std::string& text, const PrintStyle& style = {});
    // Pixels, rounded half to even.
    int hX(double x) const;
    int hY(double y) const;
    // Points on the screen for a size of the design. The height is divided by 800 too, which is
    // meant: it makes texts smaller on a wide screen.
    double hH(double size) const;
    // A line, or a box with an outline.
    void hLine(double x1, double y1, double x2, double y2, Color color);
    void hBox(double x1, double y1, double x2, double y2, Color color,
              std::optional<Color> fill = std::nullopt);
    void hBox(const Rect& box, Color color, Color fill);
    // The outline of a box alone.
    void hFrame(double x1, double y1, double x2, double y2, Color color);
    // Stretches the whole picture into the rectangle; null draws nothing.
    void hBlit(const Rect& to, const PicturePtr& picture, RasterOp operation);
    // The same, cut to `clip`; the source is cut in the same proportion.
    void hBlitClip(const Rect& to, const PicturePtr& picture, const Rect& clip, RasterOp operation);
    // The first picture shrinks within the second, which comes from further away; hZoomOut is the
    // way back.
    void hZoom(const Zoom& zoom);
    void hZoomOut(const Zoom& zoom);
    // Puts a sprite on the stage or moves it; (x, y) is its centre. It lies above the others then.
    // A name that isn't there leaves a hole and is logged once.
    void hSprite(double x, double y, double zoom, const std::string& name);
    void hSpriteOff(const std::string& name);
    void hSpriteClear();
    // The footer, empty.
    void hClearText();
    // Draws panel, sprites and the last rich text, and lets events in.
    void hRender();
    void hTextRepeat();
    bool hClickIn(double x1, double y1, double x2, double y2) const;
    // Shows what is there and waits for a click.
    void hWaitClick();
    // A choice in the footer: true for back, false for forward or when the learner broke off.
    bool hAskChoice(const std::string& back, const std::string& forward);

    // What the scripts are written with, on top of the primitives.

    // The stage black, without what was printed on it. Sprites stay on their list and LastText
    // stays what it is, so that the next hRender draws both again.
    void clearStage();
    // The heading, at the height of 24, `size` in points. A screen reader says it, and behind it
    // the last rich text or what `say` told.
    void title(double x, const std::string& text, double size, Anchor anchor);
    void say(std::string text) { said_ = std::move(text); }
    // The footer with a text.
    void footer(const std::string& text);
    // A line in the middle of the panel's foot, in tags; `size` in points, -1 as for hPrint.
    void subtitle(const std::string& text, double size = -1);
    // Calls `frame` again and again, the last time with all done, each time followed by hRender.
    // False when the learner broke off.
    bool tween(double seconds, const std::function<void(const Progress&)>& frame);
    // A number from 0 to below 1.
    double chance() const;
    // Without effect when sounds are off or the learner has broken off. `file` is a name in the
    // data folder.
    void playSound(const char* file) const;
    // Lets so many seconds pass without letting events in, a thousandth at least: on a clock of its
    // own time only passes by resting.
    void rest(double seconds) const;
    // The button to the lens over the footer; it goes when the script ends.
    void showLensButton(Equilibrium kind);
    // Keys that stand for clicks, until others are set; the rows must live as long. Any other key
    // that writes is a click at no place.
    void setKeys(std::span<const KeyPlace> keys) { keys_ = keys; }
    // Waits with events until Clicked or Aborted.
    void waitForClick();

  private:
    void design();
    void findSprites();
    void run();
    void runScript();
    void openLens(Equilibrium kind);
    void takePress(double x, double y, MouseButton button);
    void takeKey(std::string_view character);
    bool waitForChoice();

    FontSpec fontOf(double size) const;
    void printRich(double x, double y, const std::string& text, const PrintStyle& style);
    void printLines(double x, double y, const std::string& text, const PrintStyle& style);
    void printPlain(double x, double y, const std::string& text, const PrintStyle& style);
    void printMarked(Point place, std::string_view text, const FontSpec& base);
    std::string spokenStage() const;
    void tellStage();

    double lineWidth() const;
    Rect onScreen(const Rect& design) const;
    void runZoom(const Zoom& zoom, Progress (*direction)(const Progress&));
    void drawZoom(const Zoom& zoom, const Progress& at);

    PicturePtr powerOfTen(int number);

    void logOnce(const std::string& key, const std::string& line);
    int findSprite(const std::string& name);
    void loadSprite(Sprite& sprite);
    const Sprite* spriteAt(int position) const;
    void drawSprites();

    void describeSprites(FieldTable& table) const;
    void describeIons(FieldTable& table) const;

    Color foreColor_ = kWhite;
    std::int64_t frames_ = 0; // that hRender has drawn
    std::string title_;       // of the scene
    std::string footer_;
    std::string said_;              // for a screen reader, where no rich text says it
    std::set<std::string> missing_; // keys of what was logged
    std::span<const KeyPlace> keys_;
};

} // namespace quendal
