#pragma once

#include "model/SpecialPage.h"

namespace kesta {

struct Bundle;

// An exception that ends before it starts is its start page alone.
SInt32 LastPageOf(const ExceptionPage& exception);
QString PageRangeText(const Bundle& bundle, const ExceptionPage& exception); // "31-34"
QString PlexText(const Bundle& bundle, SInt32 plex);

// What an editor tells of the page that it was opened for.
QString CreateInsertAttributesDescription(const Bundle& bundle, const Insert& insert);
QString CreateExceptionAttributesDescription(const Bundle& bundle, const ExceptionPage& exception);

} // namespace kesta
