#include "host/job/SealedTicket.h"

#include "host/job/TicketSeal.h"
#include "host/job/TicketSecrets.h"
#include "pde/interface/TicketKeys.h"
#include "platform/values/PropertyList.h"

#include <vector>

namespace kesta::host {
namespace {

// What can grow beyond what travels, and what to do then.
struct TicketPart {
    const char* key;
    Message leaveOut;
};

std::vector<TicketPart> LargeParts()
{
    return {{key::FaxRecipientList, Say("Leave Out Recipients")},
            {key::SpecialPagesExceptionList, Say("Leave Out Exception Pages")},
            {key::SpecialPagesInsertList, Say("Leave Out Inserts")},
            {key::FaxOptions, Say("Leave Out Cover Sheet Texts")}};
}

EncodedTicket Refuse(const Message& problem)
{
    return {.problem = problem};
}

// What takes more than half of the ticket is named.
Message LeaveOut(const Dictionary& ticket)
{
    const qsizetype half = WritePropertyList(ticket).size() / 2;
    for (const TicketPart& part : LargeParts()) {
        const Value* value = ticket.find(part.key);
        if (value && WritePropertyList(*value).size() > half)
            return part.leaveOut;
    }
    return Say("Leave Out Anything");
}

Message TooLarge(const EncodedTicket& encoded, const Dictionary& ticket)
{
    return Say("Ticket Too Large", (encoded.tooLarge + 1023) / 1024, encoded.room / 1024, LeaveOut(ticket));
}

// What is sealed: the digest of the open part, which it belongs to, and the secrets. Empty where that fails.
QByteArray SealSecrets(const Array& secrets, const QByteArray& openPart, const QByteArray& publicKey)
{
    QByteArray content = TicketDigest(openPart) + WritePropertyList(secrets);
    QByteArray sealedPart = SealBytes(content, publicKey);
    Wipe(content);
    return sealedPart.size() <= kMaximumTicketOption ? sealedPart : QByteArray();
}

// The whole property list; empty when the secrets are not this ticket's.
QByteArray WithSecrets(const QByteArray& openPart, QByteArray content)
{
    const QByteArray digest = TicketDigest(openPart);
    const bool belongs = content.startsWith(digest);
    PropertyListResult secrets = ParsePropertyList(content.sliced(belongs ? digest.size() : 0));
    Wipe(content);
    PropertyListResult ticket = ParsePropertyList(openPart);
    const bool whole = belongs && secrets.value && secrets.value->array() && ticket.value &&
                       ticket.value->dictionary() &&
                       PutSecretsBack(*ticket.value->dictionary(), *secrets.value->array());
    return whole ? WritePropertyList(*ticket.value) : QByteArray();
}

} // namespace

std::optional<Message> TicketReaderProblem(const TicketReader& reader)
{
    if (reader.publicKeys.isEmpty())
        return std::nullopt;
    const std::optional<Message> fault = reader.publicKeys.size() > 1 ? std::optional(Say("Ticket Keys Differ"))
                                                                      : TicketKeyProblem(reader.publicKeys.front());
    return fault ? std::optional(Say("Ticket Key Unusable", *fault)) : std::nullopt;
}

EncodedTicket EncodeJobTicket(Dictionary ticket, const TicketReader& reader)
{
    if (const auto problem = TicketReaderProblem(reader))
        return Refuse(*problem);
    const Dictionary whole = ticket;
    const Array secrets = TakeSecrets(ticket, kJobSecrets);
    if (!secrets.empty() && !reader.problem.isEmpty())
        return Refuse(Say("Ticket Key Unknown", reader.problem));
    const bool seals = !secrets.empty() && !reader.publicKeys.isEmpty();
    const QByteArray openPart = WritePropertyList(seals ? ticket : whole);
    const QByteArray sealedPart = seals ? SealSecrets(secrets, openPart, reader.publicKeys.front()) : QByteArray();
    if (seals && sealedPart.isEmpty())
        return Refuse(Say("Ticket Secret Too Long"));
    const int version = reader.version > 1 || !reader.publicKeys.isEmpty() ? 2 : 1;
    EncodedTicket encoded = EncodeTicket(openPart, version, QString::fromLatin1(sealedPart));
    return encoded.tooLarge > 0 ? Refuse(TooLarge(encoded, ticket)) : encoded;
}

JobTicket DecodeJobTicket(const JobOptions& options, const QByteArray& privateKeys)
{
    DecodedTicket decoded = DecodeTicket(options);
    if (!decoded.problem.isEmpty())
        return {.problem = decoded.problem};
    if (decoded.sealedPart.isEmpty())
        return {.propertyList = decoded.propertyList};
    const OpenedSeal seal = OpenSeal(decoded.sealedPart.toLatin1(), privateKeys);
    if (seal.status == OpenedSeal::Status::NoKey || seal.status == OpenedSeal::Status::DamagedKey)
        return {.propertyList = decoded.propertyList,
                .secrets = seal.status == OpenedSeal::Status::NoKey ? JobTicket::Secrets::NoKey
                                                                    : JobTicket::Secrets::DamagedKey};
    const QByteArray whole =
        seal.status == OpenedSeal::Status::Opened ? WithSecrets(decoded.propertyList, seal.content) : QByteArray();
    if (whole.isEmpty())
        return {.problem = QStringLiteral("the ticket's sealed part is damaged or of another job")};
    return {.propertyList = whole};
}

} // namespace kesta::host
