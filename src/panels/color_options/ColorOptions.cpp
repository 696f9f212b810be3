#include "panels/color_options/ColorOptions.h"

#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"

namespace kesta::color_options {
namespace {

Dictionary WithChanges(const Dictionary& read, const Dictionary& before, const Dictionary& after)
{
    Dictionary changed = read;
    for (const auto& [key, value] : before) {
        if (!after.find(key))
            changed.remove(key);
    }
    for (const auto& [key, value] : after) {
        const Value* old = before.find(key);
        if (!old || *old != value)
            changed.set(key, value);
    }
    return changed;
}

} // namespace

void ReadTicket(ColorOptions& options, const Ticket& settings)
{
    const Dictionary* dictionary = settings.values().dictionary(key::FullColorOptions);
    options.asRead = dictionary ? *dictionary : Dictionary();
    options.record = FullColorOptions(options.asRead);
}

void WriteTicket(const ColorOptions& options, Ticket& settings)
{
    const TicketWriter writer(settings, kKestaClient);
    Dictionary dictionary =
        WithChanges(options.asRead, FullColorOptions(options.asRead).asTicket(), options.record.asTicket());
    if (dictionary.count() == 0)
        writer.remove(key::FullColorOptions);
    else
        writer.set(key::FullColorOptions, std::move(dictionary));
}

} // namespace kesta::color_options
