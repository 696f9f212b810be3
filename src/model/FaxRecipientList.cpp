#include "model/FaxRecipientList.h"

#include <algorithm>

namespace kesta {

FaxRecipient* FaxRecipientList::recipientAtIndex(std::size_t index) const
{
    return index < count() ? recipients_[index].get() : nullptr;
}

void FaxRecipientList::removeAtIndex(std::size_t index)
{
    if (index < count())
        recipients_.erase(recipients_.begin() + static_cast<std::ptrdiff_t>(index));
}

void FaxRecipientList::insertAtIndex(FaxRecipient* recipient, std::size_t index)
{
    if (recipient)
        recipients_.emplace(recipients_.begin() + static_cast<std::ptrdiff_t>(std::min(index, count())), recipient);
}

void FaxRecipientList::remove(const FaxRecipient* recipient)
{
    // The scan goes on one past the entry that moves up into a removed one's place.
    for (std::size_t index = 0; index < count(); ++index)
        if (recipients_[index].get() == recipient)
            removeAtIndex(index);
}

bool FaxRecipientList::containsRecipient(const FaxRecipient& recipient) const
{
    return std::ranges::any_of(recipients_, [&](const FaxRecipientRef& other) {
        return other->firstName() == recipient.firstName() && other->lastName() == recipient.lastName() &&
               other->faxNumber() == recipient.faxNumber();
    });
}

Array FaxRecipientList::toTicket() const
{
    Array ticket;
    ticket.reserve(count());
    for (const FaxRecipientRef& recipient : recipients_)
        ticket.emplace_back(recipient->toTicket());
    return ticket;
}

void FaxRecipientList::fromTicket(const Array& ticket)
{
    removeAll();
    for (const Value& entry : ticket)
        if (const Dictionary* fields = entry.dictionary())
            recipients_.push_back(FaxRecipientRef::Make(FaxRecipient(*fields)));
}

} // namespace kesta
