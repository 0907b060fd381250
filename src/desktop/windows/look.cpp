#include "desktop/windows/look.h"

#include "desktop/windows/look_style.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace quendal::look {

namespace {

constexpr const char* kScaleProperty = "quendalScale";
constexpr std::array kZooms = {0.7, 0.8, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};

double presentZoom = 1;

QPalette lightPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, kGround);
    palette.setColor(QPalette::WindowText, kInk);
    palette.setColor(QPalette::Base, kPanel);
    palette.setColor(QPalette::AlternateBase, kAccentWash);
    palette.setColor(QPalette::Text, kInk);
    palette.setColor(QPalette::Button, kPanel);
    palette.setColor(QPalette::ButtonText, kInk);
    palette.setColor(QPalette::Highlight, kAccentInk);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, kAccentInk);
    palette.setColor(QPalette::Mid, kBorder);
    palette.setColor(QPalette::PlaceholderText, kCalmInk);
    palette.setColor(QPalette::ToolTipBase, kPanel);
    palette.setColor(QPalette::ToolTipText, kInk);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, kCalmInk);
    }
    return palette;
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance as the contrast rules of the web define it.
double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

void apply(QApplication& application) {
    // The free family with the measures of Arial; Tahoma has no twin and takes the same.
    QFont::insertSubstitutions("Arial", {"Liberation Sans", "DejaVu Sans"});
    QFont::insertSubstitutions("Tahoma", {"Liberation Sans", "DejaVu Sans"});
    QApplication::setStyle(new LookStyle); // the application owns it
    QApplication::setPalette(lightPalette());
    QToolTip::setPalette(lightPalette());
    application.setFont(font(kTextSize, 1.0));
}

double scaleOf(const QWidget* widget) {
    // Menus and open lists are windows of their own that belong to another.
    for (const QWidget* at = widget; at != nullptr; at = at->parentWidget()) {
        at = at->window();
        const QVariant scale = at->property(kScaleProperty);
        if (scale.isValid()) {
            return scale.toDouble();
        }
    }
    return 1.0;
}

void setScale(QWidget& window, double scale) {
    window.setProperty(kScaleProperty, scale);
}

double zoom() {
    return presentZoom;
}

void setZoom(double zoom) {
    presentZoom = std::clamp(zoom, kZooms.front(), kZooms.back());
}

double zoomFrom(double zoom, int steps) {
    if (steps == 0) {
        return 1;
    }
    const auto nearest = std::min_element(kZooms.begin(), kZooms.end(), [zoom](double a, double b) {
        return std::abs(a - zoom) < std::abs(b - zoom);
    });
    const auto index =
        std::clamp<std::ptrdiff_t>(nearest - kZooms.begin() + steps, 0, std::ssize(kZooms) - 1);
    return kZooms[static_cast<std::size_t>(index)];
}

QFont font(const FontSpec& spec, double scale) {
    QFont made(QString::fromStdString(spec.family));
    made.setPixelSize(std::max(1, static_cast<int>(std::lround(spec.size * scale))));
    made.setBold(spec.bold);
    made.setItalic(spec.italic);
    return made;
}

QFont font(double designSize, double scale, bool bold) {
    return font(FontSpec{.size = designSize, .bold = bold}, scale);
}

QColor toQColor(Color color) {
    return {color.r, color.g, color.b};
}

QColor textOn(Color asked, const QColor& ground) {
    return asked == kBlack ? kInk : readable(toQColor(asked), ground);
}

QColor readable(const QColor& color, const QColor& ground, double leastContrast) {
    const bool darken = contrast(Qt::black, ground) > contrast(Qt::white, ground);
    const QColor limit = darken ? Qt::black : Qt::white;
    constexpr int kSteps = 20;
    QColor mixed = color;
    for (int step = 1; step <= kSteps && contrast(mixed, ground) < leastContrast; ++step) {
        const double share = static_cast<double>(step) / kSteps;
        const auto mix = [share](float from, float to) {
            return static_cast<float>(from + (to - from) * share);
        };
        mixed =
            QColor::fromRgbF(mix(color.redF(), limit.redF()), mix(color.greenF(), limit.greenF()),
                             mix(color.blueF(), limit.blueF()));
    }
    return mixed;
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

void drawBox(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
             const QColor& border, double width) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(width > 0 ? QPen(border, width) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    const double half = width / 2;
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius - half, radius - half);
}

QRectF focusRoom(const QRectF& box, bool strongBorder, double scale) {
    const double inset = strongBorder ? 3.5 * scale : 0;
    return box.adjusted(inset, inset, -inset, -inset);
}

void drawFocus(QPainter& painter, const QRectF& box, double radius, double scale) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const double width = std::max(1.5, 2 * scale);
    painter.setPen(QPen(kFocus, width));
    const double half = width / 2;
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius, radius);
}

} // namespace quendal::look
