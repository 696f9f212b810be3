#include "ticket-tool/TicketTool.h"

#include "host/job/TicketTransport.h"

#include "platform/values/PropertyList.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::ticket_tool {
namespace {

constexpr char kUsage[] = R"(Usage: kesta-ticket show [OPTIONS]
       kesta-ticket get KEY [OPTIONS]
Reads the print settings that travel with a job, for a driver's filter.

  show      write them all as an XML property list, exactly as the dialog saved them
  get KEY   write one value; "/" leads into dictionaries, and by position from 0 into arrays,
            as in com.kesta.print.JobType/JobType
  OPTIONS   the options string that the filter gets as its fifth argument; "-" or nothing reads it from standard input

Settings may hold passcodes. Hand the options over on standard input: a command line can be seen by every user of the
computer.

Strings, numbers and true or false are written bare, data as base64, arrays and dictionaries as XML property lists.
The exit status is 0, or 1 after an error.
)";

// The print server stops a job whose options are longer than 128 KiB.
constexpr qsizetype kLongestOptions = 1 << 20;
constexpr int kDeepestPath = 64;
constexpr qsizetype kLongestPath = 1000; // characters

Outcome Fail(const QString& reason)
{
    return {1, {}, u"kesta-ticket: "_s + reason};
}

struct Ticket {
    QByteArray propertyList;
    QString problem;
};

Ticket ReadOptions(const QByteArray& text)
{
    if (text.size() > kLongestOptions)
        return {{}, u"the options are longer than %1 bytes"_s.arg(kLongestOptions)};
    host::JobOptions options;
    host::ParseJobOptions(text, options);
    host::DecodedTicket ticket = host::DecodeTicket(options);
    return {std::move(ticket.propertyList), std::move(ticket.problem)};
}

Outcome Get(const QByteArray& propertyList, const QString& path)
{
    const PropertyListResult root = ParsePropertyList(propertyList);
    if (!root.value)
        return Fail(u"the settings are no property list: "_s + root.error);
    const Value* entry = FindEntry(*root.value, path);
    return entry ? Outcome{0, WriteEntry(*entry), {}} : Fail(u"the settings have no \"%1\""_s.arg(path));
}

const Value* FindInArray(const Array& array, const QString& position)
{
    bool isNumber = false;
    const std::size_t index = position.toULongLong(&isNumber);
    return isNumber && index < array.size() ? &array[index] : nullptr;
}

const Value* FindWithin(const Value& value, const QString& path, int depth)
{
    if (depth > kDeepestPath)
        return nullptr;
    const auto child = [&value](const QString& key) {
        return value.dictionary() ? value.dictionary()->find(key)
               : value.array()    ? FindInArray(*value.array(), key)
                                  : nullptr;
    };
    if (const Value* entry = child(path))
        return entry;
    for (qsizetype slash = path.indexOf(u'/'); slash >= 0; slash = path.indexOf(u'/', slash + 1)) {
        const Value* inner = child(path.first(slash));
        const Value* entry = inner ? FindWithin(*inner, path.sliced(slash + 1), depth + 1) : nullptr;
        if (entry)
            return entry;
    }
    return nullptr;
}

// The text of a property list's only element, for the kinds that have one.
QByteArray ElementText(const Value& value)
{
    const QByteArray xml = WritePropertyList(value);
    for (const QByteArrayView name : {"integer", "real", "date", "data"}) {
        const qsizetype start = xml.indexOf('<' + name.toByteArray() + '>');
        if (start < 0)
            continue;
        const qsizetype end = xml.indexOf("</" + name.toByteArray(), start);
        return xml.mid(start + name.size() + 2, end - start - name.size() - 2);
    }
    return {};
}

} // namespace

const Value* FindEntry(const Value& root, const QString& path)
{
    return path.size() <= kLongestPath ? FindWithin(root, path, 0) : nullptr;
}

QByteArray WriteEntry(const Value& value)
{
    if (value.dictionary() || value.array())
        return WritePropertyList(value);
    if (value.boolean())
        return *value.boolean() ? "true\n" : "false\n";
    if (value.string())
        return value.string()->toUtf8() + '\n';
    if (value.data())
        return value.data()->toBase64() + '\n';
    return ElementText(value).trimmed() + '\n';
}

Outcome RunTicketTool(const QByteArrayList& arguments, const std::function<QByteArray()>& readInput)
{
    if (arguments.contains("--help"))
        return {0, kUsage, {}};
    if (arguments.value(0) == "--version")
        return {0, "kesta-ticket " KESTA_VERSION "\n", {}};
    const bool gets = arguments.value(0) == "get";
    const qsizetype fixed = gets ? 2 : 1;
    if ((!gets && arguments.value(0) != "show") || arguments.size() < fixed || arguments.size() > fixed + 1)
        return Fail(u"expected \"show [OPTIONS]\" or \"get KEY [OPTIONS]\"; see kesta-ticket --help"_s);
    const QByteArray options = arguments.value(fixed, "-");
    const Ticket ticket = ReadOptions(options == "-" ? readInput() : options);
    if (!ticket.problem.isEmpty())
        return Fail(ticket.problem);
    return gets ? Get(ticket.propertyList, QString::fromUtf8(arguments[1])) : Outcome{0, ticket.propertyList, {}};
}

} // namespace kesta::ticket_tool
