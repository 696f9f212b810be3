#include "host/Words.h"
#include "platform/plugins/Sentence.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

QByteArray Content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// What the pattern's first group finds in the text.
QStringList Found(const QString& text, const QString& pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch& match : QRegularExpression(pattern).globalMatch(text))
        found << match.captured(1);
    return found;
}

// A sentence that a source says: its key, and how many things stand in it.
struct Said {
    QString source;
    QString key;
    int arguments;
};

// How many arguments a call has whose opening parenthesis is at that place of the text.
int CountArguments(const QString& text, qsizetype opening)
{
    int depth = 0;
    int commas = 0;
    bool isQuoted = false;
    for (qsizetype at = opening; at < text.size(); ++at) {
        const QChar letter = text[at];
        if (letter == u'"' && text[at - 1] != u'\\')
            isQuoted = !isQuoted;
        if (isQuoted)
            continue;
        depth += letter == u'(' || letter == u'{' ? 1 : letter == u')' || letter == u'}' ? -1 : 0;
        commas += letter == u',' && depth == 1 ? 1 : 0;
        if (depth == 0)
            break;
    }
    return commas + 1;
}

QStringList Sources(const QString& folder)
{
    QStringList sources;
    for (QDirIterator all(QStringLiteral(SOURCES) + folder, {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
         all.hasNext();)
        sources << all.next();
    return sources;
}

std::vector<Said> SaidSentences()
{
    static const QRegularExpression say(u"\\b(?:Say|State)\\(\"([^\"]+)\""_s);
    std::vector<Said> said;
    for (const QString& source : Sources(u"/host"_s) + Sources(u"/platform"_s)) {
        const QString text = QString::fromUtf8(Content(source));
        for (const QRegularExpressionMatch& match : say.globalMatch(text)) {
            const bool isState = match.captured().startsWith(u"State"); // of an option: its name and its choice
            const int arguments = CountArguments(text, text.indexOf(u'(', match.capturedStart())) - 1;
            said.push_back({source, match.captured(1), isState ? 2 : arguments});
        }
    }
    return said;
}

// The keys of the window and of its sources, and those that the sources put together.
QStringList WindowKeys()
{
    QStringList keys;
    for (const QString& source : Sources(u"/host"_s)) {
        const QString text = QString::fromUtf8(Content(source));
        keys += Found(text, u"(?:LocalizedCount|LocalizedString)\\([^\"()+]*\"([^\"]+)\""_s);
        keys += Found(text, u"say\\(u\"([^\"]+)\""_s);
        for (const QString& problem : Found(text, u"return u\"(Pages [^\"]+)\""_s))
            keys << problem + u" Title"_s << problem + u" Message"_s;
    }
    const QString window = QString::fromUtf8(Content(QStringLiteral(HOST_RESOURCES "/PrintDialog/Window.ui")));
    return keys + Found(window, u"name=\"(?:text|toolTip|accessibleName)\"><string>([^<]+)<"_s);
}

bool Has(const char* table, const QString& key)
{
    return LocalizedString(test::PrintBundle(), key, table) != QLatin1StringView(kStringNotFound);
}

// What stands in the sentence, in either of its wordings.
int PlacesIn(const QString& key)
{
    int places = 0;
    for (const char* table : {"Console", "Localizable"}) {
        for (const QString& place : Found(LocalizedString(test::PrintBundle(), key, table), u"%([1-9])"_s))
            places = std::max(places, place.toInt());
    }
    return places;
}

TEST(PrintTexts, EverySentenceHasWordsForWhoeverReadsIt)
{
    const std::vector<Said> sentences = SaidSentences();
    EXPECT_GT(sentences.size(), 90u);
    for (const auto& [source, key, arguments] : sentences) {
        const bool isConsoleOnly = source.contains(u"/host/commandline/") || source.endsWith(u"/host/main.cpp");
        EXPECT_TRUE(Has("Localizable", key) || (isConsoleOnly && Has("Console", key))) << key.toStdString();
        EXPECT_EQ(PlacesIn(key), arguments) << key.toStdString() << " in " << source.toStdString();
    }
}

// Those of a table, which are looked up by what the job is.
QStringList PromiseKeys()
{
    const QString table = QString::fromUtf8(Content(QStringLiteral(SOURCES "/host/job/JobPromises.cpp")));
    return Found(table, u"\"([A-Z][A-Za-z ]+)\"[,}]"_s);
}

TEST(PrintTexts, EveryKeyHasATextAndEveryTextIsUsed)
{
    QStringList used = PromiseKeys();
    EXPECT_GT(used.size(), 15);
    for (const QString& key : used)
        EXPECT_TRUE(Has("Localizable", key) || Has("Console", key)) << key.toStdString();
    used += WindowKeys();
    EXPECT_GT(used.size(), 50);
    for (const QString& key : WindowKeys())
        EXPECT_TRUE(Has("Localizable", key)) << key.toStdString();
    for (const Said& said : SaidSentences())
        used << said.key;
    const QString catalogue =
        QString::fromUtf8(Content(QStringLiteral(HOST_RESOURCES "/translations/KestaPrint_en.ts")));
    for (const QString& key : Found(catalogue, u"<source>([^<]+)</source>"_s))
        EXPECT_TRUE(used.contains(key)) << key.toStdString();
}

TEST(PrintTexts, SentencesAreFilledInOnce)
{
    const Bundle& texts = test::PrintBundle();
    EXPECT_EQ(&HostTexts(), &texts) << "what the platform looks for is what the program has";
    EXPECT_EQ(test::OnConsole(Say("Request ID", u"a%2b-1"_s, 3)), u"request id is a%2b-1 (3 file(s))"_s);
    EXPECT_EQ(Sentence(Say("PPD Refused", u"x%2y.ppd"_s, 91, u"why"_s), texts),
              u"The printer description x%2y.ppd can’t be used: line 91: why."_s);
    EXPECT_EQ(Sentence(Say("Unheard Of", u"one"_s, Say("No Such File")), texts),
              u"Unheard Of: one, there is no such file"_s);
    EXPECT_EQ(LocalizedCount(texts, "Copies Summary", 1), u"1 copy"_s);
    EXPECT_EQ(LocalizedCount(texts, "Copies Summary", 25), u"25 copies"_s);
}

} // namespace
} // namespace kesta::host
