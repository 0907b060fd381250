// The look of the whole program in one place: colours, type and measures. Every window of the
// desktop host, message boxes and calculator included, takes them from here.
#pragma once

#include "host/color.h"
#include "host/font.h"

#include <QColor>
#include <QFont>
#include <QRectF>

class QApplication;
class QPainter;
class QWidget;

namespace quendal::look {

inline const QColor kGround(244, 247, 247);
inline const QColor kPanel(255, 255, 255);
inline const QColor kBorder(201, 212, 214);
inline const QColor kStrongBorder(164, 180, 184); // of what can be pressed or filled in
inline const QColor kInk(31, 42, 46);
inline const QColor kCalmInk(86, 100, 105); // second rank; 4.5 to 1 on the ground
inline const QColor kAccent(47, 143, 143);
inline const QColor kAccentInk(23, 105, 105); // the accent where it is text
inline const QColor kAccentWash(226, 241, 241);
inline const QColor kFocus(29, 111, 165);
inline const QColor kRight(22, 120, 60);
inline const QColor kWrong(190, 38, 38);
// What the logic knows as the system's button colour; a control in it gets the plain look.
inline constexpr Color kButtonColor{240, 240, 240};

inline constexpr double kCorner = 8; // radius of a panel's corners, design px
inline constexpr double kButtonCorner = 6;
inline constexpr double kTextContrast = 4.5; // to 1, the least of text on its ground
inline constexpr double kShapeContrast = 3;  // the least of lines and signs
inline constexpr double kTextSize = 13;
inline constexpr double kHeadingSize = 16;
inline constexpr double kFrameHead = 32;  // height of a frame's head with its title
inline constexpr double kTabBar = 40;     // height of a tab control's row of tabs
inline constexpr double kTabPadding = 30; // beside a tab's text, both sides together

// Fonts, palette and style of the process; once, before the first window.
void apply(QApplication& application);

// Device-independent pixels for one design px on the window that `widget` stands in, or that this
// window belongs to; 1 until setScale was called for one.
double scaleOf(const QWidget* widget);
// Marks the window with its scale; whoever builds a window sizes its fonts and places with it too.
void setScale(QWidget& window, double scale);

// How much larger than usual the learner wants all windows; 1 at first.
double zoom();
void setZoom(double zoom);
// The next larger or smaller zoom that there is, `steps` of them on; 0 steps: 1.
double zoomFrom(double zoom, int steps);

// Fonts are set in whole pixels.
QFont font(const FontSpec& spec, double scale);
QFont font(double designSize, double scale, bool bold = false);

QColor toQColor(Color color);
// The colour the logic asked for as text on `ground`, moved away from it until it can be read
// (4.5 to 1).
// Black becomes the ink of the program.
QColor textOn(Color asked, const QColor& ground);
QColor readable(const QColor& color, const QColor& ground, double leastContrast = kTextContrast);
double contrast(const QColor& one, const QColor& other);

// A rounded box with a border `width` wide that lies inside `box` whole.
void drawBox(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
             const QColor& border, double width);
// The ring around what has the focus.
void drawFocus(QPainter& painter, const QRectF& box, double radius, double scale);
// Where that ring stands on a button: over its border, or inside one that is as dark as the ring.
QRectF focusRoom(const QRectF& box, bool strongBorder, double scale);

} // namespace quendal::look
