#include "platform/printsystem/JobSettings.h"

#include "platform/values/PropertyList.h"

#include <algorithm>
#include <array>

namespace kesta {
namespace {

constexpr PropertyListLimits kLimits{.bytes = kLargestJobSettings, .values = 200'000, .depth = 50};

constexpr QLatin1String kPPD("PPD");
constexpr QLatin1String kClients("Clients");

struct NamedTicket {
    const char* name;
    Ticket JobTickets::*ticket;
};
constexpr auto kTickets = std::to_array<NamedTicket>({
    {kPMPrintSettingsTicket, &JobTickets::printSettings},
    {kPMPageFormatTicket, &JobTickets::pageFormat},
    {kPMPrinterInfoTicket, &JobTickets::printerInfo},
});

bool IsTicketName(const QString& name)
{
    return std::any_of(kTickets.begin(), kTickets.end(),
                       [&name](const NamedTicket& row) { return name == QLatin1String(row.name); });
}

Dictionary ClientsOf(const Ticket& ticket)
{
    Dictionary clients;
    for (const Ticket::Entry& entry : ticket.entries()) {
        if (!entry.client.isEmpty())
            clients.set(entry.key, entry.client);
    }
    return clients;
}

Dictionary Without(std::span<const NestedEntry> leftOut, Dictionary entries)
{
    for (const NestedEntry& nested : leftOut) {
        if (Dictionary* dictionary = entries.dictionary(nested.key))
            dictionary->remove(nested.entry);
    }
    return entries;
}

using Problem = std::optional<Message>; // nothing when all is well

Problem NotOurs(const Message& what)
{
    return Say("Settings Of Another Kind", what);
}

// A name of the file's, as far as it fits into a sentence.
QString Shown(const QString& name)
{
    return name.left(80).simplified();
}

// Entries of other names are a later version's additions, and none of our business.
Problem CheckRoot(const Dictionary& root)
{
    bool isOurs = false;
    for (const auto& [name, value] : root) {
        if (name != kPPD && name != kClients && !IsTicketName(name))
            continue;
        if (!value.dictionary())
            return NotOurs(Say("Settings Not A Dictionary", name));
        isOurs = true;
    }
    return isOurs ? std::nullopt : NotOurs(Say("Settings Without Parts"));
}

Problem CheckStrings(const Dictionary& dictionary, const QString& name)
{
    for (const auto& [key, value] : dictionary) {
        if (!value.string())
            return NotOurs(Say("Settings Not A String", Shown(key), Shown(name)));
    }
    return std::nullopt;
}

// Every client must belong to an entry of its ticket.
Problem CheckClients(const Dictionary& root)
{
    const Dictionary* all = root.dictionary(kClients);
    if (!all)
        return std::nullopt;
    for (const auto& [name, value] : *all) {
        const Dictionary* clients = value.dictionary();
        const Dictionary* entries = IsTicketName(name) ? root.dictionary(name) : nullptr;
        if (!clients || (!entries && clients->count() > 0))
            return NotOurs(Say("Settings Clients Without Ticket", Shown(name)));
        if (Problem problem = CheckStrings(*clients, name))
            return problem;
        for (const auto& [key, client] : *clients) {
            if (!entries->find(key))
                return NotOurs(Say("Settings Clients Without Entry", Shown(key), name));
        }
    }
    return std::nullopt;
}

Problem Check(const Dictionary& root)
{
    if (Problem problem = CheckRoot(root))
        return problem;
    const Dictionary* choices = root.dictionary(kPPD);
    if (Problem problem = choices ? CheckStrings(*choices, kPPD) : std::nullopt)
        return problem;
    return CheckClients(root);
}

// From a list that has been checked.
void Fill(Ticket& ticket, QAnyStringView name, const Dictionary& root)
{
    const Dictionary* entries = root.dictionary(name);
    const Dictionary* allClients = root.dictionary(kClients);
    const Dictionary* clients = allClients ? allClients->dictionary(name) : nullptr;
    for (const auto& [key, value] : entries ? *entries : Dictionary()) {
        const QString* client = clients ? clients->string(key) : nullptr;
        ticket.restore(key, value, client ? *client : QString());
    }
}

} // namespace

void AddToSession(const JobTickets& tickets, PrintSession& session)
{
    for (const NamedTicket& row : kTickets)
        PMSessionSetDataInSession(session, row.name, (tickets.*row.ticket).reference());
}

QByteArray WriteJobSettings(const JobTickets& tickets, std::span<const NestedEntry> leftOut)
{
    Dictionary root, clients;
    for (const NamedTicket& row : kTickets) {
        root.set(row.name, (tickets.*row.ticket).values());
        clients.set(row.name, ClientsOf(tickets.*row.ticket));
    }
    root.set(kPMPrintSettingsTicket, Without(leftOut, tickets.printSettings.values()));
    root.set(kPPD, tickets.printSettings.ppdDict());
    root.set(kClients, std::move(clients));
    return WritePropertyList(root);
}

std::optional<Message> ReadJobSettings(const QByteArray& bytes, JobTickets& tickets)
{
    const PropertyListResult list = ParsePropertyList(bytes, kLimits);
    if (!list.value)
        return Verbatim(list.error);
    const Dictionary* root = list.value->dictionary();
    if (!root)
        return NotOurs(Say("Settings Root Not A Dictionary"));
    if (Problem problem = Check(*root))
        return problem;

    JobTickets read;
    for (const NamedTicket& row : kTickets)
        Fill(read.*row.ticket, row.name, *root);
    if (const Dictionary* choices = root->dictionary(kPPD))
        read.printSettings.ppdDict() = *choices;
    for (const NamedTicket& row : kTickets)
        (tickets.*row.ticket).swapContents(read.*row.ticket);
    return std::nullopt;
}

} // namespace kesta
