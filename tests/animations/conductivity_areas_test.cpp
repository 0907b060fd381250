// Where the conductivity lesson takes clicks, and the keys that stand for them.
#include "animations/lesson_fixture.h"

namespace quendal::test {
namespace {

struct AreaRow {
    double left, top, right, bottom;
    const char* key;
    std::function<void(IonField&)> undo; // so that the click has an effect
    std::function<bool(const IonField&)> done;
};

const std::vector<AreaRow>& areas() {
    static const auto mode = [](Current wanted) {
        return [wanted](const IonField& ions) { return ions.Mode == wanted; };
    };
    static const auto count = [](int wanted) {
        return [wanted](const IonField& ions) { return ions.IonCount == wanted; };
    };
    static const auto off = [](IonField& ions) { ions.Mode = Current::Off; };
    static const auto on = [](IonField& ions) { ions.Mode = Current::Direct; };
    static const auto few = [](IonField& ions) { ions.IonCount = 10; };
    static const auto many = [](IonField& ions) { ions.IonCount = 40; };
    static const auto plain = [](IonField& ions) { ions.FastIons = ions.DoubleCharge = false; };
    static const auto fast = [](const IonField& ions) { return ions.FastIons; };
    static const auto twice = [](const IonField& ions) { return ions.DoubleCharge; };
    static const std::vector<AreaRow> rows{
        {81, 314, 95, 336, "1", on, mode(Current::Off)},
        {92, 319, 120, 332, "", on, mode(Current::Off)},
        {82, 286, 100, 309, "2", off, mode(Current::Direct)},
        {101, 299, 122, 316, "", off, mode(Current::Direct)},
        {116, 273, 140, 292, "3", off, mode(Current::Reversed)},
        {122, 295, 134, 314, "", off, mode(Current::Reversed)},
        {150, 284, 170, 302, "4", off, mode(Current::AlternatingA)},
        {138, 298, 155, 316, "", off, mode(Current::AlternatingA)},
        {639, 89, 655, 105, "5", many, count(10)},
        {640, 117, 655, 133, "6", many, count(20)},
        {638, 145, 656, 161, "7", few, count(40)},
        {640, 181, 655, 197, "8", plain, fast},
        {639, 209, 655, 225, "9", plain, twice}};
    return rows;
}

bool within(const AreaRow& row, Point place) {
    return place.x >= row.left && place.x <= row.right && place.y >= row.top &&
           place.y <= row.bottom;
}

// The first row of the table that holds the place; null for none.
const AreaRow* areaAt(Point place) {
    for (const AreaRow& row : areas()) {
        if (within(row, place)) {
            return &row;
        }
    }
    return nullptr;
}

bool sameSettings(const IonField& one, const IonField& other) {
    return one.Mode == other.Mode && one.IonCount == other.IonCount &&
           one.FastIons == other.FastIons && one.DoubleCharge == other.DoubleCharge;
}

class LessonAreas : public Lesson, public testing::WithParamInterface<std::size_t> {
  protected:
    const AreaRow& row() const { return areas()[GetParam()]; }
    void expectDone(Point place) {
        then([this] { row().undo(ions); });
        click(place.x, place.y);
        then([this, place] { EXPECT_TRUE(row().done(ions)) << place.x << ", " << place.y; });
    }
    // Does what another row says, or nothing where there is none.
    void expectOther(Point place) {
        const AreaRow* other = areaAt(place);
        then([this, other] { (other == nullptr ? row() : *other).undo(ions); });
        then([this] { before_ = ions; });
        click(place.x, place.y);
        then([this, other, place] {
            EXPECT_TRUE(other == nullptr ? sameSettings(before_, ions) : other->done(ions))
                << place.x << ", " << place.y;
        });
    }

  private:
    IonField before_;
};

INSTANTIATE_TEST_SUITE_P(All, LessonAreas, testing::Range(std::size_t{0}, areas().size()));

TEST_P(LessonAreas, ReachToTheirEdgesAndNoFarther) {
    const AreaRow& area = row();
    for (const double x : {area.left, area.right}) {
        for (const double y : {area.top, area.bottom}) {
            // One corner of the last direct area belongs to the one before it.
            if (areaAt({x, y}) == &area) {
                expectDone({x, y});
            } else {
                expectOther({x, y});
            }
        }
    }
    const double middleX = std::floor((area.left + area.right) / 2);
    const double middleY = std::floor((area.top + area.bottom) / 2);
    expectDone({middleX, middleY});
    for (const Point outside :
         {Point{area.left - 1, middleY}, Point{area.right + 1, middleY},
          Point{middleX, area.top - 1}, Point{middleX, area.bottom + 1},
          Point{area.left - 1, area.top - 1}, Point{area.right + 1, area.bottom + 1}}) {
        expectOther(outside);
    }
    play();
}

TEST_P(LessonAreas, HaveAKeyEach) {
    const std::string key = row().key;
    if (key.empty()) {
        return; // the second half of the area before
    }
    then([&] { row().undo(ions); });
    then([&] { stage.userKey(Key::Other, key); });
    then([&] { EXPECT_TRUE(row().done(ions)) << key; });
    play();
}

TEST_F(Lesson, WhereTwoAreasMeetTheFirstOneCounts) {
    ASSERT_EQ(areaAt({122, 305}), &areas()[3]);
    click(122, 305);
    then([&] { EXPECT_EQ(ions.Mode, Current::Direct); });
    play();
}

} // namespace
} // namespace quendal::test
