#pragma once

#include "host/server/BackgroundTask.h"

#include "platform/values/Message.h"

#include <QString>

#include <chrono>

struct _http_s;

namespace kesta::host {

// Which server, and how long it may be silent before it counts as gone.
struct PrintServer {
    QString address = {}; // as -h; empty: what CUPS_SERVER or the system's configuration says
    std::chrono::milliseconds patience{10'000};
};

// The server in words.
Message ServerName(const PrintServer& server);

// That it does not answer, with what to do.
Message ServerSilentMessage(const PrintServer& server);

// One connection. Every wait on it ends when the work is cancelled or the server is silent for longer than its
// patience. The library keeps server, user and password functions per thread: a connection is used by the thread that
// made it.
class ServerConnection {
public:
    ServerConnection(const PrintServer& server, Cancellation& cancellation);
    ~ServerConnection();
    ServerConnection(const ServerConnection&) = delete;
    ServerConnection& operator=(const ServerConnection&) = delete;

    // Null when there is no connection; problem() then says why.
    _http_s* http() const { return http_; }
    // Counts the server's patience from now on: before every request, after every piece of data.
    void expectAnswer();
    // The same for the answer to a whole document: the library takes an answer whose head and body come further apart
    // than one of its waits for a broken one, so that wait is a long one; a cancellation is noticed only after it.
    void expectWholeAnswer();
    // True when a wait on this connection was ended by silence or by the user.
    bool gaveUp() const { return gaveUp_; }
    // What the last failure was, in words for the user.
    Message problem() const;

private:
    void lookAgainEvery(double seconds);
    static int WaitLonger(_http_s* http, void* connection);

    PrintServer server_;
    Cancellation& cancellation_;
    _http_s* http_ = nullptr;
    std::chrono::steady_clock::time_point deadline_;
    bool gaveUp_ = false;
};

} // namespace kesta::host
