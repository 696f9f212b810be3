// pseudolanguage [--mirrored] ENGLISH.ts OUTPUT.ts
//
// Makes a language that nobody speaks from the English catalogue, to look at windows before a translator has worked:
// accented and half as long again, or, mirrored, in Hebrew letters. Placeholders, and texts without letters, stay.

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<char16_t, 26> kAccented = {u'á', u'ƀ', u'ç', u'ð', u'é', u'ƒ', u'ĝ', u'ĥ', u'î',
                                                u'ĵ', u'ķ', u'ļ', u'ɱ', u'ñ', u'ö', u'þ', u'ǫ', u'ŕ',
                                                u'š', u'ţ', u'ü', u'ṽ', u'ŵ', u'ẋ', u'ý', u'ž'};
constexpr std::array<char16_t, 26> kHebrew = {u'א', u'ב', u'ק', u'ד', u'ע', u'פ', u'ג', u'ה', u'י',
                                              u'ג', u'כ', u'ל', u'מ', u'נ', u'ו', u'פ', u'ק', u'ר',
                                              u'ש', u'ט', u'ו', u'ו', u'ש', u'ס', u'י', u'ז'};
constexpr char16_t kFiller[] =
    u" lorem ipsum dolor sit amet consectetur adipiscing elit sed do eiusmod tempor incididunt"
    u" ut labore et dolore magna aliqua ut enim ad minim veniam";

QChar Transcribed(QChar letter, bool mirrored)
{
    const QChar lower = letter.toLower();
    if (lower < u'a' || lower > u'z')
        return letter;
    const std::size_t index = lower.unicode() - u'a';
    if (mirrored)
        return kHebrew[index];
    return letter.isUpper() ? QChar(kAccented[index]).toUpper() : QChar(kAccented[index]);
}

QString Transcribed(QString text, bool mirrored)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (at == 0 || text[at - 1] != u'%') // "%n" is a placeholder
            text[at] = Transcribed(text[at], mirrored);
    }
    return text;
}

QString PseudoText(const QString& text, bool mirrored)
{
    const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
    if (!hasLetters)
        return text;
    if (mirrored)
        return Transcribed(text, true);
    const qsizetype extra = std::max<qsizetype>(2, (text.size() + 1) / 2);
    const QString filler = QString::fromUtf16(kFiller);
    return Transcribed(text + filler.repeated(extra / filler.size() + 1).left(extra).replace(extra - 1, 1, u"l"_s),
                       false);
}

// Copies the catalogue, its translations and language changed; false when it is damaged.
bool WriteCatalogue(QXmlStreamReader& in, QIODevice& out, bool mirrored)
{
    QXmlStreamWriter writer(&out);
    bool inTranslation = false;
    while (!in.atEnd()) {
        in.readNext();
        if (in.isStartElement())
            inTranslation = in.name() == u"translation" || in.name() == u"numerusform";
        if (in.isEndElement())
            inTranslation = false;
        if (in.isStartElement() && in.name() == u"TS") {
            writer.writeStartElement(u"TS"_s);
            writer.writeAttribute(u"version"_s, u"2.1"_s);
            writer.writeAttribute(u"language"_s, mirrored ? u"he"_s : u"en"_s);
        } else if (in.isCharacters() && inTranslation) {
            writer.writeCharacters(PseudoText(in.text().toString(), mirrored));
        } else if (!in.isComment()) {
            writer.writeCurrentToken(in);
        }
    }
    if (in.hasError())
        std::fprintf(stderr, "line %lld: %s\n", in.lineNumber(), qPrintable(in.errorString()));
    return !in.hasError();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QStringList files = QCoreApplication::arguments().mid(1);
    const bool mirrored = files.removeAll(u"--mirrored"_s) > 0;
    if (files.size() != 2) {
        std::fputs("usage: pseudolanguage [--mirrored] ENGLISH.ts OUTPUT.ts\n", stderr);
        return 2;
    }
    QFile in(files[0]);
    QSaveFile out(files[1]);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "%s\n", qPrintable(in.isOpen() ? out.errorString() : in.errorString()));
        return 1;
    }
    QXmlStreamReader reader(&in);
    return WriteCatalogue(reader, out, mirrored) && out.commit() ? 0 : 1;
}
