#include "panels/paper_output/SetupDialog.h"

#include "pde/BundleUtilities.h"
#include "toolkit/Controls.h"

namespace kesta {

ModalResult RunSetupDialog(const Bundle& bundle, QWidget& window, QLatin1StringView helpPage,
                           const std::function<bool()>& accept)
{
    const EventHandler commands = InstallEventHandler(window, [&](const CommandEvent& event) {
        switch (event.command) {
        case kCommandOK:
            if (accept())
                EndModalLoop(window, ModalResult::OK);
            return EventResult::Handled;
        case kCommandCancel:
            EndModalLoop(window, ModalResult::Cancel);
            return EventResult::Handled;
        case kCommandHelp:
            DisplayHelp(bundle, helpPage);
            return EventResult::Handled;
        default:
            return EventResult::NotHandled;
        }
    });
    return RunModalLoop(window);
}

} // namespace kesta
