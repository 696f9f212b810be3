#include "model/InvertImage.h"

#include "pde/interface/TicketKeys.h"
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
    options.negativeImage = ReadFlag(ticket, key::InvertNegativeImage);
    options.mirrorImage = ReadFlag(ticket, key::InvertMirrorImage);
    options.valid = true;
}

Dictionary InvertImageCreateTicketFromOptions(const II_Options& options)
{
    Dictionary ticket;
    WriteTicketValue(ticket, key::InvertNegativeImage, options.negativeImage ? 1 : 0);
    WriteTicketValue(ticket, key::InvertMirrorImage, options.mirrorImage ? 1 : 0);
    return ticket;
}

} // namespace kesta
