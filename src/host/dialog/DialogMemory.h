#pragma once

#include "platform/values/Types.h"

#include <QString>

class QWidget;

namespace kesta::host {

// What the dialog begins with where nothing else is asked for, kept in the user's preferences.
struct DialogMemory {
    QString printer;  // of the last job, as -d takes it; empty without one
    SInt32 panel = 0; // that was shown last, from 1; 0 when unknown
};

DialogMemory RecallDialog();
void RememberDialog(const DialogMemory& memory);

// The panel that the pane in the host shows, from 1; 0 without a choice of panels.
SInt32 ShownPanel(const QWidget& paneHost);
// As the user would choose it; nothing where there is no such panel.
void ShowPanel(const QWidget& paneHost, SInt32 panel);

} // namespace kesta::host
