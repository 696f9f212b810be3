#include "printer/PPDFacts.h"

#include "platform/printsystem/PPDFile.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDEncoding.h"

#include <algorithm>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// Empty when the accessory is not fitted.
QString FittedAccessory(ppd_file_t* ppd, ppd_option_t& option)
{
    const QString recorded = getInstallableOptionValue(option.keyword).value_or(QString());
    const QString name = PPDDecodeText(ppd, option.text);
    if (option.ui == PPD_UI_BOOLEAN)
        return recorded == "True"_L1 ? name : QString();
    const ppd_choice_t* choice = ppdFindChoice(&option, recorded.toUtf8().constData());
    const bool isNothing = !choice || recorded == "None"_L1;
    return isNothing ? QString() : name + ": "_L1 + PPDDecodeText(ppd, choice->text);
}

} // namespace

std::optional<QString> PPDCopyModelName(const ppd_file_t* ppd)
{
    if (!ppd)
        return std::nullopt;
    for (const char* name : {ppd->modelname, ppd->shortnickname, ppd->nickname}) {
        if (name && *name)
            return QString::fromUtf8(name); // libcups has made it UTF-8
    }
    return std::nullopt;
}

QStringList PPDCopyFittedAccessories(ppd_file_t* ppd)
{
    QStringList accessories;
    if (!ppd)
        return accessories;
    const std::span groups(ppd->groups, ppd->num_groups);
    const auto group = std::ranges::find_if(
        groups, [](const ppd_group_t& one) { return std::string_view(one.name) == kInstallableOptionsGroup; });
    if (group == groups.end())
        return accessories;
    for (ppd_option_t& option : std::span(group->options, group->num_options)) {
        if (const QString accessory = FittedAccessory(ppd, option); !accessory.isEmpty())
            accessories << accessory;
    }
    return accessories;
}

PPDCustomSizeLimits PPDGetCustomSizeLimits(const ppd_file_t& ppd)
{
    return {.minimumWidth = ppd.custom_min[0],
            .minimumHeight = ppd.custom_min[1],
            .maximumWidth = ppd.custom_max[0],
            .maximumHeight = ppd.custom_max[1]};
}

} // namespace kesta
