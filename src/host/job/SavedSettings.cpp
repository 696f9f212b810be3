#include "host/job/SavedSettings.h"

#include "pde/interface/TicketKeys.h"
#include "platform/system/SafeFile.h"

namespace kesta::host {

QByteArray WriteSavedSettings(const JobTickets& tickets)
{
    return WriteJobSettings(tickets, kJobSecrets);
}

std::optional<QString> ReadSavedSettings(const QString& path, JobTickets& tickets)
{
    const FileContent content = ReadFile(path, kLargestJobSettings);
    if (!content.bytes)
        return content.error.text;
    const std::optional<QString> problem = ReadJobSettings(*content.bytes, tickets);
    if (!problem)
        return std::nullopt;
    return QStringLiteral("The settings in %1 can't be used: %2").arg(path, *problem);
}

} // namespace kesta::host
