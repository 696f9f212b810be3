#include "panels/color_options/ColorOptionsPanel.h"

#include "panels/color_options/ColorMenus.h"
#include "panels/color_options/SwatchStrip.h"
#include "pde/forms/CustomValueDialog.h"
#include "pde/forms/FormPanel.h"
#include "pde/interface/SummaryPlaces.h"
#include "toolkit/windows/ModalLoop.h"
#include "toolkit/windows/WindowSummary.h"

#include <algorithm>

namespace kesta::color_options {
namespace {

using _ColorOptionsPanelContext = FormContext<ColorOptions>;

QWidget* Find(const _ColorOptionsPanelContext& panel, Control number)
{
    return FindControl(panel.pane, {kSignature, number});
}

void ShowMenu(QWidget* control, MenuAndPosition shown)
{
    if (auto* popup = qobject_cast<PopupButton*>(control)) {
        popup->setMenu(std::move(shown.menu));
        popup->setValue(shown.position);
    }
}

void ShowNamesAndState(const _ColorOptionsPanelContext& panel)
{
    const FullColorOptions& record = panel.options.record;
    for (const NameSetting& setting : NameSettings())
        ShowMenu(Find(panel, setting.control), NameMenu(*panel.bundle, setting, record));
    SetControlEnabled(Find(panel, kFastDirection), UsesTrappingDirections(record));
    SetControlEnabled(Find(panel, kSlowDirection), UsesTrappingDirections(record));
    SetControlEnabled(Find(panel, kResetButton), HasAdjustments(panel.options));
    if (QWidget* strip = Find(panel, kAfterStrip))
        strip->update();
    const bool isPlain = record == FullColorOptions();
    if (QWidget* view = panel.view)
        SetSummaryPhrases(*view, SummaryPlace::Colors,
                          isPlain ? QStringList() : QStringList(LocalizedString(*panel.bundle, "Colors In Summary")));
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

// Whether the record now has just what the user is typing into a field.
bool IsAsTyped(const ColorOptions& options, const HitEvent& hit)
{
    const auto binding = std::ranges::find(kBindings, hit.control.number, &Binding<ColorOptions>::control);
    return binding != kBindings.end() && binding->rule.map.empty() && binding->value.get(options) == hit.value;
}

EventResult DrawStrip(const _ColorOptionsPanelContext& panel, const DrawEvent& draw)
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

void Read(ColorOptions& options, const Ticket& settings, ppd_file_t*)
{
    ReadTicket(options, settings);
}

void HandleHit(_ColorOptionsPanelContext& panel, const HitEvent& hit);

constexpr FormPanel<ColorOptions> kPanel{
    .bundle = kColorOptionsIdentifier,
    .title = "ColorOptions",
    .interfaceFile = "ColorOptionsPanel",
    .window = "ColorOptions",
    .signature = kSignature,
    .bindings = kBindings,
    .Read = Read,
    .Write = WriteTicket,
    .Show = ShowNamesAndState,
    .Hit = HandleHit,
    .Draw = DrawStrip,
};

// One number may change others: all are shown anew.
void HandleHit(_ColorOptionsPanelContext& panel, const HitEvent& hit)
{
    const auto names = NameSettings();
    const auto name = std::ranges::find(names, hit.control.number, &NameSetting::control);
    if (name != names.end())
        Choose(*name, hit.ticketValue, panel.options.record);
    else if (hit.control.number == kResetButton)
        ResetAdjustments(panel.options);
    const SInt32 typedInto = IsAsTyped(panel.options, hit) ? hit.control.number : 0;
    FormSlots<kPanel>::Controls(panel).show(panel.options, Showing::Opened, typedInto);
}

} // namespace
} // namespace kesta::color_options

KestaStatus GetColorOptionPanelInterface(const PanelInterfaceHolder** holder)
{
    return kesta::GiveForm<kesta::color_options::kPanel>(holder);
}
