#pragma once

#include "platform/values/Value.h"

namespace kesta {

// The text with its entities replaced, in time linear in its length. Known names are amp, quot, lt, gt and apos and
// the strings in extras, which win over the five. An unknown name stays as it was written, and so does a reference to
// what is no character: no or wrong digits, U+0000, a surrogate, anything above U+10FFFF. An entity whose semicolon is
// missing runs to the end of the text.
QString XMLCreateStringByUnescapingEntities(QStringView text, const Dictionary& extras = {});

} // namespace kesta
