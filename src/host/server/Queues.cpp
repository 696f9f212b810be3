#include "host/server/Queues.h"

#include "host/server/IppRequest.h"

#include <QTemporaryFile>

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr qint64 kLargestPPD = 8 * 1024 * 1024; // bytes; the largest in the field are below one megabyte

constexpr auto kQueueAttributes =
    std::to_array<const char*>({"printer-name", "printer-info", "printer-location", "printer-make-and-model",
                                "device-uri", "printer-is-accepting-jobs", "printer-state", "printer-state-message"});

struct DestDelete {
    void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, DestDelete>;

void ReadQueueAttribute(Queue& queue, ipp_attribute_t* attribute)
{
    const QByteArrayView name = ippGetName(attribute);
    if (name == "printer-name")
        queue.name = StringAttribute(attribute);
    else if (name == "printer-info")
        queue.displayName = StringAttribute(attribute);
    else if (name == "printer-location")
        queue.location = StringAttribute(attribute);
    else if (name == "printer-make-and-model")
        queue.makeAndModel = StringAttribute(attribute);
    else if (name == "device-uri")
        queue.deviceURI = StringAttribute(attribute);
    else if (name == "printer-state-message")
        queue.stateMessage = StringAttribute(attribute);
    else if (name == "printer-is-accepting-jobs")
        queue.isAccepting = ippGetBoolean(attribute, 0) != 0;
    else if (name == "printer-state")
        queue.isStopped = ippGetInteger(attribute, 0) == IPP_PSTATE_STOPPED;
}

std::vector<Queue> ReadQueues(ipp_t* answer)
{
    std::vector<Queue> queues;
    bool inPrinter = false;
    for (ipp_attribute_t* attribute = ippFirstAttribute(answer); attribute; attribute = ippNextAttribute(answer)) {
        if (ippGetGroupTag(attribute) != IPP_TAG_PRINTER || !ippGetName(attribute)) {
            inPrinter = false;
            continue;
        }
        if (!inPrinter)
            queues.emplace_back();
        inPrinter = true;
        ReadQueueAttribute(queues.back(), attribute);
    }
    std::erase_if(queues, [](const Queue& queue) { return queue.name.isEmpty(); });
    for (Queue& queue : queues) {
        if (queue.displayName.isEmpty())
            queue.displayName = queue.name;
    }
    return queues;
}

void MarkDefault(ServerConnection& connection, std::vector<Queue>& queues)
{
    connection.expectAnswer();
    const Destination found(cupsGetNamedDest(connection.http(), nullptr, nullptr));
    if (!found)
        return;
    for (Queue& queue : queues) {
        if (queue.name == QString::fromUtf8(found->name)) {
            queue.isDefault = true;
            queue.instance = QString::fromUtf8(found->instance);
        }
    }
}

// What describes the queue is no option of a job.
bool IsJobDefault(const QString& name)
{
    if (name == u"printer-resolution")
        return true;
    return !name.startsWith(u"printer-") && !name.startsWith(u"marker-") && name != u"device-uri" &&
           name != u"auth-info-required";
}

QString DestinationOption(const cups_dest_t& destination, const char* name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

NamedQueue ReadDestination(const cups_dest_t& destination)
{
    NamedQueue named;
    Queue& queue = named.queue;
    queue.name = QString::fromUtf8(destination.name);
    queue.instance = QString::fromUtf8(destination.instance);
    queue.displayName = DestinationOption(destination, "printer-info");
    if (queue.displayName.isEmpty())
        queue.displayName = queue.name;
    queue.location = DestinationOption(destination, "printer-location");
    queue.makeAndModel = DestinationOption(destination, "printer-make-and-model");
    queue.deviceURI = DestinationOption(destination, "device-uri");
    queue.isAccepting = DestinationOption(destination, "printer-is-accepting-jobs") != u"false";
    queue.isStopped = DestinationOption(destination, "printer-state").toInt() == IPP_PSTATE_STOPPED;
    queue.isDefault = destination.is_default != 0;
    for (int i = 0; i < destination.num_options; ++i) {
        const QString name = QString::fromUtf8(destination.options[i].name);
        if (IsJobDefault(name))
            SetJobOption(named.defaults, name, QString::fromUtf8(destination.options[i].value));
    }
    return named;
}

enum class ServerAnswer { None, No, Yes };

// Whether the server knows the queue, or has a default one. Asked first, because the library's own search goes on with
// connections of its own, which wait for minutes, when the server does not answer it.
ServerAnswer AskForQueue(ServerConnection& connection, const QString& queue)
{
    IppMessage request = NewRequest(queue.isEmpty() ? IPP_OP_CUPS_GET_DEFAULT : IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "printer-name");
    const IppMessage answer = DoRequest(connection, std::move(request), queue);
    if (answer && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return ServerAnswer::No;
    return answer && cupsLastError() < IPP_STATUS_ERROR_BAD_REQUEST ? ServerAnswer::Yes : ServerAnswer::None;
}

Message NoSuchQueueMessage(const QString& name)
{
    if (!name.isEmpty())
        return Say("Queue Unknown", name);
    for (const char* variable : {"LPDEST", "PRINTER"}) {
        const QString value = QString::fromLocal8Bit(std::getenv(variable));
        if (!value.isEmpty() && value != u"lp")
            return Say("Queue Of Environment Unknown", QString::fromLatin1(variable), value);
    }
    return Say("No Default Queue");
}

// Nothing on success.
std::optional<Message> Receive(ServerConnection& connection, QTemporaryFile& file, const QString& queue)
{
    std::array<char, 65'536> buffer;
    for (;;) {
        connection.expectAnswer();
        const ssize_t count = httpRead2(connection.http(), buffer.data(), buffer.size());
        if (count < 0 || (count == 0 && httpGetState(connection.http()) != HTTP_STATE_WAITING))
            return Say("Queue PPD Cut Off", queue);
        if (file.pos() + count > kLargestPPD)
            return Say("Queue PPD Large", queue, kLargestPPD >> 20);
        if (count == 0 ? !file.flush() : file.write(buffer.data(), count) != count)
            return Say("Queue PPD Without Room", queue, file.errorString());
        if (count == 0)
            return std::nullopt;
    }
}

Message MissingPPDMessage(const QString& queue, http_status_t status)
{
    if (status == HTTP_STATUS_NOT_FOUND)
        return Say("Queue Without PPD", queue);
    return Say("Queue PPD Not Fetched", queue, QString::fromUtf8(httpStatus(status)));
}

// The deadline is longer than the requests may take: it is reached only when the look-up of the server's name hangs.
template <class Result> BackgroundTask Aside(const PrintServer& server, std::function<void(Result)> done,
                                             std::function<Result(Cancellation&)> fetch)
{
    const auto late = [server, done] {
        Result nothing;
        nothing.problem = ServerSilentMessage(server);
        done(nothing);
    };
    return BackgroundTask(
        [done, fetch = std::move(fetch)](BackgroundTask::Context& task) {
            task.deliver([done, result = fetch(task.cancellation())] { done(result); });
        },
        server.patience * 3, late);
}

} // namespace

QueueList FetchQueues(const PrintServer& server, Cancellation& cancellation)
{
    ServerConnection connection(server, cancellation);
    if (!connection.http())
        return {{}, connection.problem()};
    IppMessage request = NewRequest(IPP_OP_CUPS_GET_PRINTERS, {});
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", kQueueAttributes.size(),
                  nullptr, kQueueAttributes.data());
    const IppMessage answer = DoRequest(connection, std::move(request), {});
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) // how a server says that it has none
        return {};
    if (!answer || cupsLastError() >= IPP_STATUS_ERROR_BAD_REQUEST)
        return {{}, connection.problem()};
    QueueList list{.queues = ReadQueues(answer.get())};
    MarkDefault(connection, list.queues);
    return list;
}

QueuePPD FetchQueuePPD(const PrintServer& server, const QString& queue, Cancellation& cancellation)
{
    ServerConnection connection(server, cancellation);
    if (!connection.http())
        return {.problem = connection.problem()};
    connection.expectAnswer();
    httpClearFields(connection.http());
    http_status_t status = HTTP_STATUS_ERROR;
    if (httpGet(connection.http(), (QueueResource(queue) + ".ppd").constData()) == 0) {
        do {
            status = httpUpdate(connection.http());
        } while (status == HTTP_STATUS_CONTINUE);
    }
    if (status == HTTP_STATUS_ERROR)
        return {.problem = ServerSilentMessage(server)};
    if (status != HTTP_STATUS_OK)
        return {.problem = MissingPPDMessage(queue, status), .hasNone = status == HTTP_STATUS_NOT_FOUND};

    QueuePPD ppd{.file = std::make_shared<QTemporaryFile>()};
    if (!ppd.file->open())
        return {.problem = Say("Queue PPD Without Room", queue, ppd.file->errorString())};
    if (std::optional<Message> problem = Receive(connection, *ppd.file, queue))
        return {.problem = *std::move(problem)};
    ppd.path = ppd.file->fileName();
    return ppd;
}

NamedQueue FindQueue(const PrintServer& server, const QString& name, Cancellation& cancellation)
{
    NamedQueue none;
    ServerConnection connection(server, cancellation);
    if (!connection.http()) {
        none.problem = connection.problem();
        return none;
    }
    const QString queue = name.section(u'/', 0, 0);
    const QString instance = name.section(u'/', 1);
    const ServerAnswer answer = AskForQueue(connection, queue);
    if (answer == ServerAnswer::None) {
        none.problem = connection.problem();
        return none;
    }
    connection.expectAnswer();
    if (queue.isEmpty() || answer == ServerAnswer::Yes) {
        const Destination found(cupsGetNamedDest(connection.http(),
                                                 queue.isEmpty() ? nullptr : queue.toUtf8().constData(),
                                                 instance.isEmpty() ? nullptr : instance.toUtf8().constData()));
        if (found)
            return ReadDestination(*found);
    }
    none.problem = connection.gaveUp() ? connection.problem() : NoSuchQueueMessage(name);
    return none;
}

BackgroundTask FetchQueuesAside(const PrintServer& server, std::function<void(QueueList)> done)
{
    return Aside<QueueList>(server, done,
                            [server](Cancellation& cancellation) { return FetchQueues(server, cancellation); });
}

BackgroundTask FetchQueuePPDAside(const PrintServer& server, const QString& queue, std::function<void(QueuePPD)> done)
{
    return Aside<QueuePPD>(server, done, [server, queue](Cancellation& cancellation) {
        return FetchQueuePPD(server, queue, cancellation);
    });
}

BackgroundTask FindQueueAside(const PrintServer& server, const QString& name, std::function<void(NamedQueue)> done)
{
    return Aside<NamedQueue>(
        server, done, [server, name](Cancellation& cancellation) { return FindQueue(server, name, cancellation); });
}

} // namespace kesta::host
