#pragma once

#include "platform/values/Number.h"

#include <QString>

namespace kesta {

// Numbers as property lists write them; blanks around a number do not count.

// A decimal number of 64 bits as one of index type, nothing for any other text.
std::optional<Number> IntegerFromText(QStringView text);
// Also "nan" and "infinity", in any case; nothing for a number out of range.
std::optional<Number> RealFromText(QStringView text);

// With the fewest digits that read back as the same number of its stored type.
QString TextFromNumber(const Number& number);

} // namespace kesta
