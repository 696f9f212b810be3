#include "panels/booklet_watermark/BookletWatermarkPanel.h"

#include "panels/booklet_watermark/BookletWatermarkHandler.h"
#include "panels/booklet_watermark/BookletWatermarkView.h"
#include "panels/booklet_watermark/WatermarkList.h"
#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "pde/interface/TicketKeys.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta::booklet_watermark {

_BookletWatermarkContext* _bookletWatermarkContext = nullptr;

namespace {

// From the first Open on; a lock of the layout changes nothing about it.
bool IsBookletActive(const _BookletWatermarkContext& panel)
{
    const QWidget* illustration = FindHere(panel, kIllustration);
    return illustration && illustration->isEnabled();
}

// What another panel decides about the layout stands in the ticket at once, and this panel hears of it only later.
void FollowOtherPanels(_BookletWatermarkContext& panel, const Ticket& settings)
{
    const std::optional<bool> isOn = settings.values().boolean(key::BookletLayout);
    if (isOn && panel.pane->isHidden())
        panel.options.booklet.layout = *isOn ? kBookletLayoutOn : kBookletLayoutOff;
}

void WriteSettings(_BookletWatermarkContext& panel, Ticket& settings)
{
    const bool isActive = IsBookletActive(panel);
    if (isActive)
        FollowOtherPanels(panel, settings);
    WriteTicket(panel.options, settings, panel.ppd, listOfWatermarks(),
                isActive ? BookletScope::Written : BookletScope::Left,
                [](const QString& name) { return GetDrawingLibrary().convertFont(kWatermarkFile, name); });
    ShowNote(panel);
}

} // namespace

PanelDescription Prologue(_BookletWatermarkContext& panel)
{
    panel.bundle = &BundleNamed(kPlugInIdentifier);
    _bookletWatermarkContext = &panel;
    return {.title = LocalizedString(*panel.bundle, "BookletWatermarkPanelTitle"), .creator = "KPDE"_code};
}

OSStatus Initialize(_BookletWatermarkContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    panel.ppd = PPDGetCurrent();
    LoadWatermarks(*panel.bundle);
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

OSStatus Sync(_BookletWatermarkContext& panel, PrintSession& session, SyncDirection direction)
{
    panel.session = &session;
    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    if (const Ticket* pageFormat = GetTicketFromSession(session, kPMPageFormatTicket).ticket)
        panel.page = ReadPageSize(*pageFormat);
    if (direction == SyncDirection::ControlsToTickets) {
        WriteSettings(panel, *settings);
    } else {
        ReadTicket(panel.options, *settings, panel.ppd, listOfWatermarks());
        ShowOptions(panel);
    }
    return noErr;
}

OSStatus Open(_BookletWatermarkContext& panel)
{
    if (panel.view || !panel.pane)
        return panel.pane ? noErr : kInvalidContext;
    std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, "BookletWatermarkPanel", "Panel");
    if (!window)
        return noErr;
    panel.view = EmbedAndShowControl(std::move(window), *panel.pane);
    panel.preview.emplace();
    BuildControls(panel);
    ShowOptions(panel);
    InstallBookletWatermarkHandler(panel);
    return noErr;
}

void Terminate(_BookletWatermarkContext& panel, OSStatus)
{
    if (_bookletWatermarkContext == &panel)
        _bookletWatermarkContext = nullptr;
}

namespace {

constexpr PanelOperations<_BookletWatermarkContext> kOperations{
    .Prologue = Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
    .Terminate = Terminate,
};

} // namespace
} // namespace kesta::booklet_watermark

KestaStatus GetBookletWatermarkPanelInterface(const PanelInterfaceHolder** holder)
{
    return kesta::GivePanel<kesta::booklet_watermark::kOperations>(holder);
}
