#pragma once

#include "panels/special_pages/SpecialPageSet.h"

namespace kesta::special_pages {

struct CommandStates {
    bool edit = false, remove = false, removeAll = false, undo = false, moveUp = false, moveDown = false;

    bool operator==(const CommandStates&) const = default;
};
// The selected pages are in the order of the list; the last one alone decides about moving.
CommandStates StatesOf(const SpecialPageSet& set, const SpecialPages& selected, bool canUndo);

// Inserts and exceptions can't be added to several pages a sheet and to a booklet.
bool IsNUpOn(const Ticket& settings);
bool CanAddPages(const Ticket& settings);

void Remove(SpecialPageSet& set, const SpecialPages& selected);
void RemoveAll(SpecialPageSet& set);
void MoveUp(SpecialPageSet& set, const SpecialPages& selected);
void MoveDown(SpecialPageSet& set, const SpecialPages& selected);

// How many times a page moves up (below 0) or down to stand before the row of that number; nothing where moving step by
// step would not get it there, or not change anything.
std::optional<SInt32> StepsTo(const SpecialPageSet& set, const SpecialPages& rows, const SpecialPage& page, int before);
void Move(SpecialPageSet& set, const SpecialPage& page, SInt32 steps);

// One level: what was saved last, until it is put back.
class UndoState {
public:
    bool canUndo() const { return saved_.has_value(); }
    void save(const SpecialPageSet& set) { saved_ = CloneOf(set); }
    void perform(SpecialPageSet& set);

private:
    std::optional<SpecialPageSet> saved_;
};

} // namespace kesta::special_pages
