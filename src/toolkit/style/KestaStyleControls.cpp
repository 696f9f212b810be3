#include "toolkit/style/KestaProxyStyle.h"
#include "toolkit/style/KestaStyleDrawing.h"
#include "toolkit/style/Pictures.h"

#include <QAbstractScrollArea>
#include <QFrame>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kProgressHeight = 6;   // points
constexpr int kInvalidMarkSize = 16; // points, of the mark inside an invalid field
constexpr double kBoxRadius = 4;

bool IsEnabled(const QStyleOption& option)
{
    return option.state & QStyle::State_Enabled;
}

bool HasKeyboardFocus(const QStyleOption& option)
{
    return option.state & QStyle::State_HasFocus && option.state & QStyle::State_KeyboardFocusChange;
}

bool IsRightToLeft(const QStyleOption& option)
{
    return option.direction == Qt::RightToLeft;
}

bool IsDefaultButton(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button && button->features & QStyleOptionButton::DefaultButton && IsEnabled(option);
}

// A disabled control lets the pane through, but where the palette's ground is so far from it that no text would stand
// out from the mix.
double DisabledFill(const QColor& pane, const QColor& ground)
{
    return Contrast(pane, ground) < 2 ? 0.3 : 1;
}

// Buttons, pop-ups, segments, tiles.
void DrawPressable(const QStyleOption& option, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    if (IsDefaultButton(option)) {
        const QColor fill = Touched(colors.accent, option, Qt::black);
        DrawOutlined(painter, option.rect, fill, fill);
        if (HasKeyboardFocus(option))
            DrawRing(painter, option.rect.adjusted(2, 2, -2, -2), colors.onAccent, kOutlineRadius - 2);
        return;
    }
    const bool on = option.state & QStyle::State_On;
    const QColor plain =
        IsEnabled(option) ? colors.button : Mix(colors.pane, colors.button, DisabledFill(colors.pane, colors.button));
    const QColor fill = on ? Mix(plain, colors.accent, 0.16) : Touched(plain, option, colors.onButton);
    const QColor outline = !IsEnabled(option) ? colors.hairline : on ? colors.accent : colors.border;
    DrawOutlined(painter, option.rect, fill, outline);
    if (HasKeyboardFocus(option))
        DrawRing(painter, option.rect, colors.ring);
}

void DrawBevel(const QStyleOptionButton& button, QPainter& painter)
{
    DrawPressable(button, painter);
    if (!(button.features & QStyleOptionButton::HasMenu))
        return;
    const KestaColors colors = CurrentColors();
    const QRect arrow = button.rect.adjusted(button.rect.width() - kArrowWidth, 0, 0, 0);
    DrawChevron(painter, QStyle::visualRect(button.direction, button.rect, arrow), Direction::Down,
                IsEnabled(button) ? colors.onButton : colors.disabledOnButton, false);
}

// Anything that is typed into.
void DrawField(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    const KestaColors colors = CurrentColors();
    const bool invalid = widget && widget->property("invalid").toBool();
    const QColor fill =
        IsEnabled(option) ? colors.base : Mix(colors.pane, colors.base, DisabledFill(colors.pane, colors.base));
    DrawOutlined(painter, option.rect, fill, IsEnabled(option) ? colors.field : colors.hairline);
    if (invalid) {
        DrawRing(painter, option.rect, colors.error);
        const int inset = qstyleoption_cast<const QStyleOptionComboBox*>(&option) ? kArrowWidth : kTextInset;
        const QRect mark(option.rect.right() - inset - kInvalidMarkSize + 1,
                         option.rect.center().y() - kInvalidMarkSize / 2 + 1, kInvalidMarkSize, kInvalidMarkSize);
        DrawCautionMark(painter, QStyle::visualRect(option.direction, option.rect, mark), colors.error);
    } else if (option.state & QStyle::State_HasFocus) {
        DrawRing(painter, option.rect, colors.ring);
    }
}

QColor ArrowColor(const QStyleOption& option, bool onBase)
{
    const KestaColors colors = CurrentColors();
    if (!IsEnabled(option))
        return onBase ? colors.disabledOnBase : colors.disabledOnButton;
    return onBase ? Mix(colors.onBase, colors.base, 0.3) : Mix(colors.onButton, colors.button, 0.3);
}

void DrawComboBox(const QStyleOptionComboBox& combo, QPainter& painter, const QWidget* widget, const QStyle& style)
{
    combo.editable ? DrawField(combo, painter, widget) : DrawPressable(combo, painter);
    const QRect arrow = style.subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxArrow, widget);
    DrawChevron(painter, arrow, Direction::Down, ArrowColor(combo, combo.editable), IsRightToLeft(combo));
}

void DrawSpinBox(const QStyleOptionSpinBox& spin, QPainter& painter, const QWidget* widget, const QStyle& style)
{
    DrawField(spin, painter, widget);
    if (widget && widget->property("invalid").toBool())
        return; // the mark has the place of the arrows
    const auto draw = [&](QStyle::SubControl part, QAbstractSpinBox::StepEnabledFlag step, Direction direction,
                          int shift) {
        const bool can = IsEnabled(spin) && spin.stepEnabled & step;
        QStyleOption arrow(spin);
        arrow.state.setFlag(QStyle::State_Enabled, can);
        const QRect rect = style.subControlRect(QStyle::CC_SpinBox, &spin, part, widget).translated(0, shift);
        DrawChevron(painter, rect, direction, ArrowColor(arrow, true), false);
    };
    draw(QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Direction::Up, 2);
    draw(QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Direction::Down, -2);
}

// How much of the bar is full; as long as nobody knows how much there is to do, all of it, in a tint.
void DrawProgress(const QStyleOptionProgressBar& bar, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    const QRect groove(bar.rect.left(), bar.rect.center().y() - kProgressHeight / 2, bar.rect.width(), kProgressHeight);
    const int steps = bar.maximum - bar.minimum;
    const QColor tint = Mix(colors.pane, colors.accent, 0.3);
    DrawOutlined(painter, groove, steps > 0 ? colors.hairline : tint, steps > 0 ? colors.hairline : tint,
                 kProgressHeight / 2.0);
    if (steps <= 0 || bar.progress <= bar.minimum)
        return;
    QRect full = groove;
    full.setWidth(static_cast<int>(qint64{groove.width()} * (bar.progress - bar.minimum) / steps));
    DrawOutlined(painter, QStyle::visualRect(bar.direction, groove, full), colors.accent, colors.accent,
                 kProgressHeight / 2.0);
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    const bool on = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor outline = IsEnabled(option) ? colors.field : colors.hairline;
    const QColor filled = IsEnabled(option) ? Touched(colors.accent, option, Qt::black) : colors.disabled;
    const QColor fill = on ? filled : Touched(colors.base, option, colors.onBase);
    DrawOutlined(painter, option.rect, fill, on ? filled : outline, kBoxRadius);
    if (option.state & QStyle::State_On)
        DrawCheckMark(painter, option.rect, IsEnabled(option) ? colors.onAccent : colors.window);
    else if (option.state & QStyle::State_NoChange)
        painter.fillRect(QRect(option.rect.center() - QPoint(3, 0), QSize(8, 2)), colors.onAccent);
}

void DrawRadioButton(const QStyleOption& option, QPainter& painter)
{
    const KestaColors colors = CurrentColors();
    const bool on = option.state & QStyle::State_On;
    const QColor filled = IsEnabled(option) ? colors.accent : colors.disabled;
    const double radius = option.rect.height() / 2.0;
    DrawOutlined(painter, option.rect, on ? filled : Touched(colors.base, option, colors.onBase),
                 on                  ? filled
                 : IsEnabled(option) ? colors.field
                                     : colors.hairline,
                 radius);
    if (on)
        DrawOutlined(painter, option.rect.adjusted(5, 5, -5, -5), colors.onAccent, colors.onAccent, radius - 5);
}

// The pane has a hairline above and below; lists and text areas look like fields.
void DrawPane(const QStyleOption& option, QPainter& painter)
{
    const QColor hairline = CurrentColors().hairline;
    painter.fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)), hairline);
    painter.fillRect(QRect(option.rect.bottomLeft(), QSize(option.rect.width(), 1)), hairline);
}

// Side by side in the middle: from right to left Qt's own has the text at the edge.
void DrawIconAndText(const QStyleOptionButton& button, QPainter& painter)
{
    constexpr int kGap = 6;
    const int textWidth = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
    QRect both(0, button.rect.top(), std::min(button.rect.width(), button.iconSize.width() + kGap + textWidth),
               button.rect.height());
    both.moveLeft(button.rect.left() + (button.rect.width() - both.width()) / 2);
    const QRect icon(both.left(), both.center().y() - button.iconSize.height() / 2, button.iconSize.width(),
                     button.iconSize.height());
    const QRect text = both.adjusted(button.iconSize.width() + kGap, 0, 0, 0);
    button.icon.paint(&painter, QStyle::visualRect(button.direction, both, icon), Qt::AlignCenter,
                      IsEnabled(button) ? QIcon::Normal : QIcon::Disabled);
    painter.save();
    painter.setPen(
        button.palette.color(IsEnabled(button) ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(QStyle::visualRect(button.direction, both, text),
                     Qt::AlignVCenter | Qt::AlignHCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, button.text);
    painter.restore();
}

} // namespace

bool KestaProxyStyle::drawFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    if (LookOf(widget) == "pane") {
        DrawPane(option, painter);
        return true;
    }
    if (!qobject_cast<const QAbstractScrollArea*>(widget))
        return false;
    QStyleOption field(option);
    if (widget->hasFocus())
        field.state |= State_HasFocus;
    DrawField(field, painter, widget);
    return true;
}

void KestaProxyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
    case PE_PanelButtonBevel:
        return DrawPressable(*option, *painter);
    case PE_FrameDefaultButton:
        return;
    case PE_FrameFocusRect:
        if (!qobject_cast<const QAbstractScrollArea*>(widget))
            DrawRing(*painter, option->rect, CurrentColors().ring);
        return;
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0)
            DrawField(*option, *painter, widget);
        return;
    case PE_IndicatorCheckBox:
        return DrawCheckBox(*option, *painter);
    case PE_IndicatorRadioButton:
        return DrawRadioButton(*option, *painter);
    case PE_Frame:
        if (drawFrame(*option, *painter, widget))
            return;
        break;
    case PE_FrameTabBarBase: {
        const QRect base = option->rect;
        return painter->fillRect(QRect(base.bottomLeft(), QSize(base.width(), 1)), CurrentColors().hairline);
    }
    case PE_PanelMenu:
    case PE_FrameMenu:
        if (element == PE_PanelMenu)
            painter->fillRect(option->rect, CurrentColors().base);
        painter->setPen(CurrentColors().border);
        painter->setBrush(Qt::NoBrush);
        return painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    case PE_PanelScrollAreaCorner:
        return painter->fillRect(option->rect, CurrentColors().base);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void KestaProxyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                         const QWidget* widget) const
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); combo && control == CC_ComboBox)
        return DrawComboBox(*combo, *painter, widget, *this);
    if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option); spin && control == CC_SpinBox)
        return DrawSpinBox(*spin, *painter, widget, *this);
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider && control == CC_Slider && slider->orientation == Qt::Horizontal)
        return DrawSlider(*slider, *painter, subControlRect(CC_Slider, slider, SC_SliderHandle, widget));
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        return DrawScrollBar(*bar, *painter, subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget));
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void KestaProxyStyle::drawButtonLabel(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) const
{
    if (LookOf(widget) == "tile") {
        constexpr int kGap = 12;
        const QRect inner = button.rect.adjusted(kGap - 2, 0, -kGap, 0);
        const QRect icon = alignedRect(button.direction, Qt::AlignLeft | Qt::AlignVCenter, {48, 48}, inner);
        painter.save();
        painter.setOpacity(IsEnabled(button) ? 1 : kDisabledPictureOpacity);
        button.icon.paint(&painter, icon);
        painter.restore();
        const QRect text = visualRect(button.direction, inner, inner.adjusted(48 + kGap - 4, 0, 0, 0));
        const int flags = static_cast<int>(visualAlignment(button.direction, Qt::AlignLeft)) | Qt::AlignVCenter |
                          Qt::TextShowMnemonic | Qt::TextWordWrap;
        return drawItemText(&painter, text, flags, button.palette, IsEnabled(button), button.text,
                            QPalette::ButtonText);
    }
    QStyleOptionButton label(button);
    if (IsDefaultButton(button))
        label.palette.setColor(QPalette::ButtonText, CurrentColors().onAccent);
    if (button.icon.isNull() || button.text.isEmpty())
        return QProxyStyle::drawControl(CE_PushButtonLabel, &label, &painter, widget);
    DrawIconAndText(label, painter);
}

void KestaProxyStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    switch (element) {
    case CE_PushButtonBevel:
        if (button)
            return DrawBevel(*button, *painter);
        break;
    case CE_PushButtonLabel:
        if (button)
            return drawButtonLabel(*button, *painter, widget);
        break;
    case CE_ComboBoxLabel:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option); combo && !combo->editable) {
            const QRect text = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget);
            const int flags = static_cast<int>(visualAlignment(option->direction, Qt::AlignLeft)) | Qt::AlignVCenter;
            return drawItemText(painter, text, flags, option->palette, IsEnabled(*option), combo->currentText,
                                QPalette::ButtonText);
        }
        break;
    case CE_ProgressBarGroove:
        return; // with the contents
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            return DrawProgress(*bar, *painter);
        break;
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return DrawMenuItem(*item, *painter);
        break;
    case CE_MenuEmptyArea:
        return;
    case CE_Header:
        if (const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(option))
            return DrawHeaderSection(*section, *painter);
        break;
    case CE_HeaderEmptyArea:
        return painter->fillRect(option->rect, CurrentColors().base);
    case CE_TabBarTabShape:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
            return DrawTab(*tab, *painter);
        break;
    case CE_ShapedFrame:
        if (LookOf(widget) == "pane")
            return DrawPane(*option, *painter);
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && frame->frameShape == QFrame::HLine) {
            const QRect line(option->rect.left(), option->rect.center().y(), option->rect.width(), 1);
            return painter->fillRect(line, CurrentColors().hairline);
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

} // namespace kesta
