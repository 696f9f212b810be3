// Whatever bytes: no crash, an answer that is either a value or one line, and a list that was read is written in a form
// that reads back as the same bytes. Job settings are all or nothing.

#include "Input.h"
#include "platform/printsystem/JobSettings.h"
#include "platform/values/PropertyList.h"

using namespace kesta;
using fuzz::Require;

namespace {

void CheckList(const QByteArray& bytes)
{
    const PropertyListResult list = ParsePropertyList(bytes);
    Require(list.value.has_value() == list.error.isEmpty() && !list.error.contains(u'\n'));
    if (!list.value)
        return;
    const QByteArray written = WritePropertyList(*list.value);
    const PropertyListResult again = ParsePropertyList(written);
    Require(again.value && WritePropertyList(*again.value) == written);
}

void CheckSettings(const QByteArray& bytes)
{
    JobTickets tickets;
    tickets.pageFormat.set("client", "key", true);
    const QByteArray before = WriteJobSettings(tickets);
    const std::optional<Message> problem = ReadJobSettings(bytes, tickets);
    const QByteArray after = WriteJobSettings(tickets);
    Require(!problem || after == before);
    Require(!ReadJobSettings(after, tickets) && WriteJobSettings(tickets) == after);

    // What is left out is not there afterwards, and nothing else is missing.
    const NestedEntry leftOut{"com.kesta.print.JobType", "SecurePrintPassword"};
    const QByteArray shared = WriteJobSettings(tickets, {&leftOut, 1});
    Require(shared == after || after.contains(leftOut.entry));
    Require(!ReadJobSettings(shared, tickets) && WriteJobSettings(tickets, {&leftOut, 1}) == shared);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes = fuzz::Bytes(data, size);
    CheckList(bytes);
    CheckSettings(bytes);
    return 0;
}
