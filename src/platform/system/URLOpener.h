#pragma once

#include "platform/system/Service.h"

#include <QString>

namespace kesta {

// Shows an address in the user's web browser.
class URLOpener {
public:
    using Interface = URLOpener;
    virtual ~URLOpener() = default;

    // Whether a program was started for it.
    virtual bool open(const QString& url) = 0;

    // What GetURLOpener() answers from now on; null for the system's. Returns what was installed before, null for none.
    static URLOpener* install(URLOpener* opener);
};

// The system's opens http, https and mailto addresses only: addresses come from printers and networks.
URLOpener& GetURLOpener();

} // namespace kesta
