#include "panels/image_options/ImageOptionsPanel.h"

#include "panels/image_options/ImageOptions.h"
#include "pde/forms/FormPanel.h"
#include "pde/interface/SummaryPlaces.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/WindowSummary.h"

#include <QAbstractButton>

namespace kesta::image_options {
namespace {

using _ImageOptionsContext = FormContext<ImageOptions>;

void ShowPicture(const _ImageOptionsContext& panel, Control number, const QString& picture)
{
    if (auto* view = FindControlAs<PictureView>(panel.pane, {kSignature, number}))
        view->setPicture(picture);
}

void ShowPictures(const _ImageOptionsContext& panel)
{
    ShowPicture(panel, kQualityIllustration, QualityIllustration(panel.options.quality));
    ShowPicture(panel, kInvertIllustration, InvertIllustration(panel.options.invert));
}

// The window's summary leaves out what a job without settings would have.
void AppearInSummary(_ImageOptionsContext& panel)
{
    ImageOptions plain;
    ReadQuality(plain, Ticket(), panel.ppd);
    ShowInSummary(FindPopupButton(panel.pane, {kSignature, kQualityPopup}), SummaryPlace::Quality, plain.quality,
                  LocalizedString(*panel.bundle, "Image Quality In Summary"));
}

void ShowState(const _ImageOptionsContext& panel)
{
    ShowPictures(panel);
    const bool isMirrored = panel.options.invert.mirrorImage;
    if (QWidget* view = panel.view)
        SetSummaryPhrases(*view, SummaryPlace::Other,
                          isMirrored ? QStringList(LocalizedString(*panel.bundle, "Mirrored In Summary"))
                                     : QStringList());
}

constexpr FormPanel<ImageOptions> kPanel{
    .title = "ImageOptions",
    .interfaceFile = "ImageOptionsPanel",
    .window = "Panel",
    .signature = kSignature,
    .bindings = kBindings,
    .Opened = AppearInSummary,
    .Show = ShowState,
};
using Form = FormSlots<kPanel>;

QAbstractButton* CheckBox(const _ImageOptionsContext& panel, Control number)
{
    return FindControlAs<QAbstractButton>(panel.pane, {kSignature, number});
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

// The quality is written in both directions, so that a job has it from the start.
OSStatus Sync(_ImageOptionsContext& panel, PrintSession& session, SyncDirection direction)
{
    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    if (direction == SyncDirection::TicketsToControls)
        ReadQuality(panel.options, *settings, panel.ppd);
    else
        Form::Controls(panel).takeAll(panel.options);
    InvertImageSync(panel, direction, *settings);
    if (direction == SyncDirection::TicketsToControls)
        Form::Show(panel, Showing::TicketRead);
    WriteQuality(panel.options, *settings);
    return noErr;
}

OSStatus Initialize(_ImageOptionsContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    panel.ppd = PPDGetCurrent();
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

// It opens once.
OSStatus Open(_ImageOptionsContext& panel)
{
    return panel.view ? OSStatus{kInvalidContext} : Form::Open(panel);
}

constexpr PanelOperations<_ImageOptionsContext> kOperations{
    .Prologue = Form::Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
};

} // namespace
} // namespace kesta::image_options

KestaStatus GetImageOptionsPanelInterface(const PanelInterfaceHolder** holder)
{
    return kesta::GivePanel<kesta::image_options::kOperations>(holder);
}
