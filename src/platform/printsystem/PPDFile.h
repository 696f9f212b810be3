#pragma once

#include "platform/values/Message.h"

#include <QString>

#include <cups/ppd.h>

#include <memory>

namespace kesta {

struct OpenPPD {
    std::shared_ptr<ppd_file_t> ppd; // null when it can't be read
    Message problem;                 // then why
};

// Opens a PPD of any origin, plain or gzipped, in bounded time, for one reader alone.
OpenPPD OpenPPDFile(const QString& path);

// The same for all readers of the process: the file that was asked for last stays open and is answered again while it
// is the same on disk, so that a window's opening reads it once. Readers change nothing in it but the marks, and leave
// these as they found them or mark what they need before they look. On the main thread only.
OpenPPD SharedPPDFile(const QString& path);

inline constexpr char kInstallableOptionsGroup[] = "InstallableOptions";

} // namespace kesta
