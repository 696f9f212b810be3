#include "host/server/IppRequest.h"

#include <array>

namespace kesta::host {

IppMessage NewRequest(ipp_op_t operation, const QString& queue)
{
    IppMessage request(ippNewRequest(operation));
    if (!queue.isEmpty()) {
        std::array<char, HTTP_MAX_URI> uri{};
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0, "/printers/%s",
                         queue.toUtf8().constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    }
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

IppMessage DoRequest(ServerConnection& connection, IppMessage request, const QString& queue)
{
    connection.expectAnswer();
    const QByteArray resource = queue.isEmpty() ? QByteArray("/") : QueueResource(queue);
    return IppMessage(cupsDoRequest(connection.http(), request.release(), resource.constData()));
}

QByteArray QueueResource(const QString& queue)
{
    return "/printers/" + queue.toUtf8();
}

QString StringAttribute(ipp_attribute_t* attribute)
{
    return attribute ? QString::fromUtf8(ippGetString(attribute, 0, nullptr)) : QString();
}

} // namespace kesta::host
