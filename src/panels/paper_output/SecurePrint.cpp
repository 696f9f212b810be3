#include "panels/paper_output/SecurePrint.h"

#include "panels/paper_output/PasscodeFields.h"
#include "pde/forms/DialogCommands.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace {

constexpr QLatin1StringView kSecurePrintHelp("How_to/m_ht_use_Secure_Print.htm");

} // namespace

OSStatus RunModalSecurePrintSetup(const Bundle& bundle, std::optional<QString>& passcode)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "SecurePrint", "SecurePrint");
    if (!window)
        return kInterfaceFileUnreadable;
    jobtypes::PasscodeFields fields(bundle, *window, jobtypes::kSecurePrintSignature, jobtypes::kSecurePrintNotices);
    const QString stored = passcode.value_or(QString());
    fields.fill(stored);
    fields.enableConfirmation(!stored.isEmpty());
    fields.focus();

    const EventHandler lengths = InstallEventHandler(*window, [&](const TextLengthEvent& event) {
        fields.follow(event);
        return EventResult::NotHandled;
    });
    const auto accept = [&] {
        return fields.settle(JudgeSecurePrintPasscode(fields.passcode(), fields.confirmation()));
    };
    if (RunModalDialog(bundle, *window, kSecurePrintHelp, accept) == ModalResult::OK)
        passcode = fields.passcode();
    return noErr;
}

} // namespace kesta
