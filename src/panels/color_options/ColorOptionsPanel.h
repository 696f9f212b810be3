#pragma once

#include "pde/interface/PanelInterface.h"

extern "C" KestaStatus GetColorOptionPanelInterface(const PanelInterfaceHolder** holder);

namespace kesta::color_options {

// The plug-in that the panel comes in.
inline constexpr char kColorOptionsIdentifier[] = "com.kesta.print.pde.coloroptions";

} // namespace kesta::color_options
