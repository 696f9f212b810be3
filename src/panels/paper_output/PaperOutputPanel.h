#pragma once

#include "panels/paper_output/FinishingMenus.h"
#include "panels/paper_output/PaperOutputBindings.h"
#include "panels/special_pages/paper/StockMenu.h"
#include "pde/interface/JobTypeCheck.h"
#include "pde/interface/PanelOperations.h"

#include <QPointer>

extern "C" KestaStatus GetPaperOutputPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta::paper_output {

inline constexpr FourCharCode kSeparatorsCommand = "Xsep"_code; // of the paper menu

struct _PaperOutputContext {
    const Bundle* bundle = nullptr;
    PrintSession* session = nullptr;
    QPointer<QWidget> pane; // given by the shell; the controls are found in it by number
    QPointer<QWidget> view; // what Open puts into it
    ppd_file_t* ppd = nullptr;
    PaperOutputOptions options;
    FinishingAccessories accessories;
    FinishingAccessories rows; // that are shown
    bool wasOpened = false;    // two-sided printing is written from the first Open on
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
