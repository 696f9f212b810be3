#include "toolkit/style/KestaProxyStyle.h"

#include <QStyleOption>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kFocusInset = 4; // points, of the ring round a text

// In a layout from left to right; visualRect mirrors it.
QRect ComboBoxPart(const QRect& whole, QStyle::SubControl part, bool editable)
{
    const int inset = editable ? kTextInset - 2 : kTextInset; // a line edit has an inset of 2 itself
    if (part == QStyle::SC_ComboBoxEditField)
        return whole.adjusted(inset, editable ? 2 : 0, -kArrowWidth, editable ? -2 : 0);
    if (part == QStyle::SC_ComboBoxArrow)
        return whole.adjusted(whole.width() - kArrowWidth, 0, 0, 0);
    return whole;
}

QRect SpinBoxPart(const QRect& whole, QStyle::SubControl part)
{
    const QRect steppers = whole.adjusted(whole.width() - kStepperWidth, 1, -2, -1);
    switch (part) {
    case QStyle::SC_SpinBoxEditField:
        return whole.adjusted(kTextInset - 2, 2, -kStepperWidth, -2);
    case QStyle::SC_SpinBoxUp:
        return steppers.adjusted(0, 0, 0, -steppers.height() / 2);
    case QStyle::SC_SpinBoxDown:
        return steppers.adjusted(0, steppers.height() / 2, 0, 0);
    default:
        return whole;
    }
}

} // namespace

QRect KestaProxyStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                      const QWidget* widget) const
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo && control == CC_ComboBox && part != SC_ComboBoxListBoxPopup)
        return visualRect(option->direction, option->rect, ComboBoxPart(option->rect, part, combo->editable));
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        return visualRect(option->direction, option->rect, ScrollBarPart(*bar, part));
    if (control == CC_SpinBox)
        return visualRect(option->direction, option->rect, SpinBoxPart(option->rect, part));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect KestaProxyStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const int inset = frame && frame->lineWidth > 0 ? kTextInset - 2 : 0; // a line edit has an inset of 2 itself
        return option->rect.adjusted(inset, 0, -inset, 0);
    }
    const bool isCheckBox = element == SE_CheckBoxFocusRect;
    if (isCheckBox || element == SE_RadioButtonFocusRect) { // round the text, as high as the control
        const SubElement contents = isCheckBox ? SE_CheckBoxContents : SE_RadioButtonContents;
        const QRect text = QProxyStyle::subElementRect(contents, option, widget);
        const int left = std::max(option->rect.left(), text.left() - kFocusInset);
        const int right = std::min(option->rect.right(), text.right() + kFocusInset);
        return {QPoint(left, option->rect.top()), QPoint(right, option->rect.bottom())};
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

} // namespace kesta
