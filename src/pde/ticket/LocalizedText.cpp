#include "pde/ticket/LocalizedText.h"

#include "platform/plugins/Bundle.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kesta {

QString LocalizedFormat(const Bundle& bundle, QAnyStringView key, const QStringList& arguments)
{
    return FormatText(LocalizedString(bundle, key), arguments);
}

QString CreateLocalizedCFStringFromNumberWithDecimals(SInt32 number, int decimals)
{
    const int digits = std::clamp(decimals, 0, 18);
    return QLocale().toString(number / std::pow(10.0, digits), 'f', digits);
}

} // namespace kesta
