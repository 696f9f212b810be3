#pragma once

#include "panels/special_pages/SpecialPagesPanel.h"

namespace kesta::special_pages {

void InstallSpecialPagesEventHandler(_SpecialPagesContext& panel);

// The panel's buttons. The list is filled anew after each, unless an editor was cancelled.
EventResult SpecialPagesEventHandler(_SpecialPagesContext& panel, const HitEvent& hit);

void DeleteSelectedSpecialPages(_SpecialPagesContext& panel);
void DeleteAllSpecialPages(_SpecialPagesContext& panel);
void PerformUndo(_SpecialPagesContext& panel);

// Dragging a row of the list: see StepsTo.
std::optional<SInt32> StepsOf(const _SpecialPagesContext& panel, int row, int before);
void MoveRow(_SpecialPagesContext& panel, int row, int before);

} // namespace kesta::special_pages
