#include "host/job/JobComposition.h"

#include "host/job/MediaOption.h"
#include "host/job/SealedTicket.h"
#include "host/job/TwoSided.h"

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// The print protocol's number of an orientation.
int RequestedOrientation(Orientation orientation)
{
    switch (orientation) {
    case Orientation::Landscape:
        return 4;
    case Orientation::ReverseLandscape:
        return 5;
    case Orientation::ReversePortrait:
        return 6;
    case Orientation::Portrait:
        break;
    }
    return 3;
}

std::optional<Message> AddChecked(JobOptions& options, const JobOption& option)
{
    if (option.name.startsWith(QLatin1StringView(kTicketOptionPrefix), Qt::CaseInsensitive))
        return Say("Option Made Here", option.name);
    if (auto fault = JobOptionFault(option))
        return fault;
    SetJobOption(options, option.name, option.value);
    return std::nullopt;
}

std::optional<Message> AddAll(JobOptions& options, const JobOptions& more)
{
    if (DuplexingOf(more)) // in whatever word; an earlier source may have the other one
        RemoveJobOption(options, kDuplexOption);
    for (const JobOption& option : more) {
        if (auto fault = AddChecked(options, option))
            return fault;
    }
    return std::nullopt;
}

void AddFields(JobOptions& options, const JobFields& fields)
{
    if (fields.copies)
        SetJobOption(options, u"copies", QString::number(*fields.copies));
    if (!fields.pageRanges.isEmpty())
        SetJobOption(options, u"page-ranges", fields.pageRanges);
    if (fields.pagesPerSheet)
        SetJobOption(options, u"number-up", QString::number(*fields.pagesPerSheet));
    if (!fields.orientation)
        return;
    // Upright is how a document without the option comes out; asking for it would turn landscape pages.
    RemoveJobOption(options, u"landscape");
    RemoveJobOption(options, u"orientation-requested");
    if (fields.orientation != Orientation::Portrait)
        SetJobOption(options, u"orientation-requested", QString::number(RequestedOrientation(*fields.orientation)));
}

JobOptions PPDJobOptions(const Dictionary& ppdChoices)
{
    JobOptions options;
    for (const auto& [keyword, choice] : ppdChoices) {
        if (const QString* text = choice.string())
            options.push_back({keyword, *text});
    }
    return options;
}

} // namespace

ComposedOptions ComposeJobOptions(const JobSources& sources)
{
    ComposedOptions composed;
    std::optional<Message> fault = AddAll(composed.options, sources.queueDefaults);
    if (!fault)
        fault = AddAll(composed.options, PPDJobOptions(sources.ppdChoices));
    if (!fault)
        fault = AddAll(composed.options, sources.commandLine);
    if (fault)
        return {{}, *fault};
    AlignSides(composed.options);
    AlignMedia(composed.options);
    AddFields(composed.options, sources.fields);
    if (const auto problem = TicketReaderProblem(sources.reader))
        return {{}, *problem};
    if (sources.ticket.count() == 0)
        return composed;
    const EncodedTicket ticket = EncodeJobTicket(sources.ticket, sources.reader);
    if (!ticket.problem.isEmpty())
        return {{}, ticket.problem};
    composed.options.insert(composed.options.end(), ticket.options.begin(), ticket.options.end());
    return composed;
}

} // namespace kesta::host
