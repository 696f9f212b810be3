#include "printer/PPDFacts.h"

#include "printer/InstallableOptions.h"

#include <cups/ppd.h>

#include <algorithm>
#include <span>

namespace kesta {
namespace {

// Null when the accessory is not fitted.
const char* FittedAccessory(ppd_option_t& option)
{
    const std::optional<QString> recorded = getInstallableOptionValue(option.keyword);
    if (!recorded)
        return nullptr;
    if (option.ui == PPD_UI_BOOLEAN)
        return *recorded == QLatin1StringView("True") ? option.text : nullptr;
    const bool isNothing = *recorded == QLatin1StringView("None") || *recorded == QLatin1StringView("False");
    const ppd_choice_t* choice = isNothing ? nullptr : ppdFindChoice(&option, recorded->toUtf8().constData());
    return choice ? choice->text : nullptr;
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
        groups, [](const ppd_group_t& one) { return std::string_view(one.name) == "InstallableOptions"; });
    if (group == groups.end())
        return accessories;
    for (ppd_option_t& option : std::span(group->options, group->num_options)) {
        if (const char* accessory = FittedAccessory(option))
            accessories << QString::fromUtf8(accessory);
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
