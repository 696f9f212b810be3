#include "host/job/JobPromises.h"

#include "pde/interface/TicketKeys.h"

#include <algorithm>
#include <array>

namespace kesta::host {
namespace {

struct PromiseOfType {
    SInt32 jobType;
    JobPromise promise;
};
constexpr auto kPromises = std::to_array<PromiseOfType>({
    {kJobTypeHoldJob, {"Delayed Job Title", "Job Not Held Question", "Job Not Held"}},
    {kJobTypeSavedJob, {"Saved Job Title", "Job Not Stored Question", "Job Not Stored"}},
    {kJobTypeFax, {"Fax Job Title", "No Fax Question", "No Fax"}},
    {kJobTypeSecurePrint, {"Secure Job Title", "Job Not Kept Question", "Job Not Kept"}},
    {kJobTypeDelayedPrint, {"Delayed Job Title", "Job Not Held Question", "Job Not Held"}},
    {kJobTypeSampleSet, {"Sample Set Title", "No Sample Set Question", "No Sample Set"}},
});

const Dictionary* EntriesOf(const Ticket& printSettings)
{
    return printSettings.values().dictionary(key::JobType);
}

std::optional<SInt32> TypeOf(const Ticket& printSettings)
{
    const Dictionary* entries = EntriesOf(printSettings);
    const Number* number = entries ? entries->number(key::JobTypeNumber) : nullptr;
    return number ? number->as<SInt32>() : std::nullopt;
}

// Nobody can type another one at a printer; the dialog has it typed anew.
bool CanBeFetchedWith(const QString& passcode)
{
    constexpr int kMostDigits = 10;
    return !passcode.isEmpty() && passcode.size() <= kMostDigits &&
           std::ranges::all_of(passcode, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

std::optional<JobPromise> PromiseOf(const Ticket& printSettings)
{
    const std::optional<SInt32> type = TypeOf(printSettings);
    const auto found = std::ranges::find_if(kPromises, [&](const PromiseOfType& row) { return row.jobType == type; });
    return found == kPromises.end() ? std::nullopt : std::optional(found->promise);
}

std::optional<Message> MissingFor(const Ticket& printSettings)
{
    if (TypeOf(printSettings) == kJobTypeSecurePrint) {
        const QString* passcode = EntriesOf(printSettings)->string(key::JobTypeSecurePrintPassword);
        return passcode && CanBeFetchedWith(*passcode) ? std::nullopt : std::optional(Say("Passcode Missing"));
    }
    const Array* recipients = printSettings.values().array(key::FaxRecipientList);
    if (IsFax(printSettings) && (!recipients || recipients->empty()))
        return Say("Recipients Missing");
    return std::nullopt;
}

bool IsFax(const Ticket& printSettings)
{
    return TypeOf(printSettings) == kJobTypeFax;
}

} // namespace kesta::host
