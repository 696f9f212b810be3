#include "host/dialog/PrintDialog.h"

#include "host/PrintDialogFixture.h"
#include "host/dialog/DialogSummary.h"
#include "platform/system/FileChooser.h"
#include "platform/system/SafeFile.h"
#include "support/PPDVariant.h"
#include "support/TestTexts.h"
#include "toolkit/windows/ToolkitServices.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

using kesta::test::PPDVariant;
using test::PrintBundle;
using test::PrintDialogTest;

TEST_F(PrintDialogTest, PrintSyncsClosesAndTerminatesThenSaves)
{
    options.title = u"Report"_s;
    EXPECT_EQ(run("type Copies: 25\ntype Pages: \"7, 1-4\"\nchoose \"Pages per Sheet\" 4\n"
                  "choose Orientation: Landscape\nprint"),
              0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(calls(), u"Prologue, Initialize, Open, Sync out, Close, Terminate 0"_s);
    JobTickets saved;
    readSaved(saved);
    const HostSettings expected{.jobName = u"Report"_s,
                                .copies = 25,
                                .pageRanges = u"1-4,7"_s,
                                .orientation = Orientation::Landscape,
                                .pagesPerSheet = 4};
    EXPECT_TRUE(ReadTickets(saved.printSettings, saved.pageFormat) == expected);
    EXPECT_TRUE(ReadPaperRect(saved.pageFormat) == (PaperRect{.bottom = 792, .right = 612}));
}

TEST_F(PrintDialogTest, CancelWritesNothing)
{
    EXPECT_EQ(run("type Copies 25\ncancel"), 0);
    EXPECT_EQ(calls(), u"Prologue, Initialize, Open, Close, Terminate 0"_s);
    EXPECT_FALSE(QFile::exists(options.saveSettingsPath));
    EXPECT_EQ(run("key Escape"), 0);
    EXPECT_EQ(fault, QString());
}

// For a caller that brings the document later.
TEST_F(PrintDialogTest, WithoutASenderTheAcceptedJobIsGivenBack)
{
    hasSender = false;
    options.title = QString();
    EXPECT_EQ(run("type Copies 3\nprint"), 0);
    EXPECT_EQ(fault, QString());
    ASSERT_TRUE(outcome.job);
    EXPECT_EQ(outcome.job->title, QString());
    EXPECT_EQ(ReadTickets(outcome.job->settings->printSettings, outcome.job->settings->pageFormat).copies, 3);
    EXPECT_EQ(run("cancel 3"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_FALSE(outcome.job);
    EXPECT_EQ(ExitStatus(outcome.end, false), 3);
}

TEST_F(PrintDialogTest, StaysOpenWhenThePaneSwallowsOK)
{
    fake.swallowsOK = true;
    EXPECT_EQ(run("print\nexpect-value Copies 1\nkey Return\nexpect-value Copies 1\ncancel"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_FALSE(QFile::exists(options.saveSettingsPath));
}

TEST_F(PrintDialogTest, WrongPagesKeepTheDialogOpenWithTheFieldMarked)
{
    EXPECT_EQ(run("type Pages \"7-3\"\nprint\nexpect \"Pages Backwards Title\"\npress \"OK\"\nkey 2\n"
                  "expect-value Pages 2\nprint"),
              0);
    EXPECT_EQ(fault, QString()); // the text was selected: the key replaced it
    JobTickets saved;
    readSaved(saved);
    EXPECT_EQ(ReadTickets(saved.printSettings, saved.pageFormat).pageRanges, u"2"_s);
}

TEST_F(PrintDialogTest, StartsFromTheCommandLineOverSavedSettings)
{
    JobTickets tickets;
    WriteTickets({.copies = 3, .pageRanges = u"2"_s, .pagesPerSheet = 6}, tickets.printSettings, tickets.pageFormat);
    options.settingsPath = folder.filePath(u"start.plist"_s);
    ASSERT_FALSE(WriteFile(options.settingsPath, WriteJobSettings(tickets)));
    options.presets.copies = 5;
    SetJobOption(options.presets.options, u"number-up", u"2"_s);
    SetJobOption(options.presets.options, u"landscape", u"true"_s);
    EXPECT_EQ(run("expect-value Copies 5\nexpect-value Pages 2\nexpect-value \"Per Sheet:\" =2\n"
                  "expect-value Orientation Landscape\nexpect \"5 copies, pages 2 \xc2\xb7 2 pages per sheet\""),
              0);
    EXPECT_EQ(fault, QString());

    ASSERT_FALSE(WriteFile(options.settingsPath, "<plist"));
    EXPECT_EQ(run(""), 1);
    EXPECT_TRUE(problem.contains(options.settingsPath)) << problem.toStdString();
}

TEST_F(PrintDialogTest, SecretsAreDumpedForTheScriptsOwnerAndNotSaved)
{
    JobTickets tickets;
    tickets.printSettings.set("K", "com.kesta.print.JobType", Dictionary{{"SecurePrintPassword", "4711"}});
    options.settingsPath = folder.filePath(u"start.plist"_s);
    ASSERT_FALSE(WriteFile(options.settingsPath, WriteJobSettings(tickets)));
    const QString dump = folder.filePath(u"dump.plist"_s);
    EXPECT_EQ(run("dump \"" + dump.toUtf8() + "\"\nprint"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_TRUE(ReadFile(dump, 1 << 20).bytes.value().contains("4711"));
    EXPECT_EQ(QFile::permissions(dump) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    JobTickets saved;
    readSaved(saved);
    EXPECT_EQ(saved.printSettings.values().find("com.kesta.print.JobType")->dictionary()->count(), 0u);
}

TEST_F(PrintDialogTest, SaysWhyThereIsNoPaneAndPrintsAllTheSame)
{
    fake.initialize = kInvalidContext;
    EXPECT_EQ(run("expect \"Pane Failed Message\"\nexpect-enabled Help no\ntype Copies 2\nprint"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(calls(), u"Prologue, Initialize, Terminate -9530"_s);
    EXPECT_TRUE(QFile::exists(options.saveSettingsPath));
    plugIn.reset();
    EXPECT_EQ(run("expect \"The plug-in is missing.\"\nprint"), 0);
    EXPECT_EQ(fault, QString());
}

TEST_F(PrintDialogTest, ConflictingChoicesAreAskedAbout)
{
    PPDVariant ppd;
    ppd.setDefault("Option4", "None");
    options.ppdPath = ppd.path();
    startFrom({{"KSPunch", "2HolePunch"}});
    EXPECT_EQ(run("print\nexpect \"Conflict Title\"\npress \"Go Back\"\nexpect-value Copies 1\ncancel"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_FALSE(QFile::exists(options.saveSettingsPath));

    EXPECT_EQ(run("print\npress \"Accept Changes\""), 0);
    EXPECT_EQ(fault, QString());
    JobTickets saved;
    readSaved(saved);
    EXPECT_TRUE(saved.printSettings.ppdDict() == (Dictionary{{"KSPunch", "None"}}));
}

TEST_F(PrintDialogTest, AFileThatCantBeWrittenKeepsTheDialogOpen)
{
    options.saveSettingsPath = u"/nowhere/saved.plist"_s;
    EXPECT_EQ(run("type Copies 4\nprint\nexpect \"Saving Failed Title\"\npress OK\nexpect-value Copies 4\ncancel 1"),
              1);
    EXPECT_EQ(fault, QString());
}

class FakeChooser : public FileChooser {
public:
    std::optional<QString> open(const FileQuestion&) override { return std::nullopt; }
    std::optional<QString> save(const FileQuestion&) override
    {
        ++questions;
        return answer;
    }

    std::optional<QString> answer;
    int questions = 0;
};

TEST_F(PrintDialogTest, AsksForAFileWhenNoneWasNamed)
{
    FakeChooser chooser;
    const WhileInstalled installed(chooser);
    const QString chosen = folder.filePath(u"chosen.plist"_s);
    options.ppdPath.clear(); // with a queue there are both buttons
    options.server = folder.filePath(u"no-server"_s);
    options.saveSettingsPath.clear();
    EXPECT_EQ(run("type Copies 9\npress \"Save Settings\"\ncancel"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(chooser.questions, 1);
    EXPECT_FALSE(QFile::exists(chosen)); // the question was cancelled

    chooser.answer = chosen;
    EXPECT_EQ(run("type Copies 9\ntype Pages 0\npress \"Save Settings\"\npress OK\n"
                  "type Pages 4\npress \"Save Settings\"\ncancel"),
              0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(chooser.questions, 2);
    options.saveSettingsPath = chosen;
    JobTickets saved;
    readSaved(saved);
    const HostSettings settings = ReadTickets(saved.printSettings, saved.pageFormat);
    EXPECT_EQ(settings.copies, 9);
    EXPECT_EQ(settings.pageRanges, u"4"_s);
}

TEST_F(PrintDialogTest, TypedPagesAreOfferedNextTime)
{
    EXPECT_EQ(run("type Pages \"2-5\"\nprint"), 0);
    EXPECT_EQ(run("expect-value Pages All\nchoose Pages \"2-5\"\nexpect-value Pages \"2-5\"\ncancel"), 0);
    EXPECT_EQ(fault, QString());
}

TEST(DialogSummary, LeavesOutWhatIsUsual)
{
    const Bundle& texts = PrintBundle();
    EXPECT_EQ(SummaryLine({}, {}, texts), u"1 copy, all pages"_s);
    EXPECT_EQ(SummaryLine({.pageRanges = u"3-7"_s}, {u"Blue"_s}, texts), u"Pages 3-7 \u00B7 Blue"_s);
    EXPECT_EQ(SummaryLine({}, {QString(), u"Blue, Hole punched"_s}, texts), u"Blue, Hole punched"_s);
    EXPECT_EQ(
        SummaryLine(
            {.copies = 25, .pageRanges = u"1-4,7"_s, .orientation = Orientation::ReverseLandscape, .pagesPerSheet = 2},
            {u"Secure Print"_s}, texts),
        u"25 copies, pages 1-4, 7 \u00B7 2 pages per sheet \u00B7 landscape \u00B7 Secure Print"_s);
}

} // namespace
} // namespace kesta::host
