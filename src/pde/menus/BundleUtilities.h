#pragma once

#include "platform/values/Value.h"

class QUrl;

namespace kesta {

struct Bundle;

// Opens a page of the bundle's help book, at the anchor when one is given; with an anchor alone the page that has it.
// kMissingArgument when the bundle names no help book.
OSStatus DisplayHelp(const Bundle& bundle, const QString& page = {}, const QString& anchor = {});

// The plug-in of that name in the bundle's built-in plug-ins folder, with its code loaded; null when there is none.
const Bundle* LoadPrivateBundle(const Bundle& bundle, const QString& plugInName);

// The property list in a local file; nothing when it can't be read or is none.
std::optional<Value> CreatePropertiesFromXMLFile(const QUrl& url);

} // namespace kesta
