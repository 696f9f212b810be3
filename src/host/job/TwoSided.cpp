#include "host/job/TwoSided.h"

#include "host/job/HostTickets.h"
#include "pde/interface/TicketKeys.h"

#include <algorithm>
#include <array>

namespace kesta::host {
namespace {

struct Duplexing {
    SInt32 value;
    const char* choice; // of the printer's option
    const char* sides;
};
constexpr auto kDuplexings = std::to_array<Duplexing>({
    {1, "None", "one-sided"},
    {2, "DuplexNoTumble", "two-sided-long-edge"},
    {3, "DuplexTumble", "two-sided-short-edge"},
});

const Duplexing* FindDuplexing(const std::optional<QString>& word, const char* Duplexing::*name)
{
    const auto found = std::ranges::find_if(
        kDuplexings, [&](const Duplexing& row) { return word && *word == QLatin1StringView(row.*name); });
    return found == kDuplexings.end() ? nullptr : &*found;
}

std::optional<SInt32> NumberIn(const Ticket& ticket, const char* key)
{
    const Number* number = ticket.values().number(key);
    const std::optional<SInt32> value = number ? number->as<SInt32>() : std::nullopt;
    return value && *value >= 1 && *value <= 3 ? value : std::nullopt;
}

} // namespace

std::optional<SInt32> DuplexingOf(const JobOptions& options)
{
    const Duplexing* row = FindDuplexing(FindJobOption(options, kDuplexOption), &Duplexing::choice);
    if (!row && !FindJobOption(options, kDuplexOption))
        row = FindDuplexing(FindJobOption(options, kSidesOption), &Duplexing::sides);
    return row ? std::optional(row->value) : std::nullopt;
}

std::optional<SInt32> DuplexingOf(const Ticket& printSettings)
{
    for (const char* key : {key::FinishingDuplex, key::PMDuplexing}) {
        if (const std::optional<SInt32> duplexing = NumberIn(printSettings, key))
            return duplexing;
    }
    const QString* choice = printSettings.ppdDict().string(kDuplexOption);
    const Duplexing* row = choice ? FindDuplexing(*choice, &Duplexing::choice) : nullptr;
    return row ? std::optional(row->value) : std::nullopt;
}

SInt32 DuplexingOfChoice(QAnyStringView choice)
{
    const Duplexing* row = FindDuplexing(choice.toString(), &Duplexing::choice);
    return row ? row->value : 1;
}

QString ChoiceOfDuplexing(SInt32 duplexing)
{
    const auto row = std::ranges::find(kDuplexings, duplexing, &Duplexing::value);
    return row == kDuplexings.end() ? QString() : QLatin1StringView(row->choice);
}

void WriteDuplexing(SInt32 duplexing, Ticket& printSettings)
{
    for (const char* key : {key::FinishingDuplex, key::PMDuplexing}) {
        if (printSettings.values().find(key))
            printSettings.set(printSettings.client(key), key, Number::Index(duplexing));
    }
    if (printSettings.ppdDict().find(kDuplexOption))
        printSettings.ppdDict().set(kDuplexOption, ChoiceOfDuplexing(duplexing));
}

void AlignSides(JobOptions& options)
{
    const std::optional<QString> choice = FindJobOption(options, kDuplexOption);
    if (!choice || !FindJobOption(options, kSidesOption))
        return;
    if (const Duplexing* row = FindDuplexing(choice, &Duplexing::choice))
        SetJobOption(options, kSidesOption, QLatin1StringView(row->sides));
    else
        RemoveJobOption(options, kSidesOption);
}

} // namespace kesta::host
