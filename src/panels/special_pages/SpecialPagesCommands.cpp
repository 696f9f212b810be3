#include "panels/special_pages/SpecialPagesCommands.h"

#include "pde/interface/TicketKeys.h"

#include <algorithm>

namespace kesta::special_pages {
namespace {

ChosenPages ToSet(const SpecialPages& pages)
{
    return {pages.begin(), pages.end()};
}

bool IsInsert(const SpecialPage* page)
{
    return dynamic_cast<const Insert*>(page);
}

// Passing an insert before page 1 is not possible in either direction.
bool CanPass(const SpecialPages& inserts, std::size_t first, std::size_t end)
{
    return std::none_of(inserts.begin() + static_cast<std::ptrdiff_t>(first),
                        inserts.begin() + static_cast<std::ptrdiff_t>(end),
                        [](const SpecialPage* passed) { return passed->startPage() == 0; });
}

} // namespace

CommandStates StatesOf(const SpecialPageSet& set, const SpecialPages& selected, bool canUndo)
{
    const SpecialPage* last = selected.empty() ? nullptr : selected.back();
    return {.edit = selected.size() == 1,
            .remove = !selected.empty(),
            .removeAll = !IsEmpty(set),
            .undo = canUndo,
            .moveUp = last && set.inserts.canPromote(last),
            .moveDown = last && set.inserts.canDemote(last)};
}

bool IsNUpOn(const Ticket& settings)
{
    return settings.values().boolean(key::PMLayoutNUp).value_or(false);
}

bool CanAddPages(const Ticket& settings)
{
    return !IsNUpOn(settings) && !IsBookletLayoutOn(settings);
}

void Remove(SpecialPageSet& set, const SpecialPages& selected)
{
    const ChosenPages chosen = ToSet(selected);
    for (CoverSlot* cover : {&set.frontCover, &set.backCover}) {
        if (chosen.contains(cover->get()))
            cover->reset();
    }
    set.inserts.remove(chosen);
    set.exceptions.remove(chosen);
}

void RemoveAll(SpecialPageSet& set)
{
    set.frontCover.reset();
    set.backCover.reset();
    set.inserts.clear();
    set.exceptions.clear();
}

void MoveUp(SpecialPageSet& set, const SpecialPages& selected)
{
    set.inserts.promote(ToSet(selected));
}

void MoveDown(SpecialPageSet& set, const SpecialPages& selected)
{
    set.inserts.demote(ToSet(selected));
}

std::optional<SInt32> StepsTo(const SpecialPageSet& set, const SpecialPages& rows, const SpecialPage& page, int before)
{
    const SpecialPages inserts = set.inserts.pages();
    const auto found = std::ranges::find(inserts, &page);
    if (found == inserts.end() || before < 0 || before > static_cast<int>(rows.size()))
        return std::nullopt;
    const auto place = static_cast<std::size_t>(found - inserts.begin());
    const auto target = static_cast<std::size_t>(std::count_if(rows.begin(), rows.begin() + before, IsInsert));
    const bool isUp = target < place;
    if (target == place || target == place + 1 || !CanPass(inserts, isUp ? target : place + 1, isUp ? place : target))
        return std::nullopt;
    return static_cast<SInt32>(target) - static_cast<SInt32>(place) - (isUp ? 0 : 1);
}

void Move(SpecialPageSet& set, const SpecialPage& page, SInt32 steps)
{
    set.inserts.move(&page, steps);
}

void UndoState::perform(SpecialPageSet& set)
{
    if (!saved_)
        return;
    const bool heldUnwritten = set.holdsUnwrittenBackCover;
    set = std::move(*saved_);
    set.holdsUnwrittenBackCover = heldUnwritten;
    saved_.reset();
}

} // namespace kesta::special_pages
