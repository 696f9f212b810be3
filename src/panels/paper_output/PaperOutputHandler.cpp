#include "panels/paper_output/PaperOutputHandler.h"

#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "panels/paper_output/DelayedPrint.h"
#include "panels/paper_output/FinishingRules.h"
#include "panels/paper_output/PaperOutputView.h"
#include "panels/paper_output/SavedJob.h"
#include "panels/paper_output/SecurePrint.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "pde/interface/PanelChoice.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/windows/ModalLoop.h"

namespace kesta::paper_output {
namespace {

void FollowPaper(_PaperOutputContext& panel)
{
    Menu none;
    bool changed = ApplyPaperRules(panel.options, none); // also where no finishing is shown
    ChangeFinishingMenus(panel, [&](Menu& menu) { changed = ApplyPaperRules(panel.options, menu) || changed; });
    if (changed)
        ShowFinishing(panel);
}

void FollowJobType(_PaperOutputContext& panel)
{
    const PopupButton* popup = FindPopupButton(panel.pane, {kSignature, kJobTypePopup});
    const bool isPicked = !popup || !popup->isGoneThrough(); // on the way to another one nobody wants its setup
    if (EnableDisableJobTypeSetupButton(panel) && isPicked)
        ClickControl(FindHere(panel, kJobTypeSetupButton));
}

void SetUpJobType(_PaperOutputContext& panel)
{
    JobType& job = panel.options.jobType;
    switch (job.number) {
    case kJobTypeSavedJob:
        RunModalSavedJobDialog(*panel.bundle, job);
        break;
    case kJobTypeSecurePrint:
        RunModalSecurePrintSetup(*panel.bundle, job.securePasscode);
        break;
    case kJobTypeDelayedPrint:
        RunModalDelayedPrintSetup(*panel.bundle, job.delayedPrintTime);
        break;
    }
}

// Other panels read at once whether the job is a booklet.
void FollowBooklet(_PaperOutputContext& panel)
{
    const bool isOn = panel.options.booklet.isOn();
    if (Ticket* settings = GetTicketFromSession(*panel.session, kPMPrintSettingsTicket).ticket) {
        settings->set(kPrintingManagerClient, key::BookletLayout, isOn);
        if (!isOn)
            ChangeFinishingMenus(panel, [&](Menu& menu) { EnableFinishingItems(menu, *settings); });
    }
    ShowTwoSided(panel);
    SendControlEvent(*panel.pane, CommandEvent{.command = kCommandOthersRead});
}

void CreateBooklet(_PaperOutputContext& panel)
{
    if (RunModalBookletCreationDialog(*panel.bundle, panel.options.booklet) != noErr)
        return;
    ApplyBooklet(panel.options);
    FollowBooklet(panel);
}

void StopBooklet(_PaperOutputContext& panel)
{
    EndBooklet(panel.options);
    FollowBooklet(panel);
    ShowFinishing(panel);
    if (QWidget* popup = FindHere(panel, kTwoSidedPopup))
        popup->setFocus(); // the button is gone
}

void ChooseSeparators(_PaperOutputContext& panel)
{
    ModalResult result = ModalResult::Cancel;
    RunModalSeparatorsDialog(*panel.bundle, panel.options.separatorCount, panel.options.separatorStock, result);
    ShowPaper(panel);
}

} // namespace

EventResult pdeShellPaperOutputEventHandler(_PaperOutputContext& panel, const HitEvent& hit)
{
    FollowPaper(panel);
    PaperOutputOptions& options = panel.options;
    BoundOptions(panel).take(hit, options);
    BoundFinishing(panel).take(hit, options); // a staple's command has shown it already
    switch (hit.control.number) {
    case kJobTypePopup:
        FollowJobType(panel);
        break;
    case kJobTypeSetupButton:
        SetUpJobType(panel);
        EnableDisableJobTypeSetupButton(panel); // the summary says what was set up
        break;
    case kEndBookletButton:
        StopBooklet(panel);
        break;
    case kTwoSidedPopup:
        options.duplex = hit.ticketValue;
        FollowDuplex(options);
        break;
    }
    ShowPictures(panel);
    return EventResult::NotHandled;
}

EventResult pdeShellPaperOutputEventHandler(_PaperOutputContext& panel, const CommandEvent& chosen)
{
    FollowPaper(panel);
    if (chosen.command == kBookletCreation)
        CreateBooklet(panel);
    else if (chosen.command == kSeparatorsCommand)
        ChooseSeparators(panel);
    else if (ApplyFinishingCommand(panel.options, chosen.command) && panel.options.booklet.isOn())
        ShowTwoSided(panel);
    ShowFinishing(panel);
    return EventResult::NotHandled;
}

} // namespace kesta::paper_output
