#pragma once

#include "host/dialog/PaneArea.h"
#include "host/server/Queues.h"

#include <optional>

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The printer that the dialog prints to. A PPD alone has no queue.
struct DialogPrinter {
    Queue queue;         // without a name: a PPD alone
    JobOptions defaults; // the user's own for this queue
    QueuePPD ppd;

    bool isQueue() const { return !queue.name.isEmpty(); }
};

// Looks for printers aside, so that the window never waits for a server, and says meanwhile what it is doing.
class PrinterFinder {
public:
    // All are called from the event loop, never from within start() or choose(), but "word".
    struct Listener {
        std::function<void()> listChanged;               // queues() and position() have something new
        std::function<void(const PaneMessage&)> word;    // what goes on, or what is wrong and the way out
        std::function<void(const DialogPrinter&)> found; // the chosen printer with everything known about it
    };

    PrinterFinder(const Bundle& texts, PrintServer server, Listener listener);

    // Asks for the list of printers and for the one that is wanted: "queue" or "queue/instance". With an empty name it
    // is the usual one, if it is still there, or else the default one.
    void start(const QString& wanted, const QString& usual = {});
    void choose(int position); // in queues(), from 1

    const std::vector<Queue>& queues() const { return list_.queues; }
    int position() const;                           // of the chosen printer in queues(), from 1; 0 while there is none
    const QString& asked() const { return asked_; } // the wanted printer as it was named; empty: the default one
    bool isBusy() const { return busy_; }           // about the wanted printer
    bool isListing() const { return listTask_.has_value() && !hasList_; } // the others are not known yet

private:
    void find(const QString& name);
    void arrived();
    void reportMissing();
    void fetchPPD();
    void say(const QString& titleKey, const QString& text, bool canTryAgain);

    const Bundle& texts_;
    PrintServer server_;
    Listener listener_;
    QString asked_;
    QString usual_; // that was asked for; empty when it was another one
    QueueList list_;
    bool hasList_ = false;
    bool busy_ = false;
    std::optional<NamedQueue> found_;
    QString fetching_; // the queue whose PPD was asked for
    std::optional<BackgroundTask> listTask_;
    std::optional<BackgroundTask> findTask_;
    std::optional<BackgroundTask> ppdTask_;
};

// The same with what keeps it from printing, as it stands in the list.
QString PrinterInList(const Queue& queue, const Bundle& texts);

// As a person picks it: the printer's description, with its place unless the description says it already.
QString PrinterTitle(const Queue& queue, const Bundle& texts);

} // namespace kesta::host
