#pragma once

#include "platform/values/Value.h"

#include <optional>

namespace kesta {

// Dates as property lists write them, "2031-02-28T23:59:59Z", for the years 1 to 9999.

// Only that form; nothing for a day or a time of day that does not exist.
std::optional<Date> DateFromText(QStringView text);
// A date beyond those years becomes the nearest one within.
QString TextFromDate(Date date);

} // namespace kesta
