/* The plug-in's door. Plain C; what lies behind it are the ten slots of PanelInterface.h.
 *
 *     KestaPDEUsePanels(names);           // only to show other panels than the product's
 *     KestaPDEFindPanels(&problem);       // before the first Prologue, which waits for its panels without end
 *     plugIn = KestaPDEPluginFactory(NULL, kKestaDialogExtensionTypeID);
 *     plugIn->table->QueryInterface(plugIn, kKestaDialogExtensionInterfaceID, &pane);
 *     pane->table->Prologue(&answer);     // and so on, to Terminate
 *     pane->table->Release(&pane);
 *     plugIn->table->Release(plugIn);
 *
 * The pane does not hold the plug-in: keep both until the pane is released. All on one thread. */
#ifndef KESTA_PLUG_IN_INTERFACE_H
#define KESTA_PLUG_IN_INTERFACE_H

#include "pde/interface/PanelInterface.h"

#ifdef __cplusplus
extern "C" {
#endif

/* In the order of its text: bytes[0] is the first pair of digits. */
typedef struct KestaUUID {
    uint8_t bytes[16];
} KestaUUID;

/* What a dialog asks the factory for: "BDB091F4-E57F-11D3-B5CC-0050E4603277". */
static const KestaUUID kKestaDialogExtensionTypeID = {
    {0xBD, 0xB0, 0x91, 0xF4, 0xE5, 0x7F, 0x11, 0xD3, 0xB5, 0xCC, 0x00, 0x50, 0xE4, 0x60, 0x32, 0x77}};
/* This plug-in's factory, as its Info.plist names it: "2469D08F-1C3C-4039-BE98-6ED74B921894". */
static const KestaUUID kKestaPDEFactoryID = {
    {0x24, 0x69, 0xD0, 0x8F, 0x1C, 0x3C, 0x40, 0x39, 0xBE, 0x98, 0x6E, 0xD7, 0x4B, 0x92, 0x18, 0x94}};
/* "00000000-0000-0000-C000-000000000046": the plug-in itself, as a KestaPlugIn, counted up. */
static const KestaUUID kKestaIUnknownID = {
    {0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
/* "A996FD7E-B738-11D3-8519-0050E4603277": a new KestaDialogExtension with a count of 1. */
static const KestaUUID kKestaDialogExtensionInterfaceID = {
    {0xA9, 0x96, 0xFD, 0x7E, 0xB7, 0x38, 0x11, 0xD3, 0x85, 0x19, 0x00, 0x50, 0xE4, 0x60, 0x32, 0x77}};

/* 0, or kKestaNoInterface. */
typedef int32_t KestaResult;
#define kKestaNoInterface ((KestaResult)(-0x7FFFFFFF - 1 + 4)) /* 0x80000004 */

struct KestaPlugIn;

typedef struct KestaIUnknownTable {
    void* reserved; /* null */
    KestaResult (*QueryInterface)(struct KestaPlugIn* self, KestaUUID interfaceID, void** out);
    uint32_t (*AddRef)(struct KestaPlugIn* self);  /* the new count */
    uint32_t (*Release)(struct KestaPlugIn* self); /* the count that is left; at 0 the plug-in is gone */
} KestaIUnknownTable;

typedef struct KestaPlugIn {
    const KestaIUnknownTable* table;
} KestaPlugIn;

/* A new plug-in with a count of 1, null for any type but kKestaDialogExtensionTypeID. The allocator is not used. */
typedef KestaPlugIn* (*KestaPlugInFactory)(const void* allocator, KestaUUID typeID);
KestaPlugIn* KestaPDEPluginFactory(const void* allocator, KestaUUID typeID);

/* The names of the panels' interface functions, in the order of the panels, ended by null; null for the product's own
 * table. Copied. Counts for every Prologue that follows. -50 for a list without a name. */
KestaStatus KestaPDEUsePanels(const char* const* functionNames);
typedef KestaStatus (*KestaPDEUsePanelsFunction)(const char* const* functionNames);

/* Whether everything that the panel table names can be found: 0, or -43 and, when problem is given, a sentence in
 * UTF-8 that names what is missing and where it was looked for. The sentence stays until the next call. */
KestaStatus KestaPDEFindPanels(const char** problem);
typedef KestaStatus (*KestaPDEFindPanelsFunction)(const char** problem);

#ifdef __cplusplus
}
#endif
#endif
