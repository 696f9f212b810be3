#pragma once

#include "platform/values/Value.h"

#include <map>

namespace kesta {

// The 32-bit number under which a live ticket is known; 0 is no ticket.
using TicketReference = std::uint32_t;

// The settings of one print job: a dictionary whose entries remember the client that wrote them and whether it
// locked them, and beside it the PPD choices (option keyword to choice keyword) for the printer's driver.
class Ticket {
public:
    enum class Lock : bool { Unlocked = false, Locked = true };

    Ticket();
    ~Ticket();
    Ticket(const Ticket&) = delete;
    Ticket& operator=(const Ticket&) = delete;

    TicketReference reference() const { return reference_; }

    const Dictionary& values() const { return values_; }

    struct Entry {
        const QString& key;
        const Value& value;
        const QString& client;
        Lock lock;
    };
    // In order of the keys; good until the ticket changes.
    std::vector<Entry> entries() const;

    // A locked entry refuses every client but its own with kTicketEntryLocked.
    OSStatus set(QAnyStringView client, QAnyStringView key, Value value, Lock lock = Lock::Unlocked);
    OSStatus remove(QAnyStringView client, QAnyStringView key); // removing a missing key is a success

    // Empty, and unlocked, when the key is absent.
    QString client(QAnyStringView key) const;
    Lock lock(QAnyStringView key) const;

    // Puts an entry back as it was saved, whatever client has locked the present one.
    void restore(QAnyStringView key, Value value, QAnyStringView client, Lock lock = Lock::Unlocked);

    // Exchanges everything but the references: what was read beside a ticket becomes the ticket's content at once.
    void swapContents(Ticket& other) noexcept;

    const Dictionary& ppdDict() const { return ppdChoices_; }
    Dictionary& ppdDict() { return ppdChoices_; }

private:
    struct Tag {
        QString client;
        Lock lock;
    };
    bool refuses(QAnyStringView client, const QString& key) const;

    TicketReference reference_;
    Dictionary values_;
    std::map<QString, Tag> tags_;
    Dictionary ppdChoices_;
};

// Null once the ticket is gone.
Ticket* TicketFromReference(TicketReference reference);

} // namespace kesta
