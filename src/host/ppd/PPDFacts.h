#pragma once

#include "host/job/HostTickets.h"
#include "host/job/SealedTicket.h"

#include "platform/values/Message.h"

#include <map>
#include <set>

namespace kesta::host {

// What the dialog itself needs to know about a printer.
struct PPDFacts {
    QString name = {};                                 // the model's, as the printer's maker writes it
    QString manufacturer = {};                         // exactly as the PPD has it
    std::optional<PaperRect> paper = {};               // of the chosen page size
    QString duplexChoice = {};                         // the default choice of the option "Duplex"; empty without one
    std::map<QString, std::set<QString>> choices = {}; // option keyword to its choice keywords
    TicketReader ticketReader = {};                    // of the queue's print server
    Message problem = {}; // empty, or why the file can't be read; then there is nothing else

    bool offers(const QString& keyword, const QString& choice) const;
};

// The page size is that of the choices (option keyword to choice keyword), else the PPD's default.
PPDFacts ReadPPDFacts(const QString& ppdPath, const Dictionary& chosen);

} // namespace kesta::host
