#include "toolkit/controls/PopupButton.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/OpenMenu.h"
#include "toolkit/style/KestaColors.h"
#include "toolkit/style/KestaStyleDrawing.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace kesta {
namespace {

constexpr int kInset = 1; // points, of the text in its field: what Qt's own styles keep free
constexpr int kMarkSize = 16;
constexpr int kMarkRoom = kMarkSize + 6; // before the text

QStyleOptionComboBox StyleOption(const PopupButton& button)
{
    QStyleOptionComboBox option;
    option.initFrom(&button);
    option.editable = false;
    option.currentText = button.text();
    return option;
}

QRect TextRect(const PopupButton& button, const QStyleOptionComboBox& option)
{
    const QRect field =
        button.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &button);
    return field.adjusted(kInset, 0, -kInset, 0);
}

bool HasMark(const PopupButton& button)
{
    return button.selectedItem() && button.selectedItem()->notOffered;
}

// What is left of the control for its text; the mark has the rest.
QRect WithoutMark(const PopupButton& button)
{
    const int room = HasMark(button) ? kMarkRoom : 0;
    return button.isRightToLeft() ? button.rect().adjusted(0, 0, -room, 0) : button.rect().adjusted(room, 0, 0, 0);
}

void DrawMark(const PopupButton& button, QPainter& painter, const QRect& text)
{
    QRect mark(0, 0, kMarkSize, kMarkSize);
    mark.moveCenter(text.center());
    button.isRightToLeft() ? mark.moveLeft(text.right() + 1 + kMarkRoom - kMarkSize)
                           : mark.moveLeft(text.left() - kMarkRoom);
    DrawCautionMark(painter, mark, CurrentColors().caution);
}

QSize SizeForText(const PopupButton& button, int textWidth)
{
    const QStyleOptionComboBox option = StyleOption(button);
    const QSize text(textWidth + 2 * kInset, button.fontMetrics().height());
    return button.style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, &button);
}

} // namespace

PopupButton::PopupButton(QWidget* parent) : MenuControl(parent) {}

void PopupButton::setMenu(Menu menu)
{
    const int count = menu.count();
    setMenu(std::move(menu), count);
}

void PopupButton::setMenu(Menu menu, int maximum)
{
    replaceMenu(std::move(menu));
    maximum_ = maximum;
    maximumWithoutExtra_.reset();
    menuChanged();
    updateGeometry();
}

void PopupButton::menuChanged()
{
    setValue(value_);
}

void PopupButton::setValue(int position)
{
    value_ = maximum_ < 1 ? 0 : std::clamp(position, 1, maximum_);
    goneThrough_ = false;
    if (value_ < menu().count())
        dropExtra();
    const QString title = selectedItem() ? selectedItem()->title : QString();
    if (title == text())
        return;
    setText(title);
    QAccessibleValueChangeEvent changed(this, title);
    QAccessible::updateAccessibility(&changed);
}

void PopupButton::showExtra(MenuItem item)
{
    dropExtra();
    item.enabled = false;
    Menu shown = menu();
    shown.items.push_back(std::move(item));
    maximumWithoutExtra_ = maximum_;
    maximum_ = std::max(maximum_, shown.count());
    const int position = shown.count();
    replaceMenu(std::move(shown));
    setValue(position);
    updateGeometry();
}

void PopupButton::dropExtra()
{
    if (!maximumWithoutExtra_)
        return;
    Menu without = menu();
    without.items.pop_back();
    replaceMenu(std::move(without));
    maximum_ = *std::exchange(maximumWithoutExtra_, std::nullopt);
}

const MenuItem* PopupButton::selectedItem() const
{
    return value_ >= 1 && value_ <= menu().count() ? &menu().items[static_cast<std::size_t>(value_) - 1] : nullptr;
}

bool PopupButton::isMarked(int position, const MenuItem& item) const
{
    return item.checked || position == value_;
}

void PopupButton::sendChosen(const MenuPath& path, const MenuItem& item)
{
    const bool topLevel = path.size() == 1;
    if (topLevel)
        setValue(path.front());
    goneThrough_ = goingThrough_;
    const QPointer<PopupButton> alive = this;
    if (item.command != kNoCommand)
        SendControlEvent(*this,
                         CommandEvent{.command = item.command, .ticketValue = item.value, .position = path.back()});
    if (topLevel && alive)
        SendControlEvent(*this, HitEvent{.value = path.front(), .ticketValue = item.value});
}

bool PopupButton::goThrough(int position)
{
    const QPointer<PopupButton> alive = this;
    goingThrough_ = true;
    const bool chosen = chooseItem(position);
    if (alive)
        goingThrough_ = false;
    return chosen;
}

// To the first item that can be chosen, from there on in steps.
void PopupButton::goFrom(int first, int step)
{
    for (int position = first; position >= 1 && position <= menu().count(); position += step) {
        if (position != value_ && goThrough(position))
            return;
    }
}

bool PopupButton::goByTyping(const QString& typed)
{
    const bool goesOn = GoesOn(sinceTyped_);
    typed_ = goesOn ? typed_ + typed : typed;
    sinceTyped_.start();
    const int count = menu().count();
    const int first = goesOn ? value_ : value_ + 1; // a new beginning looks further, so that a letter goes round
    for (int step = 0; step < count; ++step) {
        const int position = (first - 1 + step + count) % count + 1;
        const MenuItem& item = menu().items[static_cast<std::size_t>(position) - 1];
        if (!item.title.startsWith(typed_, Qt::CaseInsensitive))
            continue;
        if (position == value_ || goThrough(position))
            return true;
    }
    return false;
}

// False when the key is none that goes through the items.
bool PopupButton::goByKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Up:
        goFrom(value_ - 1, -1);
        return true;
    case Qt::Key_Down:
        goFrom(value_ + 1, 1);
        return true;
    case Qt::Key_Home:
        goFrom(1, 1);
        return true;
    case Qt::Key_End:
        goFrom(menu().count(), -1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return goneThrough_ && chooseItem(value_);
    default:
        if (!WritesTitle(key, !typed_.isEmpty() && GoesOn(sinceTyped_)))
            return false;
        goByTyping(key.text());
        return true;
    }
}

void PopupButton::keyPressEvent(QKeyEvent* event)
{
    const QPointer<PopupButton> alive = this;
    const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!(plain && goByKey(*event)) && alive)
        MenuControl::keyPressEvent(event);
}

bool PopupButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QStyleOptionComboBox option = StyleOption(*this);
        option.rect = WithoutMark(*this);
        const bool elided = fontMetrics().horizontalAdvance(text()) > TextRect(*this, option).width();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), elided ? text() : QString(), this);
        return true;
    }
    return MenuControl::event(event);
}

QSize PopupButton::sizeHint() const
{
    int width = fontMetrics().averageCharWidth() * 12;
    for (const MenuItem& item : menu().items)
        width = std::max(width, fontMetrics().horizontalAdvance(item.title) + (item.notOffered ? kMarkRoom : 0));
    return SizeForText(*this, width);
}

QSize PopupButton::minimumSizeHint() const
{
    return SizeForText(*this, fontMetrics().averageCharWidth() * 12);
}

void PopupButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option = StyleOption(*this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.rect = WithoutMark(*this);
    const QRect text = TextRect(*this, option);
    if (HasMark(*this))
        DrawMark(*this, painter, text);
    option.currentText = fontMetrics().elidedText(this->text(), Qt::ElideRight, text.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace kesta
