#pragma once

#include "platform/printsystem/JobSettings.h"

#include <array>

namespace kesta::host {

// What a job needs on its way to the printer and nobody may find in a file afterwards: the passcode of a secure print
// job and the credit-card code of a fax call.
inline constexpr auto kJobSecrets = std::to_array<NestedEntry>({
    {"com.kesta.print.JobType", "SecurePrintPassword"},
    {"com.kesta.print.FaxOptions", "CreditCard"},
});

// The job settings as a file that the user keeps: all of them but the secrets.
QByteArray WriteSavedSettings(const JobTickets& tickets);

// The file's settings replace everything in the tickets; nothing on success. Otherwise what names the file and says
// what is wrong with it, and the tickets are as they were.
std::optional<Message> ReadSavedSettings(const QString& path, JobTickets& tickets);

} // namespace kesta::host
