/* How a print dialog drives a pane, and the shell its panels: ten function slots. Plain C.
 *
 * Call order: Prologue, Initialize, Open, then Sync and GetSummaryText any number of times, Close, Terminate. All on
 * the thread of the dialog. No slot lets an exception out. */
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
    uint32_t build;
    uint32_t base;
} KestaVersion;

typedef struct PanelInterface {
    /* The header slots; a panel of the shell leaves them null. */
    void (*Retain)(struct PanelInterface* self);
    void (*Release)(struct PanelInterface** self);
    KestaStatus (*GetAPIVersion)(struct PanelInterface* self, KestaVersion* version);

    KestaStatus (*Prologue)(KestaPrologue* answer);
    KestaStatus (*Initialize)(KestaContextRef context, const int32_t* flags, void* reference, KestaControlRef pane,
                              KestaSessionRef session);
    /* true: tickets to controls; false: controls to tickets */
    KestaStatus (*Sync)(KestaContextRef context, KestaSessionRef session, bool toControls);
    /* Null-terminated lists owned by the context, or null for no summary. */
    KestaStatus (*GetSummaryText)(KestaContextRef context, const char* const** titles, const char* const** summaries);
    KestaStatus (*Open)(KestaContextRef context);
    KestaStatus (*Close)(KestaContextRef context);
    KestaStatus (*Terminate)(KestaContextRef context, KestaStatus status);
} PanelInterface;

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
