#pragma once

#include "platform/values/PropertyList.h"

namespace kesta::test {

// What a reader finds when the value was stored. A writer has one way to write it, so that equal values are equal
// bytes.
inline Value Stored(const Value& value)
{
    return ParsePropertyList(WritePropertyList(value)).value.value();
}

} // namespace kesta::test
