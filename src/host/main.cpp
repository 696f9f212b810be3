// kesta-print: a print dialog, and lp with the pane's options.

#include "host/commandline/Console.h"
#include "host/commandline/DialogCaller.h"
#include "host/commandline/NoDialog.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/QtTexts.h"
#include "host/script/ScriptPlayer.h"
#include "platform/plugins/BundlePlaces.h"
#include "platform/plugins/Sentence.h"
#include "platform/system/FileChooser.h"
#include "platform/system/SafeFile.h"
#include "toolkit/style/KestaStyle.h"
#include "toolkit/windows/ToolkitServices.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <span>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

int Fail(const Message& reason, const Bundle& texts)
{
    PrintFailure(reason, texts);
    return 1;
}

// In the form that dialog scripts promise.
int FailScript(const QString& fault)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
    return 1;
}

// Without a screen a script plays out of sight, and a person reads why there is no window. False in the latter case.
bool ChooseScreen(const CommandLine& commandLine)
{
    for (const char* screen : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(screen))
            return true;
    }
    return !commandLine.scriptPath.isEmpty() && qputenv("QT_QPA_PLATFORM", "offscreen");
}

// Drops what says nothing to the user: what Qt's offscreen platform can't do, and where sockets would go.
void WriteMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isNoise = message.startsWith(u"This plugin does not support "_s) ||
                         message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR not set"_s);
    if (!isNoise)
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, message)));
}

DialogScript ReadScript(const QString& path)
{
    if (path.isEmpty())
        return {};
    const FileContent content = ReadFile(path == u"-" ? u"/dev/stdin"_s : path, kLargestScript);
    return content.bytes ? ParseDialogScript(*content.bytes) : DialogScript{{}, content.error.text};
}

QStringList TranslationsOf(const QString& key, const Bundle& texts)
{
    QStringList found;
    std::vector<const Bundle*> bundles = LoadedBundles(); // those of panels among them
    bundles.insert(bundles.begin(), &texts);
    for (const Bundle* bundle : bundles) {
        for (const char* table : {"Localizable", "LANFax"}) {
            const QString text = LocalizedString(*bundle, key, table);
            if (!text.isEmpty() && text != QLatin1StringView(kStringNotFound))
                found << text;
        }
    }
    return found;
}

// The program's own bundle with its texts.
BundleOrError LoadTexts()
{
    const QStringList places = BundlePlaces(u"KestaPrint.bundle"_s);
    const QString folder = FindBundleFolder(places);
    return folder.isEmpty() ? BundleOrError{nullptr, Say("Bundle Missing", places.join(u", "_s))}
                            : LoadBundleAt(folder);
}

// The plug-in with its panels; an error when a panel is missing, which a pane would wait for without end.
PlugInOrError PreparePlugIn(const QStringList& panels, const Bundle& texts)
{
    PlugInOrError loaded = LoadPlugIn();
    if (loaded.plugIn) {
        if (const std::optional<Message> problem = ChoosePanels(*loaded.plugIn, panels))
            loaded = {{}, *problem};
    }
    if (!loaded.plugIn)
        PrintFailure(loaded.error, texts);
    return loaded;
}

// The program's exit status.
int PlayDialog(PrintDialog& dialog, DialogScript script, const Bundle& texts)
{
    const ScriptPlayer player(std::move(script), dialog,
                              [&texts](const QString& key) { return TranslationsOf(key, texts); });
    const int status = ExitStatus(dialog.run().end, true);
    const std::optional<QString> fault = player.fault();
    return fault ? FailScript(*fault) : status;
}

int RunDialog(const CommandLine& commandLine, const Bundle& texts)
{
    const auto qtTexts = InstallQtTexts(texts);
    QApplication::setLayoutDirection(QLocale(TextsLanguage(texts)).textDirection());
    const bool isScripted = !commandLine.scriptPath.isEmpty();
    if (isScripted)
        FileChooser::install(nullptr); // a script can't answer the desktop's file dialog
    DialogScript script = ReadScript(commandLine.scriptPath);
    if (!script.error.isEmpty())
        return FailScript(script.error);
    PlugInOrError plugIn = PreparePlugIn(commandLine.panels, texts);
    if (!plugIn.plugIn && !commandLine.panels.isEmpty()) // the panels were asked for
        return 1;
    auto [request, problem] = DialogRequest(commandLine, texts);
    if (!problem.isEmpty())
        return Fail(problem, texts);

    PrintDialog dialog({.request = std::move(request),
                        .texts = &texts,
                        .plugIn = std::move(plugIn),
                        .send = DialogSender(commandLine, texts),
                        .failed = [&texts](const Message& reason) { PrintFailure(reason, texts); },
                        .noted = [&texts](const Message& note) { PrintNote(note, texts); },
                        .scripted = isScripted});
    if (const std::optional<Message> fault = dialog.prepare())
        return Fail(*fault, texts);
    return isScripted ? PlayDialog(dialog, std::move(script), texts) : ExitStatus(dialog.run().end, false);
}

// What needs no window, and what there is to say when there can be none.
int RunOnConsole(const CommandLineResult& parsed)
{
    const BundleOrError loaded = LoadTexts();
    const Bundle& texts = loaded.bundle ? *loaded.bundle : HostTexts(); // it can print without its words, too
    if (!parsed.error.isEmpty())
        return Fail(parsed.error, texts);
    if (RunsWithoutDialog(parsed.commandLine))
        return RunWithoutDialog(parsed.commandLine, texts);
    return Fail(Say("No Display"), texts);
}

// Where one of the three standard files is closed, the next file that is opened would take its place: the document
// would be read from whatever that is.
void OpenStandardFiles()
{
    int opened = 0;
    do {
        opened = ::open("/dev/null", O_RDWR);
    } while (opened >= 0 && opened <= STDERR_FILENO);
    if (opened > STDERR_FILENO)
        ::close(opened);
}

int Run(int argc, char** argv)
{
    const std::span<const char* const> arguments(argv + 1, argc > 0 ? static_cast<std::size_t>(argc) - 1 : 0);
    const CommandLineResult parsed = ParseCommandLine(arguments);
    const CommandLine& commandLine = parsed.commandLine;
    int programOnly = 1; // the options are ours, not Qt's
    if (!parsed.error.isEmpty() || RunsWithoutDialog(commandLine) || !ChooseScreen(commandLine)) {
        const QCoreApplication application(programOnly, argv);
        return RunOnConsole(parsed);
    }
    qInstallMessageHandler(WriteMessage);
    QApplication application(programOnly, argv);
    InstallKestaStyle(application);
    InstallToolkitServices();
    const BundleOrError texts = LoadTexts();
    return texts.bundle ? RunDialog(commandLine, *texts.bundle)
                        : Fail(Say("Own Files Missing", texts.error), HostTexts());
}

} // namespace
} // namespace kesta::host

int main(int argc, char** argv)
{
    kesta::host::OpenStandardFiles();
    mallopt(M_ARENA_MAX, 1); // the threads beside the window wait for a server: a heap each would be memory for nothing
    return kesta::host::Run(argc, argv);
}
