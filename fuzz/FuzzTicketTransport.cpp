// Options as a filter gets them, and any bytes as a ticket: what is sent is what arrives.

#include "Input.h"
#include "host/job/TicketTransport.h"

using namespace kesta::host;
using kesta::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = kesta::fuzz::Bytes(data, size);
    JobOptions options;
    ParseJobOptions(bytes, options);
    const DecodedTicket decoded = DecodeTicket(options);
    Require(decoded.propertyList.isEmpty() != decoded.problem.isEmpty());
    for (const JobOption& option : JobOptions(options)) {
        JobOptionFault(option);
        Require(FindJobOption(options, option.name) == option.value);
        SetJobOption(options, option.name, {});
        RemoveJobOption(options, option.name);
    }
    Require(options.empty());

    const EncodedTicket sent = EncodeTicket(bytes);
    Require(sent.options.empty() != sent.problem.isEmpty());
    Require(sent.options.empty() || DecodeTicket(sent.options).propertyList == bytes);
    return 0;
}
