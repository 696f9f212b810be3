#include "toolkit/controls/PopupButton.h"

#include "toolkit/controls/ControlEvent.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QPointer>
#include <QStyleHints>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace kesta {
namespace {

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
    return button.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &button);
}

QSize SizeForText(const PopupButton& button, int textWidth)
{
    const QStyleOptionComboBox option = StyleOption(button);
    const QSize text(textWidth, button.fontMetrics().height());
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
    const QString title = selectedItem() ? selectedItem()->title : QString();
    if (title == text())
        return;
    setText(title);
    QAccessibleValueChangeEvent changed(this, title);
    QAccessible::updateAccessibility(&changed);
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
    const QPointer<PopupButton> alive = this;
    if (item.command != kNoCommand)
        SendControlEvent(*this,
                         CommandEvent{.command = item.command, .ticketValue = item.value, .position = path.back()});
    if (topLevel && alive)
        SendControlEvent(*this, HitEvent{.value = path.front(), .ticketValue = item.value});
}

// The first item that can be chosen, from there on in steps.
void PopupButton::chooseFrom(int first, int step)
{
    for (int position = first; position >= 1 && position <= menu().count(); position += step) {
        if (position != value_ && chooseItem(position))
            return;
    }
}

bool PopupButton::chooseByTyping(const QString& typed)
{
    const bool goesOn =
        sinceTyped_.isValid() && sinceTyped_.elapsed() < QGuiApplication::styleHints()->keyboardInputInterval();
    typed_ = goesOn ? typed_ + typed : typed;
    sinceTyped_.start();
    const int count = menu().count();
    const int first = goesOn ? value_ : value_ + 1; // a new beginning looks further, so that a letter goes round
    for (int step = 0; step < count; ++step) {
        const int position = (first - 1 + step + count) % count + 1;
        const MenuItem& item = menu().items[static_cast<std::size_t>(position) - 1];
        if (!item.title.startsWith(typed_, Qt::CaseInsensitive))
            continue;
        if (position == value_ || chooseItem(position))
            return true;
    }
    return false;
}

void PopupButton::keyPressEvent(QKeyEvent* event)
{
    const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const QString typed = event->text();
    const bool goesOn = !typed_.isEmpty() && sinceTyped_.isValid() &&
                        sinceTyped_.elapsed() < QGuiApplication::styleHints()->keyboardInputInterval();
    if (plain && event->key() == Qt::Key_Up)
        chooseFrom(value_ - 1, -1);
    else if (plain && event->key() == Qt::Key_Down)
        chooseFrom(value_ + 1, 1);
    else if (plain && event->key() == Qt::Key_Home)
        chooseFrom(1, 1);
    else if (plain && event->key() == Qt::Key_End)
        chooseFrom(menu().count(), -1);
    else if (plain && !typed.isEmpty() && typed.front().isPrint() && (event->key() != Qt::Key_Space || goesOn))
        chooseByTyping(typed);
    else
        MenuControl::keyPressEvent(event);
}

bool PopupButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool elided = fontMetrics().horizontalAdvance(text()) > TextRect(*this, StyleOption(*this)).width();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), elided ? text() : QString(), this);
        return true;
    }
    return MenuControl::event(event);
}

QSize PopupButton::sizeHint() const
{
    int width = fontMetrics().averageCharWidth() * 12;
    for (const MenuItem& item : menu().items)
        width = std::max(width, fontMetrics().horizontalAdvance(item.title));
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
    option.currentText = fontMetrics().elidedText(text(), Qt::ElideRight, TextRect(*this, option).width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace kesta
