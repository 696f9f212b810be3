#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace kesta::test {

// What the capture back end of the private print server stored of one job.
struct CapturedJob {
    QByteArray options; // the filters' and back end's fifth argument
    QByteArray argv;    // "0: ...", a line an argument
    QByteArray data;
};

// A print server with real filters and the queues "Kesta" (the product's PPD, the default one) and "Plain" (no PPD).
// Throws when it does not start.
class PrivateServer {
public:
    PrivateServer();
    ~PrivateServer();
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    QString address() const { return folder() + QStringLiteral("/s"); }
    void signal(int number) const; // to the server
    void restart();                // after it was killed; jobs and queues are still there
    void stop();

    // Waits until the job arrived whole; nothing after ten seconds.
    std::optional<CapturedJob> job(int number) const;
    bool hasJob(int number) const; // arrived so far
    // As the server has it now: 3 pending, 7 cancelled, 9 completed, and so on; 0 when it does not know the job.
    int jobState(int number) const;
    // All that the server tells anybody about a job who asks, "name=value" a line.
    QByteArray shownOf(int job) const;
    // The queue "Kesta" gets the product's PPD with more lines at its end.
    void describe(const QByteArray& lines) const;
    // Runs an administrator's program with "-h ADDRESS" before its arguments; throws when it fails.
    void administer(const QString& program, const QStringList& arguments) const;

private:
    QString folder() const { return directory_.path() + QStringLiteral("/cups"); }
    QByteArray content(int job, const char* suffix) const;

    QTemporaryDir directory_;
    qint64 pid_ = 0;
};

} // namespace kesta::test
