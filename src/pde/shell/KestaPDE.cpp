#include "pde/shell/KestaPDE.h"

#include "pde/ticket/TicketUtilities.h"

namespace kesta {

OSStatus KestaPDEProlog()
{
    return noErr;
}

OSStatus KestaPDEInitialize(PrintSession* session)
{
    SetCurrentPrintSession(session);
    return noErr;
}

OSStatus KestaPDESync()
{
    return noErr;
}

OSStatus KestaPDEGetSummaryText()
{
    return noErr;
}

OSStatus KestaPDEOpen()
{
    return noErr;
}

OSStatus KestaPDEClose()
{
    return noErr;
}

OSStatus KestaPDETerminate()
{
    SetCurrentPrintSession(nullptr);
    return noErr;
}

} // namespace kesta
