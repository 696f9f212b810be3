#include "host/job/JobOptions.h"

#include <cups/cups.h>

#include <algorithm>

namespace kesta::host {
namespace {

// The print protocol's limits, in bytes.
constexpr qsizetype kLongestName = 255;
constexpr qsizetype kLongestValue = 32'767;

auto Find(auto& options, QAnyStringView name)
{
    return std::ranges::find_if(options, [name](const JobOption& option) {
        return QAnyStringView::compare(option.name, name, Qt::CaseInsensitive) == 0;
    });
}

bool IsNameCharacter(QChar c)
{
    return c.isPrint() && !c.isSpace() && !QStringLiteral("=\"'\\{}").contains(c);
}

bool IsLostInValues(QChar c)
{
    return c.category() == QChar::Other_Control && c != u'\t' && c != u'\n';
}

} // namespace

std::optional<QString> FindJobOption(const JobOptions& options, QAnyStringView name)
{
    const auto found = Find(options, name);
    return found == options.end() ? std::nullopt : std::optional(found->value);
}

void SetJobOption(JobOptions& options, QAnyStringView name, const QString& value)
{
    if (const auto found = Find(options, name); found != options.end())
        found->value = value;
    else
        options.push_back({name.toString(), value});
}

void RemoveJobOption(JobOptions& options, QAnyStringView name)
{
    if (const auto found = Find(options, name); found != options.end())
        options.erase(found);
}

void ParseJobOptions(const QByteArray& text, JobOptions& options)
{
    cups_option_t* parsed = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &parsed);
    for (int i = 0; i < count; ++i)
        SetJobOption(options, QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value));
    cupsFreeOptions(count, parsed);
}

std::optional<Message> JobOptionFault(const JobOption& option)
{
    if (option.name.isEmpty() || option.name.toUtf8().size() > kLongestName ||
        !std::ranges::all_of(option.name, IsNameCharacter))
        return Say("Option Name Unusable", option.name);
    if (option.value.toUtf8().size() > kLongestValue)
        return Say("Option Value Long", option.name, kLongestValue);
    if (std::ranges::any_of(option.value, IsLostInValues))
        return Say("Option Value Unusable", option.name);
    return std::nullopt;
}

} // namespace kesta::host
