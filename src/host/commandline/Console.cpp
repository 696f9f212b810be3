#include "host/commandline/Console.h"

#include "platform/plugins/Sentence.h"

#include <cstdio>

namespace kesta::host {
namespace {

void Write(std::FILE* stream, const char* before, const QString& text)
{
    std::fprintf(stream, "%s%s\n", before, text.toLocal8Bit().constData());
    std::fflush(stream);
}

} // namespace

QString ConsoleSentence(const Message& message, const Bundle& texts)
{
    return Sentence(message, texts, {"Console", "Localizable"});
}

void PrintLine(const QString& line)
{
    Write(stdout, "", line);
}

void PrintFailure(const Message& reason, const Bundle& texts)
{
    Write(stderr, "kesta-print: Error - ", ConsoleSentence(reason, texts));
}

void PrintNote(const Message& note, const Bundle& texts)
{
    Write(stderr, "kesta-print: ", ConsoleSentence(note, texts));
}

} // namespace kesta::host
