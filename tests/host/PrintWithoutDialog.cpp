// The host's window-less half as a program: PATIENCE (milliseconds), then kesta-print's arguments.

#include "host/commandline/CommandLine.h"
#include "host/commandline/Console.h"
#include "host/commandline/NoDialog.h"
#include "platform/plugins/BundlePlaces.h"

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char* argv[])
{
    using namespace kesta::host;
    const std::span<const char* const> arguments(argv, std::size_t(argc));
    const CommandLineResult parsed = ParseCommandLine(arguments.subspan(2));
    const QCoreApplication application(argc, argv);
    const QString folder = kesta::FindBundleFolder(kesta::BundlePlaces(QStringLiteral("KestaPrint.bundle")));
    const kesta::Bundle& texts = *kesta::LoadBundleAt(folder).bundle;
    if (!parsed.error.isEmpty()) {
        PrintFailure(parsed.error, texts);
        return 1;
    }
    return RunWithoutDialog(parsed.commandLine, texts, std::chrono::milliseconds(std::atoi(argv[1])));
}
