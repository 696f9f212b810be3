#pragma once

#include "platform/values/Message.h"

#include <QString>

#include <cups/ppd.h>

#include <memory>

namespace kesta::host {

struct PPDClose {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

struct PPDFile {
    std::unique_ptr<ppd_file_t, PPDClose> ppd; // with its defaults marked
    Message problem;                           // empty, or why it can't be read
};

// Opens a PPD of any origin, plain or gzipped, in bounded time.
PPDFile OpenPPDFile(const QString& path);

inline constexpr char kInstallableOptionsGroup[] = "InstallableOptions";

} // namespace kesta::host
