#pragma once

#include "host/pane/PlugInHost.h"
#include "toolkit/controls/ControlEvent.h"

#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace kesta::host::test {

// A plug-in whose operations are noted in the order of the calls. The one that was made last answers.
struct FakePlugIn {
    FakePlugIn();
    ~FakePlugIn();
    FakePlugIn(const FakePlugIn&) = delete;

    static const PlugIn& door();

    QStringList calls = {};
    KestaStatus prologue = 0;
    KestaStatus initialize = 0;
    KestaStatus open = 0;
    QWidget* pane = nullptr;
    int plugIns = 0; // alive
    int panes = 0;
    std::vector<std::string> panels = {};
    bool usesOwnPanels = false;
    KestaStatus missing = 0;
    bool swallowsOK = false; // as a pane with a job that is not ready
    EventHandler handler = {};
    std::function<void()> atSyncOut = {};
};

} // namespace kesta::host::test
