#include "platform/plugins/BundlePlaces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace kesta {
namespace {

constexpr auto kPlacesBesideProgram = std::to_array<const char*>({
    "../lib/kesta-print", // installed
    "../plugins",         // in the build tree
    ".",
});

} // namespace

QStringList BundlePlaces(const QString& bundleName)
{
    QStringList places;
    for (const QString& folder : qEnvironmentVariable("KESTA_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts))
        places << (QFileInfo(folder).fileName() == bundleName ? folder : QDir(folder).filePath(bundleName));
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : kPlacesBesideProgram)
        places << QDir::cleanPath(program.filePath(QLatin1StringView(folder) + u'/' + bundleName));
    return places;
}

QString FindBundleFolder(const QStringList& places)
{
    const auto found = std::ranges::find_if(places, [](const QString& place) { return QFileInfo(place).isDir(); });
    return found == places.end() ? QString() : *found;
}

} // namespace kesta
