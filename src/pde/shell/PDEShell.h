#pragma once

#include "pde/interface/PanelOperations.h"
#include "platform/values/Types.h"
#include "toolkit/controls/ControlEvent.h"

#include <QPointer>

#include <optional>
#include <span>
#include <vector>

namespace kesta {

struct Bundle;

namespace shell {

// The numbers of the controls in PDE_Shell/Window.
inline constexpr FourCharCode kSignature = "Shel"_code;
enum Control : SInt32 {
    kShellPane = 10,
    kPanelFrame = 11,
    kPanelArea = 12,
    kPanelChoice = 16,
    kPreviousButton = 1966,
    kNextButton = 1967,
};
// The panels' own panes are numbered by their panel's index under this signature.
inline constexpr FourCharCode kUserPaneSignature = "Pane"_code;

inline constexpr SInt32 kTakesNoPart = -1;

// The creator of the pane and of the control properties that the shell sets: the dialog's default button is tagged with
// the plug-in's bundle.
inline constexpr FourCharCode kCreator = "pde "_code;

struct PanelRecord {
    PanelInterface interface;
    KestaContextRef context;
    QString title;
    QString kind;
    QPointer<QWidget> userPane;
    SInt32 index; // from 1, or kTakesNoPart
};

// One pane, from Prologue to Terminate.
struct PDEShellContext {
    bool opened = false; // by the first Open; those that follow only open the panels
    const Bundle* bundle = nullptr;
    QByteArray title; // UTF-8
    PrintSession* session = nullptr;
    std::vector<PanelRecord> panels;
    QPointer<QWidget> parentPane; // given by the print dialog
    QPointer<QWidget> shellPane;
    QPointer<QWidget> defaultButton, cancelButton; // the print dialog's
    std::vector<EventHandler> dialogHandlers;      // on the dialog, from Initialize
    EventHandler paneHandler;                      // on the shell's own pane, from the first Open
    std::optional<EventHandler> commandHandler;    // on the dialog, from Open to Close
};

// Which panel is shown, kept for the process. gCurrentPanel is the one to show at Open; _lastTabIndex, the one shown
// last, outlives a pane.
struct ShownPanel {
    SInt32 gCurrentPanel = 0;
    SInt32 _lastTabIndex = 0;
};
ShownPanel& GetShownPanel();

// The operations of the pane, in the slots of the plug-in interface.
PanelInterface GetShellInterface();
// The same as an object with a count of 1, freed by its last Release.
KestaDialogExtension* CreateDialogExtension();

// Every listed panel must load: one that fails is tried again, without end. Whoever can't wait asks FindPanelProblem
// before.
void LoadPanels(PDEShellContext& shell);

OSStatus Initialize(PDEShellContext& shell, const SInt32* flags, void* reference, QWidget& parentPane,
                    PrintSession& session);
OSStatus Sync(PDEShellContext& shell, PrintSession& session, SyncDirection direction);
OSStatus Open(PDEShellContext& shell);
OSStatus Close(PDEShellContext& shell);

// Shows the panel of that index and hides the others; the panel being left writes its values to the tickets and the
// others read them.
void selectPanel(SInt32 index, PDEShellContext& shell);

EventResult pdeShellEventHandler(PDEShellContext& shell, const ControlEvent& event);

// What OK has to wait for. NotHandled lets it proceed; any other result keeps the dialog open, after a notice about a
// missing passcode or after the fax setup, whatever that changed.
EventResult CheckJobType(const Bundle& bundle);

// Of the panes whose numbers stand in ids (their count, then the numbers), in the window and under the signature of the
// tab control, shows and enables the one at the 1-based position and hides and disables the others.
void selectItemOfTabControl(QWidget& tabControl, SInt32 position, std::span<const SInt32> ids);

// Lets the help system know the plug-in's book: -43 when the plug-in's place can't be found.
OSStatus RegisterMyHelpBook(const PDEShellContext& shell);

} // namespace shell

// The plug-in's bundle; null before the first Prologue.
const Bundle* GetPDEBundle();

// Synchronises the pane that is there with the session that it was initialized with; the argument is not used.
OSStatus PDESync(PrintSession* session, SyncDirection direction);

} // namespace kesta
