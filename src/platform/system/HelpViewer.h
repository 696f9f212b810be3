#pragma once

#include "platform/system/Service.h"
#include "platform/values/Types.h"

#include <QString>

namespace kesta {

class HelpViewer {
public:
    using Interface = HelpViewer;
    virtual ~HelpViewer() = default;

    // Shows the file, at the anchor when that is not empty. noErr, or a status when it can't be shown.
    virtual OSStatus show(const QString& file, const QString& anchor) = 0;

    // What GetHelpViewer() answers from now on; null for the one without windows. Returns what was installed before,
    // null for none.
    static HelpViewer* install(HelpViewer* viewer);
};

// Without windows, the place of the page goes to standard error.
HelpViewer& GetHelpViewer();

} // namespace kesta
