#pragma once

#include "host/job/HostTickets.h"

#include <QStringList>

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The window's summary in one line: copies, pages and layout as far as they differ from the default, then what the
// panels say.
QString SummaryLine(const HostSettings& settings, const QStringList& panelPhrases, const Bundle& texts);

} // namespace kesta::host
