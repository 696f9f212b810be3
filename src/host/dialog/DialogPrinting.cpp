// What Print and Save Settings do.

#include "host/commandline/Console.h"
#include "host/commandline/DialogOptions.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrintDialogControls.h"
#include "host/dialog/PrintTexts.h"
#include "host/job/JobComposition.h"
#include "host/job/SavedSettings.h"
#include "host/ppd/Constraints.h"
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
        sentences << conflict.sentence;
        canResolve = canResolve && !conflict.changes.empty();
        for (const ChoiceChange& change : conflict.changes) {
            if (!changes.contains(change.text))
                changes << change.text;
        }
    }
    const QString title = PrintText(texts, "Conflict Title");
    const QString goBack = PrintText(texts, "Go Back");
    if (!canResolve)
        return {title, PrintText(texts, "Conflict No Way Out").arg(sentences.join(u'\n')), {goBack}, 0};
    return {title,
            PrintText(texts, "Conflict Message").arg(sentences.join(u'\n'), changes.join(u'\n')),
            {PrintText(texts, "Accept Changes"), goBack},
            1};
}

// Of a queue that won't print what it is sent now; nothing when it will.
std::optional<Alert> QueueQuestion(const Queue& queue, const Bundle& texts)
{
    if (queue.isAccepting && !queue.isStopped)
        return std::nullopt;
    const bool waits = queue.isAccepting;
    QString message =
        waits ? PrintText(texts, "Queue Stopped Message") : PrintText(texts, "Queue Not Accepting Message");
    if (!queue.stateMessage.isEmpty())
        message = PrintText(texts, "Queue Reason").arg(message, queue.stateMessage);
    const QString title =
        waits ? PrintText(texts, "Queue Stopped Title") : PrintText(texts, "Queue Not Accepting Title");
    return Alert{title.arg(PrinterTitle(queue, texts)),
                 message,
                 {PrintText(texts, "Print Anyway"), PrintText(texts, "Go Back")},
                 1};
}

} // namespace

EventResult PrintDialog::print()
{
    if (finder_.isBusy() || sending_ || !printer_)
        return EventResult::Handled;
    if (!fields_->checkPages() || !acceptQueue())
        return EventResult::Swallowed;
    storeInTickets();
    if (!settleConflicts() || !saveAfterPrint())
        return EventResult::Swallowed;
    fields_->rememberPages();
    pane_.reset();
    if (printer_->isQueue())
        send();
    else
        end(0);
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

void PrintDialog::storeInTickets()
{
    WriteTickets(fields_->settings(), tickets_.printSettings, tickets_.pageFormat);
    if (pane_)
        pane_->syncToTickets();
    const PPDFacts facts = ReadPPDFacts(printer_ ? printer_->ppd.path : QString(), tickets_.printSettings.ppdDict());
    if (facts.paper) // a panel may have chosen another page size
        WritePaperRect(*facts.paper, tickets_.pageFormat);
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
    PrintFailure(error->text);
    status_ = 1;
    GetNotices().show({.title = PrintText(*start_.texts, "Saving Failed Title"), .message = error->text});
    return false;
}

std::optional<QString> PrintDialog::askForFile()
{
    std::optional<QString> path = GetFileChooser().save({.title = PrintText(*start_.texts, "Save Settings Title"),
                                                         .name = PrintText(*start_.texts, "Settings File Name"),
                                                         .patterns = {u"*.plist"_s}});
    if (!path && start_.scripted)
        PrintNote(u"the settings are not saved: no --save-settings FILE was given"_s);
    return path;
}

void PrintDialog::saveSettings()
{
    if (!fields_->checkPages())
        return;
    const QString& named = start_.commandLine.saveSettingsPath;
    const std::optional<QString> path = named.isEmpty() ? askForFile() : named;
    if (!path)
        return;
    storeInTickets();
    saveSettingsTo(*path);
}

// Where there is no queue, saving is all that Print does.
bool PrintDialog::saveAfterPrint()
{
    const QString& path = start_.commandLine.saveSettingsPath;
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

void PrintDialog::send()
{
    const HostSettings settings = fields_->settings();
    const ComposedOptions composed =
        ComposeJobOptions({.queueDefaults = printer_->defaults,
                           .ppdChoices = tickets_.printSettings.ppdDict(),
                           .commandLine = OptionsOutsideDialog(start_.commandLine.options, facts_),
                           .fields = {.copies = settings.copies,
                                      .pageRanges = settings.pageRanges,
                                      .orientation = settings.orientation,
                                      .pagesPerSheet = settings.pagesPerSheet},
                           .ticket = tickets_.printSettings.values(),
                           .reader = ticketReader()});
    if (!composed.problem.isEmpty()) {
        failedToPrint(composed.problem);
        return;
    }
    const Bundle& texts = *start_.texts;
    const PaneMessage word{PrintText(texts, "Sending Title").arg(PrinterTitle(printer_->queue, texts)),
                           PrintText(texts, "Sending Message").arg(documentName())};
    paneArea_->showProgress(word, 0, 0);
    sending_.emplace(SubmitJobAside(
        {.address = start_.commandLine.server},
        {.queue = printer_->queue.name,
         .title = start_.commandLine.title,
         .files = start_.commandLine.files,
         .options = composed.options},
        [this, word](const SubmissionProgress& progress) {
            paneArea_->showProgress(word, progress.sent, progress.total);
        },
        [this](const SubmissionResult& result) { sent(result); }));
    enableButtons();
}

void PrintDialog::sent(const SubmissionResult& result)
{
    sending_.reset();
    enableButtons();
    if (result.sent()) {
        if (!start_.commandLine.silent)
            PrintLine(result.message);
        end(0);
    } else if (result.cancelled) {
        openPane();
        GetNotices().show({.title = PrintText(*start_.texts, "Sending Stopped Title"), .message = result.message});
    } else {
        failedToPrint(result.message);
    }
}

// Everything stays as it was set, to try again.
void PrintDialog::failedToPrint(const QString& reason)
{
    PrintFailure(reason);
    status_ = 1;
    const Bundle& texts = *start_.texts;
    openPane();
    GetNotices().show({.title = PrintText(texts, "Sending Failed Title").arg(PrinterTitle(printer_->queue, texts)),
                       .message = reason});
}

} // namespace kesta::host
