// Plays the records of a metafile into a drawing. One object reads one file.
#pragma once

#include "desktop/files/wmf_drawing.h"
#include "desktop/files/wmf_objects.h"
#include "desktop/files/wmf_words.h"
#include "host/picture_bytes.h"

#include <vector>

namespace quendal {

class WmfReader {
  public:
    // `bytes` are those of a file with this head.
    WmfReader(std::string_view bytes, const PlaceableHead& head);
    WmfReading read();

  private:
    struct Row {
        unsigned function = 0;
        std::size_t leastWords = 0;
        void (WmfReader::*take)(const WmfWords&) = nullptr;
    };
    // Place in the units of the file.
    struct Place {
        int x = 0;
        int y = 0;
    };
    // What is saved and restored.
    struct State {
        Place origin; // of the window
        Place extent; // never 0
        Place pen;    // where the next line begins
        WmfLogicalPen outline;
        WmfLogicalBrush brush;
        WmfLogicalFont font;
        WmfFillRule rule = WmfFillRule::Alternate;
        Color textColor = kBlack;
        Color ground = kWhite;
        bool groundShows = true; // behind texts
        unsigned align = 0;
        std::optional<Rect> clip;
    };
    enum class Filled { Yes, No };

    static const Row* rowOf(unsigned function);
    void take(unsigned function, const WmfWords& words);

    void setWindowOrigin(const WmfWords& words);
    void setWindowExtent(const WmfWords& words);
    void offsetWindowOrigin(const WmfWords& words);
    void setFillRule(const WmfWords& words);
    void setTextColor(const WmfWords& words);
    void setTextAlign(const WmfWords& words);
    void setGround(const WmfWords& words);
    void setGroundMode(const WmfWords& words);
    void intersectClip(const WmfWords& words);
    void save(const WmfWords& words);
    void restore(const WmfWords& words);

    void createPen(const WmfWords& words);
    void createBrush(const WmfWords& words);
    void createFont(const WmfWords& words);
    void createUnused(const WmfWords& words);
    void create(WmfObject object);
    void select(const WmfWords& words);
    void remove(const WmfWords& words);

    void moveTo(const WmfWords& words);
    void lineTo(const WmfWords& words);
    void polyline(const WmfWords& words);
    void polygon(const WmfWords& words);
    void polyPolygon(const WmfWords& words);
    void rectangle(const WmfWords& words);
    void roundRectangle(const WmfWords& words);
    void ellipse(const WmfWords& words);
    void arc(const WmfWords& words);
    void pie(const WmfWords& words);
    void chord(const WmfWords& words);
    void pixel(const WmfWords& words);
    void textOut(const WmfWords& words);
    void extTextOut(const WmfWords& words);

    void addArc(WmfArc::Kind kind, const WmfWords& words);
    void addText(WmfText text, std::string_view bytes, const std::optional<Rect>& clip);
    void addBlank(const Rect& box, Color color, const std::optional<Rect>& clip);
    void add(WmfShape shape);
    void addForm(decltype(WmfShape::form) form, Filled filled);
    // False, and a fault, when they are more than there are or than a drawing may have.
    bool takePoints(const WmfWords& words, std::size_t first, std::size_t count,
                    std::vector<Point>& points);

    double acrossPx(double units) const;
    double downPx(double units) const;
    Point px(Place place) const;
    // From the words bottom, right, top, left.
    Rect boxAt(const WmfWords& words, std::size_t first) const;
    static Rect boxBetween(Point a, Point b);
    // What `box` leaves of the clip rectangle.
    Rect clipWithin(const Rect& box) const;
    WmfPen pen() const;
    WmfFont font() const;
    std::optional<Color> fill() const;
    WmfText textAt(Place place) const;
    void fail(std::string_view fault);

    std::string_view records_;
    WmfDrawing drawing_;
    std::string_view fault_;
    std::vector<State> states_; // the last is the present one
    WmfObjectTable objects_;
    std::size_t points_ = 0;
    std::size_t characters_ = 0;
    State& state() { return states_.back(); }
    const State& state() const { return states_.back(); }
};

} // namespace quendal
