// What Print and Save Settings do.

#include "host/dialog/PrintDialog.h"

#include "host/dialog/PrintDialogControls.h"
#include "host/job/JobComposition.h"
#include "host/job/JobPromises.h"
#include "host/job/SavedSettings.h"
#include "host/job/SettingsMerge.h"
#include "host/ppd/Constraints.h"
#include "host/ppd/PPDFacts.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "platform/system/FileChooser.h"
#include "platform/system/Notices.h"
#include "platform/system/SafeFile.h"
#include "toolkit/windows/InterfaceFile.h"

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr int kAccept = 0; // of the buttons of a question before printing

// The sentences, and the changes of all conflicts, one a line each.
Alert ConflictQuestion(const ConflictReport& report, const Bundle& texts)
{
    QStringList sentences;
    QStringList changes;
    bool canResolve = true;
    for (const ChoiceConflict& conflict : report.conflicts) {
        sentences << Sentence(conflict.sentence, texts);
        canResolve = canResolve && !conflict.changes.empty();
        for (const ChoiceChange& change : conflict.changes)
            changes << Sentence(change.text, texts);
    }
    changes.removeDuplicates();
    const QString title = LocalizedString(texts, "Conflict Title");
    const QString goBack = LocalizedString(texts, "Go Back");
    if (!canResolve)
        return {title, LocalizedString(texts, "Conflict No Way Out").arg(sentences.join(u'\n')), {goBack}, 0};
    return {title,
            LocalizedString(texts, "Conflict Message").arg(sentences.join(u'\n'), changes.join(u'\n')),
            {LocalizedString(texts, "Accept Changes"), goBack},
            1};
}

// Of a queue that won't print what it is sent now; nothing when it will.
std::optional<Alert> QueueQuestion(const Queue& queue, const Bundle& texts)
{
    if (queue.isAccepting && !queue.isStopped)
        return std::nullopt;
    const bool waits = queue.isAccepting;
    QString message =
        waits ? LocalizedString(texts, "Queue Stopped Message") : LocalizedString(texts, "Queue Not Accepting Message");
    if (!queue.stateMessage.isEmpty())
        message = LocalizedString(texts, "Queue Reason").arg(message, queue.stateMessage);
    const QString title =
        waits ? LocalizedString(texts, "Queue Stopped Title") : LocalizedString(texts, "Queue Not Accepting Title");
    return Alert{title.arg(PrinterTitle(queue, texts)),
                 message,
                 {LocalizedString(texts, "Print Anyway"), LocalizedString(texts, "Go Back")},
                 1};
}

} // namespace

EventResult PrintDialog::print()
{
    if (finder_.isBusy() || sending_ || !printer_)
        return EventResult::Handled;
    if (!fields_->checkPages() || !acceptQueue() || !acceptPlainPrinting())
        return EventResult::Swallowed;
    storeInTickets();
    if (!settleConflicts() || !saveAfterPrint())
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
    return !question || GetNotices().ask(*question) == kAccept;
}

// The same, of a printer that can't do what the job's type says.
bool PrintDialog::acceptPlainPrinting() const
{
    const auto promise = setAside_ && printer_->isQueue() ? PromiseOf(setAside_->printSettings) : std::nullopt;
    if (!promise)
        return true;
    const Bundle& texts = *start_.texts;
    return GetNotices().ask(
               {.title = LocalizedString(texts, promise->title),
                .message = LocalizedString(texts, promise->question).arg(PrinterTitle(printer_->queue, texts)),
                .buttons = {LocalizedString(texts, "Print"), LocalizedString(texts, "Go Back")},
                .cancelButton = 1}) == kAccept;
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

// False: the user goes back to the dialog.
bool PrintDialog::settleConflicts()
{
    Dictionary& choices = tickets_.printSettings.ppdDict();
    const ConflictReport report = FindConflicts(printer_->ppd.path, choices);
    for (const QString& unknown : report.unknown) // of another printer that was chosen before
        choices.remove(unknown.section(u'=', 0, 0));
    if (report.conflicts.empty())
        return true;
    const Alert question = ConflictQuestion(report, *start_.texts);
    const bool accepted = GetNotices().ask(question) == kAccept && question.buttons.size() > 1;
    if (!accepted)
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
    const std::optional<FileError> error = WriteFile(path, WriteSavedSettings(tickets_), FileAccess::OwnerOnly);
    if (!error)
        return true;
    failed(Verbatim(error->text), LocalizedString(*start_.texts, "Saving Failed Title"));
    return false;
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
