#include "host/server/Submission.h"

#include "host/server/DocumentSource.h"
#include "host/server/IppRequest.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// Cancelling a job is a courtesy to the next one: it must not keep the user waiting again.
constexpr std::chrono::milliseconds kCancelPatience{3'000};

// The library's list of options, for one request.
class CupsOptions {
public:
    explicit CupsOptions(const JobOptions& options)
    {
        for (const JobOption& option : options)
            count_ = cupsAddOption(option.name.toUtf8().constData(), option.value.toUtf8().constData(), count_, &list_);
    }
    ~CupsOptions() { cupsFreeOptions(count_, list_); }
    CupsOptions(const CupsOptions&) = delete;
    CupsOptions& operator=(const CupsOptions&) = delete;

    void encode(ipp_t* request, ipp_tag_t group) const { cupsEncodeOptions2(request, count_, list_, group); }
    const char* find(const char* name) const { return cupsGetOption(name, count_, list_); }

private:
    int count_ = 0;
    cups_option_t* list_ = nullptr;
};

// What the server said, to go on behind it with a full stop.
QString LastReason()
{
    const QString reason = QString::fromUtf8(cupsLastErrorString()).trimmed();
    return reason.endsWith(u'.') ? reason.chopped(1) : reason;
}

// One job on its way.
class Sending {
public:
    Sending(const PrintServer& server, const PrintJob& job, Cancellation& cancellation,
            const ProgressFunction& progress)
        : server_(server),
          job_(job),
          cancellation_(cancellation),
          progress_(progress),
          options_(job.options),
          connection_(server, cancellation)
    {
    }

    SubmissionResult run(std::vector<Document>& documents);

private:
    bool create(const QString& title);
    bool send(Document& document, bool isLast);
    bool sendBytes(Document& document);
    void report() const;
    SubmissionResult refused() const;
    Message whyInterrupted() const;
    SubmissionResult interrupted();
    bool cancelAtServer();
    const char* format() const;
    QString jobName() const { return job_.queue + u'-' + QString::number(jobID_); }

    const PrintServer& server_;
    const PrintJob& job_;
    Cancellation& cancellation_;
    const ProgressFunction& progress_;
    CupsOptions options_;
    ServerConnection connection_;
    SubmissionProgress done_;
    int jobID_ = 0;
    Message readProblem_; // the document, not the server, is to blame
};

const char* Sending::format() const
{
    if (options_.find("raw"))
        return CUPS_FORMAT_RAW;
    const char* format = options_.find("document-format");
    return format ? format : CUPS_FORMAT_AUTO;
}

void Sending::report() const
{
    if (progress_)
        progress_(done_);
}

bool Sending::create(const QString& title)
{
    IppMessage request = NewRequest(IPP_OP_CREATE_JOB, job_.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title.toUtf8().constData());
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
        options_.encode(request.get(), group);
    const IppMessage answer = DoRequest(connection_, std::move(request), job_.queue);
    if (!answer || cupsLastError() >= IPP_STATUS_ERROR_BAD_REQUEST)
        return false;
    ipp_attribute_t* id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
    jobID_ = id ? ippGetInteger(id, 0) : 0;
    return jobID_ > 0;
}

bool Sending::sendBytes(Document& document)
{
    std::array<char, 65'536> buffer;
    qint64 left = document.size;
    while (left > 0) {
        const qint64 count = document.file->read(buffer.data(), std::min<qint64>(left, buffer.size()));
        if (count <= 0) {
            readProblem_ = Say("Document Shortened", document.name);
            return false;
        }
        connection_.expectAnswer();
        const http_status_t status =
            cupsWriteRequestData(connection_.http(), buffer.data(), static_cast<size_t>(count));
        if (status != HTTP_STATUS_CONTINUE || cancellation_.requested())
            return false;
        left -= count;
        done_.sent += count;
        report();
    }
    return true;
}

bool Sending::send(Document& document, bool isLast)
{
    connection_.expectAnswer();
    const http_status_t status = cupsStartDocument(connection_.http(), job_.queue.toUtf8().constData(), jobID_,
                                                   document.name.toUtf8().constData(), format(), isLast ? 1 : 0);
    if (status != HTTP_STATUS_CONTINUE || !sendBytes(document))
        return false;
    connection_.expectWholeAnswer();
    return cupsFinishDocument(connection_.http(), job_.queue.toUtf8().constData()) < IPP_STATUS_ERROR_BAD_REQUEST;
}

SubmissionResult Sending::refused() const
{
    if (cancellation_.requested())
        return {.message = Say("Job Cancelled"), .cancelled = true};
    if (!connection_.http() || connection_.gaveUp() || httpError(connection_.http()) != 0 ||
        cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE)
        return {.message = Say("Job Not Sent", ServerSilentMessage(server_), job_.queue)};
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return {.message = Say("Queue Unknown", job_.queue)};
    const Message wayOut =
        cupsLastError() == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS ? Say("Print When Accepting") : Say("Nothing Printed");
    return {.message = Say("Job Refused", ServerName(server_), job_.queue, LastReason(), wayOut)};
}

bool Sending::cancelAtServer()
{
    Cancellation none;
    PrintServer server = server_;
    server.patience = std::min(server.patience, kCancelPatience);
    ServerConnection connection(server, none);
    return connection.http() &&
           cupsCancelJob2(connection.http(), job_.queue.toUtf8().constData(), jobID_, 0) < IPP_STATUS_ERROR_BAD_REQUEST;
}

Message Sending::whyInterrupted() const
{
    if (!readProblem_.isEmpty())
        return readProblem_;
    if (connection_.gaveUp() || httpError(connection_.http()) != 0)
        return Say("Server Gone", ServerName(server_));
    return Say("Server Says", ServerName(server_), LastReason());
}

SubmissionResult Sending::interrupted()
{
    const Message reason = whyInterrupted();
    const Message fate = cancelAtServer() ? Say("Job Withdrawn", jobName()) : Say("Job Left Behind", jobName());
    if (cancellation_.requested())
        return {.message = Say("Job Stopped", fate), .cancelled = true};
    return {.message = Say("Document Not Sent", job_.queue, reason, fate), .documentAtFault = !readProblem_.isEmpty()};
}

SubmissionResult Sending::run(std::vector<Document>& documents)
{
    if (!connection_.http())
        return refused();
    for (const Document& document : documents)
        done_.total += document.size;
    report();
    if (!create(job_.title.value_or(documents.front().name)))
        return refused();
    for (Document& document : documents) {
        if (!send(document, &document == &documents.back()))
            return interrupted();
    }
    return {.jobID = jobID_, .message = Say("Request ID", jobName(), job_.files.size())};
}

} // namespace

SubmissionResult SubmitJob(const PrintServer& server, const PrintJob& job, Cancellation& cancellation,
                           const ProgressFunction& progress)
{
    DocumentList list = OpenDocuments(job.files, cancellation);
    if (!list.problem.isEmpty())
        return {.message = list.problem,
                .cancelled = cancellation.requested(),
                .documentAtFault = !cancellation.requested()};
    return Sending(server, job, cancellation, progress).run(list.documents);
}

BackgroundTask SubmitJobAside(const PrintServer& server, const PrintJob& job, ProgressFunction progress,
                              std::function<void(SubmissionResult)> done)
{
    return BackgroundTask([server, job, progress, done](BackgroundTask::Context& task) {
        const ProgressFunction report = [&task, progress](const SubmissionProgress& state) {
            if (progress)
                task.deliver([progress, state] { progress(state); });
        };
        task.deliver([done, result = SubmitJob(server, job, task.cancellation(), report)] { done(result); });
    });
}

} // namespace kesta::host
