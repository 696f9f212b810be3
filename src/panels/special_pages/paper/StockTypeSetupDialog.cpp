#include "panels/special_pages/paper/StockTypeSetupDialog.h"

#include "panels/special_pages/paper/LimitedFields.h"
#include "panels/special_pages/paper/TabStockRules.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/MenuUtilities.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace tabstock {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Exceptions/M_Tab_Mrgin_Shift_Setup.htm");

struct TabStockDialog {
    const Bundle& bundle;
    QWidget& window;
    bool isShifted; // the pages have a shift, on whichever side
    SizeUnits units = DefaultSizeUnits();

    SpinField* field(Control number) const { return FindControlAs<SpinField>(&window, {kSignature, number}); }
    PopupButton* popup(Control number) const { return FindPopupButton(&window, {kSignature, number}); }
    QWidget* control(Control number) const { return FindControl(&window, {kSignature, number}); }
    SInt32 choice() const { return GetPopupButtonTicketValue(popup(kShiftPopup)); }
};

// The field of the shift counts with a custom one alone.
bool MarkUnusable(const TabStockDialog& dialog)
{
    const bool isSequenceUsable = MarkUnlessWithin(dialog.field(kSequenceField), kTabSequenceLimits);
    if (dialog.choice() == kTabShiftCustom)
        return MarkUnlessWithin(dialog.field(kShiftField), TabShiftLimits(dialog.units)) && isSequenceUsable;
    MarkInvalid(dialog.field(kShiftField), false);
    return isSequenceUsable;
}

void ShowShift(const TabStockDialog& dialog, SInt32 shift)
{
    if (SpinField* field = dialog.field(kShiftField))
        ShowNumber(*field, shift, TabShiftLimits(dialog.units), dialog.units == SizeUnits::Inches ? 1 : 0);
    SetControlText(dialog.control(kShiftLimits), TabShiftLimitsText(dialog.bundle, dialog.units));
}

void FollowChoice(const TabStockDialog& dialog)
{
    const SInt32 choice = dialog.choice();
    for (const Control number : {kShiftLabel, kShiftField, kShiftLimits, kUnitsPopup})
        SetControlEnabled(dialog.control(number), choice == kTabShiftCustom);
    SetControlVisible(dialog.control(kShiftEndsHint), dialog.isShifted && choice == kTabShiftNone);
}

void SwitchUnits(TabStockDialog& dialog, SizeUnits units)
{
    const SpinField* field = dialog.field(kShiftField);
    if (!field || units == dialog.units)
        return;
    const SInt32 before = field->number();
    dialog.units = units;
    ShowShift(dialog, units == SizeUnits::Inches ? TabShiftToInches(before) : TabShiftToMillimetres(before));
}

EventResult HandleHit(TabStockDialog& dialog, const HitEvent& hit)
{
    if (hit.control.number == kShiftPopup)
        FollowChoice(dialog);
    else if (hit.control.number == kUnitsPopup)
        SwitchUnits(dialog, static_cast<SizeUnits>(hit.ticketValue));
    return EventResult::NotHandled;
}

void SyncToUI(const TabStockDialog& dialog, const Stock& stock, const _IS_Options& options)
{
    if (SpinField* field = dialog.field(kSequenceField)) {
        ShowNumber(*field, TabsInSequence(stock), kTabSequenceLimits);
        field->selectAll();
    }
    SetControlText(dialog.control(kSequenceLimits), TabSequenceLimitsText(dialog.bundle));
    PopulatePopupButtonFromMap(dialog.bundle, dialog.popup(kShiftPopup), _TabStockSetupMap, JobContext::Job);
    PopulatePopupButtonFromMap(dialog.bundle, dialog.popup(kUnitsPopup), _TabStockRadioMap, JobContext::Job);
    SetPopupButtonToTicketValue(dialog.popup(kUnitsPopup), static_cast<SInt32>(dialog.units));
    const TabShift shift = TabShiftFromOptions(options, dialog.units);
    SetPopupButtonToTicketValue(dialog.popup(kShiftPopup), shift.choice);
    ShowShift(dialog, shift.field);
    FollowChoice(dialog);
}

void SyncFromUI(const TabStockDialog& dialog, Stock& stock, _IS_Options& options)
{
    if (const SpinField* field = dialog.field(kSequenceField))
        stock.setModulus(field->number());
    const SpinField* field = dialog.field(kShiftField);
    ApplyTabShift({dialog.choice(), field ? field->number() : 0}, dialog.units, options);
}

} // namespace
} // namespace tabstock

OSStatus RunModalTabStockSetupDialog(const Bundle& bundle, Stock& stock, _IS_Options& shift, ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "StockTypeSetupDialog", "TabStockSetup");
    if (!window)
        return kInterfaceFileUnreadable;
    tabstock::TabStockDialog dialog{.bundle = bundle, .window = *window, .isShifted = shift.option != kUnset};
    tabstock::SyncToUI(dialog, stock, shift);
    const EventHandler holding = EnableOKWhile(*window, [&dialog] { return tabstock::MarkUnusable(dialog); });
    const EventHandler hits =
        InstallEventHandler(*window, [&](const HitEvent& hit) { return tabstock::HandleHit(dialog, hit); });
    result = RunModalDialog(bundle, *window, tabstock::kHelpPage);
    if (result == ModalResult::OK)
        tabstock::SyncFromUI(dialog, stock, shift);
    return noErr;
}

} // namespace kesta
