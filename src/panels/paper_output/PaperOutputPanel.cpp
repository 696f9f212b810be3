#include "panels/paper_output/PaperOutputPanel.h"

#include "panels/paper_output/FinishingRules.h"
#include "panels/paper_output/PaperOutputHandler.h"
#include "panels/paper_output/PaperOutputView.h"
#include "panels/paper_output/PasscodeRules.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"

namespace kesta::paper_output {

_PaperOutputContext* _paperOutputContext = nullptr;

namespace {

JobTypeCheck CheckOf(const _PaperOutputContext& panel)
{
    return {.jobType = [&panel] { return panel.options.jobType.number; },
            .hasPasscode =
                [&panel] {
                    const std::optional<QString>& passcode = panel.options.jobType.securePasscode;
                    return passcode && !passcode->isEmpty() && CanBeTypedAtPrinter(*passcode);
                },
            .setupButton = [&panel] { return FindHere(panel, kJobTypeSetupButton); },
            .hasFaxRecipients =
                [&panel] { return panel.options.recipientList && panel.options.recipientList->count() > 0; },
            .runFaxSetup =
                [](const Bundle& bundle) {
                    GetNotices().show({.title = LocalizedString(bundle, "Fax Setup Unavailable Header"),
                                       .message = LocalizedString(bundle, "Fax Setup Unavailable Message")});
                }};
}

void TakeJobName(_PaperOutputContext& panel, const Ticket& settings)
{
    const QString* name = settings.values().string(key::PMJobName);
    panel.options.jobType.savedJobName = name ? *name : LocalizedString(*panel.bundle, "Unknown");
}

void ReadSettings(_PaperOutputContext& panel, Ticket& settings)
{
    ReadTicket(panel.options, settings, panel.ppd);
    if (settings.values().boolean(key::BookletLayout) == true && !panel.options.booklet.isOn())
        settings.set(kPrintingManagerClient, key::BookletLayout, false); // other panels read it, too
    ShowTwoSided(panel);
    ChangeFinishingMenus(panel, [&](Menu& menu) { EnableFinishingItems(menu, settings); });
    ShowOptions(panel);
}

OSStatus WriteSettings(_PaperOutputContext& panel, Ticket& settings)
{
    const bool isActive = panel.pane && panel.pane->isEnabled();
    return WriteTicket(panel.options, settings, {.booklet = isActive, .duplex = panel.wasOpened});
}

} // namespace

PanelDescription Prologue(_PaperOutputContext& panel)
{
    panel.bundle = &BundleNamed(kPlugInIdentifier);
    return {.title = LocalizedString(*panel.bundle, "PaperOutput"), .creator = "lhsX"_code};
}

OSStatus Initialize(_PaperOutputContext& panel, QWidget& pane, PrintSession& session)
{
    panel.pane = &pane;
    panel.session = &session;
    panel.ppd = PPDGetCurrent();
    panel.accessories = GetFinishingAccessories();
    panel.jobTypeCheck.emplace(CheckOf(panel));
    _paperOutputContext = &panel;

    if (const Ticket* settings = GetTicketFromSession(session, kPMPrintSettingsTicket).ticket)
        TakeJobName(panel, *settings);
    return Sync(panel, session, SyncDirection::TicketsToControls);
}

OSStatus Sync(_PaperOutputContext& panel, PrintSession& session, SyncDirection direction)
{
    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (!settings)
        return status;
    // In both directions: the page may have been turned since. Without a page format the rest is done all the same.
    const auto [pageFormat, pageFormatStatus] = GetTicketFromSession(session, kPMPageFormatTicket);
    if (pageFormat)
        panel.options.orientation = ReadOrientation(*pageFormat);
    if (direction == SyncDirection::ControlsToTickets)
        return WriteSettings(panel, *settings);
    ReadSettings(panel, *settings);
    return pageFormatStatus;
}

OSStatus Open(_PaperOutputContext& panel)
{
    if (!panel.pane)
        return kInvalidContext;
    if (panel.view) {
        RestoreSummaries(panel);
        ShowPaper(panel);
        ShowFinishing(panel);
        return noErr;
    }
    BuildView(panel);
    panel.wasOpened = true;
    if (panel.options.booklet.isOn())
        panel.options.duplex = kTwoSidedLongEdge;
    ShowTwoSided(panel);
    ShowOptions(panel);
    panel.handler = InstallEventHandler(
        *panel.pane, [&panel](const HitEvent& hit) { return pdeShellPaperOutputEventHandler(panel, hit); },
        [&panel](const CommandEvent& chosen) { return pdeShellPaperOutputEventHandler(panel, chosen); });
    return noErr;
}

OSStatus Close(_PaperOutputContext& panel)
{
    DisposeSummaries(panel);
    return noErr;
}

void Terminate(_PaperOutputContext& panel, OSStatus)
{
    FinalizeStockMenuButton(panel.stockMenu);
    if (_paperOutputContext == &panel)
        _paperOutputContext = nullptr;
}

namespace {

constexpr PanelOperations<_PaperOutputContext> kOperations{
    .Prologue = Prologue,
    .Initialize = Initialize,
    .Sync = Sync,
    .Open = Open,
    .Close = Close,
    .Terminate = Terminate,
};

} // namespace
} // namespace kesta::paper_output

KestaStatus GetPaperOutputPanelInterface(const PanelInterfaceHolder** holder)
{
    return kesta::GivePanel<kesta::paper_output::kOperations>(holder);
}
