#include "desktop/files/text_bytes.h"
#include "desktop/wmf_drawings.h"
#include "host/picture_bytes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quendal::test {
namespace {

// The one shape of a file.
template <class Form>
Form onlyForm(const WmfWriter& writer) {
    const WmfDrawing drawing = drawingOf(writer);
    EXPECT_EQ(drawing.shapes.size(), 1U);
    const Form* form =
        drawing.shapes.empty() ? nullptr : std::get_if<Form>(&drawing.shapes[0].form);
    EXPECT_NE(form, nullptr);
    return form != nullptr ? *form : Form{};
}

TEST(WmfReader, TheNaturalSizeComesFromTheBoxAndTheInch) {
    struct Case {
        WmfWriter::Box box;
        int inch;
        Size size;
    };
    for (const Case& row :
         {Case{{0, 0, 3000, 1500}, 1440, {200, 100}}, Case{{-10, -20, 90, 30}, 96, {100, 50}},
          Case{{0, 0, 100, 50}, 1000, {9.6, 4.8}}, Case{{90, 30, -10, -20}, 96, {100, 50}},
          Case{{-32768, 0, 32767, 100}, 1440, {4369, 100 / 15.0}}}) {
        WmfWriter writer(1, 1, row.inch);
        writer.setBox(row.box);
        const WmfDrawing drawing = drawingOf(writer);
        EXPECT_DOUBLE_EQ(drawing.size.width, row.size.width);
        EXPECT_DOUBLE_EQ(drawing.size.height, row.size.height);
    }
}

TEST(WmfReader, SizesThatArentAreRefused) {
    struct Case {
        WmfWriter::Box box;
        int inch;
    };
    for (const Case& row :
         {Case{{0, 0, 0, 50}, 96}, Case{{0, 0, 50, 0}, 96}, Case{{0, 0, 50, 50}, 0},
          Case{{0, 0, 32767, 50}, 96}, Case{{0, -32768, 50, 32767}, 1}}) {
        WmfWriter writer(1, 1, row.inch);
        writer.setBox(row.box);
        const WmfReading reading = readWmf(writer.bytes());
        EXPECT_FALSE(reading.drawing);
        EXPECT_NE(reading.fault, "");
    }
}

TEST(WmfReader, TheWindowMapsOntoTheNaturalSize) {
    WmfWriter writer(100, 50);
    writer.windowOrigin(-500, 1000);
    writer.windowExtent(1000, -500); // upward
    writer.polyline({{-500, 1000}, {500, 500}, {0, 750}});
    const auto line = onlyForm<WmfPolyline>(writer);
    ASSERT_EQ(line.points.size(), 3U);
    EXPECT_EQ(line.points[0], (Point{0, 0}));
    EXPECT_EQ(line.points[1], (Point{100, 50}));
    EXPECT_EQ(line.points[2], (Point{50, 25}));
}

TEST(WmfReader, WithoutAWindowTheBoxIsTheWindow) {
    WmfWriter writer(100, 50);
    writer.setBox({20, 10, 120, 60});
    writer.windowExtent(0, 7); // none at all: skipped
    writer.record(0x020F, {5, 10});
    writer.polyline({{30, 15}, {130, 65}});
    const auto line = onlyForm<WmfPolyline>(writer);
    EXPECT_EQ(line.points, (std::vector<Point>{{0, 0}, {100, 50}}));
}

TEST(WmfReader, TheViewportAndUnknownRecordsAreSkipped) {
    WmfWriter writer(100, 50);
    writer.record(0x020D, {7, 9});
    writer.record(0x020E, {300, 300});
    writer.record(0x0104, {7});
    writer.record(0x0626, {15, 0, 1, 2, 3});
    writer.record(0xFFFF, {});
    writer.polyline({{10, 20}, {30, 40}});
    EXPECT_EQ(onlyForm<WmfPolyline>(writer).points, (std::vector<Point>{{10, 20}, {30, 40}}));
}

TEST(WmfReader, PensAndBrushes) {
    WmfWriter writer(100, 100);
    writer.pen(0, 3, {1, 2, 3});
    writer.brush({4, 5, 6});
    writer.rectangle({0, 0, 10, 10});
    writer.pen(1 | 0x0200 | 0x2000, 0, kBlack); // dashed, flat ends, mitred, thinnest
    writer.noBrush();
    writer.rectangle({0, 0, 10, 10});
    writer.noPen();
    writer.ground({0, 0, 0});
    writer.brush({200, 100, 0}, 2); // hatched
    writer.rectangle({0, 0, 10, 10});
    const auto shapes = drawingOf(writer).shapes;
    ASSERT_EQ(shapes.size(), 3U);
    EXPECT_EQ(shapes[0].pen.width, 3);
    EXPECT_EQ(shapes[0].pen.color, (Color{1, 2, 3}));
    EXPECT_EQ(shapes[0].fill, (Color{4, 5, 6}));
    EXPECT_EQ(shapes[1].pen.style, WmfPen::Style::Dash);
    EXPECT_EQ(shapes[1].pen.cap, WmfPen::Cap::Flat);
    EXPECT_EQ(shapes[1].pen.join, WmfPen::Join::Miter);
    EXPECT_EQ(shapes[1].pen.width, 1);
    EXPECT_FALSE(shapes[1].fill);
    EXPECT_EQ(shapes[2].pen.style, WmfPen::Style::None);
    EXPECT_EQ(shapes[2].fill, (Color{50, 25, 0})); // the tone that the lines come to
}

TEST(WmfReader, ObjectsTakeTheFirstFreePlace) {
    WmfWriter writer(100, 100);
    writer.brush({1, 0, 0}); // 0
    writer.brush({2, 0, 0}); // 1
    writer.remove(0);
    writer.record(0x00F7, {}); // a palette takes place 0
    writer.brush({3, 0, 0});   // 2
    writer.remove(1);
    writer.recordBytes(0x02FC, std::string("\0\0\x04\0\0\0\0\0", 8)); // takes place 1
    writer.select(1);
    writer.rectangle({0, 0, 1, 1});
    writer.select(2);
    writer.rectangle({0, 0, 1, 1});
    writer.select(0);    // nothing that is drawn with
    writer.select(77);   // not there
    writer.remove(5000); // nor this
    writer.rectangle({0, 0, 1, 1});
    const auto shapes = drawingOf(writer).shapes;
    ASSERT_EQ(shapes.size(), 3U);
    EXPECT_EQ(shapes[0].fill, (Color{4, 0, 0}));
    EXPECT_EQ(shapes[1].fill, (Color{3, 0, 0}));
    EXPECT_EQ(shapes[2].fill, (Color{3, 0, 0}));
}

TEST(WmfReader, StatesAreSavedAndRestored) {
    WmfWriter writer(100, 100);
    writer.brush({1, 0, 0});
    writer.save();
    writer.brush({2, 0, 0});
    writer.clip({10, 10, 60, 60});
    writer.save();
    writer.brush({3, 0, 0});
    writer.clip({30, 0, 100, 100});
    writer.rectangle({0, 0, 1, 1});
    writer.restore(-1);
    writer.rectangle({0, 0, 1, 1});
    writer.save();
    writer.restore(1);
    writer.restore(5);
    writer.restore(-1); // nothing is saved any more
    writer.rectangle({0, 0, 1, 1});
    const auto shapes = drawingOf(writer).shapes;
    ASSERT_EQ(shapes.size(), 3U);
    EXPECT_EQ(shapes[0].fill, (Color{3, 0, 0}));
    EXPECT_EQ(shapes[0].clip, (Rect{30, 10, 30, 50}));
    EXPECT_EQ(shapes[1].fill, (Color{2, 0, 0}));
    EXPECT_EQ(shapes[1].clip, (Rect{10, 10, 50, 50}));
    EXPECT_EQ(shapes[2].fill, (Color{1, 0, 0}));
    EXPECT_FALSE(shapes[2].clip);
}

TEST(WmfReader, ArcsRunCounterclockwise) {
    WmfWriter writer(100, 100);
    const auto arc = [&](WmfWriter::At start, WmfWriter::At end) {
        writer = WmfWriter(100, 100);
        writer.arc(0x0817, {0, 0, 80, 40}, start, end);
        return onlyForm<WmfArc>(writer);
    };
    EXPECT_DOUBLE_EQ(arc({80, 20}, {40, 0}).start, 0);
    EXPECT_DOUBLE_EQ(arc({80, 20}, {40, 0}).sweep, 90);
    EXPECT_DOUBLE_EQ(arc({40, 0}, {80, 20}).start, 90);
    EXPECT_DOUBLE_EQ(arc({40, 0}, {80, 20}).sweep, 270);
    EXPECT_DOUBLE_EQ(arc({60, 20}, {60, 20}).sweep, 360);
    EXPECT_DOUBLE_EQ(arc({80, 0}, {0, 40}).start, 45); // on the circle before it was stretched
}

TEST(WmfReader, AnArcWithoutWidthHasASweep) {
    WmfWriter writer(100, 100);
    // Both ends lie to the left, one as +180 and one as -180 degrees.
    writer.arc(0x0817, {40, 0, 40, 40}, {0, 0}, {0, 40});
    EXPECT_EQ(onlyForm<WmfArc>(writer).sweep, 360);
}

TEST(WmfReader, TextsAreWindows1252) {
    WmfWriter writer(200, 100);
    writer.font({.height = -20, .weight = 700, .italic = 1, .tenths = 300, .family = "Tahoma"});
    writer.textColor({9, 8, 7});
    writer.align(6 | 24);
    writer.groundMode(1);
    writer.text({100, 50}, "\xC4\xD6\xDC \xE4\xF6\xFC\xDF \x80\x96\x81\t\xB5");
    const auto text = onlyForm<WmfText>(writer);
    EXPECT_EQ(text.text, "ÄÖÜ äöüß €–\xEF\xBF\xBD µ");
    EXPECT_EQ(text.place, (Point{100, 50}));
    EXPECT_EQ(text.across, WmfText::Across::Centre);
    EXPECT_EQ(text.down, WmfText::Down::Baseline);
    EXPECT_EQ(text.color, (Color{9, 8, 7}));
    EXPECT_EQ(text.font.family, "Tahoma");
    EXPECT_EQ(text.font.height, 20);
    EXPECT_EQ(text.font.meaning, WmfFont::Height::Em);
    EXPECT_TRUE(text.font.bold);
    EXPECT_TRUE(text.font.italic);
    EXPECT_EQ(text.font.angle, 30);
    EXPECT_FALSE(text.ground);
}

TEST(WmfReader, TextsInBoxesWithAdvancesAndAtThePen) {
    WmfWriter writer(200, 100);
    writer.ground({1, 1, 1});
    writer.textInBox({5, 6}, 2 | 4, {0, 10, 50, 40}, "abc");
    writer.textInBox({5, 6}, 2, {0, 0, 10, 10}, "");
    writer.textWithAdvances({5, 6}, "abc", {10, 12, 14});
    writer.textWithAdvances({5, 6}, "abc", {10, 12}); // not for all: those of the font
    writer.moveTo({77, 88});
    writer.align(1 | 2 | 8);
    writer.text({0, 0}, "x");
    const auto shapes = drawingOf(writer).shapes;
    ASSERT_EQ(shapes.size(), 6U);
    EXPECT_EQ(std::get<WmfRectangle>(shapes[0].form).box, (Rect{0, 10, 50, 30}));
    EXPECT_EQ(shapes[0].fill, (Color{1, 1, 1}));
    EXPECT_FALSE(shapes[0].clip);
    EXPECT_EQ(shapes[1].clip, (Rect{0, 10, 50, 30}));
    EXPECT_EQ(std::get<WmfText>(shapes[1].form).ground, (Color{1, 1, 1}));
    EXPECT_EQ(std::get<WmfRectangle>(shapes[2].form).box, (Rect{0, 0, 10, 10}));
    EXPECT_EQ(std::get<WmfText>(shapes[3].form).advances, (std::vector<double>{10, 12, 14}));
    EXPECT_TRUE(std::get<WmfText>(shapes[4].form).advances.empty());
    const auto& atPen = std::get<WmfText>(shapes[5].form);
    EXPECT_EQ(atPen.place, (Point{77, 88}));
    EXPECT_EQ(atPen.across, WmfText::Across::Right);
    EXPECT_EQ(atPen.down, WmfText::Down::Bottom);
}

TEST(WmfReader, AFileCutShortAtAnyByteIsBroken) {
    const std::string whole = richWmf().bytes();
    ASSERT_TRUE(readWmf(whole).drawing) << readWmf(whole).fault;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const WmfReading reading = readWmf(std::string_view(whole).substr(0, size));
        EXPECT_FALSE(reading.drawing) << size;
        EXPECT_NE(reading.fault, "") << size;
        EXPECT_FALSE(placeableHead(std::string_view(whole).substr(0, size))) << size;
    }
    EXPECT_TRUE(readWmf(whole + "behind it").drawing);
}

TEST(WmfReader, OtherFilesAreBroken) {
    const std::string whole = richWmf().bytes();
    const auto with = [&](std::size_t at, char byte) {
        std::string changed = whole;
        changed[at] = byte;
        return readWmf(changed).drawing.has_value();
    };
    EXPECT_FALSE(with(0, 0));  // the key
    EXPECT_FALSE(with(22, 3)); // the kind of the plain head
    EXPECT_FALSE(with(24, 8)); // its length
    EXPECT_TRUE(with(20, 1));  // the checksum, which many writers get wrong
    EXPECT_FALSE(readWmf("GIF89a").drawing);
    EXPECT_FALSE(readWmf(whole.substr(22)).drawing);
}

TEST(WmfReader, ARecordThatTellsOfMoreThanItHasBreaksTheFile) {
    struct Case {
        unsigned function;
        std::vector<int> words;
    };
    for (const Case& row :
         {Case{0x0324, {3, 0, 0, 1, 1}}, Case{0x0325, {-1, 0, 0}}, Case{0x0538, {2, 3}},
          Case{0x0538, {1, 2, 0, 0, 1}}, Case{0x0538, {-1}}, Case{0x0521, {9, 0, 0}},
          Case{0x0A32, {0, 0, 5, 0, 0x4141}}, Case{0x0A32, {0, 0, 0, 2, 1, 1}},
          Case{0x041B, {1, 2, 3}}, Case{0x0324, {}}, Case{0x02FB, {-12}}}) {
        WmfWriter writer(100, 100);
        writer.record(row.function, row.words);
        const WmfReading reading = readWmf(writer.bytes());
        EXPECT_FALSE(reading.drawing) << std::hex << row.function;
        EXPECT_NE(reading.fault, "");
    }
}

TEST(WmfReader, LengthsOfRecordsThatLieBreakTheFile) {
    const std::string head = WmfWriter(100, 100).withoutEnd();
    const std::string end = WmfWriter::word32(3) + WmfWriter::word16(0);
    for (const std::uint32_t words : {0U, 1U, 2U, 8U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        const std::string record = WmfWriter::word32(words) + WmfWriter::word16(0x041B);
        EXPECT_FALSE(readWmf(head + record + end).drawing) << words;
    }
}

// Adds to the file until it is refused.
template <class Add>
std::size_t mostOf(std::size_t step, std::size_t end, Add add) {
    WmfWriter writer(100, 100);
    for (std::size_t count = step; count <= end; count += step) {
        for (std::size_t i = 0; i < step; ++i) {
            add(writer);
        }
        if (!readWmf(writer.bytes()).drawing) {
            return count - step;
        }
    }
    return end;
}

TEST(WmfReader, CountsAreBounded) {
    EXPECT_EQ(mostOf(16, 4096, [](WmfWriter& w) { w.brush(kWhite); }), kWmfObjectLimit);
    EXPECT_EQ(mostOf(1, 200, [](WmfWriter& w) { w.save(); }), kWmfStateLimit);
    EXPECT_EQ(mostOf(1000, 20000, [](WmfWriter& w) { w.rectangle({0, 0, 1, 1}); }), kWmfShapeLimit);
    EXPECT_EQ(mostOf(10000, 100000, [](WmfWriter& w) { w.record(0x0104, {13}); }), kWmfRecordLimit);
    const std::vector<WmfWriter::At> thousand(1000);
    EXPECT_EQ(mostOf(1, 100, [&](WmfWriter& w) { w.polyline(thousand); }) * 1000, kWmfPointLimit);
    EXPECT_EQ(mostOf(5, 50,
                     [](WmfWriter& w) {
                         w.text({0, 0}, std::string(200, 'x'));
                     }) *
                  200,
              kWmfTextLimit);
    const std::string rest(kWmfFileLimit, '\0');
    EXPECT_FALSE(readWmf(richWmf().bytes() + rest).drawing);
}

bool isNear(Point point) {
    return std::abs(point.x) <= kWmfFarthest && std::abs(point.y) <= kWmfFarthest;
}

TEST(WmfReader, PlacesAndSizesAreBounded) {
    WmfWriter writer(100, 100);
    writer.windowExtent(1, -1);
    writer.pen(0, 32767, kBlack);
    writer.font({.height = -32768});
    writer.rectangle({-32768, -32768, 32767, 32767});
    writer.polyline({{-32768, 32767}, {32767, -32768}});
    writer.roundRectangle({-32768, -32768, 32767, 32767}, 32767, -32768);
    writer.text({-32768, 32767}, "x");
    const auto shapes = drawingOf(writer).shapes;
    ASSERT_EQ(shapes.size(), 4U);
    EXPECT_EQ(shapes[0].pen.width, kWmfWidestPen);
    const Rect box = std::get<WmfRectangle>(shapes[0].form).box;
    EXPECT_TRUE(isNear({box.left, box.top}) && isNear({box.right(), box.bottom()}));
    for (const Point& point : std::get<WmfPolyline>(shapes[1].form).points) {
        EXPECT_TRUE(isNear(point));
    }
    EXPECT_LE(std::get<WmfRectangle>(shapes[2].form).corner.width, 2 * kWmfFarthest);
    EXPECT_EQ(std::get<WmfText>(shapes[3].form).font.height, kWmfTallestText);
    EXPECT_TRUE(isNear(std::get<WmfText>(shapes[3].form).place));
}

TEST(WmfReader, BytesChangedAtRandomNeverHurt) {
    std::mt19937 random(1);
    const std::string whole = richWmf().bytes();
    std::size_t read = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string changed = whole;
        for (int i = 0; i < 4; ++i) {
            changed[random() % whole.size()] = static_cast<char>(random());
        }
        const WmfReading reading = readWmf(changed);
        EXPECT_NE(reading.drawing.has_value(), !reading.fault.empty());
        read += reading.drawing ? 1 : 0;
    }
    EXPECT_GT(read, 1000U); // both ends come up
    EXPECT_LT(read, 19000U);
}

} // namespace
} // namespace quendal::test
