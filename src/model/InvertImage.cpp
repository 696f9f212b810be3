#include "model/InvertImage.h"

#include "pde/ticket/TicketUtilities.h"

namespace kesta {
namespace {

bool ReadFlag(const Dictionary& ticket, const char* key)
{
    return GetCFIndexFromCFDictionary(ticket, key).value_or(0) != 0;
}

} // namespace

void InvertImageSetOptionsFromTicket(II_Options& options, const Dictionary& ticket)
{
    options.negativeImage = ReadFlag(ticket, "NegativeImage");
    options.mirrorImage = ReadFlag(ticket, "MirrorImage");
    options.valid = true;
}

Dictionary InvertImageCreateTicketFromOptions(const II_Options& options)
{
    Dictionary ticket;
    WriteTicketValue(ticket, "NegativeImage", options.negativeImage ? 1 : 0);
    WriteTicketValue(ticket, "MirrorImage", options.mirrorImage ? 1 : 0);
    return ticket;
}

} // namespace kesta
