#pragma once

#include "panels/special_pages/SpecialPagesPanel.h"

namespace kesta::special_pages {

ListView* ListOf(const _SpecialPagesContext& panel);

// The columns of the list, its dragging and its context menu.
void ConfigureSpecialPagesListAndInstallCallbacks(_SpecialPagesContext& panel);

// Fills the list from the records; those that were selected and are still there stay selected. The buttons follow.
void UpdateSpecialPagesSummary(_SpecialPagesContext& panel);
// Before the records are exchanged: another one may come to lie where one was.
void ForgetRows(_SpecialPagesContext& panel);

// In the order of the list.
SpecialPages SelectedPages(const _SpecialPagesContext& panel);
void SelectPages(const _SpecialPagesContext& panel, const ChosenPages& pages);

// Edit, delete, move and undo, by what is selected.
void UpdateSpecialPagesCommandButtons(const _SpecialPagesContext& panel);
// The add buttons, by what the job allows, and why.
void UpdateSpecialPagesUI(const _SpecialPagesContext& panel);

} // namespace kesta::special_pages
