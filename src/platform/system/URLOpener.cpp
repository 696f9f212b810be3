#include "platform/system/URLOpener.h"

#include "platform/system/Installed.h"

#include <QProcess>
#include <QUrl>

namespace kesta {
namespace {

constexpr qsizetype kLongestURL = 8192; // characters

bool IsForTheBrowser(const QUrl& url)
{
    const QString scheme = url.scheme();
    const bool isWeb = (scheme == u"http" || scheme == u"https") && !url.host().isEmpty();
    return url.isValid() && (isWeb || scheme == u"mailto");
}

class SystemURLOpener : public URLOpener {
public:
    bool open(const QString& address) override
    {
        const QUrl url(address, QUrl::StrictMode);
        if (address.size() > kLongestURL || !IsForTheBrowser(url))
            return false;
        return QProcess::startDetached(QStringLiteral("xdg-open"), {url.toString(QUrl::FullyEncoded)});
    }
};

} // namespace

URLOpener* URLOpener::install(URLOpener* opener)
{
    return InstalledOr<URLOpener, SystemURLOpener>().install(opener);
}

URLOpener& GetURLOpener()
{
    return InstalledOr<URLOpener, SystemURLOpener>().current();
}

} // namespace kesta
