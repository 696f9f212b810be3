#include "host/server/PrintServer.h"

#include <cups/cups.h>

namespace kesta::host {
namespace {

constexpr double kLookAgainSeconds = 0.25;
constexpr double kLookAgainForWholeAnswerSeconds = 3;

// A window has no terminal to ask on, and a job without an answer must end.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*)
{
    return nullptr;
}

} // namespace

Message ServerName(const PrintServer& server)
{
    return server.address.isEmpty() ? Say("Server Without Name") : Say("Server With Name", server.address);
}

Message ServerSilentMessage(const PrintServer& server)
{
    return Say("Server Silent", ServerName(server));
}

ServerConnection::ServerConnection(const PrintServer& server, Cancellation& cancellation)
    : server_(server), cancellation_(cancellation)
{
    cupsSetServer(server.address.isEmpty() ? nullptr : server.address.toUtf8().constData());
    cupsSetPasswordCB2(NoPassword, nullptr);
    http_ = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                         static_cast<int>(server.patience.count()), cancellation.flag());
    expectAnswer();
}

ServerConnection::~ServerConnection()
{
    httpClose(http_);
}

void ServerConnection::expectAnswer()
{
    lookAgainEvery(kLookAgainSeconds);
}

void ServerConnection::expectWholeAnswer()
{
    lookAgainEvery(kLookAgainForWholeAnswerSeconds);
}

void ServerConnection::lookAgainEvery(double seconds)
{
    if (http_)
        httpSetTimeout(http_, seconds, WaitLonger, this);
    deadline_ = std::chrono::steady_clock::now() + server_.patience;
}

int ServerConnection::WaitLonger(http_t*, void* connection)
{
    auto& self = *static_cast<ServerConnection*>(connection);
    if (self.cancellation_.requested() || std::chrono::steady_clock::now() >= self.deadline_)
        self.gaveUp_ = true;
    return self.gaveUp_ ? 0 : 1;
}

Message ServerConnection::problem() const
{
    if (!http_ || gaveUp_ || httpError(http_) != 0 || cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE)
        return ServerSilentMessage(server_);
    if (cupsLastError() == IPP_STATUS_ERROR_BAD_REQUEST)
        return Say("Server Too Old", ServerName(server_));
    if (cupsLastError() == IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED ||
        cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHORIZED || cupsLastError() == IPP_STATUS_ERROR_NOT_AUTHENTICATED)
        return Say("Server Refuses", ServerName(server_));
    return Say("Server Says", ServerName(server_), QString::fromUtf8(cupsLastErrorString()));
}

} // namespace kesta::host
