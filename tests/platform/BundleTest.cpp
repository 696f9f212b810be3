#include "platform/plugins/Bundle.h"
#include "platform/plugins/HelpBook.h"

#include "platform/SampleBundle.h"
#include "platform/system/SafeFile.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QLocale>

namespace kesta {
namespace {

using test::BundleFolder;

class WithLanguage {
public:
    explicit WithLanguage(const char* name) { QLocale::setDefault(QLocale(QString::fromLatin1(name))); }
    ~WithLanguage() { QLocale::setDefault(before_); }
    WithLanguage(const WithLanguage&) = delete;

private:
    QLocale before_;
};

// The sample under another identifier, so that it is read anew.
const Bundle& SampleCopy(const BundleFolder& folder, const QByteArray& identifier)
{
    folder.writeInfo("<key>CFBundleIdentifier</key><string>" + identifier + "</string>");
    const QString translations = QStringLiteral("/Contents/Resources/Translations/");
    QDir().mkpath(folder.path + translations);
    for (const char* language : {"de", "de_AT", "en"}) {
        const QString file = translations + QStringLiteral("Sample_%1.qm").arg(QString::fromLatin1(language));
        EXPECT_TRUE(QFile::copy(test::SamplePath() + file, folder.path + file));
    }
    return *LoadBundleAt(folder.path).bundle;
}

TEST(Bundle, IsFoundByItsIdentifierOnceLoaded)
{
    EXPECT_EQ(FindBundle("com.kesta.test.sample"), nullptr);
    const auto [bundle, error] = LoadBundleAt(test::SamplePath());
    ASSERT_TRUE(bundle) << test::Bare(error).toStdString();
    EXPECT_EQ(FindBundle("com.kesta.test.sample"), bundle);
    EXPECT_EQ(LoadBundleAt(test::SamplePath() + QStringLiteral("/../Sample.plugin/")).bundle, bundle);
    EXPECT_EQ(bundle->resourcesPath, bundle->path + QStringLiteral("/Contents/Resources"));
    EXPECT_EQ(*bundle->info.string(kCFBundleHelpBookName), QStringLiteral("Sample Help"));

    const BundleFolder twin;
    twin.writeInfo("<key>CFBundleIdentifier</key><string>com.kesta.test.sample</string>");
    const BundleOrError second = LoadBundleAt(twin.path);
    EXPECT_EQ(second.bundle, nullptr);
    EXPECT_EQ(second.error, Say("Bundle Loaded Twice", QFileInfo(twin.path).canonicalFilePath(),
                                QStringLiteral("com.kesta.test.sample"), bundle->path));
}

TEST(Bundle, CodeIsLoadedOnceByTheFirstLookUp)
{
    qunsetenv("SAMPLE_PLUGIN_LOADS");
    const Bundle& bundle = *LoadBundleAt(test::SamplePath()).bundle;
    EXPECT_EQ(FunctionNamed(bundle, "NoSuchFunction"), nullptr);
    const auto answer = reinterpret_cast<int (*)()>(FunctionNamed(bundle, "SampleAnswer"));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer(), 42);
    const Bundle copy = bundle;
    EXPECT_EQ(FunctionNamed(copy, "SampleAnswer"), FunctionNamed(bundle, "SampleAnswer"));
    EXPECT_EQ(qgetenv("SAMPLE_PLUGIN_LOADS"), "1");
}

TEST(Bundle, WhatCannotBeLoadedSaysWhy)
{
    const auto error = [](const QString& path) { return test::Bare(LoadBundleAt(path).error); };
    EXPECT_EQ(error(QStringLiteral("/nowhere/X.plugin")), QStringLiteral("Bundle Missing: /nowhere/X.plugin"));
    const BundleFolder folder;
    folder.write(QStringLiteral("Contents/readme"), "");
    EXPECT_TRUE(error(folder.path).endsWith(u"Info.plist: No such file or directory"));
    folder.write(QStringLiteral("Contents/Info.plist"), "<plist>");
    EXPECT_TRUE(error(folder.path).contains(u"Info.plist: line 1, column "));
    folder.writeInfo("");
    EXPECT_TRUE(error(folder.path).startsWith(u"Bundle Without Identifier: "));
    const QByteArray identifier = "<key>CFBundleIdentifier</key><string>com.kesta.test.broken</string>";
    folder.writeInfo(identifier + "<key>CFBundleExecutable</key><string>../../evil</string>");
    EXPECT_TRUE(error(folder.path).startsWith(u"Bundle Executable Not Plain: "));

    folder.writeInfo(identifier).write(QStringLiteral("Contents/Linux/Made.so"), "not a library");
    const Bundle* bundle = LoadBundleAt(folder.path).bundle;
    ASSERT_TRUE(bundle);
    EXPECT_EQ(FunctionNamed(*bundle, "SampleAnswer"), nullptr);
    EXPECT_TRUE(test::Bare(LoadCode(*bundle).value()).contains(u"/Contents/Linux/Made.so"));
    EXPECT_EQ(LocalizedString(*bundle, "Both"), QStringLiteral("STRING NOT FOUND"));
}

TEST(Bundle, ACutOffPlugInIsNamedAndNotLoaded)
{
    const FileContent whole = ReadFile(QStringLiteral(SAMPLE_PLUGIN "/Contents/Linux/Sample.so"), 100'000'000);
    ASSERT_TRUE(whole.bytes);
    for (const int size : {0, 100, 2000, 5000, 9000, 12'000}) {
        const BundleFolder folder;
        const QByteArray identifier = QByteArray("com.kesta.test.cut") + QByteArray::number(size);
        folder.writeInfo("<key>CFBundleIdentifier</key><string>" + identifier + "</string>");
        folder.write(QStringLiteral("Contents/Linux/Made.so"), whole.bytes->first(size));
        const Bundle* bundle = LoadBundleAt(folder.path).bundle;
        ASSERT_TRUE(bundle);
        EXPECT_TRUE(test::Bare(LoadCode(*bundle).value_or(Message())).contains(u"Made.so")) << size;
    }
}

TEST(Bundle, TextsFallBackToWiderLanguagesAndToEnglish)
{
    const WithLanguage austrian("de_AT");
    const BundleFolder folder(QStringLiteral("Sample"));
    const Bundle& bundle = SampleCopy(folder, "com.kesta.test.austrian");
    EXPECT_EQ(TextsLanguage(bundle), QStringLiteral("de_AT"));
    EXPECT_EQ(LocalizedString(bundle, "Both"), QStringLiteral("beid"));
    EXPECT_EQ(LocalizedString(bundle, "Only German"), QStringLiteral("nur deutsch"));
    EXPECT_EQ(LocalizedString(bundle, "Only English"), QStringLiteral("only English"));
    EXPECT_EQ(LocalizedString(bundle, "both"), QStringLiteral("STRING NOT FOUND"));
    EXPECT_EQ(LocalizedString(bundle, "Both", "LANFax"), QStringLiteral("Fax, bitte"));
    EXPECT_EQ(LocalizedString(bundle, "Only German", "LANFax"), QStringLiteral("STRING NOT FOUND"));

    Bundle seam = bundle;
    seam.strings = Dictionary{{"Localizable", Dictionary{{"Both", "given"}}}};
    EXPECT_EQ(LocalizedString(seam, "Both"), QStringLiteral("given"));
    EXPECT_EQ(LocalizedString(seam, "Only German"), QStringLiteral("nur deutsch"));
}

TEST(Bundle, TheNarrowestLanguageComesFirst)
{
    const WithLanguage chinese("zh_TW");
    EXPECT_EQ(PreferredLanguages().join(u' '), QStringLiteral("zh_Hant_TW zh_TW zh_Hant zh en"));
}

TEST(Bundle, LanguagesWithoutACatalogueReadEnglish)
{
    for (const char* language : {"C", "fr_FR", "en_GB"}) {
        const WithLanguage other(language);
        const BundleFolder folder(QStringLiteral("Sample"));
        const Bundle& bundle = SampleCopy(folder, QByteArray("com.kesta.test.") + language);
        EXPECT_EQ(TextsLanguage(bundle), QStringLiteral("en")) << language;
        EXPECT_EQ(LocalizedString(bundle, "Both"), QStringLiteral("both")) << language;
        EXPECT_EQ(LocalizedString(bundle, "Only German"), QStringLiteral("STRING NOT FOUND")) << language;
    }
}

static int FortyThree()
{
    return 43;
}

TEST(Bundle, OneInMemoryHasWhatItWasGiven)
{
    Bundle bundle = test::BundleWithTexts({"On"});
    bundle.functions[QStringLiteral("Given")] = reinterpret_cast<BundleFunction>(FortyThree);
    const Bundle& loaded = LoadBundle("com.kesta.test.memory", bundle);
    EXPECT_EQ(FindBundle("com.kesta.test.memory"), &loaded);
    EXPECT_EQ(LocalizedString(loaded, "On"), QStringLiteral("On"));
    EXPECT_EQ(LocalizedString(loaded, "On", "LANFax"), QStringLiteral("STRING NOT FOUND"));
    EXPECT_EQ(reinterpret_cast<int (*)()>(FunctionNamed(loaded, "Given"))(), 43);
    EXPECT_EQ(FunctionNamed(loaded, "SampleAnswer"), nullptr);
    EXPECT_EQ(&LoadBundle("com.kesta.test.memory", Bundle()), &loaded) << "the place stays";
}

TEST(Help, PagesAreFoundByLanguageAndMissingOnesShowTheStartPage)
{
    const WithLanguage german("de_DE");
    const BundleFolder folder;
    folder.write(QStringLiteral("Contents/Resources/Help/en/index.htm"), "start")
        .write(QStringLiteral("Contents/Resources/Help/en/only/english.htm"), "<a name='deep'></a>")
        .write(QStringLiteral("Contents/Resources/Help/en/page.htm"), "<p id=\"top\">")
        .write(QStringLiteral("Contents/Resources/Help/de/page.htm"), "<p id=\"top\">")
        .write(QStringLiteral("Contents/Resources/outside.htm"), "");
    const Bundle bundle{.resourcesPath = folder.path + QStringLiteral("/Contents/Resources")};
    const test::RecordingHelp viewer;
    const auto shown = [&](const char* page, const char* anchor) {
        EXPECT_EQ(OpenHelp(bundle, QString::fromLatin1(page), QString::fromLatin1(anchor)), noErr);
        return viewer.files.last().section(u'/', -2) + u'#' + viewer.anchors.last();
    };
    EXPECT_EQ(shown("page.htm", "top"), QStringLiteral("de/page.htm#top"));
    EXPECT_EQ(shown("only/english.htm", ""), QStringLiteral("only/english.htm#"));
    EXPECT_EQ(shown("", ""), QStringLiteral("en/index.htm#"));
    EXPECT_EQ(shown("missing.htm", ""), QStringLiteral("en/index.htm#"));
    EXPECT_EQ(shown("../../outside.htm", ""), QStringLiteral("en/index.htm#"));
    EXPECT_EQ(shown("", "top"), QStringLiteral("de/page.htm#top"));
    EXPECT_EQ(shown("", "deep"), QStringLiteral("only/english.htm#deep"));
    EXPECT_EQ(shown("", "t.p"), QStringLiteral("en/index.htm#t.p"));
    EXPECT_EQ(OpenHelp(Bundle{.resourcesPath = QStringLiteral("/nowhere")}, QString(), QString()), kFileNotFound);
}

} // namespace
} // namespace kesta
