#include "pde/ticket/LocalizedText.h"

#include "platform/plugins/Bundle.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kesta {

QString FormatText(QStringView format, const QStringList& arguments)
{
    QString text;
    for (qsizetype at = 0; at < format.size(); ++at) {
        const int number = format[at] == u'%' && at + 1 < format.size() ? format[at + 1].unicode() - u'0' : 0;
        if (number >= 1 && number <= std::min<qsizetype>(9, arguments.size())) {
            text += arguments[number - 1];
            ++at;
        } else {
            text += format[at];
        }
    }
    return text;
}

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
