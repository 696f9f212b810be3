#include "support/CurrentPrinter.h"

#include "pde/ticket/TicketUtilities.h"
#include "printer/PPDUtilities.h"

namespace kesta::test {

CurrentPrinter::CurrentPrinter(const PPDVariant& ppd) : CurrentPrinter(ppd.path()) {}

CurrentPrinter::CurrentPrinter(const QString& ppdPath) : before_(GetCurrentPrintSession())
{
    setPPD(ppdPath);
    PPDCloseCurrent();
    SetCurrentPrintSession(&session);
    PPDGetCurrent(); // while the variant's file exists
}

CurrentPrinter::~CurrentPrinter()
{
    PPDCloseCurrent();
    SetCurrentPrintSession(before_);
}

void CurrentPrinter::setPPD(const QString& path)
{
    session.printer = PMPrinter{.ppdPath = path};
}

} // namespace kesta::test
