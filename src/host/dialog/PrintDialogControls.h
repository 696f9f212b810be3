#pragma once

#include "platform/values/Types.h"

namespace kesta::host {

// The numbers of the controls in PrintDialog/Window.
inline constexpr FourCharCode kPrintSignature = "Prnt"_code;
enum PrintControl : SInt32 {
    kPrinterChoice = 9001,
    kCopiesField = 9002,
    kPagesField = 9003,
    kPerSheetChoice = 9004,
    kOrientationGroup = 9005,
    kPortraitSegment = 9006,
    kLandscapeSegment = 9007,
    kPaneArea = 9010,
    kMessageTitle = 9011,
    kMessageText = 9012,
    kProgressBar = 9013,
    kStopButton = 9014,
    kTryAgainButton = 9015,
    kPaneHost = 9016,
    kSummaryLine = 9020,
    kHelpButton = 9021,
    kSaveSettingsButton = 9022,
    kCancelButton = 9023,
    kPrintButton = 9024,
};

} // namespace kesta::host
