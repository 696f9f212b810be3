#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using TableAndKey = std::pair<QString, QString>;
using Texts = std::map<TableAndKey, QString>;

std::string Name(const TableAndKey& key)
{
    return (key.first + u" / "_s + key.second).toStdString();
}

// The forms of a countable thing, which may name the number or not, but are otherwise filled in alike.
QString ReadForms(QXmlStreamReader& xml, const TableAndKey& key)
{
    QString text;
    while (xml.readNextStartElement()) {
        const QString form = xml.readElementText();
        EXPECT_FALSE(form.isEmpty()) << "a form is missing: " << Name(key);
        text = form;
    }
    return text;
}

// A catalogue's texts, the last form of countable things; one that is unfinished, or there twice, is a failure.
Texts TextsOf(const QString& path)
{
    Texts texts;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    TableAndKey key;
    bool isCountable = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            key.first = xml.readElementText();
        if (xml.name() == u"message")
            isCountable = xml.attributes().value(u"numerus"_s) == u"yes";
        if (xml.name() == u"source")
            key.second = xml.readElementText();
        if (xml.name() == u"translation") {
            EXPECT_FALSE(xml.attributes().hasAttribute(u"type"_s)) << "unfinished: " << Name(key);
            const QString text = isCountable ? ReadForms(xml, key) : xml.readElementText();
            EXPECT_TRUE(texts.emplace(key, text).second) << "twice: " << Name(key);
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return texts;
}

QString English(const QString& bundle)
{
    return QStringLiteral(KESTA_RESOURCES "/%1/translations/%1_en.ts").arg(bundle);
}

std::multiset<QString> PlaceholdersOf(const QString& text)
{
    static const QRegularExpression placeholder(u"%(\\d+|n)"_s);
    std::multiset<QString> found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found.insert(match.next().captured());
    return found;
}

TEST(EnglishTexts, AnswerEveryKeyWithAsManyValuesAsTheCodeGives)
{
    const Texts texts = TextsOf(English(u"KestaFeatures"_s));
    QFile keys(QStringLiteral(TEST_DATA "/text-keys.tsv"));
    ASSERT_TRUE(keys.open(QIODevice::ReadOnly));
    int count = 0;
    for (const QString& line : QString::fromUtf8(keys.readAll()).split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QStringList row = line.split(u'\t');
        const TableAndKey key = {row.value(1), row.value(0)};
        const auto found = texts.find(key);
        ASSERT_NE(found, texts.end()) << Name(key);
        EXPECT_FALSE(found->second.isEmpty()) << Name(key);
        std::multiset<QString> values;
        if (row.value(2) == u"n")
            values = {u"%n"_s};
        for (int i = 1; i <= row.value(2).toInt(); ++i)
            values.insert(u"%"_s + QString::number(i));
        EXPECT_EQ(PlaceholdersOf(found->second), values) << Name(key);
        ++count;
    }
    EXPECT_GT(count, 300);
    EXPECT_EQ(texts.at({u"Localizable"_s, u"-"_s}), u"-"); // a line in a menu
}

// The keys in a source's setting maps, and those that its forms are titled by.
QStringList KeysOfTables(const QString& source)
{
    static const QRegularExpression map(u"to_array<SettingRow>\\(\\{(.*?)\\}\\);"_s,
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression row(u"\\{\"((?:[^\"\\\\]|\\\\.)*)\","_s);
    static const QRegularExpression title(u"\\.(?:title|other) = \"([^\"]*)\""_s);
    QStringList keys;
    for (auto maps = map.globalMatch(source); maps.hasNext();) {
        for (auto rows = row.globalMatch(maps.next().captured(1)); rows.hasNext();)
            keys << rows.next().captured(1).replace(u"\\\""_s, u"\""_s);
    }
    for (auto titles = title.globalMatch(source); titles.hasNext();)
        keys << titles.next().captured(1);
    return keys;
}

TEST(EnglishTexts, AnswerTheKeysOfEveryTable)
{
    const Texts features = TextsOf(English(u"KestaFeatures"_s)), colors = TextsOf(English(u"ColorOptions"_s));
    int count = 0;
    for (const QString& folder : {u"pde"_s, u"panels"_s, u"product"_s, u"printer"_s}) {
        QDirIterator sources(QStringLiteral(KESTA_SOURCES "/") + folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile file(sources.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const Texts& texts = file.fileName().contains(u"/color_options/"_s) ? colors : features;
            for (const QString& key : KeysOfTables(QString::fromUtf8(file.readAll()))) {
                EXPECT_TRUE(texts.contains({u"Localizable"_s, key}))
                    << file.fileName().toStdString() << ": " << key.toStdString();
                ++count;
            }
        }
    }
    EXPECT_GT(count, 70);
}

// The house rules for what people read.
TEST(EnglishTexts, KeepToTheWordingOfTheHouse)
{
    const QRegularExpression unwanted(u":$|[!&]|\\.\\.\\.|%[@ds]|  |^ | $|'|\"|\\b(error|invalid|please)\\b"_s,
                                      QRegularExpression::CaseInsensitiveOption);
    for (const QString& bundle : {u"KestaFeatures"_s, u"ColorOptions"_s}) {
        for (const auto& [key, text] : TextsOf(English(bundle)))
            EXPECT_TRUE(key.second == u":" || !text.contains(unwanted)) << Name(key) << ": " << text.toStdString();
    }
    // A window's user has no command line at hand. (The program prints lines of its own, "Console".)
    const QRegularExpression commandLine(u"\\B-{1,2}[A-Za-z]|\\b(stdin|lpstat|kesta-print|lp)\\b"_s);
    for (const auto& [key, text] : TextsOf(English(u"KestaPrint"_s))) {
        const bool isInWindow = key.first == u"Localizable";
        EXPECT_FALSE(isInWindow && (text.contains(unwanted) || text.contains(commandLine)))
            << Name(key) << ": " << text.toStdString();
    }
}

// Any language, the pseudo-languages among them: the keys and values of the English one, and mnemonics at most once.
TEST(Translations, FitTheEnglishTexts)
{
    int files = 0;
    for (const QString& folder : {QStringLiteral(KESTA_RESOURCES), QStringLiteral(KESTA_PSEUDO_LANGUAGES)}) {
        for (QDirIterator all(folder, {u"*.ts"_s}, QDir::Files, QDirIterator::Subdirectories); all.hasNext(); ++files) {
            const QString path = all.next();
            const Texts english = TextsOf(English(QFileInfo(path).baseName().section(u'_', 0, 0)));
            for (const auto& [key, text] : TextsOf(path)) {
                const auto original = english.find(key);
                ASSERT_NE(original, english.end()) << path.toStdString() << ": " << Name(key);
                EXPECT_EQ(PlaceholdersOf(text), PlaceholdersOf(original->second))
                    << path.toStdString() << ": " << Name(key);
                const QString withoutAmpersands = QString(text).remove(u"&&"_s);
                EXPECT_LE(withoutAmpersands.count(u'&'), 1) << path.toStdString() << ": " << Name(key);
            }
        }
    }
    EXPECT_GE(files, 5); // three bundles in English, and the pseudo-languages
}

TEST(PseudoLanguage, IsHalfAsLongAgain)
{
    const Texts english = TextsOf(English(u"KestaFeatures"_s));
    const Texts pseudo = TextsOf(QStringLiteral(KESTA_PSEUDO_LANGUAGES "/KestaFeatures_qps.ts"));
    ASSERT_EQ(pseudo.size(), english.size());
    for (const auto& [key, text] : english) {
        const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
        if (hasLetters) {
            EXPECT_GE(pseudo.at(key).size() * 2, text.size() * 3) << Name(key);
        } else {
            EXPECT_EQ(pseudo.at(key), text);
        }
    }
}

} // namespace
} // namespace kesta
