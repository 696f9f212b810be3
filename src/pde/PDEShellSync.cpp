#include "pde/PDEShell.h"

#include "pde/TicketKeys.h"
#include "pde/TicketUtilities.h"
#include "printer/PPDUtilities.h"

namespace kesta::shell {
namespace {

constexpr SInt32 kFaxJob = 5;

// The keys of the job that belong to no panel.
void WriteJobWideKeys(Ticket& settings)
{
    const TicketWriter ticket(settings, kJobWideClient);

    ticket.set(key::KPIFOptions,
               Dictionary{{"KPIFOptionCovers", true}, {"KPIFOptionExceptions", true}, {"KPIFOptionInserts", true}});
    ticket.remove(key::RotateBooklet180Degrees);
    ticket.set(key::ControllerFamily, "Discovery");
    ticket.set(key::ControllerVersion, "5.0");

    const Dictionary* jobType = settings.values().dictionary(key::JobType);
    if (jobType && CFDictionaryGetNumber<SInt32>(*jobType, "JobType") == kFaxJob)
        PPDSetCurrentChoice(settings, "KSTColor", "BW"); // a fax has no colours
}

} // namespace

OSStatus Sync(PDEShellContext& shell, PrintSession& session, SyncDirection direction)
{
    const bool toControls = direction == SyncDirection::TicketsToControls;
    const SInt32 shown = GetShownPanel()._lastTabIndex;
    OSStatus panelStatus = noErr;

    for (PanelRecord& panel : shell.panels) {
        if (panel.index != kTakesNoPart && panel.index != shown)
            panelStatus = panel.interface.Sync(panel.context, &session, toControls);
    }
    for (PanelRecord& panel : shell.panels) { // the values of the panel that the user sees prevail
        if (panel.index != kTakesNoPart && panel.index == shown)
            panelStatus = panel.interface.Sync(panel.context, &session, toControls);
    }
    if (toControls)
        return panelStatus;

    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    if (settings)
        WriteJobWideKeys(*settings);
    return status;
}

} // namespace kesta::shell
