#include "pde/forms/DialogCommands.h"

#include "pde/menus/BundleUtilities.h"
#include "toolkit/controls/Controls.h"

namespace kesta {

EventResult HandleDialogCommand(const Bundle& bundle, QWidget& window, FourCharCode command, const QString& helpPage)
{
    switch (command) {
    case kCommandOK:
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
}

ModalResult RunModalDialog(const Bundle& bundle, QWidget& window, const QString& helpPage,
                           const std::function<bool()>& accepts)
{
    const EventHandler commands = InstallEventHandler(window, [&](const CommandEvent& event) {
        if (event.command == kCommandOK && accepts && !accepts())
            return EventResult::Handled;
        return HandleDialogCommand(bundle, window, event.command, helpPage);
    });
    return RunModalLoop(window);
}

} // namespace kesta
