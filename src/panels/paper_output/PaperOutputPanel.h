#pragma once

#include "panels/paper_output/FinishingMenus.h"
#include "panels/paper_output/PaperOutputOptions.h"
#include "panels/special_pages/paper/StockMenu.h"
#include "pde/interface/JobTypeCheck.h"
#include "pde/interface/PanelOperations.h"

#include <QPointer>

extern "C" KestaStatus GetPaperOutputPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta::paper_output {

// The numbers of the controls in Paper_Output/Panel.
inline constexpr FourCharCode kSignature = "Papr"_code;
enum Control : SInt32 {
    kJobTypePicture = 101,
    kJobTypePopup = 102,
    kJobTypeSetupButton = 103,
    kPaperPicture = 104,
    kPaperSummary = 105,
    kStockMenuButton = 106,
    kTwoSidedPicture = 108,
    kTwoSidedLabel = 109,
    kTwoSidedPopup = 110,
    kStaplePicture = 111,
    kStaplePopup = 113,
    kPunchPicture = 114,
    kPunchPopup = 116,
    kFinishingPicture = 117,
    kFinishingMenuButton = 119,
    kFinishingSummary = 120,
    kDestinationLabel = 125,
    kDestinationPopup = 126,
    kQualityPicture = 127,
    kQualityPopup = 128,
};
// The views of which the panel is put together.
enum View : SInt32 {
    kJobTypeView = 1000,
    kPaperView = 1001,
    kTwoSidedView = 1002,
    kStaplingView = 1003,
    kPunchView = 1004,
    kOfficeFinishingRow = 1005, // for stapling and holes, side by side
    kFinishingView = 1006,      // in place of the two, with a booklet maker
    kDestinationView = 1007,
    kQualityView = 1008,
};

inline constexpr FourCharCode kSeparatorsCommand = "Xsep"_code; // of the paper menu

struct _PaperOutputContext {
    const Bundle* bundle = nullptr;
    PrintSession* session = nullptr;
    QPointer<QWidget> pane; // given by the shell; the controls are found in it by number
    QPointer<QWidget> view; // what Open puts into it
    ppd_file_t* ppd = nullptr;
    PaperOutputOptions options;
    FinishingAccessories accessories;
    bool wasOpened = false; // two-sided printing is written from the first Open on
    _StockMenuCommandEventHandlerData stockMenu;
    std::optional<JobTypeCheckRegistration> jobTypeCheck;
    EventHandler handler;
};

// The panel of the dialog that is open, for the dialogs of other panels; null without one.
extern _PaperOutputContext* _paperOutputContext;

PanelDescription Prologue(_PaperOutputContext& panel);
OSStatus Initialize(_PaperOutputContext& panel, QWidget& pane, PrintSession& session);
OSStatus Sync(_PaperOutputContext& panel, PrintSession& session, SyncDirection direction);
OSStatus Open(_PaperOutputContext& panel);
OSStatus Close(_PaperOutputContext& panel);
void Terminate(_PaperOutputContext& panel, OSStatus status);

} // namespace kesta::paper_output
