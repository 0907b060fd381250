#include "lens_script.h"
#include "particles/lens_crystal.h"
#include "support/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace quendal::test {
namespace {

constexpr double kNever = 0.999;

class Crystal : public testing::Test {
  protected:
    Crystal() { scene.place(); }

    ScriptedLens script;
    CrystalScene scene{script.world()};

    LensParticle& ion(int number) {
        return scene.particles()[static_cast<std::size_t>(number - 1)];
    }
    // All ions rest but `number`, which gets a state of its own.
    LensParticle& alone(int number, LensParticle state) {
        scene.place();
        ion(2) = {.PX = 60, .PY = 200, .Column = 2};
        scene.ColumnOpen = {};
        state.Column = number;
        ion(number) = state;
        return ion(number);
    }
    void step(std::deque<double> numbers, double otherwise = kNever) {
        script->numbers = std::move(numbers);
        script->otherwise = otherwise;
        script->sounds.clear();
        script->drawn = 0;
        scene.step();
    }
    std::vector<int> openColumns() const {
        std::vector<int> open;
        for (int column = 0; column <= CrystalScene::kColumns; ++column) {
            if (scene.ColumnOpen[static_cast<std::size_t>(column)]) {
                open.push_back(column);
            }
        }
        return open;
    }
};

TEST_F(Crystal, BeginsWithTheSecondIonInTheLiquid) {
    for (int k = 1; k <= 6; ++k) {
        EXPECT_EQ(ion(k).PX, (k - 1) * 40 + 20);
        EXPECT_EQ(ion(k).PY, k == 2 ? 80 : 200);
        EXPECT_EQ(ion(k).State, k == 2 ? 2 : 0);
        EXPECT_EQ(ion(k).Column, k);
        EXPECT_EQ(ion(k).Gap, 0);
    }
    EXPECT_EQ(openColumns(), std::vector<int>{2});
    EXPECT_EQ(scene.active(), 1);
}

TEST_F(Crystal, LetsAnIonGoWithTheChanceOfTenInThousandsOfThoseActive) {
    for (int active = 0; active <= 4; ++active) {
        for (const double offset : {-1e-9, 1e-9}) {
            LensParticle& first = alone(1, {.PX = 20, .PY = 200, .Wait = 9});
            for (int k = 2; k <= 1 + active; ++k) {
                ion(k) = {.PX = 100, .PY = 50, .State = 1, .Goal = 0, .Column = k};
            }
            step({10.0 / (active * 1000 + 1500) + offset, 0.4249, 0.2999});
            const bool goes = offset < 0 && active < 3;
            EXPECT_EQ(first.State, goes ? 1 : 0) << active << " active, offset " << offset;
            EXPECT_EQ(script->sounds, goes ? kBurst : kNoSound);
            EXPECT_EQ(openColumns(), goes ? std::vector<int>{1} : std::vector<int>{});
            if (goes) {
                EXPECT_EQ(first.Goal, 62); // 42.49 + 20
                EXPECT_EQ(first.Wait, 0);
                EXPECT_EQ(first.Fast, 1);
            }
        }
    }
}

TEST_F(Crystal, RoundsTheGoalToEvenAndCutsTheNumberForFast) {
    LensParticle& first = alone(1, {.PX = 20, .PY = 200});
    step({0, 0.425, 0.3}); // 62.5
    EXPECT_EQ(first.Goal, 62);
    EXPECT_EQ(first.Fast, 0);
    LensParticle& again = alone(1, {.PX = 20, .PY = 200});
    step({0, 0.435, 0.299}); // 63.5; 29.9 is cut to 29
    EXPECT_EQ(again.Goal, 64);
    EXPECT_EQ(again.Fast, 1);
}

TEST_F(Crystal, DrawsNoNumberForRestingIonsWhileThreeAreUp) {
    for (const int k : {1, 3}) {
        ion(k) = {.PX = 100, .PY = 50, .State = 5, .Column = k};
    }
    ion(2) = {.PX = 100, .PY = 50, .State = 5, .Column = 2};
    step({}, 0);
    EXPECT_EQ(script->drawn, 0);
    EXPECT_EQ(scene.active(), 3);
}

TEST_F(Crystal, NeverHasMoreThanThreeIonsUp) {
    step({}, 0); // everybody wants to rise in the same frame
    EXPECT_EQ(scene.active(), 3);
    EXPECT_EQ(openColumns(), (std::vector<int>{1, 2, 3}));
}

TEST_F(Crystal, RaisesAnIonToItsGoal) {
    LensParticle& slow = alone(3, {.PX = 100, .PY = 103, .State = 1, .Goal = 101});
    step({});
    EXPECT_EQ(slow.PY, 102);
    EXPECT_EQ(slow.State, 1);
    step({});
    EXPECT_EQ(slow.PY, 101);
    EXPECT_EQ(slow.State, 2);

    LensParticle& fast = alone(3, {.PX = 100, .PY = 104, .State = 1, .Goal = 101, .Fast = 1});
    step({});
    EXPECT_EQ(fast.PY, 102);
    EXPECT_EQ(fast.State, 1);
    step({});
    EXPECT_EQ(fast.PY, 100); // above its goal
    EXPECT_EQ(fast.State, 2);
}

TEST_F(Crystal, LoosensAnIonThatRises) {
    LensParticle& rising = alone(1, {.PX = 20, .PY = 190, .State = 1, .Gap = 3, .Goal = 20});
    step({0.1});
    EXPECT_EQ(rising.Gap, 3);
    step({0.0999});
    EXPECT_EQ(rising.Gap, 4);
    step({0});
    EXPECT_EQ(rising.Gap, 5);
    step({kNever}, kNever);
    EXPECT_EQ(rising.Gap, 5);
    EXPECT_EQ(script->drawn, 5); // of the resting ones: none for this one any more
}

TEST_F(Crystal, LetsAFreeIonBreathe) {
    LensParticle& free = alone(1, {.PX = 20, .PY = 80, .State = 2, .Gap = 13});
    // Gap; then for each corner whether it moves, and if so which way.
    step({0.1499, 0.1499, 0.4999, 0.15, 0.1, 0.5, 0});
    EXPECT_EQ(free.Gap, 14);
    EXPECT_EQ(free.Wobble1, 1);
    EXPECT_EQ(free.Wobble2, 0);
    EXPECT_EQ(free.Wobble3, -1);
    EXPECT_EQ(free.Wobble4, -1); // 0 to move, then kNever
    EXPECT_EQ(free.Wait, 1);
    step({0.15, kNever, kNever, kNever, kNever});
    EXPECT_EQ(free.Gap, 14);
    free.Gap = 15;
    step({kNever, kNever, kNever, kNever}); // no number for the gap at its end
    EXPECT_EQ(free.Gap, 15);
    EXPECT_EQ(free.Wait, 3);
    EXPECT_EQ(free.State, 2);
}

// Numbers that let a free ion neither swell nor wobble.
std::deque<double> calm(std::deque<double> then) {
    std::deque<double> numbers(5, kNever);
    numbers.insert(numbers.end(), then.begin(), then.end());
    return numbers;
}

TEST_F(Crystal, KeepsAFreeIonFortyFramesAndNeverTheLastOne) {
    const LensParticle waiting{.PX = 20, .PY = 80, .State = 2, .Wait = 39};
    LensParticle& free = alone(1, waiting);
    ion(6) = {.PX = 220, .PY = 100, .State = 1, .Gap = 5, .Goal = 0, .Column = 6};
    scene.ColumnOpen[1] = true;
    step(calm({})); // Wait becomes 40: no number is drawn for going back
    EXPECT_EQ(free.State, 2);
    EXPECT_EQ(script->drawn, 5 + 4);
    step(calm({0.1}));
    EXPECT_EQ(free.State, 2);
    step(calm({0.0999}));
    EXPECT_EQ(free.State, 4);
    EXPECT_EQ(script->sounds, kCollide);
    EXPECT_EQ(free.Column, 1);
    EXPECT_EQ(openColumns(), std::vector<int>{});

    LensParticle& last = alone(1, waiting);
    last.Wait = 100;
    scene.ColumnOpen[1] = true;
    step(calm({}), kNever);
    EXPECT_EQ(last.State, 2);
    EXPECT_EQ(script->drawn, 5 + 5); // no number for going back
}

struct ReturnRow {
    std::vector<int> open;
    std::deque<double> wishes; // for one left, one right, two left, two right
    int column;
};

class CrystalReturn : public Crystal, public testing::WithParamInterface<ReturnRow> {};

constexpr double kYes = 0.4999;
constexpr double kNo = 0.5;

INSTANTIATE_TEST_SUITE_P(OfTheThirdIon, CrystalReturn,
                         testing::Values(ReturnRow{{1, 2, 3, 4, 5}, {kYes}, 2},
                                         ReturnRow{{1, 2, 3, 4, 5}, {kNo, kYes}, 4},
                                         ReturnRow{{1, 2, 3, 4, 5}, {kNo, kNo, kYes}, 1},
                                         ReturnRow{{1, 2, 3, 4, 5}, {kNo, kNo, kNo, kYes}, 5},
                                         ReturnRow{{1, 2, 3, 4, 5}, {kNo, kNo, kNo, kNo}, 3},
                                         ReturnRow{{1, 3, 5}, {kYes, kYes, kNo, kYes}, 5},
                                         ReturnRow{{3}, {kYes, kYes, kYes, kYes}, 3},
                                         ReturnRow{{3, 6}, {kNo, kNo, kNo, kNo}, 3},
                                         // Its own place has been taken by another one.
                                         ReturnRow{{6}, {kYes, kYes, kYes, kYes}, 6},
                                         ReturnRow{{1, 4}, {kNo, kNo, kNo, kNo}, 1},
                                         ReturnRow{{}, {kYes, kYes, kYes, kYes}, 3}));

TEST_P(CrystalReturn, PicksItsColumn) {
    const ReturnRow& row = GetParam();
    LensParticle& free = alone(3, {.PX = 100, .PY = 80, .State = 2, .Wait = 60});
    ion(6) = {.PX = 220, .PY = 100, .State = 5, .Column = 6};
    for (const int column : row.open) {
        scene.ColumnOpen[static_cast<std::size_t>(column)] = true;
    }
    std::deque<double> numbers = {kNever, kNever}; // for the two resting ions before it
    for (const double number : calm({0})) {
        numbers.push_back(number);
    }
    numbers.insert(numbers.end(), row.wishes.begin(), row.wishes.end());
    step(numbers);
    EXPECT_EQ(free.State, 4);
    EXPECT_EQ(free.Column, row.column);
    std::vector<int> left = row.open;
    std::erase(left, row.column);
    EXPECT_EQ(openColumns(), left);
    // Every wish in its order, up to the one that is granted, and the ions 4 and 5 behind it.
    EXPECT_EQ(script->drawn, static_cast<long>(2 + 5 + 1 + row.wishes.size() + 2));
}

TEST_F(Crystal, LooksForColumnsOnlyWhereTheCrystalHasSome) {
    LensParticle& free = alone(1, {.PX = 20, .PY = 80, .State = 2, .Wait = 60});
    ion(6) = {.PX = 220, .PY = 100, .State = 5, .Column = 6};
    scene.ColumnOpen[1] = scene.ColumnOpen[3] = true;
    step(calm({0, kYes, kYes, kYes, kYes}));
    EXPECT_EQ(free.Column, 3);
    LensParticle& last = alone(6, {.PX = 220, .PY = 80, .State = 2, .Wait = 60});
    ion(1) = {.PX = 20, .PY = 100, .State = 5, .Column = 1};
    scene.ColumnOpen[6] = true;
    std::deque<double> numbers(4, kNever);
    for (const double number : calm({0, kYes, kYes, kYes, kYes})) {
        numbers.push_back(number);
    }
    step(numbers);
    EXPECT_EQ(last.State, 4);
    EXPECT_EQ(last.Column, 6);
}

TEST_F(Crystal, CalmsAnIonThatGoesBack) {
    LensParticle& back = alone(3, {.PX = 98,
                                   .PY = 80,
                                   .State = 4,
                                   .Gap = 3,
                                   .Wobble1 = 5,
                                   .Wobble2 = -5,
                                   .Wobble3 = 1,
                                   .Wobble4 = 0});
    step({});
    EXPECT_EQ(back.PX, 99);
    EXPECT_EQ(back.Gap, 2);
    EXPECT_EQ(back.Wobble1, 4);
    EXPECT_EQ(back.Wobble2, -4);
    EXPECT_EQ(back.Wobble3, 0);
    EXPECT_EQ(back.Wobble4, 0);
    EXPECT_EQ(back.PY, 80);
    step({});
    EXPECT_EQ(back.State, 4);
    step({});
    EXPECT_EQ(back.PX, 100);
    EXPECT_EQ(back.Gap, 0);
    EXPECT_EQ(back.Wobble1, 0);
    EXPECT_EQ(back.Wobble2, 0);
    EXPECT_EQ(back.State, 5);
}

TEST_F(Crystal, CalmsAnIonThatNeverCameLooseInOneFrame) {
    LensParticle& back = alone(3, {.PX = 100, .PY = 80, .State = 4, .Wobble1 = 7});
    step({});
    EXPECT_EQ(back.Gap, 0);
    EXPECT_EQ(back.Wobble1, 0);
    EXPECT_EQ(back.State, 5);
}

TEST_F(Crystal, SinksUntilHeightAndColumnAreReached) {
    LensParticle& aside = alone(3, {.PX = 97, .PY = 199, .State = 5});
    step({});
    EXPECT_EQ(aside.PY, 200);
    EXPECT_EQ(aside.PX, 98);
    EXPECT_EQ(aside.State, 5); // down, but beside its hole
    step({});
    EXPECT_EQ(aside.PY, 200);
    EXPECT_EQ(aside.State, 5);
    step({});
    EXPECT_EQ(aside.PX, 100);
    EXPECT_EQ(aside.State, 0);

    LensParticle& above = alone(3, {.PX = 100, .PY = 198, .State = 5});
    step({});
    EXPECT_EQ(above.State, 5);
    step({});
    EXPECT_EQ(above.State, 0);
    EXPECT_EQ(above.PX, 100);
}

TEST_F(Crystal, KeepsItsBooksOverAnHour) {
    std::mt19937_64 engine(11);
    std::uniform_real_distribution<double> uniform(0, 1);
    long sounds = 0;
    CrystalScene lively({[&] { return uniform(engine); }, [&](LensSound) { ++sounds; }});
    lively.place();
    int most = 0;
    for (int frame = 0; frame < 36000; ++frame) {
        lively.step();
        most = std::max(most, lively.active());
        std::array<int, 7> owners{};
        int holes = 0;
        int away = 0;
        for (const LensParticle& each : lively.particles()) {
            const bool left = each.State == 1 || each.State == 2;
            away += left ? 1 : 0;
            owners[static_cast<std::size_t>(each.Column)] += left ? 0 : 1;
            ASSERT_TRUE(each.Gap >= 0 && each.Gap <= 15);
            ASSERT_TRUE(each.PX >= 20 && each.PX <= 220);
            ASSERT_TRUE(each.PY >= 19 && each.PY <= 200);
        }
        for (int column = 1; column <= 6; ++column) {
            const auto at = static_cast<std::size_t>(column);
            ASSERT_EQ(owners[at], lively.ColumnOpen[at] ? 0 : 1) << "frame " << frame;
            holes += lively.ColumnOpen[at] ? 1 : 0;
        }
        ASSERT_EQ(holes, away);
    }
    EXPECT_EQ(most, 3);
    EXPECT_GT(sounds, 100);
}

TEST_F(Crystal, IsDrawnAsSixPairsOfIons) {
    RecordingSurface surface(280, 249);
    ion(2).Gap = 7;
    scene.draw(surface, {1, 1});
    ASSERT_EQ(surface.circles.size(), 6U);
    EXPECT_EQ(surface.circles[0],
              (RecordingSurface::CircleMark{{10, 200}, 10, palette(2), kBlack}));
    EXPECT_EQ(surface.circles[1], (RecordingSurface::CircleMark{{50, 80}, 10, palette(2), kBlack}));
    EXPECT_EQ(std::count(surface.order.begin(), surface.order.end(), 'p'), 6);
    EXPECT_EQ(surface.fillStyle(), FillStyle::None);
}

// Keeps the corners of what is drawn.
class OutlineSurface final : public Surface {
  public:
    double ScaleWidth() const override { return 280; }
    double ScaleHeight() const override { return 249; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {}
    void Line(Point, Point, Color, double) override {}
    void Box(Point, Point, Color) override {}
    void Circle(Point, double, Color) override {}
    void Polygon(std::span<const Point> corners, Color) override {
        outlines.emplace_back(corners.begin(), corners.end());
        fills.push_back(fillColor());
    }
    void Text(Point, std::string_view, const FontSpec&, Color) override {}
    void Copy(const PicturePtr&, Point) override {}
    void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}

    std::vector<std::vector<Point>> outlines;
    std::vector<Color> fills;
};

// How far the outline reaches in a direction of length 1.
double reachAlong(const std::vector<Point>& outline, Point centre, Point direction) {
    const auto along = [&](const Point& point) {
        const double x = point.x - centre.x;
        const double y = point.y - centre.y;
        return (x * direction.x + y * direction.y) / std::hypot(x, y);
    };
    const auto nearest =
        std::max_element(outline.begin(), outline.end(), [&](const Point& one, const Point& other) {
            return along(one) < along(other);
        });
    return std::hypot(nearest->x - centre.x, nearest->y - centre.y);
}

TEST_F(Crystal, ShowsTheWobbleOfEachCorner) {
    constexpr double kDiagonal = 0.70710678118654752;
    const Point directions[] = {{kDiagonal, -kDiagonal},
                                {-kDiagonal, -kDiagonal},
                                {-kDiagonal, kDiagonal},
                                {kDiagonal, kDiagonal}};
    for (int corner = 0; corner < 4; ++corner) {
        for (const auto& [wobble, drawn] :
             {std::pair{3, 13.0}, std::pair{-3, 7.0}, std::pair{90, 14.0}, std::pair{-90, 7.0}}) {
            LensParticle& free = alone(1, {.PX = 60, .PY = 80, .State = 2, .Gap = 5});
            std::int32_t* const wobbles[] = {&free.Wobble1, &free.Wobble2, &free.Wobble3,
                                             &free.Wobble4};
            *wobbles[corner] = wobble;
            OutlineSurface surface;
            scene.draw(surface, {1, 1});
            const Point centre{75, 80}; // beside its place, and farther by the gap
            EXPECT_EQ(surface.fills.front(), palette(7));
            const std::vector<Point>& outline = surface.outlines.front();
            EXPECT_NEAR(reachAlong(outline, centre, directions[corner]), drawn, 1e-9);
            EXPECT_NEAR(reachAlong(outline, centre, directions[(corner + 2) % 4]), 10, 1e-9);
        }
    }
}

TEST_F(Crystal, StaysRoundWhereTheScreenStretchesIt) {
    OutlineSurface surface;
    scene.draw(surface, {0.75, 1});
    const Point centre{30, 200};
    EXPECT_NEAR(reachAlong(surface.outlines.front(), centre, {1, 0}), 7.5, 1e-9);
    EXPECT_NEAR(reachAlong(surface.outlines.front(), centre, {0, 1}), 10, 1e-9);
}

} // namespace
} // namespace quendal::test
