#include "host/job/SettingsMerge.h"

#include "host/job/MediaOption.h"
#include "host/job/PageRanges.h"
#include "host/job/TwoSided.h"
#include "pde/interface/TicketKeys.h"

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

// Of the fields, in the print-settings ticket.
constexpr auto kFieldKeys =
    std::to_array<const char*>({key::PMJobName, key::PMCopies, key::PMLayoutNUp, key::PagesPerSheet, key::PageRanges});

enum class Preset { Fills, Prevails }; // what is there already stays, or does not

void PresetChoices(const JobOptions& options, const PrinterFacts& printer, Preset preset, Dictionary& choices)
{
    for (const JobOption& option : options) {
        if (printer.offers(option.name, option.value) && (preset == Preset::Prevails || !choices.find(option.name)))
            choices.set(option.name, option.value);
    }
}

std::optional<SInt32> MergedDuplexing(const SettingSources& sources, const Ticket& settings)
{
    std::optional<SInt32> duplexing = DuplexingOf(sources.commandLine);
    if (!duplexing)
        duplexing = DuplexingOf(settings);
    if (!duplexing)
        duplexing = DuplexingOf(sources.queueDefaults);
    constexpr SInt32 kOfBooklets = 3;
    return settings.values().boolean(key::BookletLayout) == true ? kOfBooklets : duplexing;
}

void CopyEntry(const Ticket& from, const char* key, Ticket& to)
{
    if (const Value* value = from.values().find(key))
        to.restore(key, *value, from.client(key));
}

void CopyTicket(const Ticket& from, Ticket& to)
{
    Ticket copy;
    for (const Ticket::Entry& entry : from.entries())
        copy.restore(entry.key, entry.value, entry.client, entry.lock);
    copy.ppdDict() = from.ppdDict();
    to.swapContents(copy);
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

void MergeSettings(const SettingSources& sources, const PrinterFacts& printer, JobTickets& tickets)
{
    Ticket& settings = tickets.printSettings;
    const std::optional<SInt32> duplexing = MergedDuplexing(sources, settings);
    PresetChoices(WithPageSize(sources.queueDefaults, printer), printer, Preset::Fills, settings.ppdDict());
    PresetChoices(WithPageSize(sources.commandLine, printer), printer, Preset::Prevails, settings.ppdDict());
    if (!duplexing)
        return;
    if (printer.offers(kDuplexOption, ChoiceOfDuplexing(*duplexing)))
        settings.ppdDict().set(kDuplexOption, ChoiceOfDuplexing(*duplexing));
    WriteDuplexing(*duplexing, settings);
}

bool IsTaken(const JobOption& option, const PrinterFacts& printer)
{
    if (const std::optional<SInt32> duplexing = DuplexingOf(JobOptions{option}))
        return printer.offers(kDuplexOption, ChoiceOfDuplexing(*duplexing));
    return printer.offers(option.name, option.value) || IsPageSizeAlone(option, printer);
}

JobOptions OptionsOutsideDialog(const JobOptions& options, const PrinterFacts& printer)
{
    JobOptions outside;
    for (const JobOption& option : options) {
        if (!IsFieldOption(option.name) && !IsTaken(option, printer))
            outside.push_back(option);
    }
    return outside;
}

Dictionary PrintersOwnChoices(const SettingSources& sources, const PrinterFacts& printer, const JobTickets& tickets)
{
    const Ticket& settings = tickets.printSettings;
    Dictionary own;
    for (const auto& [keyword, choice] : printer.defaults)
        own.set(keyword, choice);
    PresetChoices(WithPageSize(sources.queueDefaults, printer), printer, Preset::Prevails, own);
    if (const auto duplexing = DuplexingOf(sources.queueDefaults); duplexing && own.find(kDuplexOption))
        own.set(kDuplexOption, ChoiceOfDuplexing(*duplexing));
    for (const JobOption& option : WithPageSize(sources.commandLine, printer))
        own.remove(option.name);
    for (const auto& [keyword, choice] : settings.ppdDict())
        own.remove(keyword);
    if (DuplexingOf(settings) || DuplexingOf(sources.commandLine))
        own.remove(kDuplexOption);
    return own;
}

void WithdrawChoices(const Dictionary& own, Ticket& printSettings)
{
    for (const auto& [keyword, choice] : own) {
        const QString* chosen = printSettings.ppdDict().string(keyword);
        if (!chosen || *chosen != *choice.string())
            continue;
        printSettings.ppdDict().remove(keyword);
        if (keyword != kDuplexOption)
            continue;
        for (const char* key : {key::FinishingDuplex, key::PMDuplexing})
            printSettings.remove(printSettings.client(key), key);
    }
}

void CopyTickets(const JobTickets& from, JobTickets& to)
{
    CopyTicket(from.printSettings, to.printSettings);
    CopyTicket(from.pageFormat, to.pageFormat);
    CopyTicket(from.printerInfo, to.printerInfo);
}

bool CopyFields(const JobTickets& from, JobTickets& to)
{
    JobTickets fields;
    for (const char* key : kFieldKeys)
        CopyEntry(from.printSettings, key, fields.printSettings);
    CopyEntry(from.pageFormat, key::PMOrientation, fields.pageFormat);
    const std::size_t left = fields.printSettings.values().count();
    CopyTickets(fields, to);
    return from.printSettings.values().count() == left && from.printSettings.ppdDict().count() == 0;
}

} // namespace kesta::host
