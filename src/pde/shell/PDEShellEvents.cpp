#include "pde/shell/PDEShell.h"

#include "pde/interface/JobTypeCheck.h"
#include "pde/interface/PanelChoice.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/BundleUtilities.h"
#include "pde/menus/SystemUtilities.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"
#include "toolkit/windows/InterfaceFile.h"

#include <algorithm>

namespace kesta::shell {
namespace {

// Digits of a secure print passcode.
constexpr int kLeastPasscodeDigits = 4;
constexpr int kMostPasscodeDigits = 10;

enum class Step : SInt32 { Previous = -1, Next = 1 };

void SelectAndShow(SInt32 index, PDEShellContext& shell)
{
    selectPanel(index, shell);
    if (PopupButton* choice = FindPopupButton(shell.parentPane, {kSignature, kPanelChoice}))
        choice->setValue(index);
}

void SelectAndShowInChoice(Step step, PDEShellContext& shell)
{
    const auto count = static_cast<SInt32>(shell.panels.size());
    SInt32 index = GetShownPanel()._lastTabIndex + static_cast<SInt32>(step);
    if (index > count)
        index = 1;
    else if (index < 1)
        index = count;
    SelectAndShow(index, shell);
}

// Where the user mends what OK was refused for: the panel comes to the front, the keyboard to its button.
void ShowJobTypeSetup(PDEShellContext& shell)
{
    const JobTypeCheck* check = GetJobTypeCheck();
    QWidget* button = check && check->setupButton ? check->setupButton() : nullptr;
    if (!button)
        return;
    for (const PanelRecord& panel : shell.panels) {
        if (panel.userPane && panel.userPane->isAncestorOf(button) && panel.index != GetShownPanel()._lastTabIndex)
            SelectAndShow(panel.index, shell);
    }
    if (!button->isEnabled()) // a fax has no setup to go to
        return;
    button->setFocus(Qt::TabFocusReason);
    button->window()->setAttribute(Qt::WA_KeyboardFocusChange); // with its ring
}

// Nothing where the pane has no such panel.
EventResult ShowPanelTitled(const QString& title, PDEShellContext& shell)
{
    const auto panel = std::ranges::find(shell.panels, title, &PanelRecord::title);
    if (panel == shell.panels.end() || panel->index == kTakesNoPart)
        return EventResult::NotHandled;
    SelectAndShow(panel->index, shell);
    return EventResult::Handled;
}

EventResult LetOthersRead(const PDEShellContext& shell)
{
    for (const PanelRecord& panel : shell.panels) {
        if (panel.index != kTakesNoPart && panel.index != GetShownPanel()._lastTabIndex)
            panel.interface.Sync(panel.context, shell.session, true);
    }
    return EventResult::Handled;
}

EventResult HandleHit(PDEShellContext& shell, const HitEvent& hit)
{
    if (hit.control.signature != kSignature)
        return EventResult::NotHandled;
    switch (hit.control.number) {
    case kPanelChoice:
        if (hit.value == GetShownPanel()._lastTabIndex)
            return EventResult::NotHandled;
        selectPanel(hit.value, shell);
        return EventResult::Handled;
    case kNextButton:
        SelectAndShowInChoice(Step::Next, shell);
        return EventResult::Handled;
    case kPreviousButton:
        SelectAndShowInChoice(Step::Previous, shell);
        return EventResult::Handled;
    default:
        return EventResult::NotHandled;
    }
}

EventResult HandleCommand(PDEShellContext& shell, FourCharCode command)
{
    switch (command) {
    case kCommandHelp:
        DisplayHelp(*shell.bundle);
        return EventResult::Handled;
    case kCommandPanelUp: // up the numbers, although the button with the up image goes down
        SelectAndShowInChoice(Step::Next, shell);
        return EventResult::NotHandled;
    case kCommandPanelDown:
        SelectAndShowInChoice(Step::Previous, shell);
        return EventResult::NotHandled;
    case kCommandOK: {
        const EventResult result = CheckJobType(*shell.bundle);
        if (result != EventResult::NotHandled)
            ShowJobTypeSetup(shell);
        return result;
    }
    case kCommandShowSpecialPages:
        return ShowPanelTitled(LocalizedString(*shell.bundle, "SpecialPagesTitle"), shell);
    case kCommandOthersRead:
        return LetOthersRead(shell);
    default:
        return EventResult::NotHandled;
    }
}

// Print dialogs before 10.5 stay open when a handler answers that all is done.
EventResult SwallowedResult()
{
    return RunningOn105OrLater() ? EventResult::Swallowed : EventResult::Handled;
}

} // namespace

EventResult CheckJobType(const Bundle& bundle)
{
    const JobTypeCheck* check = GetJobTypeCheck();
    const SInt32 jobType = check ? check->jobType() : 0;
    if (jobType == kJobTypeSecurePrint && !check->hasPasscode()) {
        const QStringList digits{QString::number(kLeastPasscodeDigits), QString::number(kMostPasscodeDigits)};
        GetNotices().show({.title = LocalizedString(bundle, "Invalid Secure Print Passcode Header"),
                           .message = LocalizedFormat(bundle, "Invalid Secure Print Passcode Message", digits)});
        return SwallowedResult();
    }
    if (jobType == kJobTypeFax && !check->hasFaxRecipients()) {
        check->runFaxSetup(bundle);
        return SwallowedResult();
    }
    return EventResult::NotHandled;
}

EventResult pdeShellEventHandler(PDEShellContext& shell, const ControlEvent& event)
{
    if (const auto* hit = std::get_if<HitEvent>(&event))
        return HandleHit(shell, *hit);
    if (const auto* command = std::get_if<CommandEvent>(&event))
        return HandleCommand(shell, command->command);
    const bool isMenuOpening = std::holds_alternative<MenuEnableItemsEvent>(event);
    return isMenuOpening ? EventResult::Handled : EventResult::NotHandled;
}

} // namespace kesta::shell
