#include "platform/system/HelpViewer.h"

#include "platform/system/Installed.h"

#include <cstdio>

namespace kesta {
namespace {

class PrintedHelp : public HelpViewer {
public:
    OSStatus show(const QString& file, const QString& anchor) override
    {
        std::fprintf(stderr, "%s%s%s\n", qPrintable(file), anchor.isEmpty() ? "" : "#", qPrintable(anchor));
        return noErr;
    }
};

} // namespace

HelpViewer* HelpViewer::install(HelpViewer* viewer)
{
    return InstalledOr<HelpViewer, PrintedHelp>().install(viewer);
}

HelpViewer& GetHelpViewer()
{
    return InstalledOr<HelpViewer, PrintedHelp>().current();
}

} // namespace kesta
