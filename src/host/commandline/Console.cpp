#include "host/commandline/Console.h"

#include <cstdio>

namespace kesta::host {
namespace {

void Write(std::FILE* stream, const char* before, const QString& text)
{
    std::fprintf(stream, "%s%s\n", before, text.toLocal8Bit().constData());
    std::fflush(stream);
}

} // namespace

void PrintLine(const QString& line)
{
    Write(stdout, "", line);
}

void PrintFailure(const QString& reason)
{
    Write(stderr, "kesta-print: Error - ", reason);
}

void PrintNote(const QString& note)
{
    Write(stderr, "kesta-print: ", note);
}

} // namespace kesta::host
