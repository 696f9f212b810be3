#include "ticket-tool/TicketTool.h"

#include <QFile>

#include <cstdio>

namespace {

constexpr qint64 kMostInput = 2 << 20; // bytes; more than the longest options, so that longer ones are seen as such

QByteArray ReadStandardInput()
{
    QFile input;
    QByteArray text;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return text;
    while (text.size() < kMostInput) {
        const QByteArray piece = input.read(kMostInput - text.size());
        if (piece.isEmpty())
            break;
        text += piece;
    }
    return text;
}

// A print server hands its SetEnv variables to the filters.
QString KeyPath()
{
    const QByteArray named = qgetenv("KESTA_TICKET_KEY");
    return QFile::decodeName(named.isEmpty() ? QByteArray(kesta::ticket_tool::kDefaultKeyPath) : named);
}

} // namespace

int main(int argc, char* argv[])
{
    QByteArrayList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << argv[i];
    const kesta::ticket_tool::Outcome outcome =
        kesta::ticket_tool::RunTicketTool(arguments, KeyPath(), ReadStandardInput);
    if (!outcome.error.isEmpty())
        std::fprintf(stderr, "%s\n", outcome.error.toLocal8Bit().constData());
    const auto size = static_cast<std::size_t>(outcome.output.size());
    const bool written = std::fwrite(outcome.output.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return written ? outcome.status : 1;
}
