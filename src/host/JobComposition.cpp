#include "host/JobComposition.h"

#include "host/HostTickets.h"
#include "host/TicketTransport.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// The print protocol counts the orientations in another order.
constexpr std::array kOrientationRequested{0, 3, 4, 6, 5};

std::optional<QString> AddChecked(JobOptions& options, const JobOption& option)
{
    if (option.name.startsWith(QLatin1StringView(kTicketOptionPrefix), Qt::CaseInsensitive))
        return u"the option \"%1\" is made by this program: leave it out."_s.arg(option.name);
    if (const auto fault = JobOptionFault(option))
        return *fault + u'.';
    SetJobOption(options, option.name, option.value);
    return std::nullopt;
}

std::optional<QString> AddAll(JobOptions& options, const JobOptions& more)
{
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
        SetJobOption(options, u"number-up", QString::number(fields.pagesPerSheet));
    if (fields.orientation == Orientation{})
        return;
    // Upright is how a document without the option comes out; asking for it would turn landscape pages.
    RemoveJobOption(options, u"landscape");
    RemoveJobOption(options, u"orientation-requested");
    if (fields.orientation != Orientation::Portrait)
        SetJobOption(options, u"orientation-requested",
                     QString::number(kOrientationRequested.at(static_cast<std::size_t>(fields.orientation))));
}

} // namespace

JobOptions PPDJobOptions(const Dictionary& ppdChoices)
{
    JobOptions options;
    for (const auto& [keyword, choice] : ppdChoices) {
        if (const QString* text = choice.string())
            options.push_back({keyword, *text});
    }
    return options;
}

ComposedOptions ComposeJobOptions(const JobSources& sources)
{
    ComposedOptions composed;
    std::optional<QString> fault = AddAll(composed.options, sources.queueDefaults);
    if (!fault)
        fault = AddAll(composed.options, PPDJobOptions(sources.ppdChoices));
    if (!fault)
        fault = AddAll(composed.options, sources.commandLine);
    if (fault)
        return {{}, *fault};
    AddFields(composed.options, sources.fields);
    if (sources.ticket.isEmpty())
        return composed;
    const EncodedTicket ticket = EncodeTicket(sources.ticket);
    if (!ticket.problem.isEmpty())
        return {{}, ticket.problem + u'.'};
    composed.options.insert(composed.options.end(), ticket.options.begin(), ticket.options.end());
    return composed;
}

} // namespace kesta::host
