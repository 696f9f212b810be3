#include "platform/printsystem/PrintSession.h"

#include <QUrl>

namespace kesta {

void PMSessionSetDataInSession(PrintSession& session, QAnyStringView name, std::uint32_t value)
{
    session.data.insert_or_assign(name.toString(), value);
}

std::optional<std::uint32_t> PMSessionGetDataFromSession(const PrintSession& session, QAnyStringView name)
{
    const auto found = session.data.find(name.toString());
    return found == session.data.end() ? std::nullopt : std::optional(found->second);
}

const PMPrinter* PMSessionGetCurrentPrinter(const PrintSession& session)
{
    return session.printer ? &*session.printer : nullptr;
}

std::optional<QString> PMPrinterGetDescriptionURL(const PMPrinter& printer, QAnyStringView type)
{
    if (type != QAnyStringView(kPMPPDDescriptionType) || printer.ppdPath.isEmpty())
        return std::nullopt;
    return QUrl::fromLocalFile(printer.ppdPath).toString(QUrl::FullyEncoded);
}

QString PMPrinterGetDeviceURI(const PMPrinter& printer)
{
    return printer.deviceURI;
}

bool PMSessionCanCarry(const PrintSession& session, const Dictionary& printSettings)
{
    return !session.canCarry || session.canCarry(printSettings);
}

} // namespace kesta
