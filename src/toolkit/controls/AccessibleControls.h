#pragma once

namespace kesta {

// A window with this property is an alert when it is true, and a dialog when it is false, as any plain window is.
inline constexpr char kAlertProperty[] = "kestaAlert";

// Tells assistive programs what the controls that draw themselves, plain windows and fields are, are called and show.
// Controls and interface files see to it that it happens before the first of them is there.
void InstallAccessibleControls();

} // namespace kesta
