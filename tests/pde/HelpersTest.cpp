#include "pde/menus/BundleUtilities.h"
#include "pde/menus/SystemUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/SystemConfiguration.h"
#include "printer/MediaLimits.h"
#include "support/CurrentPrinter.h"
#include "support/FakeSystem.h"
#include "support/PPDVariant.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

void WriteFile(const QString& path, const QByteArray& content)
{
    ASSERT_TRUE(QFileInfo(path).dir().mkpath(u"."_s));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

TEST(DisplayHelp, NeedsAHelpBook)
{
    const test::RecordingHelp help;
    Bundle bundle{.resourcesPath = QStringLiteral(TEST_RESOURCES)};
    EXPECT_EQ(DisplayHelp(bundle), kMissingArgument);
    bundle.info.set(kCFBundleHelpBookName, true);
    EXPECT_EQ(DisplayHelp(bundle), kMissingArgument) << "not a name";
    bundle.info.set(kCFBundleHelpBookName, "Kesta Help");
    EXPECT_EQ(DisplayHelp(bundle), noErr);
    EXPECT_TRUE(help.files.value(0).endsWith(u"/index.htm"_s));
}

TEST(SystemVersion, IsAskedOnceAndHasItsOwnGuessEach)
{
    struct Answers {
        std::optional<SystemVersion> version;
        bool is104, is105;
    };
    const Answers cases[] = {{SystemVersion{10, 3, 9}, false, false}, {SystemVersion{10, 4, 0}, true, false},
                             {SystemVersion{10, 5, 8}, true, true},   {SystemVersion{11, 0, 0}, true, true},
                             {SystemVersion{9, 9, 9}, false, false},  {std::nullopt, false, false}};
    for (const Answers& one : cases) {
        test::FakeSystem system;
        system.version = one.version;
        const WhileInstalled installed(system);
        ForgetSystemVersion();
        EXPECT_EQ(RunningOn104OrLater(), one.is104);
        EXPECT_EQ(RunningOn105OrLater(), one.is105);
        system.version = SystemVersion{12, 0, 0};
        EXPECT_EQ(RunningOn105OrLater(), one.is105) << "remembered";
    }
    ForgetSystemVersion();
}

TEST(MediaLimits, ComeFromThePPD)
{
    const PPDCustomSizeLimits without{432, 432, 864, 864};
    EXPECT_EQ(GetMediaLimits(), without);
    const test::CurrentPrinter printer;
    const PPDCustomSizeLimits limits = GetMediaLimits();
    EXPECT_NE(limits, without);
    EXPECT_LT(limits.minimumWidth, limits.maximumWidth);
    EXPECT_LT(limits.minimumHeight, limits.maximumHeight);

    test::PPDVariant unlimited;
    unlimited.replaceLines("*ParamCustomPageSize", {});
    const test::CurrentPrinter other(unlimited);
    EXPECT_EQ(GetMediaLimits(), without);
}

TEST(CreatePropertiesFromXMLFile, AnswersNothingOnAnyFailure)
{
    QTemporaryDir folder;
    const auto read = [&](const QString& name) {
        return CreatePropertiesFromXMLFile(QUrl::fromLocalFile(folder.filePath(name)));
    };
    WriteFile(folder.filePath(u"good.plist"_s), "<plist version=\"1.0\"><dict><key>a</key><true/></dict></plist>");
    WriteFile(folder.filePath(u"bad.plist"_s), "<plist version=\"1.0\"><dict><key>a</key>");
    EXPECT_EQ(read(u"good.plist"_s), Value(Dictionary{{"a", true}}));
    EXPECT_EQ(read(u"bad.plist"_s), std::nullopt);
    EXPECT_EQ(read(u"none.plist"_s), std::nullopt);
    EXPECT_EQ(CreatePropertiesFromXMLFile(QUrl(u"https://example.com/x.plist"_s)), std::nullopt);
}

TEST(LoadPrivateBundle, StaysInTheFolderOfBuiltInPlugIns)
{
    const Bundle inMemory;
    EXPECT_EQ(LoadPrivateBundle(inMemory, u"Any"_s), nullptr);
    const Bundle bundle{.path = u"/nowhere/A.plugin"_s};
    for (const QString& name : {u"Missing"_s, u"../../B"_s, QString()})
        EXPECT_EQ(LoadPrivateBundle(bundle, name), nullptr);
}

} // namespace
} // namespace kesta
