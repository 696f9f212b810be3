#include "toolkit/controls/MenuButton.h"

#include "toolkit/controls/ControlEvent.h"

#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <utility>

namespace kesta {
namespace {

QStyleOptionButton StyleOption(const MenuButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.features = QStyleOptionButton::HasMenu;
    option.text = button.text();
    option.state |= QStyle::State_Raised;
    return option;
}

} // namespace

MenuButton::MenuButton(QWidget* parent) : MenuControl(parent)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void MenuButton::setMenu(Menu menu)
{
    replaceMenu(std::move(menu));
}

void MenuButton::sendChosen(const MenuPath& path, const MenuItem& item)
{
    const QPointer<MenuButton> alive = this;
    if (item.command != kNoCommand)
        SendControlEvent(*this,
                         CommandEvent{.command = item.command, .ticketValue = item.value, .position = path.back()});
    if (path.size() == 1 && alive)
        SendControlEvent(*this, HitEvent{.value = path.front(), .ticketValue = item.value});
}

QSize MenuButton::sizeHint() const
{
    const QStyleOptionButton option = StyleOption(*this);
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    const int indicator = style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, text + QSize(indicator, 0), this);
}

void MenuButton::paintEvent(QPaintEvent*)
{
    QStylePainter(this).drawControl(QStyle::CE_PushButton, StyleOption(*this));
}

} // namespace kesta
