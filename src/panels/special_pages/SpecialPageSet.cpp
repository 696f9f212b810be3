#include "panels/special_pages/SpecialPageSet.h"

#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"

namespace kesta::special_pages {
namespace {

OSStatus WriteList(const TicketWriter& settings, const char* key, const SpecialPageList& list)
{
    std::optional<Array> pages = list.asTicket();
    return pages ? settings.set(key, std::move(*pages)) : settings.remove(key);
}

template <class Page> void ReadList(const Ticket& settings, const char* key, SpecialPageList& list)
{
    list.clear();
    const Array* stored = settings.values().array(key);
    if (!stored)
        return;
    std::vector<Page> pages;
    pages.reserve(stored->size());
    for (const Value& one : *stored) {
        if (const Dictionary* dictionary = one.dictionary())
            pages.emplace_back(*dictionary);
    }
    SpecialPages added;
    for (const Page& page : pages)
        added.push_back(&page);
    list.add(added);
}

bool IsSame(const Ticket& settings, const char* key, const std::optional<Value>& written)
{
    const Value* stored = settings.values().find(key);
    return written ? stored && *stored == *written : !stored;
}

bool IsSame(const Ticket& settings, const char* key, const SpecialPageList& list)
{
    std::optional<Array> pages = list.asTicket();
    return IsSame(settings, key, pages ? std::optional<Value>(std::move(*pages)) : std::nullopt);
}

bool IsSame(const Ticket& settings, const char* key, const CoverSlot& cover)
{
    return IsSame(settings, key, cover ? std::optional<Value>(cover->asTicket()) : std::nullopt);
}

bool IsSameBackCover(const SpecialPageSet& set, const Ticket& settings)
{
    if (IsBookletLayoutOn(settings)) // what the ticket has of it is not looked at
        return set.backCover ? GoesWithoutBackCover(settings, set.frontCover, set.backCover) : !set.frontCover;
    const bool isMissing = !settings.values().find(key::SpecialPagesBackCover);
    return (set.holdsUnwrittenBackCover && isMissing) || IsSame(settings, key::SpecialPagesBackCover, set.backCover);
}

bool HoldsWhatTicketSays(const SpecialPageSet& set, const Ticket& settings)
{
    return IsSame(settings, key::SpecialPagesFrontCover, set.frontCover) && IsSameBackCover(set, settings) &&
           IsSame(settings, key::SpecialPagesInsertList, set.inserts) &&
           IsSame(settings, key::SpecialPagesExceptionList, set.exceptions);
}

} // namespace

SpecialPageSet CloneOf(const SpecialPageSet& set)
{
    Covers covers = kesta::CloneOf(set.frontCover, set.backCover);
    return {.frontCover = std::move(covers.front),
            .backCover = std::move(covers.back),
            .inserts = set.inserts,
            .exceptions = set.exceptions,
            .holdsUnwrittenBackCover = set.holdsUnwrittenBackCover};
}

bool IsEmpty(const SpecialPageSet& set)
{
    return !set.frontCover && !set.backCover && set.inserts.count() == 0 && set.exceptions.count() == 0;
}

SpecialPages RowsOf(const SpecialPageSet& set)
{
    const SpecialPages inserts = set.inserts.pages(), exceptions = set.exceptions.pages();
    SpecialPages rows;
    rows.reserve(inserts.size() + exceptions.size() + 2);
    if (set.frontCover)
        rows.push_back(set.frontCover.get());
    auto exception = exceptions.begin();
    for (const SpecialPage* insert : inserts) {
        for (; exception != exceptions.end() && (*exception)->startPage() <= insert->startPage(); ++exception)
            rows.push_back(*exception);
        rows.push_back(insert);
    }
    rows.insert(rows.end(), exception, exceptions.end());
    if (set.backCover)
        rows.push_back(set.backCover.get());
    return rows;
}

OSStatus WriteTicket(SpecialPageSet& set, Ticket& settings)
{
    const TicketWriter writer(settings, kKestaClient);
    WriteList(writer, key::SpecialPagesInsertList, set.inserts);
    WriteList(writer, key::SpecialPagesExceptionList, set.exceptions);
    set.holdsUnwrittenBackCover = GoesWithoutBackCover(settings, set.frontCover, set.backCover);
    return SyncCovers(settings, SyncDirection::ControlsToTickets, set.frontCover, set.backCover);
}

bool ReadTicket(SpecialPageSet& set, Ticket& settings)
{
    const bool isNew = !HoldsWhatTicketSays(set, settings);
    if (isNew) {
        ReadList<Insert>(settings, key::SpecialPagesInsertList, set.inserts);
        ReadList<ExceptionPage>(settings, key::SpecialPagesExceptionList, set.exceptions);
        SyncCovers(settings, SyncDirection::TicketsToControls, set.frontCover, set.backCover);
        set.holdsUnwrittenBackCover = false;
    }
    if (IsBookletLayoutOn(settings))
        set.holdsUnwrittenBackCover = GoesWithoutBackCover(settings, set.frontCover, set.backCover);
    return isNew;
}

} // namespace kesta::special_pages
