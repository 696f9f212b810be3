/* How a print dialog drives a pane, and the shell its panels: ten function slots. Plain C.
 *
 * Call order: Prologue, Initialize, Open, then Sync and GetSummaryText any number of times, Close, Terminate. A pane
 * that was closed may be opened again before Terminate. All on the thread of the dialog. No slot lets an exception
 * out. */
#ifndef KESTA_PANEL_INTERFACE_H
#define KESTA_PANEL_INTERFACE_H

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
class QWidget;
namespace kesta {
struct PrintSession;
}
typedef QWidget* KestaControlRef;
typedef kesta::PrintSession* KestaSessionRef;
extern "C" {
#else
typedef struct QWidget* KestaControlRef;
typedef struct KestaPrintSession* KestaSessionRef;
#endif

/* 0 for success; the operations' own failures:
 *   -9530   no context, no session, or a printer that the pane is not for
 *   -30879  Sync without context or session */
typedef int32_t KestaStatus;

/* Made by Prologue, freed by Terminate; only the panel knows what it points to. */
typedef void* KestaContextRef;

/* What Prologue answers. The texts are UTF-8, owned by the context and alive until Terminate. */
typedef struct KestaPrologue {
    KestaContextRef context;
    uint32_t creator;
    const char* kind;
    const char* title;
    uint32_t maximumWidth; /* pixels; 0 for no limit */
    uint32_t maximumHeight;
} KestaPrologue;

typedef struct KestaVersion {
    uint16_t major;
    uint16_t minor;
} KestaVersion;

typedef struct KestaAPIVersion {
    KestaVersion build; /* the interface that the plug-in was built with */
    KestaVersion base;  /* the oldest one that it works with */
} KestaAPIVersion;

struct KestaDialogExtension;

typedef struct PanelInterface {
    /* The header slots, filled by a pane only; a panel of the shell leaves them null. Release clears the caller's
     * pointer; the last one frees the table and the object. */
    void (*Retain)(struct KestaDialogExtension* self);
    void (*Release)(struct KestaDialogExtension** self);
    KestaStatus (*GetAPIVersion)(struct KestaDialogExtension* self, KestaAPIVersion* version);

    KestaStatus (*Prologue)(KestaPrologue* answer);
    KestaStatus (*Initialize)(KestaContextRef context, const int32_t* flags, void* reference, KestaControlRef pane,
                              KestaSessionRef session);
    /* true: tickets to controls; false: controls to tickets */
    KestaStatus (*Sync)(KestaContextRef context, KestaSessionRef session, bool toControls);
    /* Null-terminated lists of UTF-8 texts owned by the context and alive until its next call, or null for no summary.
     */
    KestaStatus (*GetSummaryText)(KestaContextRef context, const char* const** titles, const char* const** summaries);
    KestaStatus (*Open)(KestaContextRef context);
    KestaStatus (*Close)(KestaContextRef context);
    KestaStatus (*Terminate)(KestaContextRef context, KestaStatus status);
} PanelInterface;

/* What a pane is to its print dialog: the slots, behind an object that is counted. */
typedef struct KestaDialogExtension {
    PanelInterface* table;
} KestaDialogExtension;

/* What a function such as GetAdvancedPanelInterface stores in its argument; it stays valid while the bundle is loaded.
 */
typedef struct PanelInterfaceHolder {
    const PanelInterface* table;
} PanelInterfaceHolder;

typedef KestaStatus (*PanelInterfaceFunction)(const PanelInterfaceHolder** holder);

#ifdef __cplusplus
}
#endif
#endif
