#pragma once

#include "model/FaxRecipient.h"

#include <vector>

namespace kesta {

// The addressees of a fax in their order. The list holds one reference to a recipient for each time that it is in it.
class FaxRecipientList {
public:
    FaxRecipientList() = default;
    explicit FaxRecipientList(const Array& ticket) { fromTicket(ticket); }

    std::size_t count() const { return recipients_.size(); }
    FaxRecipient* recipientAtIndex(std::size_t index) const; // null beyond the end; the list keeps its reference

    void removeAtIndex(std::size_t index); // nothing beyond the end
    void removeAll() { recipients_.clear(); }
    void insertAtIndex(FaxRecipient* recipient, std::size_t index); // at the end when index is beyond it
    void append(FaxRecipient* recipient) { insertAtIndex(recipient, count()); }

    // Removes this very recipient, but of two entries side by side only the first.
    void remove(const FaxRecipient* recipient);

    // Whether some recipient has the same names and fax number, case included.
    bool containsRecipient(const FaxRecipient& recipient) const;

    Array toTicket() const;
    void fromTicket(const Array& ticket); // replaces all; an entry that is no dictionary is left out

    // Whether both name the same people in the same order, all that is known of them included.
    bool operator==(const FaxRecipientList& other) const { return toTicket() == other.toTicket(); }

    // Makes a group of the recipients in the address book; those without a record there get one. False when the group
    // could not be added or the address book not be saved.
    bool saveAsABGroupWithName(const QString& name);

private:
    std::vector<FaxRecipientRef> recipients_;
};

} // namespace kesta
