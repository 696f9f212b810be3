#pragma once

#include "host/server/PrintServer.h"

#include <cups/cups.h>

#include <memory>

namespace kesta::host {

struct IppDelete {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using IppMessage = std::unique_ptr<ipp_t, IppDelete>;

// A request in the name of the user; about that queue unless the name is empty.
IppMessage NewRequest(ipp_op_t operation, const QString& queue);

// Sends it and waits. Null when the server gave no answer; look at cupsLastError for what it answered.
IppMessage DoRequest(ServerConnection& connection, IppMessage request, const QString& queue);

// The address on the server of what is sent about a queue: "/printers/NAME".
QByteArray QueueResource(const QString& queue);

// The first value of an attribute; empty when it is missing.
QString StringAttribute(ipp_attribute_t* attribute);

} // namespace kesta::host
