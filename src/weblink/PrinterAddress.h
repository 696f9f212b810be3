#pragma once

#include "platform/printsystem/PrintSession.h"

namespace kesta {

// Replaces the name of a service ("... ._tcp.local.") by the host that offers it; leaves other names, and those that
// nobody answers for. 0, or a code of decode_srv or skip_question.
int CheckForLocalHost(QString& host);

// The first IPv4 address of the host in dotted form; the name itself when there is none.
QString ResolveToIP(const QString& name);

// Where the session's current printer is reached; nothing without one. It may carry a password.
std::optional<QString> GetPrinterURL(const PrintSession& session);

// The print system's addresses in the form that the rules of the web links know:
//     dnssd://NAME._TYPE._tcp.local./?...             mdns://NAME._printer._tcp.local.
//     ipp://HOST..., ipps://..., socket://...         lpd://HOST
// User names, ports and paths go, but a lpd:// address stays as it is, as do all others.
QString WebLinkAddress(const QString& deviceURI);

} // namespace kesta
