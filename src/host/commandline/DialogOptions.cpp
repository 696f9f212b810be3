#include "host/commandline/DialogOptions.h"

#include "host/job/PageRanges.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr auto kFieldOptions =
    std::to_array<const char*>({"copies", "page-ranges", "number-up", "orientation-requested", "landscape"});

bool IsFieldOption(const QString& name)
{
    return std::ranges::any_of(kFieldOptions, [&](const char* field) {
        return name.compare(QLatin1StringView(field), Qt::CaseInsensitive) == 0;
    });
}

// The print protocol's numbers for orientations.
std::optional<Orientation> RequestedOrientation(const JobOptions& options)
{
    const int requested = FindJobOption(options, "orientation-requested").value_or(QString()).toInt();
    switch (requested) {
    case 3:
        return Orientation::Portrait;
    case 4:
        return Orientation::Landscape;
    case 5:
        return Orientation::ReverseLandscape;
    case 6:
        return Orientation::ReversePortrait;
    default:
        break;
    }
    const std::optional<QString> landscape = FindJobOption(options, "landscape");
    if (landscape && *landscape != u"false" && *landscape != u"no")
        return Orientation::Landscape;
    return std::nullopt;
}

void SetPages(const QString& typed, HostSettings& settings)
{
    const PageRanges pages = ParsePageRanges(typed);
    if (pages.problem == PageRangesProblem::None && !pages.ranges.empty())
        settings.pageRanges = WritePageRanges(pages.ranges, u","_s);
}

} // namespace

HostSettings StartingSettings(const JobPresets& presets, HostSettings saved)
{
    HostSettings settings = std::move(saved);
    const JobOptions& options = presets.options;
    if (const int copies = FindJobOption(options, "copies").value_or(QString()).toInt(); copies > 0)
        settings.copies = std::min(copies, kMostCopies);
    SetPages(FindJobOption(options, "page-ranges").value_or(QString()), settings);
    const int perSheet = FindJobOption(options, "number-up").value_or(QString()).toInt();
    if (std::ranges::find(kPagesPerSheet, perSheet) != kPagesPerSheet.end())
        settings.pagesPerSheet = perSheet;
    settings.orientation = RequestedOrientation(options).value_or(settings.orientation);
    settings.copies = presets.copies.value_or(settings.copies);
    SetPages(presets.pageRanges, settings);
    return settings;
}

void PresetChoices(const JobOptions& options, const PPDFacts& facts, Preset preset, Dictionary& choices)
{
    for (const JobOption& option : options) {
        if (facts.offers(option.name, option.value) && (preset == Preset::Prevails || !choices.find(option.name)))
            choices.set(option.name, option.value);
    }
}

JobOptions OptionsOutsideDialog(const JobOptions& options, const PPDFacts& facts)
{
    JobOptions outside;
    for (const JobOption& option : options) {
        if (!IsFieldOption(option.name) && !facts.offers(option.name, option.value))
            outside.push_back(option);
    }
    return outside;
}

} // namespace kesta::host
