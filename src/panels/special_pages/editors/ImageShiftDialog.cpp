#include "panels/special_pages/editors/ImageShiftDialog.h"

#include "panels/special_pages/editors/ImageShiftScene.h"
#include "pde/forms/BoundControls.h"
#include "pde/forms/DialogCommands.h"
#include "pde/ticket/LocalizedText.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <array>

namespace kesta {
namespace imageshift {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Exceptions/m_add_exceptions_page.htm");

template <ShiftOfSide ShiftSettings::*side, SInt32 ShiftOfSide::*offset> constexpr Access<ShiftSettings> kOffset{
    [](const ShiftSettings& settings) { return settings.*side.*offset; },
    [](ShiftSettings& settings, SInt32 value) { settings.*side.*offset = value; },
};
template <bool ShiftSettings::*flag> constexpr Access<ShiftSettings> kFlag{
    [](const ShiftSettings& settings) { return SInt32{settings.*flag}; },
    [](ShiftSettings& settings, SInt32 value) { settings.*flag = value != 0; },
};

constexpr auto kBindings = std::to_array<Binding<ShiftSettings>>({
    {kShiftCheckBox, kFlag<&ShiftSettings::isOn>},
    {kAlikeCheckBox, kFlag<&ShiftSettings::areAlike>},
    {kHorizontal1, kOffset<&ShiftSettings::side1, &ShiftOfSide::horizontal>},
    {kVertical1, kOffset<&ShiftSettings::side1, &ShiftOfSide::vertical>},
    {kHorizontal2, kOffset<&ShiftSettings::side2, &ShiftOfSide::horizontal>},
    {kVertical2, kOffset<&ShiftSettings::side2, &ShiftOfSide::vertical>},
    {kUnitsPopup,
     {[](const ShiftSettings& settings) { return static_cast<SInt32>(settings.units); },
      [](ShiftSettings& settings, SInt32 units) { SwitchShiftUnits(settings, static_cast<SizeUnits>(units)); }},
     {.map = _TabStockRadioMap}},
});

struct ShiftDialog {
    const Bundle& bundle;
    QWidget& window;
    ShiftSettings settings;

    QWidget* control(Control number) const { return FindControl(&window, {kSignature, number}); }
    SpinField* field(Control number) const { return FindControlAs<SpinField>(&window, {kSignature, number}); }
    BoundControls<ShiftSettings> controls() const
    {
        return {{.root = &window, .signature = kSignature, .bundle = bundle, .ppd = nullptr}, kBindings};
    }
};

void ShowLimits(const ShiftDialog& dialog)
{
    const bool inches = dialog.settings.units == SizeUnits::Inches;
    const FieldLimits limits = TabShiftLimits(dialog.settings.units);
    const int decimals = inches ? 1 : 0;
    for (const Control number : {kHorizontal1, kVertical1, kHorizontal2, kVertical2}) {
        if (SpinField* field = dialog.field(number))
            field->setLimits(limits.least, limits.most, decimals);
    }
    const QStringList numbers{CreateLocalizedCFStringFromNumberWithDecimals(limits.least, decimals),
                              CreateLocalizedCFStringFromNumberWithDecimals(limits.most, decimals)};
    SetControlText(dialog.control(kLimits),
                   LocalizedFormat(dialog.bundle, inches ? "Min-Max Inches" : "Min-Max Millimeters", numbers));
}

void EnableControls(const ShiftDialog& dialog)
{
    const bool isOn = dialog.settings.isOn;
    for (const Control number : {kScene, kAlikeCheckBox, kHorizontalLabel, kVerticalLabel, kSide1Label, kHorizontal1,
                                 kVertical1, kLimits, kDirections, kUnitsLabel, kUnitsPopup, kSceneSide1, kSceneSide2})
        SetControlEnabled(dialog.control(number), isOn);
    for (const Control number : {kSide2Label, kHorizontal2, kVertical2})
        SetControlEnabled(dialog.control(number), isOn && !dialog.settings.areAlike);
}

void ShowSettings(const ShiftDialog& dialog, SInt32 typedInto = 0)
{
    dialog.controls().show(dialog.settings, Showing::Opened, typedInto);
    EnableControls(dialog);
    if (QWidget* scene = dialog.control(kScene))
        scene->update();
}

EventResult HandleHit(ShiftDialog& dialog, const HitEvent& hit)
{
    dialog.controls().take(hit, dialog.settings);
    FollowSide1(dialog.settings);
    if (hit.control.number == kUnitsPopup)
        ShowLimits(dialog);
    ShowSettings(dialog, hit.control.number);
    return EventResult::NotHandled;
}

EventResult DrawScene(const ShiftDialog& dialog, const DrawEvent& event)
{
    if (event.control.number != kScene)
        return EventResult::NotHandled;
    DrawImageShiftScene(*event.painter, event.bounds, dialog.settings, dialog.window.layoutDirection());
    return EventResult::Handled;
}

void Begin(const ShiftDialog& dialog)
{
    dialog.controls().fill();
    ShowLimits(dialog);
    ShowSettings(dialog);
    if (SpinField* first = dialog.field(kHorizontal1); first && dialog.settings.isOn) {
        first->setFocus();
        first->selectAll();
    }
}

} // namespace
} // namespace imageshift

OSStatus RunModalImageShiftDialog(const Bundle& bundle, _IS_Options& options, ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SpecialPages", "ImageShift");
    if (!window)
        return kInterfaceFileUnreadable;
    imageshift::ShiftDialog dialog{bundle, *window, ShiftSettingsOf(options, DefaultSizeUnits())};
    imageshift::Begin(dialog);
    const EventHandler events = InstallEventHandler(
        *window, [&](const HitEvent& hit) { return imageshift::HandleHit(dialog, hit); },
        [&](const DrawEvent& event) { return imageshift::DrawScene(dialog, event); });
    result = RunModalDialog(bundle, *window, imageshift::kHelpPage);
    if (result == ModalResult::OK) {
        dialog.controls().takeAll(dialog.settings);
        FollowSide1(dialog.settings);
        ApplyShiftSettings(dialog.settings, options);
    }
    return noErr;
}

} // namespace kesta
