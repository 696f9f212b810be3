#include "pde/shell/PDEShell.h"

#include "model/JobType.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/system/SystemConfiguration.h"
#include "printer/PPDUtilities.h"

#include <algorithm>

namespace kesta::shell {
namespace {

OSStatus WriteOrRemove(const TicketWriter& ticket, const char* key, const std::optional<QString>& text)
{
    return text ? ticket.set(key, *text) : ticket.remove(key);
}

// The printer's own panel shows nothing beyond this range.
bool IsPrintable(const QString& name)
{
    return std::ranges::all_of(name, [](QChar c) { return c.unicode() >= 0x20 && c.unicode() <= 0xFE; });
}

std::optional<QString> PrimaryIPAddress(const SystemConfiguration& system)
{
    const std::optional<QString> interface = system.primaryInterface();
    const QStringList addresses = interface ? system.ipv4Addresses(*interface) : QStringList();
    return addresses.isEmpty() ? std::nullopt : std::optional(addresses.first());
}

// The status of the last write.
OSStatus WriteClientInformation(const TicketWriter& ticket)
{
    const SystemConfiguration& system = GetSystemConfiguration();
    const std::optional<QString> user = system.consoleUser();
    std::optional<QString> computer = system.computerName();
    if (!user || (computer && !IsPrintable(*computer)))
        computer.reset(); // a computer is named only together with its user

    WriteOrRemove(ticket, key::ClientUserName, user);
    WriteOrRemove(ticket, key::ClientComputerName, computer);
    return WriteOrRemove(ticket, key::ClientIPAddress, PrimaryIPAddress(system));
}

// The keys of the job that belong to no panel. The status of the last write.
OSStatus WriteJobWideKeys(Ticket& settings)
{
    const TicketWriter ticket(settings, kJobWideClient);

    ticket.set(key::KPIFOptions,
               Dictionary{{"KPIFOptionCovers", true}, {"KPIFOptionExceptions", true}, {"KPIFOptionInserts", true}});
    ticket.remove(key::RotateBooklet180Degrees);
    ticket.set(key::ControllerFamily, "Discovery");
    ticket.set(key::ControllerVersion, "5.0");
    const OSStatus status = WriteClientInformation(ticket);

    const Dictionary* jobType = settings.values().dictionary(key::JobType);
    if (jobType && CFDictionaryGetNumber<SInt32>(*jobType, key::JobTypeNumber) == kJobTypeFax)
        PPDSetCurrentChoice(settings, "KSTColor", "BW"); // a fax has no colours
    return status;
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
        if (panel.index == shown)
            panelStatus = panel.interface.Sync(panel.context, &session, toControls);
    }
    if (toControls)
        return panelStatus;

    const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
    return settings ? WriteJobWideKeys(*settings) : status;
}

} // namespace kesta::shell
