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

} // namespace

std::optional<JobPromise> PromiseOf(const Ticket& printSettings)
{
    const Dictionary* entries = printSettings.values().dictionary(key::JobType);
    const Number* number = entries ? entries->number(key::JobTypeNumber) : nullptr;
    const std::optional<SInt32> type = number ? number->as<SInt32>() : std::nullopt;
    const auto found = std::ranges::find_if(kPromises, [&](const PromiseOfType& row) { return row.jobType == type; });
    return found == kPromises.end() ? std::nullopt : std::optional(found->promise);
}

} // namespace kesta::host
