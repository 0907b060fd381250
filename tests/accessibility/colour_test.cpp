// Particles, sprites and series for learners who see fewer colours than others: what appears
// together differs by brightness, size, shape or sign.
#include "conducto/conducto_data.h"
#include "desktop/box_form.h"
#include "desktop/files/wmf_reader.h"
#include "desktop/pictures/picture_surface.h"
#include "desktop/pictures/sprite_renderer.h"
#include "particles/cls_Molecule.h"
#include "particles/lens_drawing.h"
#include "particles/species.h"
#include "shell/session/session.h"
#include "support/fake_roots.h"

#include <QApplication>
#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iostream>
#include <set>

namespace quendal::test {
namespace {

using Matrix = std::array<std::array<double, 3>, 3>;

struct Sight {
    const char* name;
    Matrix seen; // of linear red, green and blue
};

// The complete loss of one kind of cones, after Machado, Oliveira and Fernandes: A
// Physiologically-based Model for Simulation of Color Vision Deficiency (IEEE TVCG 15, 2009), the
// matrices for severity 1.0.
constexpr Sight kSights[] = {
    {"all colours", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779},
       {-0.078411, 0.930809, 0.147602},
       {0.004733, 0.691367, 0.303900}}}},
};

double linear(int channel) {
    static const std::array<double, 256> kLinear = [] {
        std::array<double, 256> made{};
        for (std::size_t i = 0; i < made.size(); ++i) {
            const double value = static_cast<double>(i) / 255.0;
            made[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return made;
    }();
    return kLinear[static_cast<std::size_t>(channel)];
}

// How bright a pixel is for this sight, from 0 to 1. Hue counts for nothing.
double brightness(QRgb pixel, const Sight& sight) {
    const double in[] = {linear(qRed(pixel)), linear(qGreen(pixel)), linear(qBlue(pixel))};
    constexpr double kWeights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t row = 0; row < 3; ++row) {
        double seen = 0;
        for (std::size_t column = 0; column < 3; ++column) {
            seen += sight.seen[row][column] * in[column];
        }
        sum += kWeights[row] * std::clamp(seen, 0.0, 1.0);
    }
    return sum;
}

constexpr double kClear = 1.5;  // contrast by which two pixels clearly differ
constexpr double kShare = 0.09; // of what is drawn that must differ so; half a sign makes a tenth

bool differ(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05) >= kClear;
}

// The part of what either picture shows that clearly differs. Both have the same ground, which is
// the colour of the first pixel.
double difference(const QImage& one, const QImage& other, const Sight& sight) {
    const QRgb ground = one.pixel(0, 0);
    int drawn = 0;
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            drawn += a != ground || b != ground ? 1 : 0;
            different += differ(brightness(a, sight), brightness(b, sight)) ? 1 : 0;
        }
    }
    return drawn == 0 ? 0 : static_cast<double>(different) / drawn;
}

struct Least {
    double share = 1;
    std::string where;

    void take(double found, const std::string& what) {
        if (found < share) {
            share = found;
            where = what;
        }
    }
};

// What is in the beaker of a workbench at one time or another.
struct Beaker {
    const char* name;
    std::vector<int> kinds;
    Color liquid;
};

const std::vector<Beaker>& beakers() {
    static const std::vector<Beaker> rows{
        {"strong", {kHydronium, kSodium, kChloride, kHydroxide}, {214, 172, 172}},
        {"strong at the end", {kSodium, kChloride, kHydroxide}, {172, 172, 214}},
        {"weak", {kHydronium, kSodium, kAceticAcid, kAcetate, kHydroxide}, {214, 172, 172}},
        {"silver", {kSilver, kSodium, kChloride, kNitrate, kSilverChloride}, {172, 200, 214}}};
    return rows;
}

class BeakerColours : public testing::Test {
  protected:
    ~BeakerColours() override { resetSession(); }

    // As on the smallest screen, where a particle has the fewest pixels.
    QImage particle(int sort, Color liquid) {
        form_.box.setBackColor(liquid);
        surface_.Clear();
        cls_Molecule one;
        one.setSORTREAL(sort);
        one.PosX = one.PosY = 50;
        one.DRAW(surface_);
        surface_.finish();
        surface_.invalidate();
        return surface_.image({200, 100}, 1).copy(60, 10, 80, 80);
    }

    Least leastOf(const Beaker& beaker, const Sight& sight, int sign) {
        Least least;
        for (std::size_t i = 0; i < beaker.kinds.size(); ++i) {
            for (std::size_t j = i + 1; j < beaker.kinds.size(); ++j) {
                const QImage one = particle(sign * beaker.kinds[i], beaker.liquid);
                const QImage other = particle(sign * beaker.kinds[j], beaker.liquid);
                least.take(difference(one, other, sight), std::to_string(beaker.kinds[i]) +
                                                              " and " +
                                                              std::to_string(beaker.kinds[j]));
                ++pairs_;
            }
        }
        return least;
    }

    FakeHost host_{5};
    BoxForm form_;
    PictureSurface surface_{form_.box};
    int pairs_ = 0;
};

// As the legend beside the beaker shows them, always.
TEST_F(BeakerColours, KindsOfTheLegendDiffer) {
    for (const Beaker& beaker : beakers()) {
        for (const Sight& sight : kSights) {
            const Least least = leastOf(beaker, sight, -1);
            std::cout << beaker.name << ", " << sight.name << ": " << least.share << " ("
                      << least.where << ")\n";
            EXPECT_GE(least.share, kShare)
                << beaker.name << ", " << sight.name << ": kinds " << least.where;
        }
    }
    std::cout << pairs_ << " pairs\n";
}

// In the beaker the ions carry no sign but that of chloride.
TEST_F(BeakerColours, KindsInTheBeakerDiffer) {
    for (const Beaker& beaker : beakers()) {
        for (const Sight& sight : kSights) {
            const Least least = leastOf(beaker, sight, 1);
            std::cout << beaker.name << ", " << sight.name << ": " << least.share << " ("
                      << least.where << ")\n";
            EXPECT_GE(least.share, kShare)
                << beaker.name << ", " << sight.name << ": kinds " << least.where;
        }
    }
}

// The one pair that brightness hardly tells apart: while the forms of strong acids are open,
// chloride is drawn without its sign, in the colours that the two ions have everywhere. Both are
// spectators; who doesn't see the hue goes by the legend's signs, the balance and the description.
TEST_F(BeakerColours, PlainChlorideAndSodiumDifferInHueOnly) {
    constexpr double kContrasts[] = {1.67, 1.14, 1.26, 1.15}; // in the order of the sights
    session().PlainChloride = true;
    const Color liquid = beakers().front().liquid;
    const QImage sodium = particle(kSodium, liquid);
    const QImage chloride = particle(kChloride, liquid);
    for (std::size_t i = 0; i < std::size(kSights); ++i) {
        const auto bright = [&](const QImage& image) {
            return brightness(image.pixel(40, 40), kSights[i]) + 0.05;
        };
        const auto [dark, light] = std::minmax({bright(sodium), bright(chloride)});
        EXPECT_NEAR(light / dark, kContrasts[i], 0.01) << kSights[i].name;
        EXPECT_GE(difference(particle(-kSodium, liquid), particle(-kChloride, liquid), kSights[i]),
                  kShare)
            << "signs of the legend, " << kSights[i].name;
    }
}

// Sprites of the particles that one scene shows together.
struct Scene {
    const char* folder;
    std::vector<const char*> sprites;
};

const std::vector<Scene>& scenes() {
    static const std::vector<Scene> rows{{"fällung", {"ag", "cl", "na", "no3"}},
                                         {"h2o-h2o", {"h2o", "h3o", "oh"}},
                                         {"h2o-hac", {"ac", "h2o", "h3o", "hac"}},
                                         {"h2o-hcl", {"cl", "h2o", "h3o", "hcl"}},
                                         {"h3o-cl", {"cl", "h2o", "h3o", "na", "oh"}}};
    return rows;
}

constexpr int kCanvas = 400; // px

// In the middle of a canvas, so that size counts too.
QImage sprite(const char* folder, const char* name) {
    QFile file(QStringLiteral(QUENDAL_SOURCE_DIR "/data/%1/%2.wmf").arg(folder, name));
    QImage canvas(kCanvas, kCanvas, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "no sprite " << folder << '/' << name;
        return canvas;
    }
    const WmfReading reading = readWmf(file.readAll().toStdString());
    if (!reading.drawing) {
        ADD_FAILURE() << folder << '/' << name << ": " << reading.fault;
        return canvas;
    }
    const Size size = reading.drawing->size;
    const QImage image = renderSprite(
        *reading.drawing, {static_cast<int>(size.width), static_cast<int>(size.height)});
    QPainter painter(&canvas);
    painter.drawImage((kCanvas - image.width()) / 2, (kCanvas - image.height()) / 2, image);
    return canvas;
}

TEST(SpriteColours, ParticlesOfOneSceneDiffer) {
    int pairs = 0;
    for (const Sight& sight : kSights) {
        Least least;
        for (const Scene& scene : scenes()) {
            for (std::size_t i = 0; i < scene.sprites.size(); ++i) {
                for (std::size_t j = i + 1; j < scene.sprites.size(); ++j) {
                    const std::string pair = std::string(scene.folder) + ": " + scene.sprites[i] +
                                             " and " + scene.sprites[j];
                    const double share = difference(sprite(scene.folder, scene.sprites[i]),
                                                    sprite(scene.folder, scene.sprites[j]), sight);
                    EXPECT_GE(share, kShare) << sight.name << ", " << pair;
                    least.take(share, pair);
                    ++pairs;
                }
            }
        }
        std::cout << sight.name << ": " << least.share << " (" << least.where << ")\n";
    }
    std::cout << pairs << " pairs\n";
}

// The two ions of silver chloride, as the lens shows them.
TEST_F(BeakerColours, IonsBeneathTheLensDiffer) {
    const auto ion = [this](IonSign sign) {
        form_.box.setBackColor(kWhite);
        surface_.Clear();
        drawPlainBall(surface_, 100, 50, 30, ionColor(sign));
        drawSign(surface_, {100, 50}, 30, sign, signColor(sign));
        surface_.finish();
        surface_.invalidate();
        return surface_.image({200, 100}, 1).copy(60, 10, 80, 80);
    };
    for (const Sight& sight : kSights) {
        EXPECT_GE(difference(ion(IonSign::Minus), ion(IonSign::Plus), sight), kShare) << sight.name;
    }
}

// Markers differ in shape, so no two series of one graph have the same.
TEST(SeriesColours, NoTwoSeriesOfAGraphShareAMarker) {
    const std::vector<SeriesLook> graphs[] = {
        {kTotalLook, kHydroniumLook, kChlorideLook, kSodiumLook, kHydroxideLook},
        {kTotalLook, kHydroniumLook, kAcetateLook, kSodiumLook, kHydroxideLook},
        {kTotalLook, kChlorideLook, kSodiumLook, kNitrateLook, kSilverLook}};
    for (const auto& graph : graphs) {
        std::set<Marker> markers;
        for (const SeriesLook& look : graph) {
            EXPECT_TRUE(markers.insert(look.marker).second) << look.name;
        }
    }
}

} // namespace
} // namespace quendal::test

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
