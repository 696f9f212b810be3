#include "host/ppd/ListOptions.h"

#include "host/ppd/PPDFile.h"

#include <QStringList>

#include <cups/cups.h>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// How the kinds of a custom choice's parameters are called; in the order of ppd_cptype_t, from "curve".
constexpr auto kParameterKinds =
    std::to_array<const char*>({"CURVE", "INTEGER", "INVCURVE", "PASSCODE", "PASSWORD", "POINTS", "REAL", "STRING"});

QString ParameterKind(const ppd_cparam_t& parameter)
{
    const auto kind = static_cast<std::size_t>(parameter.type);
    return QLatin1StringView(kind < kParameterKinds.size() ? kParameterKinds[kind] : "UNKNOWN");
}

QString CustomText(ppd_file_t* ppd, const ppd_option_t& option)
{
    ppd_coption_t* custom = ppdFindCustomOption(ppd, option.keyword);
    if (!custom)
        return u"Custom"_s;
    if (qstricmp(option.keyword, "PageSize") == 0)
        return u"Custom.WIDTHxHEIGHT"_s;
    QStringList parameters;
    for (ppd_cparam_t* parameter = ppdFirstCustomParam(custom); parameter; parameter = ppdNextCustomParam(custom))
        parameters << QString::fromUtf8(parameter->name) + u'=' + ParameterKind(*parameter);
    if (parameters.size() == 1)
        return u"Custom."_s + parameters.front().section(u'=', 1);
    return parameters.isEmpty() ? u"Custom"_s : u'{' + parameters.join(u' ') + u'}';
}

QString OptionLine(ppd_file_t* ppd, const ppd_option_t& option)
{
    QString line = QString::fromUtf8(option.keyword) + u'/' + QString::fromUtf8(option.text) + u':';
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t& choice = option.choices[i];
        const bool isCustom = qstricmp(choice.choice, "Custom") == 0;
        line += choice.marked ? u" *"_s : u" "_s;
        line += isCustom ? CustomText(ppd, option) : QString::fromUtf8(choice.choice);
    }
    return line + u'\n';
}

void ListGroup(ppd_file_t* ppd, const ppd_group_t& group, QString& text)
{
    for (int i = 0; i < group.num_options; ++i) {
        // The page region repeats the page size.
        if (qstricmp(group.options[i].keyword, "PageRegion") != 0)
            text += OptionLine(ppd, group.options[i]);
    }
    for (int i = 0; i < group.num_subgroups; ++i)
        ListGroup(ppd, group.subgroups[i], text);
}

} // namespace

OptionList ListOptions(const QString& ppdPath, const JobOptions& marked)
{
    const PPDFile file = OpenPPDFile(ppdPath);
    if (!file.ppd)
        return {{}, file.problem};
    cups_option_t* options = nullptr;
    int count = 0;
    for (const JobOption& option : marked)
        count = cupsAddOption(option.name.toUtf8().constData(), option.value.toUtf8().constData(), count, &options);
    cupsMarkOptions(file.ppd.get(), count, options);
    cupsFreeOptions(count, options);

    OptionList list;
    for (int i = 0; i < file.ppd->num_groups; ++i)
        ListGroup(file.ppd.get(), file.ppd->groups[i], list.text);
    return list;
}

} // namespace kesta::host
