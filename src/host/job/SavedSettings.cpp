#include "host/job/SavedSettings.h"

#include "pde/interface/TicketKeys.h"
#include "platform/system/SafeFile.h"

namespace kesta::host {

std::optional<Message> SaveSettings(const QString& path, const JobTickets& tickets)
{
    const QByteArray bytes = WriteJobSettings(tickets, kJobSecrets);
    JobTickets readBack;
    if (const std::optional<Message> problem = ReadJobSettings(bytes, readBack))
        return Say("Settings Too Large To Save", path, *problem);
    const std::optional<FileError> error = WriteFile(path, bytes, FileAccess::OwnerOnly);
    return error ? std::optional(Verbatim(error->text)) : std::nullopt;
}

std::optional<Message> ReadSavedSettings(const QString& path, JobTickets& tickets)
{
    const FileContent content = ReadFile(path, kLargestJobSettings);
    if (!content.bytes)
        return Verbatim(content.error.text);
    const std::optional<Message> problem = ReadJobSettings(*content.bytes, tickets);
    if (!problem)
        return std::nullopt;
    return Say("Settings Unusable", path, *problem);
}

} // namespace kesta::host
