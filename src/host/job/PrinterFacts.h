#pragma once

#include "host/job/HostTickets.h"
#include "host/job/SealedTicket.h"

#include "platform/values/Message.h"

#include <map>
#include <set>

namespace kesta::host {

// What the dialog itself needs to know about a printer, from its PPD.
struct PrinterFacts {
    QString name = {};                                 // the model's, as the printer's maker writes it
    QString manufacturer = {};                         // exactly as the PPD has it
    std::map<QString, std::set<QString>> choices = {}; // option keyword to its choice keywords
    std::map<QString, QString> defaults = {};          // option keyword to the choice that counts without a word
    TicketReader ticketReader = {};                    // of the queue's print server
    Message problem = {}; // empty, or why the file can't be read; then there is nothing else

    bool offers(const QString& keyword, const QString& choice) const;
    // Whether the pane is for this printer; whether it can be shown is another matter.
    bool suitsPane() const;
};

} // namespace kesta::host
