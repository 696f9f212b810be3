#include "pde/ticket/TicketUtilities.h"

#include <cmath>
#include <limits>

namespace kesta {
namespace {

PrintSession*& CurrentSession()
{
    static PrintSession* session = nullptr;
    return session;
}

} // namespace

PrintSession* GetCurrentPrintSession()
{
    return CurrentSession();
}

void SetCurrentPrintSession(PrintSession* session)
{
    CurrentSession() = session;
}

TicketOrStatus GetTicketFromSession(const PrintSession& session, QAnyStringView ticketName)
{
    const std::optional<TicketReference> reference = PMSessionGetDataFromSession(session, ticketName);
    Ticket* ticket = reference ? TicketFromReference(*reference) : nullptr;
    return {ticket, ticket ? noErr : kNoSuchTicket};
}

std::optional<CFIndex> GetCFIndexFromCFDictionary(const Dictionary& dictionary, QAnyStringView key)
{
    return CFDictionaryGetNumber<CFIndex>(dictionary, key);
}

void WriteTicketValue(Dictionary& dictionary, QAnyStringView key, CFIndex value)
{
    dictionary.set(key, Number::Index(value));
}

std::optional<SInt32> ReadTicketValue(const Ticket& ticket, QAnyStringView key)
{
    return CFDictionaryGetNumber<SInt32>(ticket.values(), key);
}

OSStatus WriteTicketValue(const TicketWriter& ticket, QAnyStringView key, CFIndex value)
{
    return ticket.set(key, Number::Index(value));
}

int CountDigits(CFIndex number)
{
    if (number == 0)
        return 1;
    const Float64 magnitude = std::abs(static_cast<Float64>(number));
    return static_cast<int>(std::log10(magnitude) + 1 + std::numeric_limits<Float64>::epsilon());
}

} // namespace kesta
