#include "host/pane/PlugInHost.h"

#include "platform/plugins/Bundle.h"
#include "platform/plugins/PlugIn.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr auto kPlacesBesideProgram = std::to_array<const char*>({
    "../lib/kesta-print", // installed
    "../plugins",         // in the build tree
    ".",
});

UUID DialogExtensionType()
{
    UUID type;
    std::ranges::copy(kKestaDialogExtensionTypeID.bytes, type.bytes.begin());
    return type;
}

// The registry of factories knows no plug-in's own types; they are laid out alike.
KestaPlugInFactory TypedFactory(PlugInFactory factory)
{
    return reinterpret_cast<KestaPlugInFactory>(reinterpret_cast<BundleFunction>(factory));
}

template <class Function> Function ExportedFunction(const Bundle& bundle, const char* name)
{
    return reinterpret_cast<Function>(FunctionNamed(bundle, name));
}

} // namespace

QStringList BundlePlaces(const QString& bundleName)
{
    QStringList places;
    for (const QString& folder : qEnvironmentVariable("KESTA_PLUGIN_PATH").split(u':', Qt::SkipEmptyParts))
        places << (QFileInfo(folder).fileName() == bundleName ? folder : QDir(folder).filePath(bundleName));
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : kPlacesBesideProgram)
        places << QDir::cleanPath(program.filePath(u"%1/%2"_s.arg(QLatin1StringView(folder), bundleName)));
    return places;
}

QString FindBundleFolder(const QStringList& places)
{
    const auto found = std::ranges::find_if(places, [](const QString& place) { return QFileInfo(place).isDir(); });
    return found == places.end() ? QString() : *found;
}

PlugInOrError LoadPlugIn()
{
    const QStringList places = BundlePlaces(u"KestaFeatures.plugin"_s);
    const QString folder = FindBundleFolder(places);
    if (folder.isEmpty())
        return {{},
                u"The printer's features (KestaFeatures.plugin) were not found in %1. Set KESTA_PLUGIN_PATH "
                u"to the folder that holds them."_s.arg(places.join(u", "_s))};
    const auto [bundle, error] = LoadBundleAt(folder);
    if (!bundle)
        return {{}, error};
    if (const std::optional<QString> problem = RegisterFactories(*bundle))
        return {{}, *problem};
    PlugIn plugIn{.factory = TypedFactory(FindFactory(DialogExtensionType())),
                  .usePanels = ExportedFunction<KestaPDEUsePanelsFunction>(*bundle, "KestaPDEUsePanels"),
                  .findPanels = ExportedFunction<KestaPDEFindPanelsFunction>(*bundle, "KestaPDEFindPanels")};
    if (!plugIn.factory || !plugIn.usePanels || !plugIn.findPanels)
        return {{}, u"%1 is not a plug-in for this program."_s.arg(folder)};
    return {plugIn, {}};
}

std::optional<QString> ChoosePanels(const PlugIn& plugIn, const QStringList& panels)
{
    QByteArrayList names;
    std::vector<const char*> list;
    for (const QString& panel : panels)
        names << panel.toUtf8();
    for (const QByteArray& name : names)
        list.push_back(name.constData());
    list.push_back(nullptr);
    if (plugIn.usePanels(names.empty() ? nullptr : list.data()) != 0)
        return u"The list of panels is empty or has a panel without a name."_s;
    const char* problem = nullptr;
    if (plugIn.findPanels(&problem) != 0)
        return problem ? QString::fromUtf8(problem) : u"A panel is missing."_s;
    return std::nullopt;
}

} // namespace kesta::host
