#include "panels/paper_output/PaperOutputHandler.h"

#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "panels/paper_output/FinishingRules.h"
#include "panels/paper_output/JobTypeSetups.h"
#include "panels/paper_output/PaperOutputView.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
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

void ChooseJobType(_PaperOutputContext& panel, SInt32 jobType)
{
    panel.options.jobType = jobType;
    const PopupButton* popup = FindPopupButton(panel.pane, {kSignature, kJobTypePopup});
    const bool isPicked = !popup || !popup->isGoneThrough(); // on the way to another one nobody wants its setup
    if (EnableDisableJobTypeSetupButton(panel) && isPicked)
        ClickControl(FindHere(panel, kJobTypeSetupButton));
}

void SetUpJobType(_PaperOutputContext& panel)
{
    JobTypeDetails& details = panel.options.jobTypeDetails;
    switch (panel.options.jobType) {
    case kJobTypeSavedJob:
        RunModalSavedJobDialog(*panel.bundle, details);
        break;
    case kJobTypeSecurePrint:
        RunModalSecurePrintSetup(*panel.bundle, details.securePasscode);
        break;
    case kJobTypeDelayedPrint:
        RunModalDelayedPrintSetup(*panel.bundle, details.delayedPrintTime);
        break;
    }
}

void CreateBooklet(_PaperOutputContext& panel)
{
    PaperOutputOptions& options = panel.options;
    _BookletCreationParams booklet{.bundle = panel.bundle,
                                   .fold = options.fold,
                                   .layout = options.bookletLayout,
                                   .drawOutlines = options.bookletDrawOutlines,
                                   .newPaperSize = options.bookletSize,
                                   .gutter = options.bookletGutter,
                                   .creep = options.bookletCreep};
    if (RunModalBookletCreationDialog(booklet) != noErr)
        return;
    options.fold = booklet.fold;
    options.bookletLayout = booklet.layout;
    options.bookletDrawOutlines = booklet.drawOutlines;
    options.bookletSize = booklet.newPaperSize;
    options.bookletGutter = booklet.gutter;
    options.bookletCreep = booklet.creep;

    std::optional<SInt32> ticketDuplex;
    if (Ticket* settings = GetTicketFromSession(*panel.session, kPMPrintSettingsTicket).ticket) {
        settings->set(kPrintingManagerClient, key::BookletLayout, options.bookletLayout == kBookletOn);
        ticketDuplex = ReadPPDDuplex(*settings, panel.ppd);
    }
    ApplyBooklet(options, ticketDuplex);
    ShowTwoSided(panel, options.duplexPopupValue);
}

void ChooseSeparators(_PaperOutputContext& panel)
{
    ModalResult result = ModalResult::Cancel;
    RunModalSeparatorsDialog(*panel.bundle, panel.options.separatorCount, panel.options.separatorStock, result);
}

} // namespace

EventResult pdeShellPaperOutputEventHandler(_PaperOutputContext& panel, const HitEvent& hit)
{
    FollowPaper(panel);
    PaperOutputOptions& options = panel.options;
    switch (hit.control.number) {
    case kJobTypePopup:
        ChooseJobType(panel, hit.ticketValue);
        break;
    case kJobTypeSetupButton:
        SetUpJobType(panel);
        break;
    case kTwoSidedPopup:
        options.duplex = options.duplexPopupValue = hit.ticketValue;
        break;
    case kStaplePopup:
        ChooseStaple(options, hit.ticketValue); // its command has shown it already
        break;
    case kPunchPopup:
        options.punch = hit.ticketValue;
        break;
    case kDestinationPopup:
        options.outputBin = hit.ticketValue;
        break;
    case kQualityPopup:
        options.printQuality = hit.ticketValue;
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
    else if (ApplyFinishingCommand(panel.options, chosen.command, chosen.ticketValue) &&
             panel.options.bookletLayout == kBookletOn)
        ShowTwoSided(panel, kTwoSidedLongEdge);
    ShowPaper(panel); // the paper's own commands have come this way, too
    ShowFinishing(panel);
    return EventResult::NotHandled;
}

} // namespace kesta::paper_output
