// What the opening of a window does with its printer's PPD, beside the library of the print system opening it and
// marking its defaults. With an argument, does one of them once, for an instruction counter:
// scripts/bench-instructions.

#include "Pair.h"

#include "host/ppd/PPDFacts.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/values/PropertyList.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"

#include <QFile>
#include <QTemporaryDir>

#include <cups/ppd.h>

#include <cstdio>
#include <cstring>

namespace kesta::bench {

// Not static: an instruction counter finds them by name.
void OpenWindow(const QString& path)
{
    PrintSession session;
    session.printer = PMPrinter{.ppdPath = path};
    SetCurrentPrintSession(&session);
    host::ReadPPDFacts(path);
    LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures);
    UnloadInstallableOptions();
    PPDCloseCurrent();
    SetCurrentPrintSession(nullptr);
}

void OpenWithLibrary(const QString& path)
{
    ppd_file_t* ppd = ppdOpenFile(QFile::encodeName(path).constData());
    ppdMarkDefaults(ppd);
    ppdClose(ppd);
}

void ReadList(const QByteArray& xml)
{
    const PropertyListResult result = ParsePropertyList(xml);
    benchmark::DoNotOptimize(result);
}

namespace {

// A file that was not read before, as the one that the print server sends for each window.
QString NewCopy(const QTemporaryDir& folder, std::size_t number)
{
    QString copy = folder.filePath(QStringLiteral("%1.ppd").arg(number));
    QFile::copy(QStringLiteral(KESTA_PPD), copy);
    return copy;
}

void PPDOpening(benchmark::State& state)
{
    const QTemporaryDir folder;
    Times ours, library;
    for (auto _ : state) {
        const QString path = NewCopy(folder, ours.size());
        Measure(library, [&] { OpenWithLibrary(path); });
        Measure(ours, [&] { OpenWindow(path); });
        state.SetIterationTime(ours.back());
    }
    state.counters["time_to_library"] = Median(ours) / Median(library);
}

BENCHMARK(PPDOpening)->UseManualTime()->Iterations(100)->Unit(benchmark::kMicrosecond);

// 2000 entries, as a long store has them.
QByteArray LongList()
{
    Array entries;
    for (SInt32 i = 0; i < 2000; ++i)
        entries.emplace_back(Dictionary{{"Name", QStringLiteral("Entry %1").arg(i)}, {"Size", Number::Index(i)}});
    return WritePropertyList(Value(entries));
}

int DoOnce(const char* what)
{
    if (std::strcmp(what, "window") == 0)
        OpenWindow(QStringLiteral(KESTA_PPD));
    else if (std::strcmp(what, "library") == 0)
        OpenWithLibrary(QStringLiteral(KESTA_PPD));
    else if (std::strcmp(what, "list") == 0) {
        const QByteArray xml = LongList();
        ReadList(xml);
        std::printf("%lld\n", static_cast<long long>(xml.size()));
    } else
        return 2;
    return 0;
}

} // namespace
} // namespace kesta::bench

int main(int argc, char** argv)
{
    if (argc == 2 && argv[1][0] != '-')
        return kesta::bench::DoOnce(argv[1]);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
