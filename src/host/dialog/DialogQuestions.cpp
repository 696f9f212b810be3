#include "host/dialog/DialogQuestions.h"

#include "host/dialog/PrinterFinder.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"

namespace kesta::host {

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

Alert NotOfferedQuestion(const std::vector<NotOffered>& shown, const Bundle& texts)
{
    QStringList sentences;
    QStringList changes;
    for (const NotOffered& one : shown) {
        sentences << FormatText(LocalizedString(texts, "Not Offered Sentence"), {one.label, one.shown});
        if (!one.instead.isEmpty())
            changes << FormatText(LocalizedString(texts, "Choice Change"), {one.label, one.instead});
    }
    const QString title = LocalizedString(texts, "Not Offered Title");
    const QString goBack = LocalizedString(texts, "Go Back");
    if (changes.isEmpty())
        return {title, sentences.join(u'\n'), {LocalizedString(texts, "Print Anyway"), goBack}, 1};
    return {title,
            FormatText(LocalizedString(texts, "Conflict Message"), {sentences.join(u'\n'), changes.join(u'\n')}),
            {LocalizedString(texts, "Accept Changes"), goBack},
            1};
}

Alert LeaveOutQuestion(const QStringList& choices, const Bundle& texts)
{
    return {LocalizedString(texts, "Not Offered Title"),
            FormatText(LocalizedString(texts, "Leave Out Message"), {choices.join(u'\n')}),
            {LocalizedString(texts, "Leave Out"), LocalizedString(texts, "Go Back")},
            1};
}

Alert PromiseQuestion(const JobPromise& promise, const QString& printer, const Bundle& texts)
{
    return {LocalizedString(texts, promise.title),
            FormatText(LocalizedString(texts, promise.question), {printer}),
            {LocalizedString(texts, "Print"), LocalizedString(texts, "Go Back")},
            1};
}

bool IsAccepted(const Alert& question)
{
    return GetNotices().ask(question) == 0 && question.buttons.size() > 1;
}

} // namespace kesta::host
