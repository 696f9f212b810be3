#pragma once

#include "panels/special_pages/SpecialPagesCommands.h"
#include "pde/interface/PanelOperations.h"
#include "toolkit/controls/ControlEvent.h"

#include <QPointer>

extern "C" KestaStatus GetSpecialPagesPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta {
class ListView;
}

namespace kesta::special_pages {

// The numbers of the controls in SpecialPages/SpecialPages.
inline constexpr FourCharCode kSignature = "SpPg"_code;
enum Control : SInt32 {
    kList = 1,
    kAddCoversButton = 2,
    kAddInsertsButton = 3,
    kAddExceptionsButton = 4,
    kEditButton = 5,
    kDeleteButton = 6,
    kDeleteAllButton = 7,
    kUndoButton = 8,
    kMoveUpButton = 9,
    kMoveDownButton = 10,
    kHint = 11,
};

struct _SpecialPagesContext {
    const Bundle* bundle = nullptr;
    PrintSession* session = nullptr; // of the last Sync
    QPointer<QWidget> pane;          // given by the shell
    QPointer<QWidget> view;          // what Open puts into it
    bool opened = false;
    SpecialPageSet pages;
    UndoState undo;
    std::optional<Stock> jobStock;
    SpecialPages rows; // what the list shows
    EventHandler handler, windowHandler;
};

// The panel of the dialog that is open; null without one.
extern _SpecialPagesContext* _specialPagesContext;

// The print settings of the last Sync; null when they are gone.
Ticket* SettingsOf(const _SpecialPagesContext& panel);

PanelDescription Prologue(_SpecialPagesContext& panel);
OSStatus Initialize(_SpecialPagesContext& panel, QWidget& pane, PrintSession& session);
OSStatus Sync(_SpecialPagesContext& panel, PrintSession& session, SyncDirection direction);
OSStatus Open(_SpecialPagesContext& panel);
void Terminate(_SpecialPagesContext& panel, OSStatus status);

} // namespace kesta::special_pages
