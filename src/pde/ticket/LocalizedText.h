#pragma once

#include "platform/plugins/Sentence.h"
#include "platform/values/Types.h"

#include <QString>
#include <QStringList>

namespace kesta {

struct Bundle;

// The text of a key in the bundle's default table, "STRING NOT FOUND" when it has none, as a format.
QString LocalizedFormat(const Bundle& bundle, QAnyStringView key, const QStringList& arguments);

// number / 10^decimals (0 to 18) in the locale's own digits and separators, with exactly that many fraction digits.
QString CreateLocalizedCFStringFromNumberWithDecimals(SInt32 number, int decimals);

} // namespace kesta
