#include "host/job/SealedTicket.h"

#include "host/job/TicketSeal.h"
#include "host/job/TicketSecrets.h"
#include "pde/interface/TicketKeys.h"
#include "platform/values/PropertyList.h"

namespace kesta::host {
namespace {

struct TicketPart {
    const char* key;
    const char* name; // for the user: "leave out some ..."
};

// What can grow beyond what travels.
constexpr auto kLargeParts = std::to_array<TicketPart>({
    {key::FaxRecipientList, "fax recipients"},
    {key::SpecialPagesExceptionList, "exception pages"},
    {key::SpecialPagesInsertList, "inserts"},
    {key::FaxOptions, "notes and texts of the fax cover sheet"},
});

EncodedTicket Refuse(const QString& problem)
{
    return {.problem = problem};
}

QString LeaveOut(const Dictionary& ticket)
{
    const char* largest = nullptr;
    qsizetype most = WritePropertyList(ticket).size() / 2;
    for (const TicketPart& part : kLargeParts) {
        const Value* value = ticket.find(part.key);
        const qsizetype size = value ? WritePropertyList(*value).size() : 0;
        if (size > most) {
            most = size;
            largest = part.name;
        }
    }
    return largest ? QStringLiteral("the %1 take most of it: leave out some of them, or print in two jobs")
                         .arg(QLatin1StringView(largest))
                   : QStringLiteral("leave out some special pages, recipients or a watermark, or print in two jobs");
}

QString TooLarge(const EncodedTicket& encoded, const Dictionary& ticket)
{
    return QStringLiteral("the job's settings take %1 KB on the way to the printer and at most %2 KB can travel; %3")
        .arg((encoded.tooLarge + 1023) / 1024)
        .arg(encoded.room / 1024)
        .arg(LeaveOut(ticket));
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

std::optional<QString> TicketReaderProblem(const TicketReader& reader)
{
    if (reader.publicKeys.isEmpty())
        return std::nullopt;
    const std::optional<QString> fault = reader.publicKeys.size() > 1
                                             ? std::optional(QStringLiteral("there are several"))
                                             : TicketKeyProblem(reader.publicKeys.front());
    if (!fault)
        return std::nullopt;
    return QStringLiteral(
               "the printer's key that keeps passcodes secret (KSTicketKey in its description) can't be used: "
               "%1; nothing was sent, ask your administrator for a new key")
        .arg(*fault);
}

EncodedTicket EncodeJobTicket(Dictionary ticket, const TicketReader& reader)
{
    if (const auto problem = TicketReaderProblem(reader))
        return Refuse(*problem);
    const Dictionary whole = ticket;
    const Array secrets = TakeSecrets(ticket, kJobSecrets);
    if (!secrets.empty() && !reader.problem.isEmpty())
        return Refuse(QStringLiteral("the job has a passcode, a dialing prefix or a credit-card code, and whether the "
                                     "printer has a key for them is not known: %1")
                          .arg(reader.problem));
    const bool seals = !secrets.empty() && !reader.publicKeys.isEmpty();
    const QByteArray openPart = WritePropertyList(seals ? ticket : whole);
    const QByteArray sealedPart = seals ? SealSecrets(secrets, openPart, reader.publicKeys.front()) : QByteArray();
    if (seals && sealedPart.isEmpty())
        return Refuse(QStringLiteral("the passcode, dialing prefix or credit-card code is too long to be encrypted"));
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
