#include "panels/paper_output/PasscodeFields.h"

#include "pde/forms/TextFieldUtilities.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/TextInput.h"

namespace kesta::jobtypes {
namespace {

QStringList Limits()
{
    return {QString::number(kShortestPasscode), QString::number(kLongestPasscode)};
}

void ShowNotice(const Bundle& bundle, const char* title, const char* message, const QStringList& arguments)
{
    GetNotices().show(
        {.title = LocalizedString(bundle, title), .message = LocalizedFormat(bundle, message, arguments)});
}

} // namespace

PasscodeFields::PasscodeFields(const Bundle& bundle, QWidget& window, FourCharCode signature,
                               const PasscodeNotices& notices)
    : bundle_(bundle),
      window_(window),
      signature_(signature),
      notices_(notices),
      passcode_(FindTextField(&window, {signature, kPasscodeField})),
      confirmation_(FindTextField(&window, {signature, kConfirmationField}))
{
    const TextLimits limits{.minimumLength = kShortestPasscode,
                            .maximumLength = kLongestPasscode,
                            .allowedCharacters = QString::fromLatin1(kPasscodeCharacters)};
    LimitInputLengthAndCharacters(passcode_, limits);
    LimitInputLengthAndCharacters(confirmation_, limits);
    for (const SInt32 label : {kPasscodeLimits, kConfirmationLimits})
        SetLocalizedStaticText(bundle, "Min-Max Digits", control(label), Limits());
}

QWidget* PasscodeFields::control(SInt32 number) const
{
    return FindControl(&window_, {signature_, number});
}

void PasscodeFields::fill(const QString& passcode)
{
    SetFieldText(passcode_, passcode);
    SetFieldText(confirmation_, passcode);
}

QString PasscodeFields::passcode() const
{
    return FieldText(passcode_);
}

QString PasscodeFields::confirmation() const
{
    return FieldText(confirmation_);
}

void PasscodeFields::focus()
{
    if (!passcode_)
        return;
    passcode_->setFocus();
    passcode_->selectAll();
    if (!CanBeTypedAtPrinter(passcode()))
        markPasscode();
}

// Those who hear the window are told why.
void PasscodeFields::markPasscode()
{
    RememberProblem(LocalizedFormat(bundle_, notices_.refused, Limits()));
    SetInvalid(passcode_, true);
}

void PasscodeFields::enable(bool enabled)
{
    for (const SInt32 number : {kPasscodeLabel, kPasscodeField, kPasscodeLimits})
        SetControlEnabled(control(number), enabled);
    enableConfirmation(enabled && IsLongEnoughPasscode(passcode()));
}

void PasscodeFields::enableConfirmation(bool enabled)
{
    for (const SInt32 number : {kConfirmationLabel, kConfirmationField, kConfirmationLimits})
        SetControlEnabled(control(number), enabled);
}

void PasscodeFields::follow(const TextLengthEvent& event)
{
    if (event.control != ControlID{signature_, kPasscodeField} || !confirmation_)
        return;
    enableConfirmation(event.length == TextLength::LongEnough);
    SetInvalid(confirmation_, false);
}

bool PasscodeFields::settle(PasscodeVerdict verdict)
{
    if (verdict == PasscodeVerdict::Accepted)
        return true;
    if (verdict == PasscodeVerdict::MakeOne) {
        fill(MakePasscode());
        ShowNotice(bundle_, "Passcode Required Header", notices_.made, Limits() << passcode());
        return true;
    }
    ShowNotice(bundle_, notices_.refusedTitle, notices_.refused, Limits());
    const bool isConfirmationWrong = confirmation_ && confirmation_->isEnabled() && CanBeTypedAtPrinter(passcode());
    SetInvalid(isConfirmationWrong ? confirmation_ : passcode_, true);
    return false;
}

} // namespace kesta::jobtypes
