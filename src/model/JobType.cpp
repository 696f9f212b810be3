#include "model/JobType.h"

#include <algorithm>
#include <array>

namespace kesta {
namespace {

Dictionary CopyEntries(const Ticket& settings)
{
    if (const Dictionary* stored = settings.values().dictionary(key::JobType))
        return *stored;
    return {{key::JobTypeMediaType, Number::Index(1)},
            {key::JobTypeNumber, Number::SInt32(kJobTypeNormal)},
            {key::JobTypeUseJobName, true},
            {key::JobTypeSavedJobName, ""}};
}

std::optional<QString> ReadText(const Dictionary& entries, const char* key)
{
    const QString* text = entries.string(key);
    return text ? std::optional(*text) : std::nullopt;
}

void SetOrRemove(Dictionary& entries, const char* key, bool useDefault, const std::optional<QString>& text)
{
    if (useDefault)
        entries.remove(key);
    else if (text)
        entries.set(key, *text);
}

} // namespace

bool JobTypeNeedsSetup(SInt32 number)
{
    constexpr std::array kTypesWithSetup{3, 4, 5, 6, 7, 9};
    return std::ranges::find(kTypesWithSetup, number) != kTypesWithSetup.end();
}

void ReadJobType(JobType& job, const Ticket& settings)
{
    job.entries = CopyEntries(settings);
    const auto index = [&](const char* key) { return CFDictionaryGetNumber<SInt64>(job.entries, key); };
    const SInt32 number = CFDictionaryGetNumber<SInt32>(job.entries, key::JobTypeNumber).value_or(kJobTypeNormal);

    job.number = number >= kJobTypeNormal && number <= kHighestJobType ? number : kJobTypeNormal;
    job.mediaTypeInJob = index(key::JobTypeMediaType).value_or(1);
    job.useJobName = job.entries.boolean(key::JobTypeUseJobName).value_or(true);
    job.savedJobName = ReadText(job.entries, key::JobTypeSavedJobName);
    job.savedJobLocation = ReadText(job.entries, key::JobTypeSavedJobLocation);
    job.useDefaultLocation = !job.savedJobLocation;
    job.securePasscode = ReadText(job.entries, key::JobTypeSecurePrintPassword);
    job.hasPasscode = job.securePasscode.has_value();
    job.delayedPrintTime = index(key::JobTypeDelayedPrintTime).value_or(job.delayedPrintTime);
    job.saveDisposition = index(key::JobTypeSaveDisposition).value_or(1);
}

void WriteJobType(JobType& job, const TicketWriter& settings)
{
    Dictionary& entries = job.entries;
    entries.set(key::JobTypeMediaType, Number::Index(job.mediaTypeInJob));
    entries.set(key::JobTypeUseJobName, job.useJobName);
    entries.set(key::JobTypeNumber, Number::SInt32(job.number));
    SetOrRemove(entries, key::JobTypeSavedJobName, job.useJobName, job.savedJobName);
    SetOrRemove(entries, key::JobTypeSavedJobLocation, job.useDefaultLocation, job.savedJobLocation);
    if (job.securePasscode)
        entries.set(key::JobTypeSecurePrintPassword, *job.securePasscode);
    entries.set(key::JobTypeDelayedPrintTime, Number::SInt64(job.delayedPrintTime));
    if (job.number == kJobTypeSavedJob)
        entries.set(key::JobTypeSaveDisposition, Number::Index(job.saveDisposition));
    else
        entries.remove(key::JobTypeSaveDisposition);
    settings.set(key::JobType, entries);
}

} // namespace kesta
