#include "panels/special_pages/paper/CustomStockSizeDialog.h"

#include "panels/special_pages/paper/LimitedFields.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"
#include "printer/MediaLimits.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QPainter>

namespace kesta {

SizeUnits gCurrentUnits = SizeUnits::NotChosen;

namespace customsize {
namespace {

constexpr QLatin1StringView kHelpPage("Paper_Output/Paper/idh_other_paper_type.htm");

struct _CustomStockSizeDialogContext {
    const Bundle& bundle;
    QWidget& window;
    PaperSize size;
    SizeUnits defaultUnits = DefaultSizeUnits();
    PPDCustomSizeLimits points = GetMediaLimits();

    SpinField* field(Control number) const { return FindControlAs<SpinField>(&window, {kSignature, number}); }
    QWidget* control(Control number) const { return FindControl(&window, {kSignature, number}); }
    SizeLimits limits() const { return LimitsInUnits(points, gCurrentUnits); }
};

SInt32 NumberOf(const SpinField* field)
{
    return field ? field->number() : 0;
}

void ShowField(const _CustomStockSizeDialogContext& dialog, Control number, SInt32 length, const FieldLimits& limits)
{
    if (SpinField* field = dialog.field(number)) {
        ShowNumber(*field, LengthToField(length, gCurrentUnits), limits, FieldDecimals(gCurrentUnits));
        field->setSingleStep(gCurrentUnits == SizeUnits::Inches ? 0.1 : 1);
    }
}

void ShowLimits(const _CustomStockSizeDialogContext& dialog, Control number, const FieldLimits& limits)
{
    const auto text = [](SInt32 field) {
        return CreateLocalizedCFStringFromNumberWithDecimals(field, FieldDecimals(gCurrentUnits));
    };
    const char* key = gCurrentUnits == SizeUnits::Inches ? "Min-Max Inches" : "Min-Max Millimeters";
    SetControlText(dialog.control(number),
                   LocalizedFormat(dialog.bundle, key, {text(limits.least), text(limits.most)}));
}

void ShowSize(const _CustomStockSizeDialogContext& dialog)
{
    const SizeLimits limits = dialog.limits();
    ShowField(dialog, kWidthField, dialog.size.width, limits.width);
    ShowField(dialog, kLengthField, dialog.size.length, limits.length);
    ShowLimits(dialog, kWidthLimits, limits.width);
    ShowLimits(dialog, kLengthLimits, limits.length);
    SetPopupButtonToTicketValue(FindPopupButton(&dialog.window, {kSignature, kUnitsPopup}),
                                static_cast<SInt32>(gCurrentUnits));
    if (QWidget* preview = dialog.control(kPreview))
        preview->update();
}

void SwitchUnits(_CustomStockSizeDialogContext& dialog, SizeUnits units)
{
    dialog.size = {LengthBehindField(NumberOf(dialog.field(kWidthField)), dialog.size.width, gCurrentUnits),
                   LengthBehindField(NumberOf(dialog.field(kLengthField)), dialog.size.length, gCurrentUnits)};
    gCurrentUnits = units;
    ShowSize(dialog);
}

void ShowDefaults(_CustomStockSizeDialogContext& dialog)
{
    gCurrentUnits = dialog.defaultUnits;
    dialog.size = DefaultPaperSize(dialog.defaultUnits);
    ShowSize(dialog);
}

// Sets the field to the nearest number within the limits; true when it was outside of them.
bool BringWithin(SpinField* field, const FieldLimits& limits)
{
    if (!field)
        return false;
    const bool wasWithin = IsWithin(field, limits);
    field->setNumber(limits.clamped(field->number()));
    return !wasWithin;
}

void RefuseSize(const _CustomStockSizeDialogContext& dialog)
{
    GetNotices().show({.title = LocalizedString(dialog.bundle, "Invalid Paper Size Header"),
                       .message = LocalizedString(dialog.bundle, "Invalid Paper Size Message")});
    SpinField* width = dialog.field(kWidthField);
    SpinField* length = dialog.field(kLengthField);
    const bool widthWasOutside = BringWithin(width, dialog.limits().width);
    BringWithin(length, dialog.limits().length);
    if (SpinField* corrected = widthWasOutside ? width : length) {
        corrected->setFocus();
        corrected->selectAll();
    }
}

void AcceptSize(_CustomStockSizeDialogContext& dialog)
{
    const SpinField* width = dialog.field(kWidthField);
    const SpinField* length = dialog.field(kLengthField);
    if (!IsWithin(width, dialog.limits().width) || !IsWithin(length, dialog.limits().length))
        return RefuseSize(dialog);
    dialog.size = {FieldToLength(width->number(), gCurrentUnits), FieldToLength(length->number(), gCurrentUnits)};
    EndModalLoop(dialog.window, ModalResult::OK);
}

EventResult HandleCommand(_CustomStockSizeDialogContext& dialog, FourCharCode command)
{
    if (command == kCommandOK)
        AcceptSize(dialog);
    else if (command == kCommandDefaults)
        ShowDefaults(dialog);
    else
        return HandleDialogCommand(dialog.bundle, dialog.window, command, kHelpPage);
    return EventResult::Handled;
}

EventResult HandleHit(_CustomStockSizeDialogContext& dialog, const HitEvent& hit)
{
    if (hit.control.number == kUnitsPopup)
        SwitchUnits(dialog, static_cast<SizeUnits>(hit.ticketValue));
    else if (QWidget* preview = dialog.control(kPreview))
        preview->update();
    return EventResult::NotHandled;
}

EventResult DrawPreview(const _CustomStockSizeDialogContext& dialog, const DrawEvent& event)
{
    if (event.control.number != kPreview)
        return EventResult::NotHandled;
    const QRect paper = PreviewRect(event.bounds.size(), NumberOf(dialog.field(kWidthField)),
                                    NumberOf(dialog.field(kLengthField)), dialog.limits().length.most);
    if (!paper.isEmpty()) {
        event.painter->setPen(Qt::black);
        event.painter->setBrush(Qt::white);
        event.painter->drawRect(paper.adjusted(0, 0, -1, -1)); // the pen is one wide
    }
    return EventResult::Handled;
}

void Begin(_CustomStockSizeDialogContext& dialog)
{
    if (gCurrentUnits == SizeUnits::NotChosen)
        gCurrentUnits = dialog.defaultUnits;
    const PaperSize usual = DefaultPaperSize(dialog.defaultUnits);
    if (dialog.size.width == kUnset)
        dialog.size.width = usual.width;
    if (dialog.size.length == kUnset)
        dialog.size.length = usual.length;
    PopulatePopupButtonFromMap(dialog.bundle, FindPopupButton(&dialog.window, {kSignature, kUnitsPopup}),
                               _CustomSizeUnitsMap, JobContext::Job);
    ShowSize(dialog);
    if (SpinField* width = dialog.field(kWidthField))
        width->selectAll();
}

EventHandler InstallHandler(_CustomStockSizeDialogContext& dialog)
{
    return InstallEventHandler(
        dialog.window, [&](const CommandEvent& event) { return HandleCommand(dialog, event.command); },
        [&](const HitEvent& hit) { return HandleHit(dialog, hit); },
        [&](const DrawEvent& event) { return DrawPreview(dialog, event); });
}

} // namespace
} // namespace customsize

OSStatus RunModalCustomStockSizeDialog(const Bundle& bundle, ModalResult& result, PaperSize& size)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "CustomStockSizeDialog", "CustomStockSize");
    if (!window)
        return kInterfaceFileUnreadable;
    customsize::_CustomStockSizeDialogContext dialog{.bundle = bundle, .window = *window, .size = size};
    customsize::Begin(dialog);
    const EventHandler handler = customsize::InstallHandler(dialog);
    result = RunModalLoop(*window);
    if (result == ModalResult::OK)
        size = dialog.size;
    return noErr;
}

} // namespace kesta
