#pragma once

#include "host/settings/HostTickets.h"

#include <QStringList>

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The window's summary in one line: copies, pages and layout as far as they differ from the default, then each panel's
// summary. A panel's lines, each with a dash before it, become one phrase.
QString SummaryLine(const HostSettings& settings, const QStringList& panelSummaries, const Bundle& texts);

} // namespace kesta::host
