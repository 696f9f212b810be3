#include "pde/forms/BoundControls.h"

#include "pde/menus/MenuUtilities.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"

#include <QAbstractButton>

namespace kesta {
namespace {

bool HasItemsOfItsOwn(const BindingRule& rule)
{
    return rule.map.empty() && !rule.option;
}

void ShowItem(const FormPlace& place, PopupButton& popup, const BindingRule& rule, SInt32 value, SInt32 initial)
{
    if (rule.byPosition) {
        if (value >= 1 && value <= popup.menu().count())
            popup.setValue(value);
        return;
    }
    popup.dropExtra();
    if (SetPopupButtonToTicketValue(&popup, value))
        return;
    std::optional<MenuItem> item = ItemForOther(place.bundle, rule, place.ppd, popup.menu(), value, initial);
    if (!item)
        return popup.setValue(popup.value());
    if (popup.menu().items.empty()) {
        if (std::optional<MenuItem> back = ItemForInitial(place.bundle, rule, place.ppd, initial)) {
            popup.setMenu({.items = {std::move(*back)}});
            item->instead = 1;
        }
    }
    popup.showExtra(std::move(*item));
}

SInt32 CheckedValue(const BindingRule& rule, bool isChecked)
{
    return isChecked ? rule.on : rule.off;
}

} // namespace

void FillControl(const FormPlace& place, SInt32 control, const BindingRule& rule)
{
    PopupButton* popup = FindPopupButton(place.root, {place.signature, control});
    if (!popup || HasItemsOfItsOwn(rule))
        return;
    BoundMenu made = MenuOfRule(place.bundle, rule, place.ppd);
    popup->setMenu(std::move(made.menu), made.maximum);
}

void ShowInControl(const FormPlace& place, SInt32 control, const BindingRule& rule, SInt32 value, SInt32 initial)
{
    QWidget* shown = FindControl(place.root, {place.signature, control});
    if (auto* popup = qobject_cast<PopupButton*>(shown))
        ShowItem(place, *popup, rule, value, initial);
    else if (auto* slider = qobject_cast<SliderField*>(shown))
        slider->setNumber(value);
    else if (auto* field = qobject_cast<SpinField*>(shown))
        field->setNumber(value);
    else if (auto* box = qobject_cast<QAbstractButton*>(shown))
        box->setChecked(value == rule.on);
}

SInt32 ValueOfHit(const FormPlace& place, const BindingRule& rule, const HitEvent& hit)
{
    QWidget* control = FindControl(place.root, hit.control);
    if (qobject_cast<PopupButton*>(control))
        return rule.byPosition ? hit.value : hit.ticketValue;
    return qobject_cast<QAbstractButton*>(control) ? CheckedValue(rule, hit.value != 0) : hit.value;
}

std::optional<SInt32> ValueInControl(const FormPlace& place, SInt32 control, const BindingRule& rule)
{
    QWidget* shown = FindControl(place.root, {place.signature, control});
    if (const auto* popup = qobject_cast<PopupButton*>(shown)) {
        if (!popup->selectedItem())
            return std::nullopt;
        return rule.byPosition ? popup->value() : GetPopupButtonTicketValue(popup);
    }
    if (const auto* slider = qobject_cast<SliderField*>(shown))
        return slider->number();
    if (const auto* field = qobject_cast<SpinField*>(shown))
        return field->number();
    if (const auto* box = qobject_cast<QAbstractButton*>(shown))
        return CheckedValue(rule, box->isChecked());
    return std::nullopt;
}

} // namespace kesta
