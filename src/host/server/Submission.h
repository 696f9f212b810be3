#pragma once

#include "host/job/JobRequest.h"
#include "host/server/PrintServer.h"

#include <QByteArrayList>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace kesta::host {

struct PrintJob {
    QString queue = {};                // the name without instance
    std::optional<QString> title = {}; // nothing: the first file's name, or "(stdin)"
    QByteArrayList files = {};         // local paths; none: the document is on standard input
    JobOptions options = {};
};

struct SubmissionProgress {
    std::int64_t sent = 0;  // bytes
    std::int64_t total = 0; // bytes; 0 when it is not known yet
};

struct SubmissionResult {
    int jobID = 0;                // 0: nothing was printed
    Message message = {};         // the job's number at the server, or what went wrong and what to do
    bool cancelled = false;       // by the user
    bool documentAtFault = false; // it can't be read or is empty: no printer would take it
    bool sent() const { return jobID != 0; }
};

using ProgressFunction = std::function<void(const SubmissionProgress&)>;

// Sends the job and waits for the server to take it. Files are opened and standard input is read to its end before the
// server hears of the job. When anything fails after the job was created, the job is cancelled at the server; nothing
// is sent a second time. "progress" is called on the calling thread; it may be empty.
SubmissionResult SubmitJob(const PrintServer& server, const PrintJob& job, Cancellation& cancellation,
                           const ProgressFunction& progress = {});

// The same aside; both functions run on the calling thread. Destroying the task cancels the job.
BackgroundTask SubmitJobAside(const PrintServer& server, const PrintJob& job, ProgressFunction progress,
                              std::function<void(SubmissionResult)> done);

// How a dialog's accepted job gets to the printer: sent aside, both functions run on the calling thread.
using SendFunction =
    std::function<BackgroundTask(const AcceptedJob&, ProgressFunction, std::function<void(SubmissionResult)>)>;

} // namespace kesta::host
