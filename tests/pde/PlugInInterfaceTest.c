/* The plug-in's door as a program in C finds it. */
#include "pde/interface/PlugInInterface.h"

#include <stddef.h>

/* 0, or the number of the step that failed. */
int UsePlugInFromC(KestaPlugInFactory factory);

int UsePlugInFromC(KestaPlugInFactory factory)
{
    KestaUUID other = kKestaDialogExtensionTypeID;
    KestaPlugIn* plugIn;
    void* found;
    KestaDialogExtension* pane;
    KestaDialogExtension* second;
    KestaAPIVersion version = {{0, 0}, {0, 0}};

    other.bytes[15] ^= 1;
    if (factory(NULL, other) != NULL)
        return 1;
    plugIn = factory(NULL, kKestaDialogExtensionTypeID);
    if (!plugIn || plugIn->table->reserved)
        return 2;

    found = plugIn;
    if (plugIn->table->QueryInterface(plugIn, other, &found) != (KestaResult)0x80000004u || found != NULL)
        return 3;
    if (plugIn->table->QueryInterface(plugIn, kKestaIUnknownID, &found) != 0 || found != plugIn)
        return 4;
    if (plugIn->table->AddRef(plugIn) != 3 || plugIn->table->Release(plugIn) != 2 ||
        plugIn->table->Release(plugIn) != 1)
        return 5;

    if (plugIn->table->QueryInterface(plugIn, kKestaDialogExtensionInterfaceID, &found) != 0)
        return 6;
    pane = found;
    if (pane->table->GetAPIVersion(pane, &version) != 0 || version.build.major != 1 || version.base.minor != 0)
        return 7;
    pane->table->Retain(pane);
    second = pane;
    second->table->Release(&second);
    if (second != NULL || !pane->table->Prologue || !pane->table->Terminate)
        return 8;
    pane->table->Release(&pane);
    if (pane != NULL)
        return 9;
    return plugIn->table->Release(plugIn) == 0 ? 0 : 10; /* the pane was not counted */
}
