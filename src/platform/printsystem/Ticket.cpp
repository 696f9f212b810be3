#include "platform/printsystem/Ticket.h"

#include <utility>

namespace kesta {
namespace {

std::map<TicketReference, Ticket*>& LiveTickets()
{
    static std::map<TicketReference, Ticket*> tickets;
    return tickets;
}

TicketReference NextReference()
{
    static TicketReference last = 0;
    return ++last;
}

} // namespace

Ticket::Ticket() : reference_(NextReference())
{
    LiveTickets().emplace(reference_, this);
}

Ticket::~Ticket()
{
    LiveTickets().erase(reference_);
}

bool Ticket::refuses(QAnyStringView client, const QString& key) const
{
    const auto tag = tags_.find(key);
    return tag != tags_.end() && tag->second.lock == Lock::Locked && client != tag->second.client;
}

OSStatus Ticket::set(QAnyStringView client, QAnyStringView key, Value value, Lock lock)
{
    if (refuses(client, key.toString()))
        return kTicketEntryLocked;
    restore(key, std::move(value), client, lock);
    return noErr;
}

OSStatus Ticket::remove(QAnyStringView client, QAnyStringView key)
{
    const QString name = key.toString();
    if (refuses(client, name))
        return kTicketEntryLocked;
    values_.remove(key);
    tags_.erase(name);
    return noErr;
}

void Ticket::restore(QAnyStringView key, Value value, QAnyStringView client, Lock lock)
{
    values_.set(key, std::move(value));
    tags_.insert_or_assign(key.toString(), Tag{client.toString(), lock});
}

void Ticket::swapContents(Ticket& other) noexcept
{
    std::swap(values_, other.values_);
    std::swap(tags_, other.tags_);
    std::swap(ppdChoices_, other.ppdChoices_);
}

std::vector<Ticket::Entry> Ticket::entries() const
{
    std::vector<Entry> entries;
    for (const auto& [key, value] : values_) {
        const Tag& tag = tags_.at(key);
        entries.push_back({key, value, tag.client, tag.lock});
    }
    return entries;
}

QString Ticket::client(QAnyStringView key) const
{
    const auto tag = tags_.find(key.toString());
    return tag == tags_.end() ? QString() : tag->second.client;
}

Ticket::Lock Ticket::lock(QAnyStringView key) const
{
    const auto tag = tags_.find(key.toString());
    return tag == tags_.end() ? Lock::Unlocked : tag->second.lock;
}

Ticket* TicketFromReference(TicketReference reference)
{
    const auto found = LiveTickets().find(reference);
    return found == LiveTickets().end() ? nullptr : found->second;
}

} // namespace kesta
