#pragma once

#include "platform/values/Value.h"

#include <optional>

namespace kesta {

// What a property list may hold at most; what has more is refused. Enough for a few whole fonts.
struct PropertyListLimits {
    qsizetype bytes = 128 * 1024 * 1024;
    qsizetype values = 1'000'000; // of any kind, containers included
    int depth = 100;              // containers within containers
};

struct PropertyListResult {
    std::optional<Value> value;
    QString error; // one line with the place, "line 3, column 14: ..."; empty when there is a value
};

// Reads an XML property list in UTF-8. An <integer> becomes a number of index type, a <real> one of type Float64, a
// <date> whole seconds. Nothing is guessed: numbers out of range, dates that are none, bad base64, duplicate keys and
// unknown elements and attributes refuse the whole list. So do entity declarations and any DOCTYPE but a plain one
// named plist; nothing that a DOCTYPE points to is ever read.
PropertyListResult ParsePropertyList(const QByteArray& xml, const PropertyListLimits& limits = {});

// The same value always gives the same bytes: keys in order of their UTF-16 units, reals with the fewest digits that
// read back as the same number. What XML cannot hold (control characters but tab and line ends, unpaired surrogates)
// is written as U+FFFD; of keys that become equal by this, the first stays. A date beyond the years 1 to 9999 is
// written as the nearest one within.
QByteArray WritePropertyList(const Value& root);

} // namespace kesta
