#include "weblink/PrinterAddress.h"

#include "platform/system/SystemConfiguration.h"
#include "weblink/DNSMessage.h"
#include "weblink/MulticastDNS.h"
#include "weblink/NameService.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <array>

namespace kesta {
namespace {

using namespace Qt::StringLiterals;

constexpr auto kServiceEnd = "._tcp.local."_L1;
constexpr std::size_t kLargestAnswer = 1500;
constexpr SystemVersion kHasPrinterURLs{10, 2, 0};

// The host of the first answer; it stays when there is none.
int DecodeHost(DNSPacket answer, QString& host)
{
    const DNSHeader header = decode_header(answer);
    std::size_t position = DNSHeader::kSize;
    for (int question = 0; question < header.questions; ++question)
        if (const int error = skip_question(position, answer))
            return error;
    if (header.answers == 0)
        return 0;

    std::string name;
    std::uint16_t port = 0;
    const int error = decode_srv(position, answer, name, port);
    if (error == 0 && !name.empty())
        host = QString::fromStdString(name);
    return error;
}

} // namespace

int CheckForLocalHost(QString& host)
{
    if (!host.contains(kServiceEnd))
        return 0;
    std::array<std::uint8_t, kLargestAnswer> answer;
    const int length = mDNS_res_query(host.toStdString(), kDNSClassInternet, kDNSTypeService, answer);
    if (length <= static_cast<int>(DNSHeader::kSize))
        return 0;
    // A resolver may tell of more than the buffer took.
    return DecodeHost(DNSPacket(answer).first(std::min(answer.size(), static_cast<std::size_t>(length))), host);
}

QString ResolveToIP(const QString& name)
{
    const auto address = GetNameService().address(name.toStdString());
    return address ? QString::fromStdString(*address) : name;
}

std::optional<QString> GetPrinterURL(const PrintSession& session)
{
    const PMPrinter* printer = PMSessionGetCurrentPrinter(session);
    const auto version = GetSystemConfiguration().systemVersion();
    if (!printer || (version && *version < kHasPrinterURLs))
        return std::nullopt;
    const QString address = PMPrinterGetDeviceURI(*printer);
    if (address.isEmpty())
        return std::nullopt;
    QString host = QUrl(address).host();
    CheckForLocalHost(host); // the address is given as it is
    return address;
}

QString WebLinkAddress(const QString& deviceURI)
{
    // Names of services may hold what no host name may, so this is not for QUrl.
    static const QRegularExpression form(u"^([a-z]+)://(?:[^/?#]*@)?(\\[[^\\]/?#]*\\]|[^/?#:]+)"_s);
    const QRegularExpressionMatch match = form.match(deviceURI);
    if (!match.hasMatch())
        return deviceURI;
    const QString scheme = match.captured(1);
    const QString host = QUrl::fromPercentEncoding(match.captured(2).toUtf8());
    if (scheme == "dnssd"_L1) {
        const qsizetype typeEnd = host.lastIndexOf("._tcp."_L1);
        const qsizetype typeStart = typeEnd <= 0 ? -1 : host.lastIndexOf("._"_L1, typeEnd - 1);
        return typeStart < 0 ? deviceURI : u"mdns://"_s + host.first(typeStart) + u"._printer._tcp.local."_s;
    }
    const bool isDirect = scheme == "ipp"_L1 || scheme == "ipps"_L1 || scheme == "socket"_L1;
    return isDirect ? u"lpd://"_s + host : deviceURI;
}

} // namespace kesta
