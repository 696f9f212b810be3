#pragma once

#include "platform/values/Types.h"

#include <QString>
#include <QStringList>

namespace kesta {

struct Bundle;

// The format with its placeholders %1 to %9 replaced by the arguments, each where a translator put it and as often; one
// without an argument stays. What an argument contains is never taken for a placeholder.
QString FormatText(QStringView format, const QStringList& arguments);

// The text of a key in the bundle's default table, "STRING NOT FOUND" when it has none, as a format.
QString LocalizedFormat(const Bundle& bundle, QAnyStringView key, const QStringList& arguments);

// number / 10^decimals (0 to 18) in the locale's own digits and separators, with exactly that many fraction digits.
QString CreateLocalizedCFStringFromNumberWithDecimals(SInt32 number, int decimals);

} // namespace kesta
