#pragma once

#include "platform/printsystem/JobSettings.h"

namespace kesta::host {

// The job settings as a file that the user keeps: all of them but kJobSecrets.
QByteArray WriteSavedSettings(const JobTickets& tickets);

// The file's settings replace everything in the tickets; nothing on success. Otherwise what names the file and says
// what is wrong with it, and the tickets are as they were.
std::optional<Message> ReadSavedSettings(const QString& path, JobTickets& tickets);

} // namespace kesta::host
