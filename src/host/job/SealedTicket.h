#pragma once

#include "host/job/TicketTransport.h"

#include "platform/values/Message.h"
#include "platform/values/Value.h"

#include <QByteArrayList>

#include <optional>

namespace kesta::host {

// What a print server's kesta-ticket is known to read, by what its queue's PPD says. Having a key means version 2.
struct TicketReader {
    int version = 1;
    QByteArrayList publicKeys = {}; // as the PPD has them; more than one is a fault
    Message problem = {};           // empty, or why nobody knows: secrets then do not travel
};

// The queue's key can't be used, and nothing may be sent to the queue. Nothing when there is no key or a good one.
std::optional<Message> TicketReaderProblem(const TicketReader& reader);

// The ticket's entries as the reader reads them. With a key kJobSecrets travel in a part of their own, sealed; without
// one they travel like the rest. Where that can't be, there are no options and a problem.
EncodedTicket EncodeJobTicket(Dictionary ticket, const TicketReader& reader);

struct JobTicket {
    enum class Secrets {
        There,     // where the job has any
        NoKey,     // left out: none of the private keys belongs to the job
        DamagedKey // left out: the private keys can't be used
    };
    QByteArray propertyList = {}; // as it was encoded, but for what is left out
    Secrets secrets = Secrets::There;
    QString problem = {}; // empty, or what is missing or damaged; then there is no property list
};

// "privateKeys" in the form of a private key's file.
JobTicket DecodeJobTicket(const JobOptions& options, const QByteArray& privateKeys);

} // namespace kesta::host
