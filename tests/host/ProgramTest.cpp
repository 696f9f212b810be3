// The program as its users start it.

#include "host/ProgramFixture.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using kesta::test::Ended;
using kesta::test::ProgramTest;

TEST_F(ProgramTest, PlaysAScriptWithoutADisplayAndSavesTheSame)
{
    const Ended first =
        play("panel Advanced\nchoose \"Mirrored Output:\" Enabled\nsync to-tickets\ndump dump.plist\nsummary\nprint",
             {u"--save-settings"_s, u"saved.plist"_s, u"-n"_s, u"2"_s});
    EXPECT_EQ(first.status, 0) << first.errors.toStdString();
    EXPECT_EQ(first.output, u"2 copies \u00B7 mirrored\n"_s);
    EXPECT_EQ(first.errors, QString());
    QFile saved(folder.filePath(u"saved.plist"_s));
    QFile dump(folder.filePath(u"dump.plist"_s));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly) && dump.open(QIODevice::ReadOnly));
    const QByteArray settings = saved.readAll();
    EXPECT_EQ(settings, dump.readAll());
    EXPECT_TRUE(settings.contains("com.kesta.print.InvertImageOptions"));

    const Ended again = play("expect-value Copies 2\npanel Advanced\nexpect-value \"Mirrored Output:\" Enabled\nprint",
                             {u"--settings"_s, u"saved.plist"_s, u"--save-settings"_s, u"again.plist"_s});
    EXPECT_EQ(again.status, 0) << again.errors.toStdString();
    QFile second(folder.filePath(u"again.plist"_s));
    ASSERT_TRUE(second.open(QIODevice::ReadOnly));
    EXPECT_EQ(second.readAll(), settings);
}

TEST_F(ProgramTest, TheSummarySaysWhatThePanelsShowAndKeepsSecrets)
{
    const QByteArray fields = "25 copies, pages 1-4, 7";
    const QByteArray secure = " \u00B7 Secure Print";
    const QByteArray rest = " \u00B7 Blue \u00B7 Two-sided, bound on the long edge \u00B7 2 staples, 3 holes";
    const Ended ended = play("summary\nchoose \"Job Type:\" SecurePrint\ntype #2 4711\ntype #5 4711\npress OK\n"
                             "choose \"Choose Paper\" \"Color > Blue\"\nexpect \"" +
                                 fields + secure +
                                 " \u00B7 Blue\"\nchoose \"Two Sided Printing:\" =2\n"
                                 "choose \"Choose Finishing\" =10\nchoose \"Choose Finishing\" \"3 Hole Punch\"\n"
                                 "panel Advanced\nsummary\npanel #1\nchoose \"Job Type:\" #1\nsummary\ncancel",
                             {u"-n"_s, u"25"_s, u"-P"_s, u"1-4,7"_s});
    EXPECT_EQ(ended.errors, QString());
    EXPECT_EQ(ended.output, QString::fromUtf8(fields + '\n' + fields + secure + rest + '\n' + fields + rest + '\n'));
}

TEST_F(ProgramTest, FailuresSayWhereAndEndWithOne)
{
    const Ended syntax = play("summary\nfly");
    EXPECT_EQ(syntax.status, 1);
    EXPECT_EQ(syntax.errors, u"script line 2: \"fly\" is not an action\n"_s);
    EXPECT_EQ(syntax.output, QString()); // nothing of it was played

    const Ended step = play("summary\n\npress \"Fly\"");
    EXPECT_EQ(step.status, 1);
    EXPECT_TRUE(step.errors.startsWith(u"script line 3: there is no \"Fly\""_s)) << step.errors.toStdString();

    const Ended file = run({u"--script"_s, u"missing.script"_s});
    EXPECT_EQ(file.status, 1);
    EXPECT_TRUE(file.errors.contains(u"missing.script"_s)) << file.errors.toStdString();

    const Ended display = run({u"--ppd"_s, QStringLiteral(KESTA_PPD)});
    EXPECT_EQ(display.status, 1);
    EXPECT_TRUE(display.errors.contains(u"--script"_s)) << display.errors.toStdString();

    const Ended panels = play("cancel", {u"--panels"_s, u"GetNonePanelInterface"_s});
    EXPECT_EQ(panels.status, 1);
    EXPECT_TRUE(panels.errors.contains(u"GetNonePanelInterface"_s)) << panels.errors.toStdString();

    const Ended settings = play("cancel", {u"--settings"_s, QStringLiteral(KESTA_PPD)});
    EXPECT_EQ(settings.status, 1);
    EXPECT_EQ(settings.errors.count(u'\n'), 1) << settings.errors.toStdString();
    EXPECT_TRUE(settings.errors.contains(u"kesta-veltra-4200.ppd can’t be used: "_s)) << settings.errors.toStdString();
}

TEST_F(ProgramTest, AFileThatCannotBePrintedIsNamedBeforeAServerIsAsked)
{
    const QString server = folder.filePath(u"nobody"_s);
    ASSERT_TRUE(QFile(folder.filePath(u"empty.pdf"_s)).open(QIODevice::WriteOnly));
    const QStringList ways[] = {{u"--no-dialog"_s}, {u"--script"_s, u"-"_s}};
    for (const QStringList& way : ways) {
        const auto errorFor = [&](const QString& file) {
            const Ended ended = run(QStringList{u"-h"_s, server, u"-d"_s, u"q"_s} + way + QStringList{file}, "cancel");
            EXPECT_EQ(ended.status, 1);
            return ended.errors;
        };
        const QString start = u"kesta-print: Error - "_s;
        EXPECT_EQ(errorFor(u"missing.pdf"_s),
                  start + u"unable to access \"missing.pdf\" - No such file or directory\n"_s);
        EXPECT_EQ(errorFor(u"."_s), start + u"unable to access \".\" - Is a directory\n"_s);
        EXPECT_EQ(errorFor(u"empty.pdf"_s), start + u"\"empty.pdf\" is empty, so no job has been sent.\n"_s);
    }
    const Ended silent = run({u"-h"_s, server, u"--no-dialog"_s, QStringLiteral(SAMPLE)});
    EXPECT_EQ(silent.status, 1);
    EXPECT_TRUE(silent.errors.contains(u"does not answer"_s) && silent.errors.contains(server))
        << silent.errors.toStdString();
}

TEST_F(ProgramTest, TheSummarySaysAllThatIsNotTheDefault)
{
    const Ended plain = play("panel #2\nsync to-tickets\nsync from-tickets\nsummary");
    EXPECT_EQ(plain.output, u"1 copy, all pages\n"_s) << plain.errors.toStdString();
    const Ended ended = play("choose \"Job Type:\" =7\ntype \"TimeToPrint:\" \"20:00\"\npress \"OK Command\"\n"
                             "choose \"Print Quality:\" TonerSaver\nchoose \"Output Destination:\" #2\n"
                             "panel Advanced\nchoose \"Output Options:\" \"Face Up\"\n"
                             "choose \"Mirrored Output:\" Enabled\nchoose \"Request Offset:\" #2\n"
                             "choose \"Printing Optimization:\" Speed\nchoose \"Banner Sheet:\" Off\n"
                             "panel ColorOptions\ntype \"Lightness\" 20\nsync to-tickets\nsync from-tickets\nsummary");
    QString summary = ended.output.trimmed();
    EXPECT_TRUE(summary.startsWith(u"Delayed to 20:00 to"_s)) << ended.errors.toStdString() << summary.toStdString();
    EXPECT_EQ(summary.section(u" \u00B7 "_s, 1),
              u"quality: Toner saver \u00B7 colors adjusted \u00B7 destination: Center tray, Face up, Offset each set "
              "\u00B7 mirrored, optimization: Speed \u00B7 banner sheet: Off"_s);
}

TEST_F(ProgramTest, WorksWithoutItsPlugIn)
{
    environment.insert(u"KESTA_PLUGIN_PATH"_s, folder.path()); // nothing there: the places beside the program count
    EXPECT_EQ(play("expect-enabled Help yes").status, 0);

    ASSERT_TRUE(QDir(folder.path()).mkpath(u"KestaFeatures.plugin/Contents"_s));
    const Ended broken = play("expect \"No Plug-in Title\"\ncancel");
    EXPECT_EQ(broken.status, 0) << broken.errors.toStdString();
    EXPECT_TRUE(broken.errors.contains(folder.path())) << broken.errors.toStdString();
}

} // namespace
