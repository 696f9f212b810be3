// kesta-watermark: the watermark store on the command line, for administrators and scripts.

#include "watermark-tool/WatermarkTool.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

// What Qt finds about the computer or a picture is none of the user's business: we say in words what matters.
void Drop(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // no window is shown, and there may be no screen; pictures may have texts
    qInstallMessageHandler(Drop);
    const QGuiApplication application(argc, argv);
    const kesta::watermark_tool::Outcome outcome =
        kesta::watermark_tool::RunWatermarkTool(QGuiApplication::arguments().mid(1));
    for (const QString& line : outcome.said)
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    const auto size = static_cast<std::size_t>(outcome.output.size());
    const bool written = std::fwrite(outcome.output.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return written ? outcome.status : 1;
}
