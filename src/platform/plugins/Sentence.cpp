#include "platform/plugins/Sentence.h"

#include "platform/plugins/Bundle.h"

#include <algorithm>

namespace kesta {
namespace {

std::optional<QString> FormatOf(const Message& message, const Bundle& texts, std::initializer_list<const char*> tables)
{
    for (const char* table : tables) {
        const QString text = LocalizedString(texts, message.key, table);
        if (text != QLatin1StringView(kStringNotFound))
            return text;
    }
    return std::nullopt;
}

} // namespace

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

QString Sentence(const Message& message, const Bundle& texts, std::initializer_list<const char*> tables)
{
    if (message.key.isEmpty())
        return message.text;
    QStringList arguments;
    for (const Message& argument : message.arguments)
        arguments << Sentence(argument, texts, tables);
    if (const std::optional<QString> format = FormatOf(message, texts, tables))
        return FormatText(*format, arguments);
    return arguments.isEmpty() ? message.key : message.key + QStringLiteral(": ") + arguments.join(u", ");
}

const Bundle& HostTexts()
{
    return BundleNamed("com.kesta.print.dialog");
}

QString LocalizedCount(const Bundle& bundle, QAnyStringView key, int count, QAnyStringView table)
{
    return LocalizedString(bundle, key, table, count).replace(QStringLiteral("%n"), QString::number(count));
}

} // namespace kesta
