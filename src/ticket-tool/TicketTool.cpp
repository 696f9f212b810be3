#include "ticket-tool/TicketTool.h"

#include "host/job/SealedTicket.h"
#include "host/job/TicketSeal.h"
#include "ticket-tool/KeyFile.h"

#include "platform/system/SafeFile.h"
#include "platform/values/PropertyList.h"

#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::ticket_tool {
namespace {

constexpr char kUsage[] = R"(Usage: kesta-ticket show [--key FILE] [OPTIONS]
       kesta-ticket get KEY [--key FILE] [OPTIONS]
       kesta-ticket keygen [--key FILE] [--force]
Reads the print settings that travel with a job, for a driver's filter.

  show      write them all as an XML property list, exactly as the dialog saved them
  get KEY   write one value; "/" leads into dictionaries, and by position from 0 into arrays,
            as in com.kesta.print.JobType/JobType
  keygen    make a pair of keys, so that passcodes, dialing prefixes and credit-card codes are sealed on their way: write
            the private key, readable by root and the group lp, and print the lines for the printer's PPD
  OPTIONS   the options string that the filter gets as its fifth argument; "-" or nothing reads it from standard input
  --key     the private key's file; else the environment's KESTA_TICKET_KEY names it, else it is
            @KEY@
  --force   replace a private key that is there; jobs that were sealed for it can't be read any more

Settings may hold passcodes. Hand the options over on standard input: a command line can be seen by every user of the
computer.

Strings, numbers and true or false are written bare, data as base64, arrays and dictionaries as XML property lists.
The exit status is 0; 1 after an error; 2 when something is sealed and can't be opened with the private key here: then
everything else is written, and standard error says why.
)";

// The print server stops a job whose options are longer than 128 KiB.
constexpr qsizetype kLongestOptions = 1 << 20;
constexpr int kDeepestPath = 64;
constexpr qsizetype kLongestPath = 1000; // characters

Outcome Fail(const QString& reason)
{
    return {1, {}, u"kesta-ticket: "_s + reason};
}

// Everything but the sealed values.
Outcome Partly(const QByteArray& output, const QString& why)
{
    return {kStatusSealed, output, u"kesta-ticket: sealed values are left out: %1"_s.arg(why)};
}

// A command line.
struct Call {
    QByteArrayList words = {}; // without the options
    QString keyPath;
    bool force = false;
    bool isGood = true;
};

Call ReadCall(const QByteArrayList& arguments, const QString& keyPath)
{
    Call call{.keyPath = keyPath};
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--force") {
            call.force = true;
        } else if (arguments[i] == "--key") {
            call.keyPath = QFile::decodeName(arguments.value(++i));
            call.isGood = call.isGood && !call.keyPath.isEmpty();
        } else {
            call.words << arguments[i];
        }
    }
    const QByteArray verb = call.words.value(0);
    const qsizetype fixed = verb == "get" ? 2 : 1;
    const qsizetype most = verb == "keygen" ? fixed : fixed + 1;
    const bool known = verb == "show" || verb == "get" || verb == "keygen";
    call.isGood = call.isGood && known && call.words.size() >= fixed && call.words.size() <= most &&
                  (verb == "keygen" || !call.force);
    return call;
}

struct Ticket {
    host::JobTicket job;
    QString sealedBecause = {}; // empty, or why sealed values are left out
};

Ticket ReadOptions(const QByteArray& text, const QString& keyPath)
{
    if (text.size() > kLongestOptions)
        return {.job = {.problem = u"the options are longer than %1 bytes"_s.arg(kLongestOptions)}};
    host::JobOptions options;
    host::ParseJobOptions(text, options);
    FileContent keys = ReadFile(keyPath, kLargestKeyFile); // not there or not to be read: only sealed values need it
    Ticket ticket{.job = host::DecodeJobTicket(options, keys.bytes.value_or(QByteArray()))};
    if (ticket.job.secrets == host::JobTicket::Secrets::There)
        return ticket;
    ticket.sealedBecause = !keys.bytes ? keys.error.text
                           : ticket.job.secrets == host::JobTicket::Secrets::NoKey
                               ? u"the private key in %1 is another one than the job was sealed for"_s.arg(keyPath)
                               : u"the private key in %1 is damaged"_s.arg(keyPath);
    return ticket;
}

Outcome Get(const Ticket& ticket, const QString& path)
{
    const PropertyListResult root = ParsePropertyList(ticket.job.propertyList);
    if (!root.value)
        return Fail(u"the settings are no property list: "_s + root.error);
    const Value* entry = FindEntry(*root.value, path);
    const bool isContainer = entry && (entry->dictionary() || entry->array());
    if (!ticket.sealedBecause.isEmpty() && (!entry || isContainer)) // what is asked for may be sealed
        return Partly(entry ? WriteEntry(*entry) : QByteArray(), ticket.sealedBecause);
    return entry ? Outcome{0, WriteEntry(*entry), {}} : Fail(u"the settings have no \"%1\""_s.arg(path));
}

Outcome Keygen(const Call& call)
{
    std::optional<host::TicketKeys> keys = host::MakeTicketKeys();
    if (!keys)
        return Fail(u"this computer has no source of randomness"_s);
    QByteArray content =
        "# Opens what was sealed for this print server (kesta-ticket). For the server's filters alone.\n" +
        keys->privateKey + '\n';
    const NewKeyFile file = WriteKeyFile(call.keyPath, content, call.force);
    host::Wipe(keys->privateKey);
    host::Wipe(content);
    if (!file.problem.isEmpty())
        return Fail(file.problem);
    const QByteArray lines = "*KSTicketVersion: \"2\"\n*KSTicketKey: \"" + keys->publicKey + "\"\n";
    return {0, lines, file.note.isEmpty() ? QString() : u"kesta-ticket: "_s + file.note};
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

Outcome RunTicketTool(const QByteArrayList& arguments, const QString& keyPath,
                      const std::function<QByteArray()>& readInput)
{
    if (arguments.contains("--help"))
        return {0, QByteArray(kUsage).replace("@KEY@", kDefaultKeyPath), {}};
    if (arguments.value(0) == "--version")
        return {0, "kesta-ticket " KESTA_VERSION "\n", {}};
    const Call call = ReadCall(arguments, keyPath);
    if (!call.isGood)
        return Fail(u"expected \"show [OPTIONS]\", \"get KEY [OPTIONS]\" or \"keygen\"; see kesta-ticket --help"_s);
    const QByteArray verb = call.words[0];
    if (verb == "keygen")
        return Keygen(call);
    const QByteArray options = call.words.value(verb == "get" ? 2 : 1, "-");
    const Ticket ticket = ReadOptions(options == "-" ? readInput() : options, call.keyPath);
    if (!ticket.job.problem.isEmpty())
        return Fail(ticket.job.problem);
    if (verb == "get")
        return Get(ticket, QString::fromUtf8(call.words[1]));
    return ticket.sealedBecause.isEmpty() ? Outcome{0, ticket.job.propertyList, {}}
                                          : Partly(ticket.job.propertyList, ticket.sealedBecause);
}

} // namespace kesta::ticket_tool
