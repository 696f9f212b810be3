#include "panels/special_pages/paper/SeparatorsDialog.h"

#include "pde/forms/BoundControls.h"
#include "pde/forms/DialogCommands.h"
#include "product/Westmarch2.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

#include <array>

namespace kesta {
namespace separators {
namespace {

constexpr QLatin1StringView
    kHelpPage("Paper_Output/Paper/Transparency_Separators/idh_transparency_separator_options.htm");

struct Choice {
    SInt32 option;
    SInt32 color;
};

constexpr auto kBindings = std::to_array<Binding<Choice>>({
    {kOptionPopup, kMember<&Choice::option>, {.map = _SeparatorOptionMap}},
    {kColorPopup, kMember<&Choice::color>, {.option = PPDKeyword("MediaColor")}},
});

struct _SeparatorDialogContext {
    const Bundle& bundle;
    QWidget& window;
    BoundControls<Choice> bound;

    PopupButton* popup(Control number) const { return FindPopupButton(&window, {kSignature, number}); }
    // What the pop-ups show; of one without items, what was before.
    Choice chosen(Choice before) const
    {
        bound.takeAll(before);
        return before;
    }
};

void ShowChoice(const _SeparatorDialogContext& dialog)
{
    const Choice chosen = dialog.chosen({.option = 0, .color = 0});
    const bool separated = chosen.option != kSeparatorsNone;
    SetControlEnabled(FindControl(&dialog.window, {kSignature, kColorLabel}), separated);
    SetControlEnabled(dialog.popup(kColorPopup), separated);
    if (auto* picture = FindControlAs<PictureView>(&dialog.window, {kSignature, kPicture}))
        picture->setPicture(SeparatorsPicture(chosen.option, chosen.color));
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

void SyncFromUI(const _SeparatorDialogContext& dialog, SInt32& option, Stock& stock)
{
    const Choice chosen = dialog.chosen({.option = option, .color = stock.color()});
    option = chosen.option;
    if (option != kSeparatorsNone)
        stock.setColor(chosen.color);
}

} // namespace
} // namespace separators

OSStatus RunModalSeparatorsDialog(const Bundle& bundle, SInt32& option, Stock& stock, ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SeparatorsDialog", "Separators");
    if (!window)
        return kInterfaceFileUnreadable;
    const FormPlace place{
        .root = window.get(), .signature = separators::kSignature, .bundle = bundle, .ppd = PPDGetCurrent()};
    const separators::_SeparatorDialogContext dialog{
        .bundle = bundle, .window = *window, .bound = {place, separators::kBindings}};
    dialog.bound.fill();
    dialog.bound.show({.option = option, .color = stock.color()}, Showing::Opened);
    separators::ShowChoice(dialog);
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
