#pragma once

#include "pde/interface/PlugInInterface.h"
#include "platform/printsystem/JobSettings.h"
#include "platform/printsystem/PrintSession.h"

#include <QPushButton>
#include <QWidget>

#include <functional>

namespace kesta::test {

// Loads the built plug-in's bundle and finds its factory through the registry; null, with a word on standard error,
// when that fails. A second call answers the same.
KestaPlugInFactory FindBuiltFactory();

// What a print dialog is to a pane: a window with a default and a cancel button, a room for the pane, and a session
// with the product's printer and the tickets of one job.
struct FakeDialog {
    FakeDialog();

    QWidget window;
    QWidget pane{&window};
    QPushButton print{&window}, cancel{&window};
    JobTickets tickets;
    PrintSession session;
};

// One pane in the dialog, from Prologue to Terminate, with the given steps between its opening and closing. The steps
// get its slots and context. noErr, or the first status that was another.
using PaneSteps = std::function<OSStatus(const PanelInterface& slots, KestaContextRef context)>;
OSStatus RunPane(KestaPlugInFactory factory, FakeDialog& dialog, const PaneSteps& steps);

} // namespace kesta::test
