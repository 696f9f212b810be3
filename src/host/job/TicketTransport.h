#pragma once

#include "host/job/JobOptions.h"

#include <QByteArray>
#include <QString>

namespace kesta::host {

// A ticket's property list travels to the driver's filter in the options com.kesta.print.ticket.1, .2, and so on.
// Each holds "kt1-INDEX-COUNT-BYTES-CRC-TEXT": piece INDEX of COUNT, the length and CRC-32 (hexadecimal) of the whole
// property list, and its part of the base64url text (without padding) of the zlib-compressed property list.
inline constexpr char kTicketOptionPrefix[] = "com.kesta.print.ticket.";
inline constexpr qsizetype kMaximumTicketOption = 24 * 1024;  // bytes of one option's value
inline constexpr qsizetype kMaximumTicketOptions = 96 * 1024; // of all of them
inline constexpr qsizetype kMaximumTicket = 8 * 1024 * 1024;  // of the property list

struct EncodedTicket {
    JobOptions options;
    Message problem = {}; // empty, or why the ticket can't travel; then there are no options
};
EncodedTicket EncodeTicket(const QByteArray& propertyList);

struct DecodedTicket {
    QByteArray propertyList;
    QString problem; // empty, or what is missing or damaged; then there is no property list
};
DecodedTicket DecodeTicket(const JobOptions& options);

} // namespace kesta::host
