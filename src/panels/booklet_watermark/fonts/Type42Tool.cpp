// kesta-type42: one TrueType font as a PostScript Type 42 font.

#include "panels/booklet_watermark/fonts/SfntName.h"
#include "panels/booklet_watermark/fonts/Type42.h"
#include "platform/system/SafeFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kLargestFont = 256 * 1024 * 1024; // bytes

int Fail(const QString& problem)
{
    std::fprintf(stderr, "kesta-type42: %s\n", qPrintable(problem));
    return 1;
}

int WriteOut(const QByteArray& type42, const QString& path)
{
    if (!path.isEmpty()) {
        const auto error = kesta::WriteFile(path, type42);
        return error ? Fail(error->text) : 0;
    }
    const auto size = static_cast<std::size_t>(type42.size());
    const bool isWritten = std::fwrite(type42.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return isWritten ? 0 : Fail(u"can't write to standard output"_s);
}

int Convert(const QString& fontPath, const QString& outputPath)
{
    const kesta::FileContent font = kesta::ReadFile(fontPath, kLargestFont);
    if (!font.bytes)
        return Fail(font.error.text);
    const QByteArray name = kesta::booklet_watermark::PostScriptName(*font.bytes)
                                .value_or(QFileInfo(fontPath).completeBaseName().toLatin1());
    QByteArray type42;
    if (kesta::booklet_watermark::convertTTFtoPS42(*font.bytes, name, type42))
        return WriteOut(type42, outputPath);
    return Fail(type42.isEmpty() ? fontPath + u" is not a TrueType font that can be converted"_s
                                 : fontPath + u" has a table too long for a PostScript string"_s);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Converts a TrueType font to a PostScript Type 42 font."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"FONT.ttf"_s, u"the font"_s);
    parser.addOption({u"o"_s, u"Write to this file instead of standard output."_s, u"OUT"_s});
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        return Fail(u"one font is needed; --help tells more"_s);
    return Convert(parser.positionalArguments().front(), parser.value(u"o"_s));
}
