#include "host/commandline/DialogCaller.h"

#include "host/commandline/Console.h"
#include "host/job/SavedSettings.h"
#include "host/server/DocumentSource.h"

#include "platform/plugins/Bundle.h"

#include <QFile>
#include <QFileInfo>

namespace kesta::host {
namespace {

// What stands for the document in the window. A printer without a queue gets none.
std::optional<QString> DocumentName(const CommandLine& commandLine, const Bundle& texts)
{
    if (!commandLine.files.isEmpty())
        return QFileInfo(QFile::decodeName(commandLine.files.front())).fileName();
    return commandLine.ppdPath.isEmpty() ? std::optional(LocalizedString(texts, "Standard Input")) : std::nullopt;
}

} // namespace

RequestOrProblem DialogRequest(const CommandLine& commandLine, const Bundle& texts)
{
    JobRequest request{.server = commandLine.server,
                       .queue = commandLine.queue,
                       .ppdPath = commandLine.ppdPath,
                       .deviceURI = commandLine.deviceURI,
                       .document = DocumentName(commandLine, texts),
                       .title = commandLine.title,
                       .presets = commandLine.presets,
                       .saveSettingsPath = commandLine.saveSettingsPath};
    std::optional<Message> problem;
    if (commandLine.ppdPath.isEmpty())
        problem = FindFileProblem(commandLine.files);
    if (!problem && !commandLine.settingsPath.isEmpty())
        problem = ReadSavedSettings(commandLine.settingsPath, *request.settings);
    return {std::move(request), problem.value_or(Message())};
}

SendFunction DialogSender(const CommandLine& commandLine, const Bundle& texts)
{
    return [&commandLine, &texts](const AcceptedJob& job, ProgressFunction progress,
                                  const std::function<void(SubmissionResult)>& done) {
        const PrintJob sent{.queue = job.queue, .title = job.title, .files = commandLine.files, .options = job.options};
        return SubmitJobAside({.address = commandLine.server}, sent, std::move(progress),
                              [&commandLine, &texts, done](const SubmissionResult& result) {
                                  if (result.sent() && !commandLine.silent)
                                      PrintLine(ConsoleSentence(result.message, texts));
                                  done(result);
                              });
    };
}

} // namespace kesta::host
