#include "panels/special_pages/editors/ImageShiftDialog.h"

#include "panels/special_pages/editors/ImageShiftScene.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QCheckBox>

namespace kesta {
namespace imageshift {
namespace {

constexpr QLatin1StringView kHelpPage("Special_Pages/Add_Exceptions/m_add_exceptions_page.htm");

struct ShiftDialog {
    const Bundle& bundle;
    QWidget& window;
    ShiftSettings settings;

    QWidget* control(Control number) const { return FindControl(&window, {kSignature, number}); }
    SpinField* field(Control number) const { return FindControlAs<SpinField>(&window, {kSignature, number}); }
};

struct OffsetField {
    Control number;
    ShiftOfSide ShiftSettings::*side;
    SInt32 ShiftOfSide::*offset;
};
constexpr OffsetField kFields[] = {
    {kHorizontal1, &ShiftSettings::side1, &ShiftOfSide::horizontal},
    {kVertical1, &ShiftSettings::side1, &ShiftOfSide::vertical},
    {kHorizontal2, &ShiftSettings::side2, &ShiftOfSide::horizontal},
    {kVertical2, &ShiftSettings::side2, &ShiftOfSide::vertical},
};

void SetChecked(const ShiftDialog& dialog, Control number, bool checked)
{
    if (auto* box = qobject_cast<QCheckBox*>(dialog.control(number)))
        box->setChecked(checked);
}

void ShowLimits(const ShiftDialog& dialog)
{
    const bool inches = dialog.settings.units == SizeUnits::Inches;
    const FieldLimits limits = TabShiftLimits(dialog.settings.units);
    const int decimals = inches ? 1 : 0;
    const QStringList numbers{CreateLocalizedCFStringFromNumberWithDecimals(limits.least, decimals),
                              CreateLocalizedCFStringFromNumberWithDecimals(limits.most, decimals)};
    SetControlText(dialog.control(kLimits),
                   LocalizedFormat(dialog.bundle, inches ? "Min-Max Inches" : "Min-Max Millimeters", numbers));
}

// The field that the user is typing into keeps its text.
void ShowNumbers(const ShiftDialog& dialog, SInt32 typedInto)
{
    const FieldLimits limits = TabShiftLimits(dialog.settings.units);
    for (const OffsetField& offset : kFields) {
        SpinField* field = dialog.field(offset.number);
        if (!field || offset.number == typedInto)
            continue;
        field->setLimits(limits.least, limits.most, dialog.settings.units == SizeUnits::Inches ? 1 : 0);
        field->setNumber(dialog.settings.*offset.side.*offset.offset);
    }
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
    SetChecked(dialog, kShiftCheckBox, dialog.settings.isOn);
    SetChecked(dialog, kAlikeCheckBox, dialog.settings.areAlike);
    ShowNumbers(dialog, typedInto);
    ShowLimits(dialog);
    SetPopupButtonToTicketValue(FindPopupButton(&dialog.window, {kSignature, kUnitsPopup}),
                                static_cast<SInt32>(dialog.settings.units));
    EnableControls(dialog);
    if (QWidget* scene = dialog.control(kScene))
        scene->update();
}

void TakeNumbers(ShiftDialog& dialog)
{
    for (const OffsetField& offset : kFields) {
        if (const SpinField* field = dialog.field(offset.number))
            dialog.settings.*offset.side.*offset.offset = field->number();
    }
}

EventResult HandleHit(ShiftDialog& dialog, const HitEvent& hit)
{
    TakeNumbers(dialog);
    if (hit.control.number == kShiftCheckBox)
        dialog.settings.isOn = hit.value != 0;
    else if (hit.control.number == kAlikeCheckBox)
        dialog.settings.areAlike = hit.value != 0;
    else if (hit.control.number == kUnitsPopup)
        SwitchShiftUnits(dialog.settings, static_cast<SizeUnits>(hit.ticketValue));
    FollowSide1(dialog.settings);
    ShowSettings(dialog, hit.control.number);
    return EventResult::NotHandled;
}

EventResult DrawScene(const ShiftDialog& dialog, const DrawEvent& event)
{
    if (event.control.number != kScene)
        return EventResult::NotHandled;
    DrawImageShiftScene(*event.painter, event.bounds, dialog.settings);
    return EventResult::Handled;
}

void Begin(const ShiftDialog& dialog)
{
    PopulatePopupButtonFromMap(dialog.bundle, FindPopupButton(&dialog.window, {kSignature, kUnitsPopup}),
                               _TabStockRadioMap, JobContext::Job);
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
        imageshift::TakeNumbers(dialog);
        FollowSide1(dialog.settings);
        ApplyShiftSettings(dialog.settings, options);
    }
    return noErr;
}

} // namespace kesta
