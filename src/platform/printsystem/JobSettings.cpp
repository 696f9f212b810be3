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

using Problem = std::optional<QString>; // one line; nothing when all is well

Problem NotOurs(const QString& what)
{
    return QStringLiteral("not a job settings file: %1").arg(what).simplified();
}

QString Quoted(const QString& name)
{
    return u'"' + name.left(80) + u'"';
}

Problem CheckRoot(const Dictionary& root)
{
    for (const auto& [name, value] : root) {
        if (name != kPPD && name != kClients && !IsTicketName(name))
            return NotOurs(QStringLiteral("it has an entry %1").arg(Quoted(name)));
        if (!value.dictionary())
            return NotOurs(QStringLiteral("%1 is not a dictionary").arg(name));
    }
    return std::nullopt;
}

Problem CheckStrings(const Dictionary& dictionary, const QString& name)
{
    for (const auto& [key, value] : dictionary) {
        if (!value.string())
            return NotOurs(QStringLiteral("%1 in %2 is not a string").arg(Quoted(key), name));
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
            return NotOurs(QStringLiteral("%1 in Clients has no ticket or is not a dictionary").arg(Quoted(name)));
        if (Problem problem = CheckStrings(*clients, name + QStringLiteral(" of Clients")))
            return problem;
        for (const auto& [key, client] : *clients) {
            if (!entries->find(key))
                return NotOurs(QStringLiteral("Clients names %1, which %2 does not have").arg(Quoted(key), name));
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

std::optional<QString> ReadJobSettings(const QByteArray& bytes, JobTickets& tickets)
{
    const PropertyListResult list = ParsePropertyList(bytes, kLimits);
    if (!list.value)
        return list.error;
    const Dictionary* root = list.value->dictionary();
    if (!root)
        return NotOurs(QStringLiteral("its root is not a dictionary"));
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
