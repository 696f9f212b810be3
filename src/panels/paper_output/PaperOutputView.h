#pragma once

#include "panels/paper_output/PaperOutputPanel.h"
#include "pde/forms/BoundControls.h"

class QWidget;

namespace kesta::paper_output {

// Null when the interface file has no such control, or before Open.
QWidget* FindHere(const _PaperOutputContext& panel, SInt32 number);

// Puts the panel together from the views that the accessories ask for, and fills its menus. Without the interface file
// the panel stays empty.
void BuildView(_PaperOutputContext& panel);

// The pop-ups of PaperOutputBindings.h.
BoundControls<PaperOutputOptions> BoundOptions(const _PaperOutputContext& panel);
BoundControls<PaperOutputOptions> BoundFinishing(const _PaperOutputContext& panel);

// The two summaries go when the panel is closed, with the room that they took kept free for the next Open.
void DisposeSummaries(_PaperOutputContext& panel);
void RestoreSummaries(_PaperOutputContext& panel);

// All pop-ups but the two-sided one, pictures and summaries.
void ShowOptions(_PaperOutputContext& panel);
void ShowPaper(const _PaperOutputContext& panel);
void ShowFinishing(const _PaperOutputContext& panel);
void ShowPictures(const _PaperOutputContext& panel);

// With a booklet the two-sided pop-up is held at long edge.
void ShowTwoSided(const _PaperOutputContext& panel);

// For what the job type needs; a fax can't be set up, which the button says. Returns whether the button is enabled.
bool EnableDisableJobTypeSetupButton(const _PaperOutputContext& panel);

// Does something to the items of every menu of finishing that is shown.
void ChangeFinishingMenus(const _PaperOutputContext& panel, const std::function<void(Menu&)>& change);

} // namespace kesta::paper_output
