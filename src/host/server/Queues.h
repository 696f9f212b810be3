#pragma once

#include "host/job/JobOptions.h"
#include "host/server/PrintServer.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QTemporaryFile;

namespace kesta::host {

// A printer or class of the print server.
struct Queue {
    QString name;
    QString instance;    // of the default queue, when the user's default names one; else empty
    QString displayName; // the printer's own description, or its name
    QString location;
    QString makeAndModel;
    QString deviceURI;
    QString stateMessage; // why it does not print; empty when there is nothing to say
    bool isDefault = false;
    bool isAccepting = true;
    bool isStopped = false;
};

struct QueueList {
    std::vector<Queue> queues = {};
    Message problem = {}; // empty, or why there is no list
};

// A queue's PPD, as a private file that goes away with the last copy of this record.
struct QueuePPD {
    std::shared_ptr<QTemporaryFile> file = {};
    QString path = {};    // of that file; empty when the queue has no PPD or could not be asked
    Message problem = {}; // empty when there is a path
    bool hasNone = false; // the server answered: this queue has no PPD
};

// One queue as the user names it, with the user's own defaults for it (lpoptions).
struct NamedQueue {
    Queue queue;
    JobOptions defaults;
    Message problem; // empty, or why there is none
};

// Each asks the server and waits for it, no longer than its patience a request.
QueueList FetchQueues(const PrintServer& server, Cancellation& cancellation);
QueuePPD FetchQueuePPD(const PrintServer& server, const QString& queue, Cancellation& cancellation);
// An empty name is the default queue; otherwise "queue" or "queue/instance".
NamedQueue FindQueue(const PrintServer& server, const QString& name, Cancellation& cancellation);

// The same aside. "done" runs on the calling thread, once, unless the task is destroyed before; a server that hangs
// altogether leads to a result with a problem.
BackgroundTask FetchQueuesAside(const PrintServer& server, std::function<void(QueueList)> done);
BackgroundTask FetchQueuePPDAside(const PrintServer& server, const QString& queue, std::function<void(QueuePPD)> done);
BackgroundTask FindQueueAside(const PrintServer& server, const QString& name, std::function<void(NamedQueue)> done);

} // namespace kesta::host
