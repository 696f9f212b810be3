#include "host/commandline/NoDialog.h"

#include "host/commandline/Console.h"
#include "host/job/JobComposition.h"
#include "host/job/JobPromises.h"
#include "host/job/SavedSettings.h"
#include "host/job/SettingsMerge.h"
#include "host/ppd/Constraints.h"
#include "host/ppd/ListOptions.h"
#include "host/ppd/PPDFacts.h"
#include "host/server/DocumentSource.h"
#include "host/server/Queues.h"
#include "host/server/Submission.h"

#include "platform/printsystem/JobSettings.h"

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// Nothing on success; otherwise what stopped the run.
using Failure = std::optional<Message>;

// The run of one command line.
struct Run {
    const CommandLine& commandLine;
    const Bundle& texts;
    PrintServer server;
    Cancellation cancellation = {}; // never asked for: the user presses Ctrl-C
    JobTickets tickets = {};
    NamedQueue queue = {};
    QueuePPD ppd = {}; // the path is --ppd's, or that of a private copy; empty for a queue without a PPD
    PrinterFacts facts = {};
};

Failure FindPrinter(Run& run)
{
    if (!run.commandLine.ppdPath.isEmpty()) {
        run.ppd.path = run.commandLine.ppdPath;
        return std::nullopt;
    }
    run.queue = FindQueue(run.server, run.commandLine.queue, run.cancellation);
    if (!run.queue.problem.isEmpty())
        return run.queue.problem;
    run.ppd = FetchQueuePPD(run.server, run.queue.queue.name, run.cancellation);
    if (run.ppd.path.isEmpty() && !run.ppd.hasNone)
        return run.ppd.problem;
    return std::nullopt;
}

Failure ListPrinterOptions(Run& run)
{
    if (Failure failure = FindPrinter(run))
        return failure;
    if (run.ppd.path.isEmpty())
        return run.ppd.problem;
    JobOptions marked = run.queue.defaults;
    for (const JobOption& option : run.commandLine.presets.options)
        SetJobOption(marked, option.name, option.value);
    const OptionList list = ListOptions(run.ppd.path, marked);
    if (!list.problem.isEmpty())
        return list.problem;
    PrintLine(list.text.chopped(list.text.endsWith(u'\n') ? 1 : 0));
    return std::nullopt;
}

Failure ReadSettings(Run& run)
{
    const QString& path = run.commandLine.settingsPath;
    return path.isEmpty() ? std::nullopt : ReadSavedSettings(path, run.tickets);
}

// A printer that the pane is not for gets what it would get from the dialog, whose window shows no more.
Failure LeaveOutHidden(Run& run)
{
    if (run.facts.suitsPane())
        return std::nullopt;
    const QString name = run.queue.queue.name.isEmpty() ? run.facts.name : run.queue.queue.name;
    if (const auto promise = PromiseOf(run.tickets.printSettings); promise && !run.queue.queue.name.isEmpty())
        return Say(promise->refusal, name);
    JobTickets fields;
    if (!CopyFields(run.tickets, fields))
        PrintNote(Say("Settings Left Out", name), run.texts);
    CopyTickets(fields, run.tickets);
    return std::nullopt;
}

// As the dialog does before it lets a job go.
Failure CheckJobType(Run& run)
{
    Ticket& settings = run.tickets.printSettings;
    if (!run.commandLine.ppdPath.isEmpty()) // nothing is printed
        return std::nullopt;
    if (Failure missing = MissingFor(settings))
        return missing;
    if (IsFax(settings) && run.facts.offers(u"KSTColor"_s, u"BW"_s))
        settings.ppdDict().set("KSTColor", "BW"); // a fax has no colours
    return std::nullopt;
}

// What the queue and the command line say goes into the tickets, so that what is saved is what is printed.
void MergeIntoTickets(Run& run)
{
    const JobPresets& presets = run.commandLine.presets;
    const JobOptions queueDefaults = run.facts.suitsPane() ? run.queue.defaults : JobOptions();
    MergeSettings({.queueDefaults = queueDefaults, .commandLine = presets.options}, run.facts, run.tickets);
    Ticket& settings = run.tickets.printSettings;
    const HostSettings saved = ReadTickets(settings, run.tickets.pageFormat);
    const HostSettings wanted = StartingSettings(presets, saved);
    if (wanted != saved)
        WriteTickets(wanted, settings, run.tickets.pageFormat);
}

// Of -o what the tickets don't say.
JobOptions OutsideTickets(const Run& run)
{
    JobOptions options = run.commandLine.presets.options;
    std::erase_if(options, [&](const JobOption& option) { return IsTaken(option, run.facts); });
    return options;
}

bool IsChoiceOfCommandLine(const Run& run, const QString& keyword)
{
    return FindJobOption(run.commandLine.presets.options, keyword).has_value();
}

// Choices of -o that the printer does not have stop the job: the print server would take the default in silence. Those
// of settings that were saved for another printer are left out.
Failure SettleUnknown(Run& run, const QStringList& unknown)
{
    for (const QString& fault : unknown) {
        const QString keyword = fault.section(u'=', 0, 0);
        if (IsChoiceOfCommandLine(run, keyword))
            return Say("Choice Not Offered", fault);
        run.tickets.printSettings.ppdDict().remove(keyword);
        PrintNote(Say("Choice Left Out", fault), run.texts);
    }
    return std::nullopt;
}

// One line a conflict, with the options that resolve it.
Message ConflictLines(const ConflictReport& report)
{
    Message lines;
    for (const ChoiceConflict& conflict : report.conflicts) {
        Message line = conflict.sentence;
        for (const ChoiceChange& change : conflict.changes)
            line = Say("Conflict With Change", line, change.text, change.keyword, change.choice);
        lines = lines.isEmpty() ? line : Say("Two Lines", lines, line);
    }
    return lines;
}

Failure CheckChoices(Run& run)
{
    if (run.ppd.path.isEmpty())
        return std::nullopt;
    Dictionary choices = run.tickets.printSettings.ppdDict();
    for (const JobOption& option : run.commandLine.presets.options) {
        if (run.facts.choices.contains(option.name))
            choices.set(option.name, option.value);
    }
    const ConflictReport report = FindConflicts(run.ppd.path, choices);
    if (!report.problem.isEmpty())
        return report.problem;
    if (Failure failure = SettleUnknown(run, report.unknown))
        return failure;
    return report.conflicts.empty() ? std::nullopt : std::optional(ConflictLines(report));
}

// The host's own fields as far as the tickets or the command line name them; what -o names is sent as it was given.
JobFields FieldsOf(const Run& run)
{
    const Ticket& settings = run.tickets.printSettings;
    const HostSettings values = ReadTickets(settings, run.tickets.pageFormat);
    const JobPresets& presets = run.commandLine.presets;
    const auto counts = [&](const Ticket& ticket, const char* key, const char* option) {
        return ticket.values().find(key) && !FindJobOption(presets.options, option);
    };
    JobFields fields;
    if (presets.copies || counts(settings, key::PMCopies, "copies"))
        fields.copies = values.copies;
    if (!presets.pageRanges.isEmpty() || counts(settings, key::PageRanges, "page-ranges"))
        fields.pageRanges = values.pageRanges;
    if (counts(settings, key::PagesPerSheet, "number-up"))
        fields.pagesPerSheet = values.pagesPerSheet;
    if (counts(run.tickets.pageFormat, key::PMOrientation, "orientation-requested") &&
        !FindJobOption(presets.options, "landscape"))
        fields.orientation = values.orientation;
    return fields;
}

Failure Send(Run& run)
{
    const Ticket& settings = run.tickets.printSettings;
    const Dictionary ticket = run.facts.suitsPane() ? settings.values() : Dictionary();
    const ComposedOptions composed = ComposeJobOptions({.queueDefaults = run.queue.defaults,
                                                        .ppdChoices = settings.ppdDict(),
                                                        .commandLine = OutsideTickets(run),
                                                        .fields = FieldsOf(run),
                                                        .ticket = ticket,
                                                        .reader = run.facts.ticketReader});
    if (!composed.problem.isEmpty())
        return composed.problem;
    const PrintJob job{.queue = run.queue.queue.name,
                       .title = run.commandLine.title,
                       .files = run.commandLine.files,
                       .options = composed.options};
    const SubmissionResult result = SubmitJob(run.server, job, run.cancellation);
    if (!result.sent())
        return result.message;
    if (!run.commandLine.silent)
        PrintLine(ConsoleSentence(result.message, run.texts));
    return std::nullopt;
}

Failure Print(Run& run)
{
    const bool hasQueue = run.commandLine.ppdPath.isEmpty();
    if (!hasQueue && run.commandLine.saveSettingsPath.isEmpty())
        return Say("Nothing To Do");
    if (Failure failure = hasQueue ? FindFileProblem(run.commandLine.files) : std::nullopt)
        return failure;
    if (Failure failure = ReadSettings(run))
        return failure;
    if (Failure failure = FindPrinter(run))
        return failure;
    if (!run.ppd.path.isEmpty())
        run.facts = ReadPPDFacts(run.ppd.path);
    if (Failure failure = LeaveOutHidden(run))
        return failure;
    MergeIntoTickets(run);
    if (Failure failure = CheckJobType(run))
        return failure;
    if (Failure failure = CheckChoices(run))
        return failure;
    const QString& path = run.commandLine.saveSettingsPath; // before sending: they are there to try again
    if (Failure failure = path.isEmpty() ? std::nullopt : SaveSettings(path, run.tickets))
        return failure;
    return hasQueue ? Send(run) : std::nullopt;
}

} // namespace

bool RunsWithoutDialog(const CommandLine& commandLine)
{
    return commandLine.help || commandLine.version || commandLine.listOptions || commandLine.noDialog;
}

int RunWithoutDialog(const CommandLine& commandLine, const Bundle& texts, std::chrono::milliseconds patience)
{
    if (commandLine.help || commandLine.version) {
        PrintLine(commandLine.help ? UsageText() : u"kesta-print "_s + QLatin1StringView(KESTA_VERSION));
        return 0;
    }
    Run run{commandLine, texts, {.address = commandLine.server, .patience = patience}};
    const Failure failure = commandLine.listOptions ? ListPrinterOptions(run) : Print(run);
    if (failure)
        PrintFailure(*failure, texts);
    return failure ? 1 : 0;
}

} // namespace kesta::host
