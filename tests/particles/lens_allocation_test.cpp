// A frame of a scene asks for no memory. This binary counts every allocation.
#include "counted_allocations.h"
#include "host/surface.h"
#include "host/text_size.h"
#include "particles/lens_crystal.h"
#include "particles/lens_pairs.h"

#include <gtest/gtest.h>

#include <random>

namespace quendal::test {
namespace {

class BlindSurface final : public Surface {
  public:
    double ScaleWidth() const override { return 280; }
    double ScaleHeight() const override { return 249; }
    Size TextSize(std::string_view text, const FontSpec& font) const override {
        return estimatedTextSize(text, font);
    }
    void Clear() override {}
    void Line(Point, Point, Color, double) override {}
    void Box(Point, Point, Color) override { ++shapes; }
    void Circle(Point, double, Color) override { ++shapes; }
    void Polygon(std::span<const Point>, Color) override { ++shapes; }
    void Text(Point, std::string_view, const FontSpec&, Color) override {}
    void Copy(const PicturePtr&, Point) override {}
    void StretchBlt(const Rect&, const PicturePtr&, const Rect&, RasterOp) override {}

    long shapes = 0;
};

void expectNoAllocation(LensScene& scene) {
    BlindSurface surface;
    scene.place();
    const long before = allocations;
    for (int i = 0; i < 1000; ++i) {
        scene.step();
        scene.draw(surface, {0.75, 1});
    }
    EXPECT_EQ(allocations, before);
    EXPECT_GT(surface.shapes, 6000);
}

TEST(LensAllocation, AFrameOfASceneAllocatesNothing) {
    std::mt19937_64 engine(4);
    std::uniform_real_distribution<double> uniform(0, 1);
    const LensWorld world{[&] { return uniform(engine); }, [](LensSound) {}};
    PairScene water(PairKind::Water, world);
    expectNoAllocation(water);
    PairScene acid(PairKind::AceticAcid, world);
    expectNoAllocation(acid);
    CrystalScene crystal(world);
    expectNoAllocation(crystal);
}

} // namespace
} // namespace quendal::test
