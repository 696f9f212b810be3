#include "host/settings/SavedSettings.h"

namespace kesta::host {

QByteArray WriteSavedSettings(const JobTickets& tickets)
{
    return WriteJobSettings(tickets, kJobSecrets);
}

} // namespace kesta::host
