#pragma once

#include "panels/paper_output/PaperOutputPanel.h"

namespace kesta::paper_output {

// What the user does in the panel. Always answers NotHandled, so that what events do anyway goes on.
EventResult pdeShellPaperOutputEventHandler(_PaperOutputContext& panel, const HitEvent& hit);
EventResult pdeShellPaperOutputEventHandler(_PaperOutputContext& panel, const CommandEvent& chosen);

} // namespace kesta::paper_output
