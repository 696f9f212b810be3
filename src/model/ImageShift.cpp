#include "model/ImageShift.h"

#include "pde/ticket/TicketUtilities.h"

#include <array>
#include <cmath>
#include <utility>

namespace kesta {
namespace {

constexpr Float64 kTenthMillimetresInTenthInch = 25.4;
constexpr CFIndex kTenthMillimetresInMillimetre = 10;

struct Offset {
    const char* key;
    SInt32 _IS_Options::*member;
};

constexpr auto kOffsets = std::to_array<Offset>({
    {"X1", &_IS_Options::X1},
    {"Y1", &_IS_Options::Y1},
    {"X2", &_IS_Options::X2},
    {"Y2", &_IS_Options::Y2},
});

CFIndex FromFullPrecision(CFIndex offset, bool inches)
{
    return inches ? static_cast<CFIndex>(static_cast<Float64>(offset) / kTenthMillimetresInTenthInch)
                  : offset / kTenthMillimetresInMillimetre;
}

CFIndex ToFullPrecision(SInt32 offset, bool inches)
{
    return inches ? std::llround(offset * kTenthMillimetresInTenthInch) : offset * kTenthMillimetresInMillimetre;
}

SInt32 ReadOffset(const Dictionary& ticket, const char* key, bool isFullPrecision, bool inches)
{
    const CFIndex stored = GetCFIndexFromCFDictionary(ticket, key).value_or(0);
    const CFIndex offset = isFullPrecision ? FromFullPrecision(stored, inches) : stored;
    return std::in_range<SInt32>(offset) ? static_cast<SInt32>(offset) : 0;
}

} // namespace

void ImageShiftSetOptionsFromTicket(_IS_Options& options, const Dictionary& ticket)
{
    options.option = CFDictionaryGetNumber<SInt32>(ticket, "Option").value_or(kUnset);
    options.inches = GetCFIndexFromCFDictionary(ticket, "Inches").value_or(1) != 0;
    const bool isFullPrecision = ticket.boolean("FullPrecision").value_or(false);
    for (const Offset& offset : kOffsets)
        options.*offset.member = ReadOffset(ticket, offset.key, isFullPrecision, options.inches);
    options.valid = true;
}

std::optional<Dictionary> ImageShiftCreateTicketFromOptions(const _IS_Options* options, JobContext)
{
    if (!options || !options->valid || options->option == kUnset)
        return std::nullopt;

    Dictionary ticket{{"FullPrecision", true}};
    WriteTicketValue(ticket, "Option", options->option);
    WriteTicketValue(ticket, "Inches", options->inches ? 1 : 0);
    for (const Offset& offset : kOffsets)
        WriteTicketValue(ticket, offset.key, ToFullPrecision(options->*offset.member, options->inches));
    return ticket;
}

} // namespace kesta
