// Whatever bytes: no crash, an answer that is either a value or one line, and a list that was read is written in a form
// that reads back as the same bytes. Job settings are all or nothing.

#include "platform/JobSettings.h"
#include "platform/PropertyList.h"

#include <cstdint>
#include <cstdlib>

using namespace kesta;

namespace {

void Require(bool truth)
{
    if (!truth)
        std::abort();
}

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
    const std::optional<QString> problem = ReadJobSettings(bytes, tickets);
    const QByteArray after = WriteJobSettings(tickets);
    Require(!problem || after == before);
    Require(!ReadJobSettings(after, tickets) && WriteJobSettings(tickets) == after);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    CheckList(bytes);
    CheckSettings(bytes);
    return 0;
}
