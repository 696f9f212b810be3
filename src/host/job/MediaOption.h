#pragma once

#include "host/job/JobOptions.h"
#include "host/job/PrinterFacts.h"

namespace kesta::host {

inline constexpr char kPageSizeOption[] = "PageSize";

// The page size that the option "media" asks for, in the printer's word or the print protocol's; empty without one that
// the printer has. Where a PageSize stands beside it, that counts for the print server, and here.
QString PageSizeOfMedia(const JobOptions& options, const PrinterFacts& printer);

// The options with the page size in the printer's own word, too, so that it takes the place of another source's.
JobOptions WithPageSize(const JobOptions& options, const PrinterFacts& printer);

// Whether the page size is all that the option says: it may name a tray or a kind of paper besides.
bool IsPageSizeAlone(const JobOption& option, const PrinterFacts& printer);

// Takes the size out of "media" where a page size stands beside it: another source may have said another one.
void AlignMedia(JobOptions& options);

} // namespace kesta::host
