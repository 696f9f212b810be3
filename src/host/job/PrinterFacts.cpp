#include "host/job/PrinterFacts.h"

namespace kesta::host {

bool PrinterFacts::offers(const QString& keyword, const QString& choice) const
{
    const auto option = choices.find(keyword);
    return option != choices.end() && option->second.contains(choice);
}

bool PrinterFacts::suitsPane() const
{
    return problem.isEmpty() && manufacturer == u"Kesta";
}

} // namespace kesta::host
