#pragma once

// The print system's own ticket entries, which the dialog writes and panels read. A released key never changes its
// meaning.
namespace kesta::key {

inline constexpr char PMJobName[] = "com.apple.print.JobInfo.PMJobName";                            // string
inline constexpr char PMCopies[] = "com.apple.print.PrintSettings.PMCopies";                        // number, from 1
inline constexpr char PMLayoutNUp[] = "com.apple.print.PrintSettings.PMLayoutNUp";                  // boolean
inline constexpr char PMDuplexing[] = "com.apple.print.PrintSettings.PMDuplexing";                  // number, 1..3
inline constexpr char PagesPerSheet[] = "com.kesta.print.host.PagesPerSheet";                       // number
inline constexpr char PageRanges[] = "com.kesta.print.host.PageRanges";                             // "1-4,7"
inline constexpr char PMOrientation[] = "com.apple.print.PageFormat.PMOrientation";                 // number, 1..4
inline constexpr char PMUnadjustedPaperRect[] = "com.apple.print.PageFormat.PMUnadjustedPaperRect"; // 4 reals

} // namespace kesta::key

namespace kesta {

inline constexpr char kHostClient[] = "com.kesta.print.host";

// An entry of a dictionary in a ticket.
struct NestedEntry {
    const char* key;   // of the dictionary in the ticket
    const char* entry; // in the dictionary
};

} // namespace kesta
