#include "platform/plugins/PlugIn.h"

#include "platform/plugins/Bundle.h"

#include <QUuid>

#include <algorithm>
#include <map>
#include <vector>

namespace kesta {
namespace {

struct Factory {
    PlugInFactory function = nullptr;
    int instances = 0;
};

struct Registry {
    std::map<UUID, Factory> factories;
    std::map<UUID, std::vector<UUID>> makers; // of a type, in order of registration
};

Registry& TheRegistry()
{
    static Registry registry;
    return registry;
}

// The bundle as its user finds it.
QString PlaceOf(const Bundle& bundle)
{
    return bundle.path.isEmpty() ? bundle.identifier : bundle.path;
}

// Registers one of the factories that Info.plist gives for a type.
std::optional<Message> RegisterDeclared(const Bundle& bundle, const UUID& type, const Value& entry)
{
    const QString text = entry.string() ? *entry.string() : QString();
    const std::optional<UUID> factory = UUIDFromString(text);
    if (!factory)
        return Say("Plug-in Factory Not A UUID", PlaceOf(bundle));
    const Dictionary* names = bundle.info.dictionary("CFPlugInFactories");
    const QString* name = names ? names->string(text) : nullptr;
    if (!name)
        return Say("Plug-in Factory Not Named", PlaceOf(bundle), text);
    const BundleFunction function = FunctionNamed(bundle, *name);
    if (!function)
        return Say("Plug-in Function Missing", PlaceOf(bundle), *name);
    RegisterFactory(*factory, type, function);
    return std::nullopt;
}

} // namespace

std::optional<UUID> UUIDFromString(QAnyStringView text)
{
    const QString wanted = text.toString();
    const QUuid parsed = QUuid::fromString(wanted);
    if (parsed.isNull() || wanted.compare(parsed.toString(QUuid::WithoutBraces), Qt::CaseInsensitive) != 0)
        return std::nullopt;
    UUID id;
    std::ranges::copy(parsed.toRfc4122(), id.bytes.begin());
    return id;
}

QString StringFromUUID(const UUID& id)
{
    const QByteArray bytes(reinterpret_cast<const char*>(id.bytes.data()), static_cast<qsizetype>(id.bytes.size()));
    return QUuid::fromRfc4122(bytes).toString(QUuid::WithoutBraces).toUpper();
}

void RegisterFactory(const UUID& factory, const UUID& type, PlugInFactory function)
{
    TheRegistry().factories[factory].function = function;
    std::vector<UUID>& makers = TheRegistry().makers[type];
    if (std::ranges::find(makers, factory) == makers.end())
        makers.push_back(factory);
}

std::optional<Message> RegisterFactories(const Bundle& bundle)
{
    const Dictionary* types = bundle.info.dictionary("CFPlugInTypes");
    if (!types)
        return Say("Plug-in Without Types", PlaceOf(bundle));
    if (std::optional<Message> problem = bundle.parts ? LoadCode(bundle) : std::nullopt)
        return problem;
    for (const auto& [text, factories] : *types) {
        const std::optional<UUID> type = UUIDFromString(text);
        if (!type || !factories.array())
            return Say("Plug-in Type Unusable", PlaceOf(bundle));
        for (const Value& factory : *factories.array()) {
            if (std::optional<Message> problem = RegisterDeclared(bundle, *type, factory))
                return problem;
        }
    }
    return std::nullopt;
}

PlugInFactory FindFactory(const UUID& type)
{
    const auto makers = TheRegistry().makers.find(type);
    return makers == TheRegistry().makers.end() ? nullptr : TheRegistry().factories[makers->second.front()].function;
}

void CFPlugInAddInstanceForFactory(const UUID& factory)
{
    ++TheRegistry().factories[factory].instances;
}

void CFPlugInRemoveInstanceForFactory(const UUID& factory)
{
    --TheRegistry().factories[factory].instances;
}

int InstanceCount(const UUID& factory)
{
    const auto found = TheRegistry().factories.find(factory);
    return found == TheRegistry().factories.end() ? 0 : found->second.instances;
}

} // namespace kesta
