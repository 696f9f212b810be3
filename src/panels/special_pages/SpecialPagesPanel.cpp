#include "panels/special_pages/SpecialPagesPanel.h"

#include "panels/special_pages/SpecialPagesHandler.h"
#include "panels/special_pages/SpecialPagesView.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "toolkit/windows/InterfaceFile.h"

#include <cstdio>

namespace kesta::special_pages {

_SpecialPagesContext* _specialPagesContext = nullptr;

namespace {

void ReadJobStock(_SpecialPagesContext& panel, const Ticket& settings)
{
    const Dictionary* stored = settings.values().dictionary(key::JobLevelStock);
    panel.jobStock = stored ? std::optional<Stock>(*stored) : std::nullopt;
}

OSStatus RefuseToOpen(const char* reason, OSStatus status)
{
    std::puts(reason);
    std::fflush(stdout);
    return status;
}

} // namespace

Ticket* SettingsOf(const _SpecialPagesContext& panel)
{
    return panel.session ? GetTicketFromSession(*panel.session, kPMPrintSettingsTicket).ticket : nullptr;
}

PanelDescription Prologue(_SpecialPagesContext& panel)
{
    panel.bundle = &BundleNamed(kPlugInIdentifier);
    _specialPagesContext = &panel;
    return {.title = LocalizedString(*panel.bundle, "SpecialPagesTitle"), .creator = "KPDE"_code};
}

OSStatus Initialize(_SpecialPagesContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

OSStatus Sync(_SpecialPagesContext& panel, PrintSession& session, SyncDirection direction)
{
    panel.session = &session;
    auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    if (direction == SyncDirection::ControlsToTickets) {
        status = WriteTicket(panel.pages, *settings);
    } else {
        if (ReadTicket(panel.pages, *settings))
            ForgetRows(panel);
        ReadJobStock(panel, *settings);
        UpdateSpecialPagesSummary(panel);
    }
    UpdateSpecialPagesUI(panel);
    return status;
}

OSStatus Open(_SpecialPagesContext& panel)
{
    if (panel.opened)
        return kInvalidContext;
    if (!panel.pane)
        return RefuseToOpen("!! Failed to get user pane control reference.", kInvalidContext);
    std::unique_ptr<QWidget> window = CreateWindowFromNib(*panel.bundle, "SpecialPages", "SpecialPages");
    if (!window)
        return RefuseToOpen("!! Failed to load nib from bundle.", kInterfaceFileUnreadable);
    panel.opened = true;
    panel.view = EmbedAndShowControl(std::move(window), *panel.pane);
    ConfigureSpecialPagesListAndInstallCallbacks(panel);
    InstallSpecialPagesEventHandler(panel);
    UpdateSpecialPagesSummary(panel);
    UpdateSpecialPagesUI(panel);
    return noErr;
}

void Terminate(_SpecialPagesContext& panel, OSStatus)
{
    if (_specialPagesContext == &panel)
        _specialPagesContext = nullptr;
}

namespace {

constexpr PanelOperations<_SpecialPagesContext> kOperations{
    .Prologue = Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
    .Terminate = Terminate,
    .syncWithoutContext = kInvalidContext,
};

} // namespace
} // namespace kesta::special_pages

KestaStatus GetSpecialPagesPanelInterface(const PanelInterfaceHolder** holder)
{
    return kesta::GivePanel<kesta::special_pages::kOperations>(holder);
}
