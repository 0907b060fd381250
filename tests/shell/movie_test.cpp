#include "movie_marks.h"
#include "shell/frm_DialogStartup.h"
#include "shell/movie_frame.h"
#include "shell_fixture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quendal::test {
namespace {

using Texts = std::vector<RecordingSurface::TextMark>;

constexpr double kWidth = 505;
constexpr double kHeight = 201;
constexpr int kLetters = 0;
constexpr int kWords = 1;
constexpr std::size_t kTerms = 3; // that stand in a triangle

class MovieFrame : public ShellTest {
  protected:
    void draw(int scene, double time) {
        drawMovieFrame(surface, {.scene = scene, .time = time, .gridColor = {1, 2, 3}});
    }

    // What a pass writes: from its triangle to the next one; the dot counts as a text.
    Texts written(int pass) const {
        Texts found;
        std::size_t text = 0;
        std::size_t circle = 0;
        int passed = -1;
        for (const char operation : surface.order) {
            passed += operation == 'p' ? 1 : 0;
            if (operation == 't' && passed <= pass) {
                add(found, surface.texts[text++], passed == pass);
            } else if (operation == 'c' && passed <= pass) {
                add(found, asText(surface.circles[circle++]), passed == pass);
            }
        }
        return found;
    }
    static void add(Texts& found, RecordingSurface::TextMark mark, bool wanted) {
        if (wanted) {
            found.push_back(std::move(mark));
        }
    }
    static RecordingSurface::TextMark asText(const RecordingSurface::CircleMark& dot) {
        EXPECT_EQ(dot.fill, dot.outline);
        const Size size = estimatedTextSize("·", kMovieFont);
        return {{dot.centre.x - size.width / 2, dot.centre.y - size.height / 2},
                "·",
                kMovieFont,
                dot.outline};
    }
    Texts inTriangle(int pass) const {
        const Texts all = written(pass);
        return {all.end() - kTerms, all.end()};
    }
    // From left to right, one above the other from the top.
    Texts onLine(int pass) const {
        Texts all = written(pass);
        all.resize(all.size() - kTerms);
        std::sort(all.begin(), all.end(), [](const auto& one, const auto& other) {
            const Point a = middle(one);
            const Point b = middle(other);
            return std::abs(a.x - b.x) > 1 ? a.x < b.x : a.y < b.y;
        });
        return all;
    }
    std::string formula(int pass) const {
        std::string text;
        for (const auto& mark : onLine(pass)) {
            text += mark.text + " ";
        }
        return text;
    }
    // Of the box that a fraction's bar is; one grey line above, one below and the two short ones.
    std::vector<RecordingSurface::LineMark> bars() const {
        std::vector<RecordingSurface::LineMark> found;
        for (const auto& line : surface.lines) {
            const bool triangle = line.to.x - line.from.x == 57;
            if (line.color == kBlack && line.from.y == line.to.y && line.from.x < line.to.x &&
                !triangle) {
                found.push_back(line);
            }
        }
        return found;
    }

    RecordingSurface surface{kWidth, kHeight};
};

TEST_F(MovieFrame, ShowsTheTriangleOnceInLettersAndOnceInWords) {
    draw(0, 10);
    ASSERT_EQ(surface.polygons.size(), 2U);
    const std::vector<Point> letters{{84, 10}, {26, 191}, {132, 191}};
    const std::vector<Point> words{{379, 10}, {321, 191}, {427, 191}};
    EXPECT_EQ(surface.polygons[kLetters].corners, letters);
    EXPECT_EQ(surface.polygons[kLetters].fill, (Color{220, 220, 220}));
    EXPECT_EQ(surface.polygons[kLetters].outline, palette(8));
    EXPECT_EQ(surface.polygons[kWords].corners, words);
    EXPECT_EQ(surface.polygons[kWords].fill, (Color{200, 200, 250}));
    EXPECT_EQ(surface.polygons[kWords].outline, palette(1));
    const RecordingSurface::LineMark bar{{84 - 28, 110.5}, {84 + 29, 110.5}, kBlack};
    EXPECT_EQ(std::count(surface.lines.begin(), surface.lines.end(), bar), 1);

    const std::array<std::array<const char*, 3>, 2> names{
        {{"n", "c", "V"}, {"Stoffmenge", "Konzentration", "Volumen"}}};
    for (const int pass : {kLetters, kWords}) {
        const auto marks = written(pass);
        ASSERT_EQ(marks.size(), kTerms);
        for (std::size_t i = 0; i < kTerms; ++i) {
            const auto& mark = marks[i];
            EXPECT_EQ(mark.text, names[static_cast<std::size_t>(pass)][i]);
            EXPECT_EQ(mark.font, kMovieFont);
            EXPECT_EQ(mark.color, kBlack);
        }
    }
}

TEST_F(MovieFrame, RulesTheWholePictureOnce) {
    draw(0, 0);
    const auto grid = [](const auto& line) { return line.color == Color{1, 2, 3}; };
    EXPECT_EQ(std::count_if(surface.lines.begin(), surface.lines.end(), grid), 64 + 26);
    EXPECT_EQ(surface.order.find_first_not_of('l'), 90U); // before the first triangle
    EXPECT_EQ(surface.lines[1].from, (Point{8, 0}));
    EXPECT_EQ(surface.lines[63].to, (Point{504, kHeight}));
    EXPECT_EQ(surface.lines[89].from, (Point{0, 200}));
}

TEST_F(MovieFrame, EndsEachSceneWithItsFormula) {
    struct Row {
        const char* letters;
        const char* words;
        const char* sought;
        bool fraction;
    };
    const std::array<Row, 6> rows{{
        {"n = c · V ", "Stoffmenge = Konzentration · Volumen ", "n", false},
        {"c = n / V ", "Konzentration = Stoffmenge / Volumen ", "c", false},
        {"c = n V ", "Konzentration = Stoffmenge Volumen ", "c", true},
        {"n = c · V ", "Stoffmenge = Konzentration · Volumen ", "n", false},
        {"V = n / c ", "Volumen = Stoffmenge / Konzentration ", "V", false},
        {"V = n c ", "Volumen = Stoffmenge Konzentration ", "V", true},
    }};
    for (int scene = 1; scene <= 6; ++scene) {
        const Row& row = rows[static_cast<std::size_t>(scene) - 1];
        for (const double time : {10.0, 12.5, 20.0}) {
            SCOPED_TRACE(std::to_string(scene) + " at " + std::to_string(time));
            draw(scene, time);
            EXPECT_EQ(formula(kLetters), row.letters);
            EXPECT_EQ(formula(kWords), row.words);
            for (const int pass : {kLetters, kWords}) {
                const Texts line = onLine(pass);
                EXPECT_EQ(line[0].color, kRed);
                EXPECT_TRUE(std::all_of(line.begin() + 1, line.end(),
                                        [](const auto& mark) { return mark.color == kBlack; }));
            }
            EXPECT_EQ(onLine(kLetters)[0].text, row.sought);
            EXPECT_EQ(bars().size(), row.fraction ? 2U : 0U);
        }
    }
}

TEST_F(MovieFrame, PutsTheBarBetweenTheTermsOfAFraction) {
    for (const int scene : {3, 6}) {
        draw(scene, 10);
        for (const int pass : {kLetters, kWords}) {
            const Texts line = onLine(pass);
            const auto bar = bars()[static_cast<std::size_t>(pass)];
            const Rect above = room(line[2]);
            const Rect below = room(line[3]);
            EXPECT_LT(above.top + above.height / 2, bar.from.y);
            EXPECT_GT(below.top + below.height / 2, bar.from.y);
            EXPECT_LT(bar.from.x, std::min(above.left, below.left));
            EXPECT_GT(bar.to.x, std::max(above.right(), below.right()));
            EXPECT_GT(bar.from.x, room(line[1]).right()); // the equals sign
        }
    }
}

TEST_F(MovieFrame, BeginsEachSceneInTheTriangle) {
    for (int scene = 1; scene <= 6; ++scene) {
        draw(scene, 0);
        for (const int pass : {kLetters, kWords}) {
            const Texts line = onLine(pass);
            ASSERT_EQ(line.size(), 3U) << "two terms and the one sought; no signs yet";
            for (const auto& mark : line) {
                const Texts homes = inTriangle(pass);
                const auto home = std::find_if(homes.begin(), homes.end(), [&](const auto& other) {
                    return other.text == mark.text;
                });
                ASSERT_NE(home, homes.end());
                const double way =
                    std::hypot(middle(mark).x - middle(*home).x, middle(mark).y - middle(*home).y);
                if (mark.color == kRed) {
                    EXPECT_GT(way, 50);
                } else {
                    EXPECT_LE(way, 1) << mark.text;
                }
            }
        }
    }
}

TEST_F(MovieFrame, MovesTermsAndFadesSignsInTheFirstHalf) {
    draw(1, 4);
    for (const int pass : {kLetters, kWords}) {
        const Texts all = written(pass);
        EXPECT_EQ(all[2].text, "=");
        EXPECT_EQ(all[2].color, (Color{153, 153, 153})); // fade 6
        EXPECT_EQ(all[3].text, "·");
        EXPECT_EQ(all[3].color, (Color{153, 153, 153}));
        const Point at = middle(all[0]);
        EXPECT_NEAR(at.x, std::nearbyint(at.x), 1e-9);
        EXPECT_NEAR(at.y, std::nearbyint(at.y), 1e-9);
    }
    draw(1, 10);
    const std::vector<RecordingSurface::TextMark> rest = surface.texts;
    for (double time = 10.5; time <= 20; time += 0.5) {
        draw(1, time);
        EXPECT_EQ(surface.texts, rest);
    }
}

TEST_F(MovieFrame, StaysInsideThePicture) {
    for (int scene = 0; scene <= 6; ++scene) {
        for (double time = 0; time <= 10; time += 0.5) {
            draw(scene, time);
            for (const auto& mark : surface.texts) {
                const Rect box = room(mark);
                EXPECT_GE(box.left, 0) << mark.text << " " << scene << " " << time;
                EXPECT_GE(box.top, 0);
                EXPECT_LE(box.right(), kWidth);
                EXPECT_LE(box.bottom(), kHeight);
            }
            for (const auto& line : surface.lines) {
                for (const Point& end : {line.from, line.to}) {
                    EXPECT_TRUE(end.x >= 0 && end.x <= kWidth && end.y >= 0 && end.y <= kHeight);
                }
            }
        }
    }
}

// x of a triangle's slope, counted from the apex to the right, at a height.
double slope(const RecordingSurface::PolygonMark& triangle, std::size_t corner, double y) {
    const Point apex = triangle.corners[0];
    const Point end = triangle.corners[corner];
    return apex.x + (end.x - apex.x) * (y - apex.y) / (end.y - apex.y);
}

TEST_F(MovieFrame, KeepsFormulasClearOfTheTriangles) {
    for (int scene = 1; scene <= 6; ++scene) {
        draw(scene, 20);
        for (const int pass : {kLetters, kWords}) {
            for (const auto& mark : onLine(pass)) {
                const Rect box = room(mark);
                EXPECT_GT(box.left, slope(surface.polygons[kLetters], 2, box.bottom()) + 2);
                EXPECT_LT(box.right(), slope(surface.polygons[kWords], 1, box.bottom()) - 2);
            }
        }
        const double lettersTop = room(onLine(kLetters)[0]).top - 10;
        EXPECT_GT(lettersTop, room(onLine(kWords)[0]).bottom() + 20);
    }
}

TEST_F(MovieFrame, HasItsTermsInTheTriangle) {
    draw(0, 0);
    for (const int pass : {kLetters, kWords}) {
        const auto& triangle = surface.polygons[static_cast<std::size_t>(pass)];
        for (const auto& mark : inTriangle(pass)) {
            // The longest word for the top is wider than the triangle there; it stands out alike on
            // both sides.
            const bool wide = mark.text == "Stoffmenge";
            const Rect box = room(mark);
            const double left = box.left - slope(triangle, 1, box.top);
            const double right = slope(triangle, 2, box.top) - box.right();
            if (wide) {
                EXPECT_NEAR(left, right, 2);
            } else {
                EXPECT_GT(left, 0) << mark.text;
                EXPECT_GT(right, 0) << mark.text;
            }
            const bool aboveBar = box.bottom() < 110.5;
            const bool belowBar = box.top > 110.5;
            EXPECT_TRUE(mark.text == "n" || wide ? aboveBar : belowBar) << mark.text;
        }
    }
}

class MovieTimer : public ShellTest {
  protected:
    MovieTimer() { host.control.UserName = "Mia"; }

    void tick(int times = 1) {
        for (int i = 0; i < times; ++i) {
            host.clock.now += 0.05;
            host.windows.DoEvents();
        }
    }
};

TEST_F(MovieTimer, TakesFortyOneTicksForAScene) {
    frm_DialogStartup dialog;
    host.windows.Show(dialog);
    EXPECT_DOUBLE_EQ(dialog.tmr_Movie.interval(), 50);
    EXPECT_TRUE(dialog.tmr_Movie.enabled());
    EXPECT_EQ(dialog.MovieScene, 0);
    EXPECT_EQ(dialog.MovieTime, 0);
    tick();
    EXPECT_EQ(dialog.MovieTime, 0.5);
    tick(39);
    EXPECT_EQ(dialog.MovieScene, 0);
    EXPECT_EQ(dialog.MovieTime, 20);
    for (const int scene : {1, 2, 3, 4, 5, 6, 1, 2}) {
        tick();
        EXPECT_EQ(dialog.MovieScene, scene);
        EXPECT_EQ(dialog.MovieTime, 0);
        tick(40);
        EXPECT_EQ(dialog.MovieScene, scene);
        EXPECT_EQ(dialog.MovieTime, 20);
    }
    host.windows.userClosed(dialog);
}

TEST_F(MovieTimer, EndsWithTheDialogAndBeginsAnewWithTheNext) {
    frm_DialogStartup dialog;
    host.windows.Show(dialog);
    tick(50);
    host.windows.userClosed(dialog);
    EXPECT_FALSE(dialog.tmr_Movie.enabled());
    tick(50);
    EXPECT_EQ(dialog.MovieScene, 1);
    EXPECT_EQ(dialog.MovieTime, 4.5);
    frm_DialogStartup next;
    host.windows.Show(next);
    EXPECT_EQ(next.MovieScene, 0);
    EXPECT_EQ(next.MovieTime, 0);
    host.windows.userClosed(next);
}

TEST_F(MovieTimer, DrawsOnlyWhereItCanBeSeen) {
    frm_DialogStartup dialog;
    RecordingSurface surface(kWidth, kHeight);
    dialog.pic_Movie(0).attachSurface(&surface);
    host.windows.Show(dialog);
    EXPECT_EQ(surface.polygons.size(), 2U) << "the first frame doesn't wait for the timer";
    EXPECT_EQ(surface.lines.front().color, (Color{220, 220, 220}));
    tick(45);
    EXPECT_EQ(surface.texts.size(), 2U * (3 + 2 + 1 + 1));
    EXPECT_EQ(surface.circles.size(), 2U);
    dialog.SSTab1.userChose(2);
    surface.Clear();
    tick(41);
    EXPECT_TRUE(surface.order.empty());
    EXPECT_EQ(dialog.MovieScene, 2);
    dialog.SSTab1.userChose(0);
    tick();
    EXPECT_EQ(surface.polygons.size(), 2U);
    host.windows.userClosed(dialog);
    dialog.pic_Movie(0).attachSurface(nullptr);
}

TEST_F(MovieTimer, HasThePictureThatTheMovieIsLaidOutFor) {
    frm_DialogStartup dialog;
    const Rect picture = dialog.pic_Movie(0).place();
    const Rect frame = dialog.ctl_Frame1.place();
    EXPECT_EQ(picture.width, kWidth);
    EXPECT_EQ(picture.height, kHeight);
    EXPECT_LE(picture.right(), frame.width);
    EXPECT_LE(picture.bottom(), frame.height);
    EXPECT_LE(dialog.Label5.place().right(), frame.left);
    EXPECT_LE(frame.right(), dialog.SSTab1.place().width);
    EXPECT_LE(frame.bottom(), dialog.SSTab1.place().height);
    EXPECT_TRUE(dialog.ctl_Frame1.visible());
}

} // namespace
} // namespace quendal::test
