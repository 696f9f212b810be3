#pragma once

#include "platform/values/Types.h"

#include "platform/values/Message.h"

#include <QAnyStringView>
#include <QString>

#include <array>
#include <optional>

namespace kesta {

struct Bundle;

// In the order of its text: bytes[0] is the first pair of digits. The same layout as a plug-in's C header has.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    auto operator<=>(const UUID&) const = default;
};

// Only the form "2469D08F-1C3C-4039-BE98-6ED74B921894", in either case, and not all zeros.
std::optional<UUID> UUIDFromString(QAnyStringView text);
QString StringFromUUID(const UUID& id); // upper case

// Makes an instance of a type. Its arguments and result are those of the plug-in's own C header, so the host casts it.
using PlugInFactory = void (*)();

// A factory and the type that it makes; a second registration of the factory adds the type to it.
void RegisterFactory(const UUID& factory, const UUID& type, PlugInFactory function);

// Registers what the bundle's Info.plist declares: "CFPlugInFactories" (factory to function name) and "CFPlugInTypes"
// (type to an array of factories). Loads the code. Nothing on success, otherwise a sentence.
std::optional<Message> RegisterFactories(const Bundle& bundle);

// The factory first registered for the type; null when there is none.
PlugInFactory FindFactory(const UUID& type);

// How many instances a factory has out: a plug-in counts itself in when it is made and out when it is freed.
void CFPlugInAddInstanceForFactory(const UUID& factory);
void CFPlugInRemoveInstanceForFactory(const UUID& factory);
int InstanceCount(const UUID& factory);

} // namespace kesta
