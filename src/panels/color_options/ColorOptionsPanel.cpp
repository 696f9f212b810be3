#include "panels/color_options/ColorOptionsPanel.h"

#include "panels/color_options/ColorMenus.h"
#include "panels/color_options/SwatchStrip.h"
#include "pde/forms/TextFieldUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/ModalLoop.h"

#include <algorithm>

namespace kesta::color {
namespace {

QWidget* Find(const _ColorOptionsPanelContext& panel, Control number)
{
    return FindControl(panel.pane, {kSignature, number});
}

void ShowNumber(QWidget* control, SInt32 number)
{
    if (auto* slider = qobject_cast<SliderField*>(control))
        slider->setNumber(number);
    else if (auto* field = qobject_cast<SpinField*>(control))
        field->setNumber(number);
}

void ShowMenu(QWidget* control, MenuAndPosition shown)
{
    if (auto* popup = qobject_cast<PopupButton*>(control)) {
        popup->setMenu(std::move(shown.menu));
        popup->setValue(shown.position);
    }
}

// A field that the user is typing into keeps its text as typed.
void ShowOptions(const _ColorOptionsPanelContext& panel, SInt32 typedInto = 0)
{
    const FullColorOptions& record = panel.options.record;
    for (const NumberSetting& setting : NumberSettings()) {
        if (setting.control != typedInto)
            ShowNumber(Find(panel, setting.control), setting.get(record));
    }
    for (const NumberSetting& setting : ChoiceSettings())
        ShowMenu(Find(panel, setting.control), ChoiceMenu(*panel.bundle, setting, record));
    for (const NameSetting& setting : NameSettings())
        ShowMenu(Find(panel, setting.control), NameMenu(*panel.bundle, setting, record));
    SetControlEnabled(Find(panel, kFastDirection), UsesTrappingDirections(record));
    SetControlEnabled(Find(panel, kSlowDirection), UsesTrappingDirections(record));
    SetControlEnabled(Find(panel, kResetButton), HasAdjustments(record));
    if (QWidget* strip = Find(panel, kAfterStrip))
        strip->update();
}

// The dialog for a typed value is the one of the plug-in that shows this panel.
void AskForName(const NameSetting& setting, FullColorOptions& record)
{
    const Bundle* shell = FindBundle(kPlugInIdentifier);
    std::optional<QString> name = setting.get(record).name;
    ModalResult result = ModalResult::Cancel;
    const TextLimits limits{.minimumLength = 1, .maximumLength = kLongestProfileName, .allowedCharacters = {}};
    if (!shell || RunModalCustomValueDialog(*shell, limits, name, result) != noErr)
        return;
    if (result == ModalResult::OK && name && !name->isEmpty())
        setting.set(record, {setting.namedKind, name});
}

void Choose(const NameSetting& setting, SInt32 chosen, FullColorOptions& record)
{
    if (chosen == kAskForName)
        AskForName(setting, record);
    else if (chosen != setting.get(record).kind)
        setting.set(record, {chosen, std::nullopt});
}

const auto* SettingOf(auto settings, SInt32 control)
{
    const auto found = std::ranges::find_if(settings, [&](const auto& one) { return one.control == control; });
    return found == settings.end() ? nullptr : &*found;
}

} // namespace

PanelDescription Prologue(_ColorOptionsPanelContext& panel)
{
    panel.bundle = &BundleNamed(kColorOptionsIdentifier);
    return {.title = LocalizedString(*panel.bundle, "ColorOptions"), .creator = "KPDE"_code};
}

OSStatus Initialize(_ColorOptionsPanelContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

OSStatus Sync(_ColorOptionsPanelContext& panel, PrintSession& session, SyncDirection direction)
{
    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    if (direction == SyncDirection::ControlsToTickets) {
        WriteTicket(panel.options, *settings);
    } else {
        ReadTicket(panel.options, *settings);
        ShowOptions(panel);
    }
    return noErr;
}

OSStatus Open(_ColorOptionsPanelContext& panel)
{
    if (panel.view || !panel.pane)
        return noErr;
    std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, "ColorOptionsPanel", "ColorOptions");
    if (!window)
        return noErr; // the panel stays empty
    panel.view = EmbedAndShowControl(std::move(window), *panel.pane);
    ShowOptions(panel);
    panel.handler = InstallEventHandler(
        *panel.pane, [&panel](const HitEvent& hit) { return ColorOptionsPanelEventHandler(panel, hit); },
        [&panel](const DrawEvent& draw) { return ColorOptionsDrawEventHandler(panel, draw); });
    return noErr;
}

EventResult ColorOptionsPanelEventHandler(_ColorOptionsPanelContext& panel, const HitEvent& hit)
{
    if (hit.control.signature != kSignature)
        return EventResult::NotHandled;
    FullColorOptions& record = panel.options.record;
    SInt32 typedInto = 0;
    if (const NumberSetting* number = SettingOf(NumberSettings(), hit.control.number)) {
        if (number->set(record, hit.value) == noErr)
            typedInto = hit.control.number;
    } else if (const NumberSetting* choice = SettingOf(ChoiceSettings(), hit.control.number)) {
        choice->set(record, hit.ticketValue);
    } else if (const NameSetting* name = SettingOf(NameSettings(), hit.control.number)) {
        Choose(*name, hit.ticketValue, record);
    } else if (hit.control.number == kResetButton) {
        ResetAdjustments(record);
    }
    ShowOptions(panel, typedInto);
    return EventResult::NotHandled;
}

EventResult ColorOptionsDrawEventHandler(const _ColorOptionsPanelContext& panel, const DrawEvent& draw)
{
    switch (draw.control.number) {
    case kBeforeStrip:
        DrawSwatches(*draw.painter, draw.bounds, {});
        return EventResult::Handled;
    case kAfterStrip:
        DrawSwatches(*draw.painter, draw.bounds, AdjustmentsOf(panel.options.record));
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

namespace {

constexpr PanelOperations<_ColorOptionsPanelContext> kOperations{
    .Prologue = Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
};

} // namespace
} // namespace kesta::color

KestaStatus GetColorOptionPanelInterface(const PanelInterfaceHolder** holder)
{
    *holder = &kesta::PanelSlots<kesta::color::kOperations>::kHolder;
    return kesta::noErr;
}
