#pragma once

#include "pde/ticket/JobContext.h"
#include "platform/values/Value.h"

namespace kesta {

// How far the printed image moves on each side of the sheet.
struct _IS_Options {
    bool valid = true;      // false: nothing that a ticket could keep
    SInt32 pageSize = 204;  // the ticket value of the page size that the shift is meant for
    SInt32 second = kUnset; // kept for callers, not interpreted here
    SInt32 option = kUnset; // unset: no shift
    bool inches = true;     // the offsets are tenths of an inch, otherwise whole millimetres
    SInt32 X1 = 0;          // side 1
    SInt32 X2 = 0;          // side 2
    SInt32 Y1 = 0;
    SInt32 Y2 = 0;

    bool operator==(const _IS_Options&) const = default;
};

// Sets everything that a ticket keeps; what is absent there gets its initial value. Offsets of full precision (tenths
// of a millimetre) are truncated to the record's units.
void ImageShiftSetOptionsFromTicket(_IS_Options& options, const Dictionary& ticket);

// Always of full precision, rounded to the nearest. Nothing when there are no valid options or no shift is set.
std::optional<Dictionary> ImageShiftCreateTicketFromOptions(const _IS_Options* options, JobContext context);

} // namespace kesta
