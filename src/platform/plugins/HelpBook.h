#pragma once

#include "platform/values/Types.h"

#include <QString>

namespace kesta {

struct Bundle;

// A help book is the folder "CFBundleHelpBookFolder" of the bundle's resources ("Help" when Info.plist has none), with
// a folder for each language in it and index.htm as the start page.

// The page (a path within the book) in the user's language, else the wider ones, else English, else outside the
// language folders. The start page when the page is empty or missing; empty when the book has no start page either. A
// path that leads out of the book counts as missing.
QString HelpPageFile(const Bundle& bundle, const QString& page);

// Opens a page, at the anchor when one is given; with an anchor alone the page that has it; with neither, or with what
// is missing, the start page. -43 when the bundle has no help book.
OSStatus OpenHelp(const Bundle& bundle, const QString& page, const QString& anchor);

} // namespace kesta
