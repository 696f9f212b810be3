#include "plugin/PaneLifecycle.h"

#include <QApplication>

#include <cstdio>

// Runs two panes of the built plug-in in one process, from Prologue to Terminate, for a memory checker to watch.
int main(int argc, char** argv)
{
    using namespace kesta;

    const QApplication application(argc, argv);
    const KestaPlugInFactory factory = test::FindBuiltFactory();
    if (!factory)
        return 1;
    for (int run = 1; run <= 2; ++run) {
        test::FakeDialog dialog;
        const auto show = [&](const PanelInterface&, KestaContextRef) {
            dialog.window.show();
            QApplication::processEvents();
            return noErr;
        };
        if (const OSStatus status = test::RunPane(factory, dialog, show); status != noErr) {
            std::fprintf(stderr, "pane %d: status %d\n", run, status);
            return 1;
        }
        std::printf("pane %d: %zu ticket entries\n", run, dialog.tickets.printSettings.values().count());
    }
    return 0;
}
