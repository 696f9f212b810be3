// kesta-print: a print dialog, and lp with the pane's options.

#include "host/commandline/Console.h"
#include "host/commandline/NoDialog.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/QtTexts.h"
#include "host/script/ScriptPlayer.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/FileChooser.h"
#include "platform/system/SafeFile.h"
#include "toolkit/style/KestaStyle.h"
#include "toolkit/windows/ToolkitServices.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

#include <malloc.h>

#include <cstdio>
#include <span>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

int Fail(const QString& reason)
{
    PrintFailure(reason);
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

// The plug-in with its panels; an error when a panel is missing, which a pane would wait for without end.
PlugInOrError PreparePlugIn(const QStringList& panels)
{
    PlugInOrError loaded = LoadPlugIn();
    if (loaded.plugIn) {
        if (const std::optional<QString> problem = ChoosePanels(*loaded.plugIn, panels))
            loaded = {{}, *problem};
    }
    if (!loaded.plugIn)
        Fail(loaded.error);
    return loaded;
}

int RunDialog(const CommandLine& commandLine)
{
    const QStringList places = BundlePlaces(u"KestaPrint.bundle"_s);
    const auto [texts, error] = LoadBundleAt(FindBundleFolder(places));
    if (!texts)
        return Fail(
            u"the dialog's own files (KestaPrint.bundle) can't be read in %1: %2"_s.arg(places.join(u", "_s), error));
    const auto qtTexts = InstallQtTexts(*texts);
    QApplication::setLayoutDirection(QLocale(TextsLanguage(*texts)).textDirection());
    const bool isScripted = !commandLine.scriptPath.isEmpty();
    if (isScripted)
        FileChooser::install(nullptr); // a script can't answer the desktop's file dialog
    DialogScript script = ReadScript(commandLine.scriptPath);
    if (!script.error.isEmpty())
        return FailScript(script.error);
    PlugInOrError plugIn = PreparePlugIn(commandLine.panels);
    if (!plugIn.plugIn && !commandLine.panels.isEmpty()) // the panels were asked for
        return 1;

    PrintDialog dialog(
        {.commandLine = commandLine, .texts = texts, .plugIn = std::move(plugIn), .scripted = isScripted});
    if (const std::optional<QString> problem = dialog.prepare())
        return Fail(*problem);
    if (!isScripted)
        return dialog.run();
    const ScriptPlayer player(std::move(script), dialog,
                              [bundle = texts](const QString& key) { return TranslationsOf(key, *bundle); });
    const int status = dialog.run();
    if (const std::optional<QString> fault = player.fault())
        return FailScript(*fault);
    return status;
}

int Run(int argc, char** argv)
{
    const std::span<const char* const> arguments(argv + 1, argc > 0 ? static_cast<std::size_t>(argc) - 1 : 0);
    const CommandLineResult parsed = ParseCommandLine(arguments);
    if (!parsed.error.isEmpty())
        return Fail(parsed.error);
    const CommandLine& commandLine = parsed.commandLine;
    int programOnly = 1; // the options are ours, not Qt's
    if (RunsWithoutDialog(commandLine)) {
        const QCoreApplication application(programOnly, argv);
        return RunWithoutDialog(commandLine);
    }
    if (!ChooseScreen(commandLine))
        return Fail(u"there is no display to show the dialog on: use --no-dialog or --script FILE"_s);
    qInstallMessageHandler(WriteMessage);
    QApplication application(programOnly, argv);
    InstallKestaStyle(application);
    InstallToolkitServices();
    return RunDialog(commandLine);
}

} // namespace
} // namespace kesta::host

int main(int argc, char** argv)
{
    mallopt(M_ARENA_MAX, 1); // the threads beside the window wait for a server: a heap each would be memory for nothing
    return kesta::host::Run(argc, argv);
}
