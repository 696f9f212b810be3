#include "printer/PPDUtilities.h"

#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Sentence.h"
#include "platform/printsystem/PPDFileCheck.h"
#include "printer/LocalizedPPD.h"

#include <QFile>
#include <QUrl>

#include <cups/ppd.h>

#include <cstdio>
#include <memory>

namespace kesta {
namespace {

struct ClosePPD {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

std::unique_ptr<ppd_file_t, ClosePPD>& CurrentPPD()
{
    static std::unique_ptr<ppd_file_t, ClosePPD> ppd;
    return ppd;
}

// The local file that describes the current printer.
std::optional<QString> CurrentPPDPath()
{
    const PrintSession* session = GetCurrentPrintSession();
    const PMPrinter* printer = session ? PMSessionGetCurrentPrinter(*session) : nullptr;
    const std::optional<QString> url =
        printer ? PMPrinterGetDescriptionURL(*printer, kPMPPDDescriptionType) : std::nullopt;
    const QString path = url ? QUrl(*url).toLocalFile() : QString();
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

ppd_file_t* OpenPPD(const QString& path)
{
    if (const std::optional<Message> problem = PPDFileProblem(path)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(Sentence(*problem, HostTexts())));
        return nullptr;
    }
    ppd_file_t* ppd = ppdOpenFile(QFile::encodeName(path).constData());
    if (!ppd) {
        int line = 0;
        const char* reason = ppdErrorString(ppdLastError(&line));
        std::fprintf(stderr, "The printer description %s can't be used: %s, line %d.\n", qUtf8Printable(path), reason,
                     line);
    }
    return ppd;
}

} // namespace

ppd_file_t* PPDGetCurrent()
{
    if (CurrentPPD())
        return CurrentPPD().get();
    if (const std::optional<QString> path = CurrentPPDPath()) {
        CurrentPPD().reset(OpenPPD(*path));
        LocalizePPD(CurrentPPD().get());
    }
    return CurrentPPD().get();
}

void PPDCloseCurrent()
{
    CurrentPPD().reset();
}

} // namespace kesta
