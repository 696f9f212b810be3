#pragma once

#include "pde/interface/PanelInterface.h"

extern "C" KestaStatus GetImageOptionsPanelInterface(const PanelInterfaceHolder** holder);
