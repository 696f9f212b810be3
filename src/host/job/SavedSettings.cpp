#include "host/job/SavedSettings.h"

#include "pde/interface/TicketKeys.h"
#include "platform/system/SafeFile.h"

namespace kesta::host {

QByteArray WriteSavedSettings(const JobTickets& tickets)
{
    return WriteJobSettings(tickets, kJobSecrets);
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
