#include "toolkit/style/KestaProxyStyle.h"

#include <QAbstractScrollArea>
#include <QLayout>
#include <QScrollArea>
#include <QStyleOption>
#include <QTextBrowser>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kControlHeight = 28; // points, as are all here
constexpr int kButtonInset = 14;
constexpr int kButtonWidth = 84;
constexpr int kIconButtonWidth = 32;
constexpr int kRowHeight = 26;
constexpr int kTileHeight = 68;
constexpr int kPageMargin = 16;
constexpr int kSpacing = 8;
constexpr int kIndicator = 16;

// Whether a scroll bar is that of a page that has a margin for it, not of a list.
bool LiesInMargin(const QWidget* bar)
{
    const QWidget* container = bar ? bar->parentWidget() : nullptr;
    const QWidget* scrolled = container ? container->parentWidget() : nullptr;
    if (const auto* text = qobject_cast<const QTextBrowser*>(scrolled))
        return text->document()->documentMargin() >= kScrollBarWidth;
    const auto* area = qobject_cast<const QScrollArea*>(scrolled);
    const QLayout* page = area && area->widget() ? area->widget()->layout() : nullptr;
    return page && page->contentsMargins().right() >= kScrollBarWidth;
}

int ControlHeight(const QStyleOption* option)
{
    return std::max(kControlHeight, (option ? option->fontMetrics.height() : 0) + 10);
}

QSize ButtonSize(const QStyleOptionButton& button, const QSize& contents, const QByteArray& look)
{
    if (look == "tile")
        return QSize(contents.width() + 3 * 12, kTileHeight).expandedTo({0, contents.height() + 16});
    const bool hasText = !button.text.isEmpty();
    const int width = hasText ? std::max(contents.width() + 2 * kButtonInset, kButtonWidth) : kIconButtonWidth;
    return {width, ControlHeight(&button)};
}

} // namespace

int KestaProxyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return kPageMargin;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return kSpacing;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ButtonIconSize:
    case PM_SmallIconSize:
    case PM_SliderLength:
        return LookOf(widget) == "tile" ? 48 : kIndicator;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return kSliderHandle;
    case PM_ScrollBarExtent:
        return kScrollBarWidth;
    case PM_ScrollView_ScrollBarOverlap: // so that nothing gets narrower
        return LiesInMargin(widget) ? kScrollBarWidth : 0;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
        return 4;
    case PM_MenuHMargin:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ButtonDefaultIndicator:
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabShiftVertical:
        return 0;
    case PM_MenuButtonIndicator:
        return 20;
    case PM_TabBarTabHSpace:
        return 24;
    case PM_TabBarTabVSpace:
        return 12;
    case PM_DefaultFrameWidth:
        if (LookOf(widget) == "pane")
            return 0; // its hairlines lie on the edge
        return qobject_cast<const QAbstractScrollArea*>(widget) ? 2 : 1;
    case PM_FocusFrameHMargin:
        return kTextInset - 1; // item views add one themselves
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize KestaProxyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                        const QWidget* widget) const
{
    switch (type) {
    case CT_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return ButtonSize(*button, size, LookOf(widget));
        break;
    case CT_ToolButton:
        return {std::max(size.width() + kTextInset, kIconButtonWidth), ControlHeight(option)};
    case CT_ComboBox: {
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        const int cursorRoom = combo && combo->editable ? kTextInset : 0;
        return {size.width() + kTextInset + kArrowWidth + cursorRoom, ControlHeight(option)};
    }
    case CT_SpinBox:
        return {size.width() + kTextInset + kStepperWidth, ControlHeight(option)};
    case CT_LineEdit:
        return {size.width() + 2 * kTextInset, ControlHeight(option)};
    case CT_CheckBox:
    case CT_RadioButton: // room for the focus ring
        return QProxyStyle::sizeFromContents(type, option, size, widget) + QSize(kTextInset, 4);
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return MenuItemSize(*item, size);
        break;
    case CT_HeaderSection: {
        const QSize section = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {section.width() + kTextInset, std::max(kRowHeight, section.height())};
    }
    case CT_ItemViewItem: {
        const QSize item = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {item.width() + kTextInset, std::max(kRowHeight, item.height())};
    }
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

} // namespace kesta
