#include "host/dialog/QtTexts.h"
#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// A bundle whose texts are there in the languages of these names.
class QtTextsTest : public testing::Test {
protected:
    QtTextsTest() { QLocale::setDefault(QLocale(u"de_AT"_s)); }
    ~QtTextsTest() override { QLocale::setDefault(userLocale); }

    Bundle bundleIn(const QStringList& languages)
    {
        QDir(folder.path()).mkpath(u"Translations"_s);
        for (const QString& language : languages)
            EXPECT_TRUE(QFile(folder.filePath(u"Translations/Print_%1.qm"_s.arg(language))).open(QFile::WriteOnly));
        return {.resourcesPath = folder.path(), .strings = {}, .path = u"/somewhere/Print.bundle"_s};
    }
    static QString cancel() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

    const QLocale userLocale;
    QTemporaryDir folder;
};

TEST_F(QtTextsTest, SpeakTheLanguageOfTheDialogAsLongAsTheyAreKept)
{
    const auto texts = InstallQtTexts(bundleIn({u"en"_s, u"de"_s}));
    ASSERT_TRUE(texts) << "Qt's catalogues (qt6-translations-l10n) are installed";
    EXPECT_EQ(cancel(), u"Abbrechen"_s);
}

TEST_F(QtTextsTest, ButtonsHaveTheDialogsWordsWhereQtLacksTheLanguage)
{
    QLocale::setDefault(QLocale(u"eo"_s));
    Bundle bundle = bundleIn({u"en"_s, u"eo"_s});
    bundle.strings = Dictionary{{"Localizable", Dictionary{{"Cancel", "Rezigni"}}}};
    const auto texts = InstallQtTexts(bundle);
    ASSERT_TRUE(texts);
    EXPECT_EQ(cancel(), u"Rezigni"_s);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "OK"), u"OK"_s) << "a word that nobody has stays";
}

TEST_F(QtTextsTest, StayEnglishInADialogThatIsEnglish)
{
    EXPECT_FALSE(InstallQtTexts(bundleIn({u"en"_s, u"fr"_s})));
    EXPECT_EQ(cancel(), u"Cancel"_s);
}

} // namespace
} // namespace kesta::host
