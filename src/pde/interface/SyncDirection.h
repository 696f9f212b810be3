#pragma once

namespace kesta {

enum class SyncDirection : bool { ControlsToTickets = false, TicketsToControls = true };

} // namespace kesta
