#pragma once

#include "pde/interface/PlugInInterface.h"
#include "platform/values/Message.h"

#include <QStringList>

#include <optional>

namespace kesta::host {

// The plug-in's door: what its bundle exports.
struct PlugIn {
    KestaPlugInFactory factory = nullptr;
    KestaPDEUsePanelsFunction usePanels = nullptr;
    KestaPDEFindPanelsFunction findPanels = nullptr;
};

struct PlugInOrError {
    std::optional<PlugIn> plugIn;
    Message error; // a sentence, when there is no plug-in
};

// Loads KestaFeatures.plugin and finds its factory through the registry of factories.
PlugInOrError LoadPlugIn();

// Tells the plug-in which panels to show, by the names of their interface functions; none: the product's own. Then asks
// it whether all of them can be found, because a pane waits for its panels without end. Nothing on success, otherwise
// a sentence for the user.
std::optional<Message> ChoosePanels(const PlugIn& plugIn, const QStringList& panels);

} // namespace kesta::host
