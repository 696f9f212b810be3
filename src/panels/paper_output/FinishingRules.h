#pragma once

#include "panels/paper_output/FinishingMenus.h"
#include "panels/paper_output/PaperOutputOptions.h"

namespace kesta::paper_output {

// What the user picked in the staple pop-up. A value that stands for no staples leaves the job without.
void ChooseStaple(PaperOutputOptions& options, SInt32 staple);

// Whether finishing is a booklet's, which leaves no room for another.
bool IsBooklet(const PaperOutputOptions& options);

// A command of the staple, punch and fold items. False, and nothing changed, for any other.
bool ApplyFinishingCommand(PaperOutputOptions& options, FourCharCode command);

// What follows once the user has chosen fold and booklet anew. The end of a booklet brings back the two-sided printing
// from before it.
void ApplyBooklet(PaperOutputOptions& options);

// No layout, and no fold of a booklet's.
void EndBooklet(PaperOutputOptions& options);

// Pop-up and memory follow two-sided printing, whoever changed it; a booklet's own is shown otherwise and not kept.
void FollowDuplex(PaperOutputOptions& options);

// The ticket's finishing option follows staples, holes and fold that somebody else chose: it stays where one of them
// has it, or where it is none of this table.
void FollowFinishing(PaperOutputOptions& options);

// Finishing that the paper does not allow is switched off, and its item in the menu with it. True when the summary is
// another one now.
bool ApplyPaperRules(PaperOutputOptions& options, Menu& finishing);

// Enables the items that the special pages and the booklet of the ticket leave possible.
void EnableFinishingItems(Menu& menu, const Ticket& settings);

// What has a row in the panel: what can finish the job, and what finishes it although this printer can't.
FinishingAccessories RowsFor(const FinishingAccessories& fitted, const PaperOutputOptions& options);

// The key of the text that tells of it.
const char* FinishingText(const PaperOutputOptions& options, Finishing finishing);
// Whether the job has it and the printer does not.
bool IsNotOffered(const PaperOutputOptions& options, Finishing finishing);

// Ends the menu with what finishes the job although this printer can't, and the way back from each.
void AddNotOffered(Menu& menu, const Bundle& bundle, const PaperOutputOptions& options);

// Checks the items that stand for the job's finishing.
void MarkFinishingMenu(Menu& menu, const PaperOutputOptions& options);

} // namespace kesta::paper_output
