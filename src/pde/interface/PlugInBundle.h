#pragma once

#include "platform/plugins/Bundle.h"

namespace kesta {

// As its Info.plist has it.
inline constexpr char kPlugInIdentifier[] = "com.kesta.print.pde.kestafeatures.vt4100_4200_4300";

// The bundle that this code belongs to; null before it is loaded.
inline const Bundle* PlugInBundle()
{
    return FindBundle(kPlugInIdentifier);
}

} // namespace kesta
