#include "platform/printsystem/PPDFileCheck.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"
#include "toolkit/controls/Menu.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <zlib.h>

namespace kesta {
namespace {

using test::Bare;
using test::PPDVariant;

QByteArray Repeated(int count, const char* before, const char* after)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += before + QByteArray::number(i) + after;
    return lines;
}

QString Problem(const PPDVariant& ppd)
{
    const std::optional<Message> problem = PPDFileProblem(ppd.path());
    return problem ? Bare(problem->arguments.at(1)) : QString();
}

TEST(PPDFileCheck, RealDescriptionsPass)
{
    EXPECT_EQ(PPDFileProblem(QStringLiteral(KESTA_PPD)), std::nullopt);
    PPDVariant macLineEnds;
    macLineEnds.replaceLines("*FileVersion", "*FileVersion: \"1.0\"\r*% another line");
    EXPECT_EQ(Problem(macLineEnds), QString());
    PPDVariant constrained;
    EXPECT_EQ(Problem(constrained.append(Repeated(20'000, "*UIConstraints: *A C", " *B D\n"))), QString());
}

TEST(PPDFileCheck, DescriptionsThatWouldKeepTheReaderBusyAreNamed)
{
    EXPECT_EQ(Problem(PPDVariant().append(Repeated(20'000, "*OpenUI *O", "/O: PickOne\n"))),
              QStringLiteral("PPD Many Lines Of: 2000, OpenUI"));
    EXPECT_EQ(Problem(PPDVariant().append(Repeated(2001, "*ImageableArea S", ": \"0 0 9 9\"\n"))),
              QStringLiteral("PPD Many Lines Of: 2000, ImageableArea"));
    EXPECT_EQ(Problem(PPDVariant().append(Repeated(100'000, "*A", " B: \"\"\r"))),
              QStringLiteral("PPD Many Lines: 100000"));
    EXPECT_EQ(Problem(PPDVariant().append(QByteArray(5'000'000, 'x'))), QStringLiteral("PPD Large: 4"));
    EXPECT_EQ(Problem(PPDVariant().append(QByteArray("*A: \"\0\"\n", 8))), QStringLiteral("PPD Not Text"));
    EXPECT_EQ(Problem(PPDVariant().truncate(0)), QStringLiteral("PPD Of Another Kind"));
    for (const char* opened : {"*OpenUI *O/O: PickOne\n", "*JCLOpenUI *O/O: PickOne\r\n", "*OpenGroup: G/G\n"})
        EXPECT_EQ(Problem(PPDVariant().append(opened)), QStringLiteral("PPD Breaks Off")) << opened;
}

TEST(PPDFileCheck, WhatIsNoFileIsNotOpened)
{
    const QTemporaryDir directory;
    EXPECT_TRUE(Bare(*PPDFileProblem(directory.path())).contains(QStringLiteral("Not A File")));
    EXPECT_TRUE(Bare(*PPDFileProblem(QStringLiteral("/dev/zero"))).contains(QStringLiteral("Not A File")));
    EXPECT_TRUE(
        Bare(*PPDFileProblem(directory.filePath(QStringLiteral("none")))).contains(QStringLiteral("No Such File")));
}

TEST(PPDFileCheck, TheUnpackedSizeCounts)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("x.ppd.gz"));
    const auto pack = [&](const QByteArray& content) {
        const gzFile file = gzopen(QFile::encodeName(path).constData(), "wb");
        gzwrite(file, content.constData(), static_cast<unsigned>(content.size()));
        gzclose(file);
    };
    pack(PPDVariant().content());
    EXPECT_EQ(PPDFileProblem(path), std::nullopt);
    pack(PPDVariant().content() + QByteArray(50'000'000, '\n'));
    ASSERT_LT(QFileInfo(path).size(), 1'000'000);
    EXPECT_TRUE(Bare(*PPDFileProblem(path)).contains(QStringLiteral("PPD Large: 4")));
}

TEST(PPDFileCheck, ManyOfEverythingThatPassesOpensInTime)
{
    PPDVariant ppd;
    ppd.append(Repeated(1900, "*OpenUI *O", "/O: PickOne\n*CloseUI: *O\n"))
        .append(Repeated(1900, "*JCLOpenUI *J", "/J: PickOne\n*JCLCloseUI: *J\n"))
        .append(Repeated(1900, "*PaperDimension S", ": \"1 1\"\n"))
        .append(Repeated(1900, "*cupsFilter: \"a/b 0 f", "\"\n"))
        .append(Repeated(10'000, "*F", " A: \"x\"\n"));
    ASSERT_EQ(Problem(ppd), QString());
    QElapsedTimer timer;
    timer.start();
    const test::CurrentPrinter printer(ppd);
    EXPECT_NE(PPDGetCurrent(), nullptr);
    EXPECT_LT(timer.elapsed(), 20000); // 0.2 s on an idle machine; a sanitizer makes it seconds, no limits minutes
}

TEST(PPDFileCheck, AHostilePPDIsNoCurrentPPD)
{
    PPDVariant ppd;
    ppd.append(Repeated(20'000, "*OpenUI *O", "/O: PickOne\n"));
    testing::internal::CaptureStderr();
    const test::CurrentPrinter hostile(ppd);
    EXPECT_EQ(PPDGetCurrent(), nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("2000, OpenUI"), std::string::npos);
}

TEST(PPDFileCheck, WhatTheLibraryRefusesIsSaidWithItsLine)
{
    PPDVariant ppd;
    ppd.replaceLines("*FileVersion", "*FileVersion: \"1.0\"\n*OpenUI *J\xF6g/Offset: PickOne");
    testing::internal::CaptureStderr();
    const test::CurrentPrinter printer(ppd);
    EXPECT_EQ(PPDGetCurrent(), nullptr);
    const std::string messages = testing::internal::GetCapturedStderr();
    EXPECT_NE(messages.find("PPD Refused: "), std::string::npos) << messages;
    EXPECT_NE(messages.find(".ppd, 5, "), std::string::npos) << messages;
}

// What is cut off within an option or a group is refused, although libcups would open it; cut off between them, the
// rest is as if the PPD had never had it.
TEST(PPDFileCheck, TruncatedDescriptionsDoNoHarm)
{
    const qsizetype whole = PPDVariant().content().size();
    int opened = 0;
    testing::internal::CaptureStderr();
    for (qsizetype size = 20; size < whole; size += whole / 50) {
        PPDVariant ppd;
        const test::CurrentPrinter printer(ppd.truncate(size));
        opened += PPDGetCurrent() != nullptr;
        for (const KeywordRow& row : MainKeywordMap) {
            Menu menu;
            const PPDKeyword keyword = PPDKeyword::Named(row.keyword);
            const int count = PPDPopulateMenuWithChoices(menu, PPDGetCurrent(), keyword, kNoCommand, Conflicting::Skip);
            EXPECT_LE(count, static_cast<int>(row.choices.size()));
        }
        LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures);
        EXPECT_FALSE(getInstalledFeature("GenericPunchKey"));
        UnloadInstallableOptions();
    }
    testing::internal::GetCapturedStderr();
    EXPECT_GT(opened, 5);
    EXPECT_LT(opened, 25);
}

} // namespace
} // namespace kesta
