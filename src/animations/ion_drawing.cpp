#include "animations/ion_drawing.h"

#include "animations/ion_field.h"
#include "host/surface.h"

namespace quendal {

namespace {

struct Look {
    Color free;
    Color deposited;
    Color rim;
};

const Look& lookOf(const Ion& ion, bool fast) {
    static constexpr Look kPositive{{0, 0, 255}, {0, 0, 200}, palette(1)};
    static constexpr Look kFastPositive{{100, 100, 255}, {0, 0, 220}, {0, 0, 180}};
    static constexpr Look kNegative{{255, 0, 0}, {200, 0, 0}, palette(4)};
    static constexpr Look kFastNegative{{255, 100, 100}, {220, 0, 0}, {180, 0, 0}};
    if (ion.Negative) {
        return fast ? kFastNegative : kNegative;
    }
    return fast ? kFastPositive : kPositive;
}

// All of a sign's measures are shares of an ion's radius.
struct Bars {
    double length = 0;
    double thickness = 0;
    double offset = 0; // of the sign's middle from the ion's, to both sides
};

constexpr Bars kSingle{.length = 1.0, .thickness = 0.3};
// From 0.2 to 0.9 on both sides of the middle: far enough from each other to be told apart.
constexpr Bars kDouble{.length = 0.9 - 0.2, .thickness = 0.2, .offset = (0.2 + 0.9) / 2};

// A box with these measures around a point; both corners of a box belong to it.
void bar(Surface& surface, Point centre, double width, double height) {
    const double across = (width - 1) / 2;
    const double down = (height - 1) / 2;
    surface.Box({centre.x - across, centre.y - down}, {centre.x + across, centre.y + down}, kWhite);
}

void drawSign(Surface& surface, Point centre, bool negative, const Bars& bars, Size unit) {
    const double length = bars.length * IonField::kRadius;
    const double thickness = bars.thickness * IonField::kRadius;
    bar(surface, centre, length * unit.width, thickness * unit.height);
    if (!negative) {
        bar(surface, centre, thickness * unit.width, length * unit.height);
    }
}

void drawCharge(Surface& surface, const Ion& ion, bool twice, Size unit) {
    if (!twice) {
        drawSign(surface, {ion.X, ion.Y}, ion.Negative, kSingle, unit);
        return;
    }
    const double offset = kDouble.offset * IonField::kRadius * unit.width;
    drawSign(surface, {ion.X - offset, ion.Y}, ion.Negative, kDouble, unit);
    drawSign(surface, {ion.X + offset, ion.Y}, ion.Negative, kDouble, unit);
}

void drawBall(Surface& surface, const Ion& ion, bool fast) {
    const Look& look = lookOf(ion, fast);
    surface.setFillColor(ion.Deposited ? look.deposited : look.free);
    surface.Circle({ion.X, ion.Y}, IonField::kRadius, look.rim);
}

void drawBorder(Surface& surface) {
    constexpr double kRight = IonField::kWidth - 1; // the last unit still belongs to the field
    constexpr double kBottom = IonField::kHeight - 1;
    constexpr Point kCorners[] = {{0, 0}, {kRight, 0}, {kRight, kBottom}, {0, kBottom}};
    surface.Polygon(kCorners, palette(13));
}

} // namespace

void drawIons(Surface& surface, IonField& field, Size unit) {
    surface.Clear();
    surface.setFillStyle(FillStyle::None);
    drawBorder(surface);
    surface.setFillStyle(FillStyle::Solid);
    field.DepositedCount = 0;
    for (int number = 1; number <= field.IonCount; ++number) {
        const Ion& ion = field.Ions[static_cast<std::size_t>(number)];
        if (ion.Active) {
            drawBall(surface, ion, field.FastIons);
        }
        // Meant for all: an ion that isn't active has no ball, but leaves its sign.
        if (ion.Deposited) {
            ++field.DepositedCount; // it has given its charge away
        } else {
            drawCharge(surface, ion, field.DoubleCharge, unit);
        }
    }
    surface.setFillStyle(FillStyle::None);
}

} // namespace quendal
