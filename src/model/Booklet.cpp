#include "model/Booklet.h"

#include "pde/interface/TicketKeys.h"

namespace kesta {
namespace {

void WriteForcedSize(SInt32 size, const TicketWriter& settings)
{
    const Ticket& ticket = settings;
    const Dictionary* stored = ticket.values().dictionary(key::JobLevelStock);
    if (!stored)
        return;
    Dictionary stock = *stored;
    if (size != kUnset)
        stock.set("Size", Number::Index(size));
    else
        stock.remove("Size");
    settings.set(key::JobLevelStock, std::move(stock));
    settings.set(key::BookletForceNewSize, size != kUnset);
}

} // namespace

std::optional<SInt32> ReadForcedSize(const Ticket& settings)
{
    const Dictionary* stock = settings.values().dictionary(key::JobLevelStock);
    const bool isForced = settings.values().boolean(key::BookletForceNewSize).value_or(false);
    return isForced && stock ? CFDictionaryGetNumber<SInt32>(*stock, "Size") : std::nullopt;
}

void ReadBooklet(Booklet& booklet, const Ticket& settings)
{
    const bool isOn = settings.values().boolean(key::BookletLayout).value_or(false);
    booklet.layout = isOn ? kBookletLayoutOn : kBookletLayoutOff;
    if (!isOn)
        return;
    const Booklet plain;
    booklet.drawOutlines = ReadTicketValue(settings, key::BookletDrawOutlines).value_or(plain.drawOutlines);
    booklet.newPaperSize = ReadForcedSize(settings).value_or(plain.newPaperSize);
    booklet.gutter = ReadTicketValue(settings, key::Gutter).value_or(plain.gutter);
    booklet.creep = ReadTicketValue(settings, key::Creep).value_or(plain.creep);
}

void WriteBooklet(const Booklet& booklet, const TicketWriter& settings)
{
    settings.set(key::BookletLayout, booklet.isOn());
    if (!booklet.isOn())
        return;
    WriteTicketValue(settings, key::BookletDrawOutlines, booklet.drawOutlines);
    WriteForcedSize(booklet.newPaperSize, settings);
    WriteTicketValue(settings, key::Gutter, booklet.gutter);
    WriteTicketValue(settings, key::Creep, booklet.creep);
}

} // namespace kesta
