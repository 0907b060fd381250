// A settled beaker's frame asks for no memory. This binary counts every allocation.
#include "counted_allocations.h"
#include "host/surface.h"
#include "host/text_size.h"
#include "particles/cls_Molecules.h"
#include "particles/grid_tables.h"
#include "particles/liquid_owner.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <gtest/gtest.h>

namespace quendal::test {
namespace {

class BlindSurface final : public Surface {
  public:
    double ScaleWidth() const override { return 400; }
    double ScaleHeight() const override { return 300; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {}
    void Line(Point, Point, Color, double) override {}
    void Box(Point, Point, Color) override { ++shapes; }
    void Circle(Point, double, Color) override { ++shapes; }
    void Polygon(std::span<const Point>, Color) override {}
    void Text(Point, std::string_view, const FontSpec&, Color) override {}
    void Copy(const PicturePtr&, Point) override {}
    void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}

    long shapes = 0;
};

class FullBeaker final : public LiquidOwner {
  public:
    int liquidVolume() const override { return 30; }
};

void frame(cls_Molecules& beaker, Surface& surface) {
    if (!beaker.REACT()) {
        beaker.GRID();
    }
    for (int i = 1; i <= beaker.COUNT(); ++i) {
        const auto particle = beaker.share(i);
        particle->THINK();
        particle->DRAW(surface);
    }
    beaker.hasPairThatCanReact();
    beaker.COUNTSORT(9);
}

TEST(Allocation, AFrameAtRestAllocatesNothing) {
    FakeHost host(2);
    fillGridTables(host.random);
    FullBeaker owner;
    cls_Molecules beaker;
    beaker.Parent = &owner;
    for (const int count : {60, 200}) {
        while (beaker.COUNT() < count) {
            const int sort = beaker.COUNT() % 2 == 0 ? 3 : -5;
            beaker.CREATE(sort, host.random.next() * 100, host.random.next() * 100);
        }
        beaker.ITEM(1).Solid = true;
        BlindSurface surface;
        for (int i = 0; i < 300; ++i) {
            frame(beaker, surface);
        }
        const long before = allocations;
        surface.shapes = 0;
        for (int i = 0; i < 50; ++i) {
            frame(beaker, surface);
        }
        EXPECT_EQ(allocations - before, 0) << count << " particles";
        EXPECT_GT(surface.shapes, 50 * count);
    }
    resetSession();
}

TEST(Allocation, IsCounted) {
    const long before = allocations;
    delete new int(3);
    const std::string longText(100, 'x');
    EXPECT_GT(allocations - before, 0);
}

} // namespace
} // namespace quendal::test
