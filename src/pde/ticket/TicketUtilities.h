#pragma once

#include "pde/ticket/CFAdditions.h"
#include "platform/printsystem/PrintSession.h"
#include "platform/printsystem/Ticket.h"

namespace kesta {

// The session recorded when the shell was initialized; null outside of Initialize..Terminate.
PrintSession* GetCurrentPrintSession();
void SetCurrentPrintSession(PrintSession* session);

// Either a ticket, or null and the reason, which is then never noErr:
//     const auto [settings, status] = GetTicketFromSession(session, kPMPrintSettingsTicket);
//     if (!settings)
//         return status;
struct TicketOrStatus {
    Ticket* ticket = nullptr;
    OSStatus status = noErr;
};
[[nodiscard]] TicketOrStatus GetTicketFromSession(const PrintSession& session, QAnyStringView ticketName);

// Writes entries into one ticket, unlocked, in the name of one client.
class TicketWriter {
public:
    TicketWriter(Ticket& ticket, QAnyStringView client) : ticket_(ticket), client_(client) {}

    OSStatus set(QAnyStringView key, Value value) const { return ticket_.set(client_, key, std::move(value)); }
    OSStatus remove(QAnyStringView key) const { return ticket_.remove(client_, key); }
    operator Ticket&() const { return ticket_; } // for the PPD choices, which have no client

private:
    Ticket& ticket_;
    QAnyStringView client_;
};

// Numbers travel as numbers of index type. Nothing when the key is absent or holds no such number.
std::optional<CFIndex> GetCFIndexFromCFDictionary(const Dictionary& dictionary, QAnyStringView key);
void WriteTicketValue(Dictionary& dictionary, QAnyStringView key, CFIndex value);

// The same on a ticket; panels keep ticket values in 32 bits.
std::optional<SInt32> ReadTicketValue(const Ticket& ticket, QAnyStringView key);
OSStatus WriteTicketValue(const TicketWriter& ticket, QAnyStringView key, CFIndex value);

// Decimal digits of the absolute value; 1 for 0.
int CountDigits(CFIndex number);

} // namespace kesta
