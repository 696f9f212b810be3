#pragma once

#include "host/job/JobOptions.h"

#include <QByteArray>
#include <QString>

namespace kesta::host {

// A ticket's property list travels to the driver's filter in the options com.kesta.print.ticket.1, .2, and so on.
// Each holds, in version 1, "kt1-INDEX-COUNT-BYTES-CRC-TEXT": piece INDEX of COUNT, the length and CRC-32 (hexadecimal)
// of the whole property list, and its part of the base64url text (without padding) of the compressed property list.
// Version 2 has "kt2" and, before the text, one more field: how many sealed parts (0 or 1) belong to the ticket.
// Version 1 is compressed by zlib, version 2 by bzip2.
inline constexpr char kTicketOptionPrefix[] = "com.kesta.print.ticket.";
inline constexpr char kTicketSealedOption[] = "com.kesta.print.ticket.sealed";
inline constexpr qsizetype kMaximumTicketOption = 24 * 1024;  // bytes of one option's value
inline constexpr qsizetype kMaximumTicketOptions = 96 * 1024; // of all of them
inline constexpr qsizetype kMaximumTicket = 8 * 1024 * 1024;  // of the property list

struct EncodedTicket {
    JobOptions options = {};
    Message problem = {};   // empty, or why the ticket can't travel; then there are no options
    qsizetype tooLarge = 0; // or how many bytes it would take, where there is only so much room
    qsizetype room = 0;
};
// Version 1 or 2; a sealed part, which is no more than text here, travels with version 2 only.
EncodedTicket EncodeTicket(const QByteArray& propertyList, int version = 1, const QString& sealedPart = {});

struct DecodedTicket {
    QByteArray propertyList = {};
    QString sealedPart = {}; // as it was handed to EncodeTicket
    QString problem = {};    // empty, or what is missing or damaged; then there is no property list
};
DecodedTicket DecodeTicket(const JobOptions& options);

} // namespace kesta::host
