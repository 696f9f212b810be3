#pragma once

#include <QByteArray>

namespace kesta::host {

// How a ticket's property list is compressed. Bzip2 takes two fifths less than Zlib for many recipients or special
// pages.
enum class TicketPacking { Zlib, Bzip2 };

// Empty when there is no memory.
QByteArray PackTicket(TicketPacking packing, const QByteArray& bytes);

// Writes no more than the announced size, whatever the packed bytes hold; empty when they do not hold exactly that.
QByteArray UnpackTicket(TicketPacking packing, const QByteArray& packed, qsizetype announced);

} // namespace kesta::host
