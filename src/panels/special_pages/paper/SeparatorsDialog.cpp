#include "panels/special_pages/paper/SeparatorsDialog.h"

#include "pde/forms/DialogCommands.h"
#include "pde/menus/MenuUtilities.h"
#include "product/Westmarch2.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace separators {
namespace {

constexpr QLatin1StringView
    kHelpPage("Paper_Output/Paper/Transparency_Separators/idh_transparency_separator_options.htm");

struct _SeparatorDialogContext {
    const Bundle& bundle;
    QWidget& window;

    PopupButton* popup(Control number) const { return FindPopupButton(&window, {kSignature, number}); }
    SInt32 chosen(Control number) const { return GetPopupButtonTicketValue(popup(number)); }
};

void ShowChoice(const _SeparatorDialogContext& dialog)
{
    const bool separated = dialog.chosen(kOptionPopup) != kSeparatorsNone;
    SetControlEnabled(FindControl(&dialog.window, {kSignature, kColorLabel}), separated);
    SetControlEnabled(dialog.popup(kColorPopup), separated);
    if (auto* picture = FindControlAs<PictureView>(&dialog.window, {kSignature, kPicture}))
        picture->setPicture(SeparatorsPicture(dialog.chosen(kOptionPopup), dialog.chosen(kColorPopup)));
}

void ShowDefaults(const _SeparatorDialogContext& dialog)
{
    for (const Control number : {kOptionPopup, kColorPopup}) {
        if (PopupButton* popup = dialog.popup(number))
            popup->setValue(1);
    }
    ShowChoice(dialog);
}

EventResult HandleCommand(const _SeparatorDialogContext& dialog, FourCharCode command)
{
    if (command != kCommandDefaults)
        return HandleDialogCommand(dialog.bundle, dialog.window, command, kHelpPage);
    ShowDefaults(dialog);
    return EventResult::Handled;
}

void SyncToUI(const _SeparatorDialogContext& dialog, SInt32 option, const Stock& stock)
{
    PopulatePopupButtonFromMap(dialog.bundle, dialog.popup(kOptionPopup), _SeparatorOptionMap, JobContext::Job);
    SetPopupButtonToTicketValue(dialog.popup(kOptionPopup), option);
    PPDPopulatePopupWithChoices(dialog.popup(kColorPopup), PPDGetCurrent(), "MediaColor", Conflicting::Keep);
    SetPopupButtonToTicketValue(dialog.popup(kColorPopup), stock.color());
    ShowChoice(dialog);
}

void SyncFromUI(const _SeparatorDialogContext& dialog, SInt32& option, Stock& stock)
{
    option = dialog.chosen(kOptionPopup);
    const PopupButton* colors = dialog.popup(kColorPopup);
    if (option != kSeparatorsNone && colors && colors->selectedItem())
        stock.setColor(dialog.chosen(kColorPopup));
}

} // namespace
} // namespace separators

OSStatus RunModalSeparatorsDialog(const Bundle& bundle, SInt32& option, Stock& stock, ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SeparatorsDialog", "Separators");
    if (!window)
        return kInterfaceFileUnreadable;
    const separators::_SeparatorDialogContext dialog{.bundle = bundle, .window = *window};
    separators::SyncToUI(dialog, option, stock);
    const EventHandler handler = InstallEventHandler(
        *window, [&](const CommandEvent& event) { return separators::HandleCommand(dialog, event.command); },
        [&](const HitEvent&) {
            separators::ShowChoice(dialog);
            return EventResult::NotHandled;
        });
    result = RunModalLoop(*window);
    if (result == ModalResult::OK)
        separators::SyncFromUI(dialog, option, stock);
    return noErr;
}

} // namespace kesta
