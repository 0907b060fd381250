#include "desktop/windows/look_style.h"

#include "desktop/windows/look.h"
#include "desktop/windows/look_paint.h"
#include "desktop/windows/text_fit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOption>
#include <QTabBar>

#include <algorithm>
#include <cmath>

namespace quendal {

namespace {

constexpr double kIndicator = 17;  // box of a check or option button, design px
constexpr double kScrollBar = 12;  // width of a scroll bar
constexpr double kIcon = 20;       // icon of a button
constexpr double kLeastThumb = 28; // of a scroll bar
constexpr double kMinButtonWidth = 88;
constexpr double kMinButtonHeight = 32;

int scaled(double design, const QWidget* widget) {
    return std::max(1, static_cast<int>(std::lround(design * look::scaleOf(widget))));
}

// The thumb, or what lies before or behind it, of a bar without arrows.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part, int leastThumb) {
    const bool across = bar.orientation == Qt::Horizontal;
    const int length = across ? bar.rect.width() : bar.rect.height();
    const qint64 range = bar.maximum - bar.minimum;
    const qint64 pages = std::max<qint64>(1, range + bar.pageStep);
    const int share = static_cast<int>(qint64(bar.pageStep) * length / pages);
    const int thumb = range == 0 ? length : std::clamp(share, std::min(length, leastThumb), length);
    const int at = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                   length - thumb, bar.upsideDown);
    const auto piece = [&](int from, int extent) {
        return across ? QRect(bar.rect.left() + from, bar.rect.top(), extent, bar.rect.height())
                      : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), extent);
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return piece(at, thumb);
    case QStyle::SC_ScrollBarSubPage:
        return piece(0, at);
    default:
        return piece(at + thumb, length - at - thumb);
    }
}

} // namespace

LookStyle::LookStyle() : QProxyStyle("Fusion") {}

void LookStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton*>(widget) != nullptr ||
        qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QTabBar*>(widget) != nullptr) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return scaled(kIndicator, widget);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return scaled(8, widget);
    case PM_DefaultFrameWidth:
        if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
            return scaled(2, widget);
        }
        return QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ScrollBarExtent:
        return scaled(kScrollBar, widget);
    case PM_ScrollBarSliderMin:
        return scaled(kLeastThumb, widget);
    case PM_ButtonIconSize:
    case PM_SmallIconSize:
        return scaled(kIcon, widget);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return scaled(16, widget);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return scaled(8, widget);
    case PM_MenuBarItemSpacing:
        return scaled(6, widget);
    case PM_MenuBarHMargin:
    case PM_MenuBarVMargin:
        return scaled(3, widget);
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    switch (hint) {
    case SH_UnderlineShortcut:
        return 1;
    case SH_ScrollBar_ContextMenu: // would run a loop of its own past the program's pump
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        return whole.expandedTo(
            {scaled(kMinButtonWidth, widget), scaled(kMinButtonHeight, widget)});
    case CT_TabBarTab: {
        const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
        QFont font = widget != nullptr ? widget->font() : QFont();
        font.setBold(true); // no tab changes its width when it is chosen
        const int text =
            tab == nullptr ? 0 : QFontMetrics(font).horizontalAdvance(withoutMnemonic(tab->text));
        return {text + scaled(look::kTabPadding, widget), scaled(look::kTabBar, widget)};
    }
    case CT_LineEdit:
    case CT_ComboBox:
        return whole.expandedTo({0, scaled(kMinButtonHeight, widget)});
    case CT_MenuItem:
        return whole + QSize(scaled(12, widget), scaled(6, widget));
    case CT_MenuBarItem:
        return whole + QSize(scaled(8, widget), scaled(4, widget));
    default:
        return whole;
    }
}

QRect LookStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
    // The whole control switches, not only its text.
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect) {
        return option->rect;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const {
    if (control == CC_ComboBox && option != nullptr) {
        const int field = scaled(kArrowField, widget);
        if (part == SC_ComboBoxEditField) {
            return option->rect.adjusted(scaled(8, widget), 1, -field, -1);
        }
        if (part == SC_ComboBoxArrow) {
            return {option->rect.right() - field, option->rect.top(), field, option->rect.height()};
        }
    }
    if (control == CC_ScrollBar && (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine)) {
        return {};
    }
    if (control == CC_ScrollBar && part == SC_ScrollBarGroove) {
        return option->rect;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr &&
        (part == SC_ScrollBarSlider || part == SC_ScrollBarAddPage ||
         part == SC_ScrollBarSubPage)) {
        return scrollBarPart(*bar, part, scaled(kLeastThumb, widget));
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_IndicatorCheckBox:
        drawCheck(*painter, option, widget);
        break;
    case PE_IndicatorRadioButton:
        drawOption(*painter, option, widget);
        break;
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame == nullptr || frame->lineWidth > 0) {
            drawFieldBox(*painter, option, widget);
        }
        break;
    }
    case PE_FrameLineEdit:
        break; // drawn with the panel
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr) {
            const double scale = look::scaleOf(widget);
            painter->save();
            look::drawFocus(*painter, option->rect, 3 * scale, scale);
            painter->restore();
        }
        break;
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
            painter->save();
            look::drawBox(*painter, option->rect, 3 * look::scaleOf(widget), look::kPanel,
                          look::kBorder, std::max(1.0, look::scaleOf(widget)));
            if (option->state.testFlag(QStyle::State_HasFocus)) {
                look::drawFocus(*painter, option->rect, 3 * look::scaleOf(widget),
                                look::scaleOf(widget));
            }
            painter->restore();
            break;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    case PE_PanelMenuBar:
        painter->fillRect(option->rect, look::kGround);
        break;
    case PE_PanelScrollAreaCorner:
    case PE_FrameTabBarBase:
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_PushButtonBevel) {
        drawButton(*painter, option, widget);
        return;
    }
    if (element == CE_PushButton) {
        // Without the second focus frame that the base style puts around the label.
        drawControl(CE_PushButtonBevel, option, painter, widget);
        drawControl(CE_PushButtonLabel, option, painter, widget);
        return;
    }
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_MenuBarEmptyArea) {
        painter->fillRect(option->rect, look::kGround);
        return;
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuBarItem && item != nullptr) {
        drawMenuBarItem(*painter, *item, widget);
        return;
    }
    if (element == CE_TabBarTabShape && tab != nullptr) {
        drawTab(*painter, tab, widget);
        return;
    }
    if (element == CE_TabBarTabLabel && tab != nullptr) {
        drawTabLabel(*painter, *tab, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    if (control == CC_ComboBox) {
        drawComboBox(*painter, option, widget);
        return;
    }
    if (control == CC_ScrollBar) {
        const QRect slider = subControlRect(control, option, SC_ScrollBarSlider, widget);
        drawScrollBar(*painter, option, widget, slider);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace quendal
