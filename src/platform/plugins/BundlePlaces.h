#pragma once

#include "platform/plugins/Bundle.h"

#include <QStringList>

namespace kesta {

// The folders in which a bundle of that name, such as "KestaFeatures.plugin", is looked for: those of KESTA_PLUGIN_PATH
// (apart by colons; a bundle itself may stand there too) before the places beside the program.
QStringList BundlePlaces(const QString& bundleName);

// The first of the places that is a folder; empty when none is.
QString FindBundleFolder(const QStringList& places);

} // namespace kesta
