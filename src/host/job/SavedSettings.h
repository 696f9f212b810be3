#pragma once

#include "platform/printsystem/JobSettings.h"

namespace kesta::host {

// Saves the job settings as a file that the user keeps and nobody else can read: all of them but kJobSecrets. Nothing
// on success; otherwise why they are not saved, what could not be read again included, and the file is as it was.
std::optional<Message> SaveSettings(const QString& path, const JobTickets& tickets);

// The file's settings replace everything in the tickets; nothing on success. Otherwise what names the file and says
// what is wrong with it, and the tickets are as they were.
std::optional<Message> ReadSavedSettings(const QString& path, JobTickets& tickets);

} // namespace kesta::host
