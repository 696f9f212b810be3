#pragma once

#include "toolkit/style/KestaColors.h"

class QApplication;
class QWidget;

namespace kesta {

// Puts the project's look over Qt's Fusion style; any other style stays as it is. The palette becomes ours only when
// the desktop gives none, dark where the desktop prefers that; the environment variable KESTA_COLOR_SCHEME prevails
// with "light" or "dark".
//
// Interface files choose among the looks by the dynamic property `look`: label (over or beside a control), hint
// (limits, notes), summary, title, picture, tile (button of icon and text), segment (icon button), trailing (side
// button), pane (a QFrame); a MenuButton or PopupButton of the look title is DemiBold. The boolean property `invalid`
// marks a field, see SetInvalid.
void InstallKestaStyle(QApplication& application);

// Makes the palette ours, light or dark.
void UseOwnPalette(bool dark);

// Changes a widget's look after it was shown.
void SetLook(QWidget& widget, const char* look);

} // namespace kesta
