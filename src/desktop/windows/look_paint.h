// How the parts of Qt's own widgets are painted; LookStyle says when.
#pragma once

class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionComplex;
class QStyleOptionMenuItem;
class QStyleOptionTab;
class QWidget;

namespace quendal {

inline constexpr double kArrowField = 26; // right end of a drop-down list, design px

void drawFieldBox(QPainter& painter, const QStyleOption* option, const QWidget* widget);
void drawButton(QPainter& painter, const QStyleOption* option, const QWidget* widget);
void drawCheck(QPainter& painter, const QStyleOption* option, const QWidget* widget);
void drawOption(QPainter& painter, const QStyleOption* option, const QWidget* widget);
void drawComboBox(QPainter& painter, const QStyleOptionComplex* option, const QWidget* widget);
void drawScrollBar(QPainter& painter, const QStyleOptionComplex* option, const QWidget* widget,
                   const QRect& slider);
void drawTab(QPainter& painter, const QStyleOption* option, const QWidget* widget);
void drawTabLabel(QPainter& painter, const QStyleOptionTab& tab, const QWidget* widget);
void drawMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item, const QWidget* widget);

} // namespace quendal
