// What Print and Save Settings do.

#include "host/dialog/PrintDialog.h"

#include "host/dialog/DialogQuestions.h"
#include "host/dialog/PrintDialogControls.h"
#include "host/job/JobComposition.h"
#include "host/job/SavedSettings.h"
#include "host/job/SettingsMerge.h"
#include "host/ppd/ConstraintRules.h"
#include "host/ppd/Constraints.h"
#include "host/ppd/PPDFacts.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "platform/system/FileChooser.h"
#include "platform/system/Notices.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/WindowSummary.h"

using namespace Qt::StringLiterals;

namespace kesta::host {
EventResult PrintDialog::print()
{
    if (finder_.isBusy() || sending_ || !printer_)
        return EventResult::Handled;
    if (!fields_->checkPages() || !acceptQueue() || !acceptPlainPrinting())
        return EventResult::Swallowed;
    storeInTickets();
    if (!settleNotOffered() || !settleUnknown() || !settleConflicts() || !saveAfterPrint())
        return EventResult::Swallowed;
    fields_->rememberPages();
    accepted_ = composeJob();
    if (!accepted_)
        return EventResult::Handled;
    pane_.reset();
    if (printer_->isQueue() && start_.send)
        send();
    else
        close(DialogEnd::Accepted);
    return EventResult::Handled;
}

// False: the user goes back to the dialog.
bool PrintDialog::acceptQueue() const
{
    const int position = finder_.position(); // the list says more than the single look-up: why it takes none
    const Queue& queue = position ? finder_.queues()[position - 1] : printer_->queue;
    const std::optional<Alert> question = QueueQuestion(queue, *start_.texts);
    return !question || IsAccepted(*question);
}

// The same, of a printer that can't do what the job's type says.
bool PrintDialog::acceptPlainPrinting() const
{
    const auto promise = setAside_ && printer_->isQueue() ? PromiseOf(setAside_->printSettings) : std::nullopt;
    if (!promise)
        return true;
    return IsAccepted(PromiseQuestion(*promise, PrinterTitle(printer_->queue, *start_.texts), *start_.texts));
}

void PrintDialog::storeInTickets()
{
    WriteTickets(fields_->settings(), tickets_.printSettings, tickets_.pageFormat);
    if (pane_)
        pane_->syncToTickets();
    const QString ppd = printer_ ? printer_->ppd.path : QString();
    if (const auto paper = ReadPaper(ppd, tickets_.printSettings.ppdDict())) // a panel may have chosen another size
        WritePaperRect(*paper, tickets_.pageFormat);
}

// What the panels show and this printer does not offer. False: the user goes back to the dialog.
bool PrintDialog::settleNotOffered()
{
    const std::vector<NotOffered> shown = pane_ ? FindNotOffered(paneArea_->host()) : std::vector<NotOffered>();
    if (shown.empty())
        return true;
    if (!IsAccepted(NotOfferedQuestion(shown, *start_.texts)))
        return false;
    ReplaceNotOffered(paneArea_->host());
    storeInTickets();
    return true;
}

// The same of choices that no panel shows: from saved settings, another printer or -o. Those that switch something off
// are no loss, nor is what panels write whether the printer has it or not.
bool PrintDialog::settleUnknown()
{
    const QString& ppd = printer_->ppd.path;
    JobOptions& options = start_.request.presets.options;
    Dictionary& choices = tickets_.printSettings.ppdDict();
    Dictionary typed; // of the printer's options, but not with its choices
    for (const JobOption& option : options) {
        if (facts_.choices.contains(option.name) && !IsTaken(option, facts_))
            typed.set(option.name, option.value);
    }
    const QStringList unknown = FindConflicts(ppd, choices).unknown;
    const QStringList unknownTyped = FindConflicts(ppd, typed).unknown;
    QStringList named = unknown;
    named.removeIf([&](const QString& fault) {
        const QString keyword = fault.section(u'=', 0, 0);
        const QString* choice = choices.string(keyword);
        return !foreign_.contains(keyword) || (choice && IsOffChoice(choice->toUtf8().constData()));
    });
    named += unknownTyped;
    if (!named.isEmpty() && !IsAccepted(LeaveOutQuestion(named, *start_.texts)))
        return false;
    for (const QString& fault : unknown)
        choices.remove(fault.section(u'=', 0, 0));
    for (const QString& fault : unknownTyped)
        std::erase_if(options, [&](const JobOption& option) { return option.name == fault.section(u'=', 0, 0); });
    return true;
}

// False: the user goes back to the dialog.
bool PrintDialog::settleConflicts()
{
    Dictionary& choices = tickets_.printSettings.ppdDict();
    const ConflictReport report = FindConflicts(printer_->ppd.path, choices);
    if (report.conflicts.empty())
        return true;
    if (!IsAccepted(ConflictQuestion(report, *start_.texts)))
        return false;
    choices = ApplyChanges(report, choices);
    if (pane_) { // the panels keep each option under a key of their own too
        pane_->syncToControls();
        pane_->syncToTickets();
    }
    choices = ApplyChanges(report, choices);
    return true;
}

bool PrintDialog::saveSettingsTo(const QString& path)
{
    const std::optional<Message> problem = SaveSettings(path, tickets_);
    if (problem)
        failed(*problem, LocalizedString(*start_.texts, "Saving Failed Title"));
    return !problem;
}

std::optional<QString> PrintDialog::askForFile()
{
    std::optional<QString> path = GetFileChooser().save({.title = LocalizedString(*start_.texts, "Save Settings Title"),
                                                         .name = LocalizedString(*start_.texts, "Settings File Name"),
                                                         .patterns = {u"*.plist"_s}});
    if (!path && start_.scripted && start_.noted)
        start_.noted(Say("Settings Not Saved"));
    return path;
}

void PrintDialog::saveSettings()
{
    if (!fields_->checkPages())
        return;
    const QString& named = start_.request.saveSettingsPath;
    const std::optional<QString> path = named.isEmpty() ? askForFile() : named;
    if (!path)
        return;
    storeInTickets();
    saveSettingsTo(*path);
}

// Where there is no queue, saving is all that Print does.
bool PrintDialog::saveAfterPrint()
{
    const QString& path = start_.request.saveSettingsPath;
    if (!path.isEmpty())
        return saveSettingsTo(path);
    if (printer_->isQueue())
        return true;
    if (const std::optional<QString> chosen = askForFile())
        return saveSettingsTo(*chosen);
    return start_.scripted;
}

TicketReader PrintDialog::ticketReader() const
{
    TicketReader reader = facts_.ticketReader;
    if (!printer_->ppd.hasNone)
        reader.problem = facts_.problem;
    return reader;
}

// Nothing when it can't be told to the print server; the user knows why then.
std::optional<AcceptedJob> PrintDialog::composeJob()
{
    AcceptedJob job{.queue = printer_->queue.name, .title = start_.request.title, .settings = start_.request.settings};
    if (!printer_->isQueue())
        return job;
    const HostSettings settings = fields_->settings();
    ComposedOptions composed =
        ComposeJobOptions({.queueDefaults = printer_->defaults,
                           .ppdChoices = tickets_.printSettings.ppdDict(),
                           .commandLine = OptionsOutsideDialog(start_.request.presets.options, facts_),
                           .fields = {.copies = settings.copies,
                                      .pageRanges = settings.pageRanges,
                                      .orientation = settings.orientation,
                                      .pagesPerSheet = settings.pagesPerSheet},
                           .ticket = setAside_ ? Dictionary() : tickets_.printSettings.values(),
                           .reader = ticketReader()});
    if (!composed.problem.isEmpty()) {
        failedToPrint(composed.problem);
        return std::nullopt;
    }
    job.options = std::move(composed.options);
    return job;
}

void PrintDialog::send()
{
    const Bundle& texts = *start_.texts;
    const PaneMessage word{LocalizedString(texts, "Sending Title").arg(PrinterTitle(printer_->queue, texts)),
                           jobName()};
    paneArea_->showProgress(word, 0, 0);
    sending_.emplace(start_.send(
        *accepted_,
        [this, word](const SubmissionProgress& progress) {
            paneArea_->showProgress(word, progress.sent, progress.total);
        },
        [this](const SubmissionResult& result) { sent(result); }));
    enableButtons();
}

void PrintDialog::sent(const SubmissionResult& result)
{
    const Bundle& texts = *start_.texts;
    sending_.reset();
    enableButtons();
    if (result.sent()) {
        close(DialogEnd::Accepted);
        return;
    }
    JobTickets chosen; // everything stays as it was set, to try again
    CopyTickets(setAside_ ? *setAside_ : tickets_, chosen);
    openPane(chosen);
    if (result.cancelled)
        GetNotices().show(
            {.title = LocalizedString(texts, "Sending Stopped Title"), .message = Sentence(result.message, texts)});
    else if (result.documentAtFault)
        failed(result.message, LocalizedString(texts, "Document Failed Title"));
    else
        failedToPrint(result.message);
}

void PrintDialog::failedToPrint(const Message& reason)
{
    const Bundle& texts = *start_.texts;
    failed(reason, LocalizedString(texts, "Sending Failed Title").arg(PrinterTitle(printer_->queue, texts)));
}

void PrintDialog::failed(const Message& reason, const QString& title)
{
    hasFailed_ = true;
    if (start_.failed)
        start_.failed(reason);
    GetNotices().show({.title = title, .message = Sentence(reason, *start_.texts)});
}

} // namespace kesta::host
