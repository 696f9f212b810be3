#include "printer/PPDUtilities.h"

#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Sentence.h"
#include "platform/printsystem/PPDFile.h"
#include "printer/LocalizedPPD.h"

#include <QUrl>

#include <cstdio>
#include <memory>

namespace kesta {
namespace {

std::shared_ptr<ppd_file_t>& CurrentPPD()
{
    static std::shared_ptr<ppd_file_t> ppd;
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

// As the process has it open; but what a localizer changes is for the plug-in's eyes alone.
OpenPPD OpenLocalized(const QString& path)
{
    const PPDLocalizer localize = FindPPDLocalizer();
    OpenPPD opened = localize ? OpenPPDFile(path) : SharedPPDFile(path);
    if (opened.ppd && localize)
        localize(opened.ppd.get());
    return opened;
}

} // namespace

ppd_file_t* PPDGetCurrent()
{
    if (CurrentPPD())
        return CurrentPPD().get();
    if (const std::optional<QString> path = CurrentPPDPath()) {
        const OpenPPD opened = OpenLocalized(*path);
        if (!opened.ppd)
            std::fprintf(stderr, "%s\n", qUtf8Printable(Sentence(opened.problem, HostTexts())));
        CurrentPPD() = opened.ppd;
    }
    return CurrentPPD().get();
}

void PPDCloseCurrent()
{
    CurrentPPD().reset();
}

} // namespace kesta
