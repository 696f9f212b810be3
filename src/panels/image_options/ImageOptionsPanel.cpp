#include "panels/image_options/ImageOptionsPanel.h"

#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QAbstractButton>

namespace kesta::image_options {
namespace {

QWidget* Find(const _ImageOptionsContext& panel, Control number)
{
    return FindControl(panel.pane, {kSignature, number});
}

QAbstractButton* CheckBox(const _ImageOptionsContext& panel, Control number)
{
    return qobject_cast<QAbstractButton*>(Find(panel, number));
}

PopupButton* QualityPopup(const _ImageOptionsContext& panel)
{
    return FindPopupButton(panel.pane, {kSignature, kQualityPopup});
}

void ShowPicture(const _ImageOptionsContext& panel, Control number, const QString& picture)
{
    if (auto* view = qobject_cast<PictureView*>(Find(panel, number)))
        view->setPicture(picture);
}

void Check(QAbstractButton* box, bool checked)
{
    if (box)
        box->setChecked(checked);
}

void InvertImageSync(_ImageOptionsContext& panel, SyncDirection direction, Ticket& settings)
{
    QAbstractButton* negative = CheckBox(panel, kNegativeInvertControl);
    QAbstractButton* mirror = CheckBox(panel, kMirrorInvertControl);
    if (direction == SyncDirection::ControlsToTickets)
        return WriteInvertImage(panel.options, {.negative = negative != nullptr, .mirror = mirror != nullptr},
                                settings);
    ReadInvertImage(panel.options, settings);
    Check(negative, panel.options.invert.negativeImage);
    Check(mirror, panel.options.invert.mirrorImage);
}

} // namespace

PanelDescription Prologue(_ImageOptionsContext& panel)
{
    panel.bundle = &BundleNamed(kPlugInIdentifier);
    return {.title = LocalizedString(*panel.bundle, "ImageOptions"), .creator = "KPDE"_code};
}

OSStatus Initialize(_ImageOptionsContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    panel.options.invert = {};
    panel.ppd = PPDGetCurrent();
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

// The quality is written in both directions, so that a job has it from the start.
OSStatus Sync(_ImageOptionsContext& panel, PrintSession& session, SyncDirection direction)
{
    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    if (direction == SyncDirection::TicketsToControls)
        ReadQuality(panel.options, *settings, panel.ppd);
    else
        SaveUIValuesToData(panel);
    InvertImageSync(panel, direction, *settings);
    if (direction == SyncDirection::TicketsToControls)
        RestoreUIValuesFromData(panel);
    WriteQuality(panel.options, *settings);
    return noErr;
}

OSStatus Open(_ImageOptionsContext& panel)
{
    if (panel.view)
        return kInvalidContext;
    std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, "ImageOptionsPanel", "Panel");
    if (!window || !panel.pane)
        return noErr; // the panel stays empty
    panel.view = EmbedAndShowControl(std::move(window), *panel.pane);
    PPDPopulatePopupWithChoices(QualityPopup(panel), panel.ppd, "JCLPrintQuality", Conflicting::Keep);
    RestoreUIValuesFromData(panel);
    panel.handler = InstallEventHandler(
        *panel.pane, [&panel](const HitEvent& hit) { return ImageOptionsPanelEventHandler(panel, hit); });
    return noErr;
}

// What has no control, or nothing to choose from, keeps its value.
void SaveUIValuesToData(_ImageOptionsContext& panel)
{
    const PopupButton* quality = QualityPopup(panel);
    if (quality && quality->selectedItem())
        panel.options.quality = GetPopupButtonTicketValue(quality);
    if (const QAbstractButton* mirror = CheckBox(panel, kMirrorCheckBox))
        panel.options.invert.mirrorImage = mirror->isChecked();
}

void RestoreUIValuesFromData(const _ImageOptionsContext& panel)
{
    SetPopupButtonToTicketValue(QualityPopup(panel), panel.options.quality);
    Check(CheckBox(panel, kMirrorCheckBox), panel.options.invert.mirrorImage);
    ShowPicture(panel, kQualityIllustration, QualityIllustration(panel.options.quality));
    ShowPicture(panel, kInvertIllustration, InvertIllustration(panel.options.invert));
}

EventResult ImageOptionsPanelEventHandler(_ImageOptionsContext& panel, const HitEvent& hit)
{
    if (hit.control.signature == kSignature) {
        SaveUIValuesToData(panel);
        RestoreUIValuesFromData(panel);
    }
    return EventResult::NotHandled;
}

namespace {

constexpr PanelOperations<_ImageOptionsContext> kOperations{
    .Prologue = Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
};

} // namespace
} // namespace kesta::image_options

KestaStatus GetImageOptionsPanelInterface(const PanelInterfaceHolder** holder)
{
    *holder = &kesta::PanelSlots<kesta::image_options::kOperations>::kHolder;
    return kesta::noErr;
}
