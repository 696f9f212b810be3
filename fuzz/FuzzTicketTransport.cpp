// Options as a filter gets them, and any bytes as a ticket, as a key and as what somebody sealed for the server: what
// is sent is what arrives, in either version, and nothing else is opened.

#include "Input.h"
#include "host/job/SealedTicket.h"
#include "host/job/TicketSeal.h"
#include "host/job/TicketSecrets.h"
#include "pde/interface/TicketKeys.h"
#include "platform/values/PropertyList.h"

using namespace kesta;
using namespace kesta::host;
using kesta::fuzz::Require;

namespace {

// One pair for all runs. It opens no seal but those that are made here.
const TicketKeys& Keys()
{
    static const TicketKeys keys = MakeTicketKeys().value();
    return keys;
}

void ReadOptions(const QByteArray& bytes)
{
    JobOptions options;
    ParseJobOptions(bytes, options);
    const DecodedTicket decoded = DecodeTicket(options);
    Require(decoded.propertyList.isEmpty() != decoded.problem.isEmpty());
    const JobTicket ticket = DecodeJobTicket(options, Keys().privateKey);
    Require(ticket.propertyList.isEmpty() != ticket.problem.isEmpty());
    for (const JobOption& option : JobOptions(options)) {
        JobOptionFault(option);
        Require(FindJobOption(options, option.name) == option.value);
        SetJobOption(options, option.name, {});
        RemoveJobOption(options, option.name);
    }
    Require(options.empty());
}

void SendBytes(const QByteArray& bytes)
{
    for (const int version : {1, 2}) {
        const EncodedTicket sent = EncodeTicket(bytes, version);
        Require(sent.options.empty() == (!sent.problem.isEmpty() || sent.tooLarge > 0));
        Require(sent.options.empty() || DecodeTicket(sent.options).propertyList == bytes);
    }
}

void SendSealed(const Dictionary& ticket)
{
    const EncodedTicket sent = EncodeJobTicket(ticket, {.publicKeys = {Keys().publicKey}});
    Require(sent.options.empty() != sent.problem.isEmpty());
    if (sent.options.empty())
        return;
    Require(DecodeJobTicket(sent.options, Keys().privateKey).propertyList == WritePropertyList(ticket));
    Dictionary openPart = ticket;
    TakeSecrets(openPart, kJobSecrets);
    Require(DecodeJobTicket(sent.options, {}).propertyList == WritePropertyList(openPart));
}

// The bytes as what a sealed part holds: it fits a ticket or is refused.
void OpenForged(const QByteArray& bytes)
{
    const QByteArray openPart = WritePropertyList(Dictionary{
        {key::JobType, Dictionary{{"JobType", Number::Index(6)}, {"Pages", Array{Dictionary{{"a", "b"}}, "c"}}}}});
    const QByteArray sealedPart = SealBytes(TicketDigest(openPart) + bytes, Keys().publicKey);
    const EncodedTicket sent = EncodeTicket(openPart, 2, QString::fromLatin1(sealedPart));
    if (sent.options.empty())
        return;
    const JobTicket ticket = DecodeJobTicket(sent.options, Keys().privateKey);
    Require(ticket.propertyList.isEmpty() != ticket.problem.isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = kesta::fuzz::Bytes(data, size);
    ReadOptions(bytes);
    SendBytes(bytes);
    OpenForged(bytes);
    if (const PropertyListResult ticket = ParsePropertyList(bytes); ticket.value && ticket.value->dictionary())
        SendSealed(*ticket.value->dictionary());
    Require(TicketKeyProblem(bytes) || bytes.startsWith("kk1-"));
    OpenSeal("ks1-12345678-" + QByteArray(80, 'A'), bytes);
    return 0;
}
