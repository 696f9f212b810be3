#pragma once

#include "model/Booklet.h"
#include "model/FaxRecipientList.h"
#include "model/JobType.h"
#include "model/Stock.h"
#include "printer/FinishingKinds.h"
#include "printer/PPDUtilities.h"

namespace kesta::paper_output {

inline constexpr SInt32 kOrientationLandscape = 2;

inline constexpr SInt32 kStandardQuality = 201;

inline constexpr SInt32 kOneSided = 1;
inline constexpr SInt32 kTwoSidedLongEdge = 2;
inline constexpr SInt32 kTwoSidedShortEdge = 3;

// What the panel edits, as ticket values. The initial values are those before the first Sync.
struct PaperOutputOptions {
    SInt32 orientation = 1;

    Stock stock = {};
    SInt32 separatorCount = 0; // what lies between transparencies; of the stock the colour counts
    Stock separatorStock = {};
    SInt32 outputBin = 1;
    SInt32 printQuality = kStandardQuality;

    JobType jobType = {};
    std::optional<Dictionary> faxOptions = {};
    std::optional<FaxRecipientList> recipientList = {};

    Booklet booklet = {}; // its fold is that of any job

    SInt32 duplex = kOneSided;
    SInt32 duplexPopupValue = kOneSided; // what the pop-up shows without a booklet
    SInt32 duplexSaved = kOneSided;      // what a booklet took the place of, and its end brings back

    SInt32 finishingOption = kNoFinishing;
    SInt32 staple = kNotFinished; // of printer/FinishingKinds.h, as the fold of the booklet
    SInt32 punch = kNotFinished;
    SInt32 bindValue = 0;
    SInt32 offset = 1;
    SInt32 offsetSubset = 0;
    SInt32 offsetPagesPerSubset = 1;
    SInt32 slipSheet = 0;
    QString finishingCustom = {};
    SInt32 coilPunch = 0;
    bool squareFoldAllowed = true;
    bool squareFold = false;
    SInt32 padPrintEnabled = 0;

    // Of two-sided printing and finishing, the ticket's PPD choices as they were last read or written here; nothing
    // before that. One that is another now was changed by somebody who knows nothing of the ticket's entries.
    std::optional<Dictionary> choices = {};

    bool operator==(const PaperOutputOptions&) const = default;
};

// 1 when the ticket does not say.
SInt32 ReadOrientation(const Ticket& pageFormat);

// The PPD, which may be null, has the defaults of what the ticket does not say. A number that no choice of the panel
// stands for counts as absent where the panel would otherwise show another choice than it writes. The stock stays the
// same object, and keeps what the ticket does not say again while the ticket has what it would write.
//
// What the ticket keeps as an entry and as a PPD choice is read from the entry, unless the choice was changed since the
// last time: entries and choices are in step again after the next writing. A booklet that the change leaves no room for
// ends.
void ReadTicket(PaperOutputOptions& options, const Ticket& settings, ppd_file_t* ppd);

// What the panel may write: the booklet belongs to the panel that is shown, and two-sided printing to the panel once it
// has been shown.
struct WriteScope {
    bool booklet = true;
    bool duplex = true;
};

// With a booklet, two-sided printing becomes short edge, here and in the ticket. Returns the status of the separators;
// the rest is written whatever that is.
OSStatus WriteTicket(PaperOutputOptions& options, Ticket& ticket, WriteScope scope = {});

// Whether the first of exceptions, inserts, front cover and back cover that the ticket has at all holds an entry.
bool isSpecialPageConfigured(const Ticket& settings);

} // namespace kesta::paper_output
