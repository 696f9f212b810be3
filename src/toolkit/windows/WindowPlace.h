#pragma once

class QWidget;

namespace kesta {

// Makes the window, which is not shown yet, a dialog of the one in front of which it appears: kept above it, without a
// button to minimise it, in its middle (where the desktop lets windows say so). A window that has a parent or a place
// keeps it.
void PlaceBefore(QWidget& window, const QWidget* front);

// Gives the window, which is not shown yet, the size that the user gave it last, within its least one and the screen's;
// from now on a size that the user gives it is kept. Windows are told apart by their signature and object name; one
// without a name forgets.
void RememberSize(QWidget& window);

} // namespace kesta
