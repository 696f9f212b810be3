#include "pde/interface/PlugInInterface.h"
#include "pde/shell/PDEShell.h"
#include "pde/shell/PanelLoading.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/PlugIn.h"

#include <algorithm>
#include <new>

// The plug-in's door: its factory and what a host asks before it begins.
namespace kesta {
namespace {

// What the factory hands out is behind its public face.
struct FactoryInstance : KestaPlugIn {
    KestaIUnknownTable ownTable;
    UUID factory;
    uint32_t count = 1;
};

FactoryInstance& InstanceOf(KestaPlugIn* self)
{
    return *static_cast<FactoryInstance*>(self);
}

UUID Converted(const KestaUUID& id)
{
    UUID converted;
    std::ranges::copy(id.bytes, converted.bytes.begin());
    return converted;
}

bool IsSame(const KestaUUID& one, const KestaUUID& other)
{
    return std::ranges::equal(one.bytes, other.bytes);
}

uint32_t IUnknownAddRef(KestaPlugIn* self)
{
    return ++InstanceOf(self).count;
}

uint32_t IUnknownRelease(KestaPlugIn* self)
{
    FactoryInstance& instance = InstanceOf(self);
    const uint32_t left = --instance.count;
    if (left == 0) {
        CFPlugInRemoveInstanceForFactory(instance.factory);
        delete &instance;
    }
    return left;
}

KestaResult QueryInterface(KestaPlugIn* self, KestaUUID interfaceID, void** out)
{
    if (IsSame(interfaceID, kKestaIUnknownID)) {
        IUnknownAddRef(self);
        *out = self;
        return noErr;
    }
    if (IsSame(interfaceID, kKestaDialogExtensionInterfaceID)) {
        *out = shell::CreateDialogExtension(); // counts for itself: the instance's own count stays
        return noErr;
    }
    *out = nullptr;
    return kKestaNoInterface;
}

} // namespace
} // namespace kesta

KestaPlugIn* KestaPDEPluginFactory(const void*, KestaUUID typeID)
{
    using namespace kesta;

    if (!IsSame(typeID, kKestaDialogExtensionTypeID))
        return nullptr;
    auto* instance = new (std::nothrow) FactoryInstance;
    if (!instance)
        return nullptr;
    instance->ownTable = {
        .reserved = nullptr, .QueryInterface = QueryInterface, .AddRef = IUnknownAddRef, .Release = IUnknownRelease};
    instance->table = &instance->ownTable;
    instance->factory = Converted(kKestaPDEFactoryID);
    CFPlugInAddInstanceForFactory(instance->factory);
    return instance;
}

KestaStatus KestaPDEUsePanels(const char* const* functionNames)
{
    return kesta::Guarded([&] {
        std::vector<std::string> names;
        for (const char* const* name = functionNames; name && *name; ++name)
            names.emplace_back(*name);
        if (functionNames && names.empty())
            return kesta::kMissingArgument;
        kesta::shell::SetPanelFunctionNames(std::move(names));
        return kesta::noErr;
    });
}

KestaStatus KestaPDEFindPanels(const char** problem)
{
    return kesta::Guarded([&] {
        static QByteArray sentence;
        const std::optional<QString> found = kesta::shell::FindPanelProblem(kesta::PlugInBundle());
        sentence = found.value_or(QString()).toUtf8();
        if (problem)
            *problem = found ? sentence.constData() : nullptr;
        return found ? kesta::kFileNotFound : kesta::noErr;
    });
}
