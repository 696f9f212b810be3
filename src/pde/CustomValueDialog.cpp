#include "pde/TextFieldUtilities.h"

#include "pde/BundleUtilities.h"
#include "toolkit/InterfaceFile.h"
#include "toolkit/ModalLoop.h"

namespace kesta {
namespace {

constexpr ControlID kValueField{"Util"_code, 1};
constexpr QLatin1StringView kHelpPage("image_options/db_custom_color_d.htm");

EventResult HandleCommand(const Bundle& bundle, QWidget& window, FourCharCode command)
{
    switch (command) {
    case kCommandOK:
        EndModalLoop(window, ModalResult::OK);
        return EventResult::Handled;
    case kCommandCancel:
        EndModalLoop(window, ModalResult::Cancel);
        return EventResult::Handled;
    case kCommandHelp:
        DisplayHelp(bundle, kHelpPage);
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

} // namespace

OSStatus RunModalCustomValueDialog(const Bundle& bundle, const TextLimits& limits, std::optional<QString>& text,
                                   ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "Utilities", "CustomValue");
    QLineEdit* field = FindTextField(window.get(), kValueField);
    if (!field)
        return kInterfaceFileUnreadable;
    LimitInputLengthAndCharacters(field, limits);
    field->setText(text.value_or(QString()));
    field->setFocus();

    const EventHandler commands = InstallEventHandler(
        *window, [&](const CommandEvent& event) { return HandleCommand(bundle, *window, event.command); });
    result = RunModalLoop(*window);
    text = result == ModalResult::OK ? std::optional(field->text()) : std::nullopt;
    return noErr;
}

} // namespace kesta
