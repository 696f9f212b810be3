#include "host/pane/PlugInHost.h"

#include "platform/plugins/Bundle.h"
#include "platform/plugins/BundlePlaces.h"
#include "platform/plugins/PlugIn.h"

#include <QByteArrayList>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

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

PlugInOrError LoadPlugIn()
{
    const QStringList places = BundlePlaces(u"KestaFeatures.plugin"_s);
    const QString folder = FindBundleFolder(places);
    if (folder.isEmpty())
        return {{}, Say("Plug-in Not Found", places.join(u", "_s))};
    const auto [bundle, error] = LoadBundleAt(folder);
    if (!bundle)
        return {{}, Say("Plug-in Unusable", error)};
    if (const std::optional<Message> problem = RegisterFactories(*bundle))
        return {{}, Say("Plug-in Unusable", *problem)};
    PlugIn plugIn{.factory = TypedFactory(FindFactory(DialogExtensionType())),
                  .usePanels = ExportedFunction<KestaPDEUsePanelsFunction>(*bundle, "KestaPDEUsePanels"),
                  .findPanels = ExportedFunction<KestaPDEFindPanelsFunction>(*bundle, "KestaPDEFindPanels")};
    if (!plugIn.factory || !plugIn.usePanels || !plugIn.findPanels)
        return {{}, Say("Plug-in Of Another Program", folder)};
    return {plugIn, {}};
}

std::optional<Message> ChoosePanels(const PlugIn& plugIn, const QStringList& panels)
{
    QByteArrayList names;
    std::vector<const char*> list;
    for (const QString& panel : panels)
        names << panel.toUtf8();
    for (const QByteArray& name : names)
        list.push_back(name.constData());
    list.push_back(nullptr);
    if (plugIn.usePanels(names.empty() ? nullptr : list.data()) != 0)
        return Say("Panel List Unusable");
    const char* problem = nullptr;
    if (plugIn.findPanels(&problem) != 0)
        return problem ? Verbatim(QString::fromUtf8(problem)) : Say("Panel Missing");
    return std::nullopt;
}

} // namespace kesta::host
