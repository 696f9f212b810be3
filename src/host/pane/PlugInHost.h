#pragma once

#include "pde/interface/PlugInInterface.h"

#include <QString>
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
    QString error; // one line, when there is no plug-in
};

// The folders in which a bundle of that name, such as "KestaFeatures.plugin", is looked for: those of KESTA_PLUGIN_PATH
// (apart by colons; a bundle itself may stand there too) before the places beside the program.
QStringList BundlePlaces(const QString& bundleName);

// The first of the places that is a folder; empty when none is.
QString FindBundleFolder(const QStringList& places);

// Loads KestaFeatures.plugin and finds its factory through the registry of factories.
PlugInOrError LoadPlugIn();

// Tells the plug-in which panels to show, by the names of their interface functions; none: the product's own. Then asks
// it whether all of them can be found, because a pane waits for its panels without end. Nothing on success, otherwise
// one line for the user.
std::optional<QString> ChoosePanels(const PlugIn& plugIn, const QStringList& panels);

} // namespace kesta::host
