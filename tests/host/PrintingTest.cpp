#include "host/PrivateServer.h"
#include "host/job/JobOptions.h"

#include "pde/interface/TicketKeys.h"
#include "platform/printsystem/JobSettings.h"
#include "platform/values/PropertyList.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

using kesta::test::CapturedJob;
using kesta::test::PrivateServer;

struct Outcome {
    int status;
    QByteArray output;
    QByteArray error;
};

Outcome RunProgram(const char* program, const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(QLatin1StringView(program), arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Saved settings with something of every kind, in a file.
class PrintingTest : public testing::Test {
protected:
    PrintingTest()
    {
        Ticket& ticket = tickets.printSettings;
        ticket.set("com.kesta.print", "com.kesta.print.JobType",
                   Dictionary{{"JobType", Number::Index(8)}, {"Owner", QString(u"Zoë \"O'Neil\" \\ {1}"_s)}});
        ticket.set("com.kesta.print", "com.kesta.print.Density", Number::Float64(0.1));
        ticket.set("com.kesta.print", "com.kesta.print.Fonts", QByteArray(3000, '\x7f'));
        ticket.ppdDict().set("StapleLocation", "DualLandscape");
        ticket.ppdDict().set("Duplex", "DuplexTumble");
    }

    QString save()
    {
        const QString path = directory.filePath(u"settings.plist"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(WriteJobSettings(tickets)) > 0);
        return path;
    }
    // Without a dialog, on the private server.
    Outcome print(QStringList arguments, const QByteArray& input = {}) const
    {
        arguments = QStringList{u"5000"_s, u"--no-dialog"_s, u"-h"_s, cups.address()} + arguments;
        return RunProgram(PRINT_WITHOUT_DIALOG, arguments, input);
    }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    PrivateServer cups;
    QTemporaryDir directory;
    JobTickets tickets;
};

int PagesOf(const QByteArray& postScript)
{
    return int(postScript.count("\n%%Page:"));
}

TEST_F(PrintingTest, TheDocumentArrivesWithExactlyTheseOptions)
{
    const QString settings = save();
    const QString saved = directory.filePath(u"saved.plist"_s);
    const Outcome printed = print({u"--settings"_s, settings, u"--save-settings"_s, saved, u"-t"_s, u"Two words"_s,
                                   u"-o"_s, u"KSPunch=2HolePunch"_s, QLatin1StringView(SAMPLE)});
    EXPECT_EQ(printed.error, "");
    EXPECT_EQ(printed.output, "request id is Kesta-1 (1 file(s))\n");
    ASSERT_EQ(printed.status, 0);

    const CapturedJob job = cups.job(1).value();
    EXPECT_TRUE(job.argv.contains("\n3: Two words\n")) << job.argv.constData();
    for (const char* feature : {"*StapleLocation DualLandscape", "*Duplex DuplexTumble", "*KSPunch 2HolePunch"})
        EXPECT_TRUE(job.data.contains(QByteArray("%%BeginFeature: ") + feature)) << feature;
    EXPECT_EQ(PagesOf(job.data), 4);
    const Outcome shown = RunProgram(KESTA_TICKET, {u"show"_s}, job.options);
    EXPECT_EQ(shown.output, WritePropertyList(tickets.printSettings.values())) << shown.error.constData();
    EXPECT_EQ(RunProgram(KESTA_TICKET, {u"get"_s, u"com.kesta.print.JobType/JobType"_s}, job.options).output, "8\n");

    tickets.printSettings.ppdDict().set("KSPunch", "2HolePunch");
    EXPECT_EQ(ReadAll(saved), WriteJobSettings(tickets)) << "what is saved is what was printed";
}

TEST_F(PrintingTest, SecretsTravelToThePrinterAndStayInNoFile)
{
    Ticket& ticket = tickets.printSettings;
    ticket.set("K", key::JobType, Dictionary{{"JobType", Number::Index(1)}, {"SecurePrintPassword", "4711"}});
    ticket.set("K", key::FaxOptions, Dictionary{{"SendSpeed", "2"}, {"DialingPrefix", "0"}, {"CreditCard", "5500"}});
    const QString saved = directory.filePath(u"saved.plist"_s);
    ASSERT_EQ(print({u"--settings"_s, save(), u"--save-settings"_s, saved, QLatin1StringView(SAMPLE)}).status, 0);

    const CapturedJob job = cups.job(1).value();
    const auto arrived = [&job](const QString& key) {
        return RunProgram(KESTA_TICKET, {u"get"_s, key}, job.options).output;
    };
    EXPECT_EQ(arrived(u"com.kesta.print.JobType/SecurePrintPassword"_s), "4711\n");
    EXPECT_EQ(arrived(u"com.kesta.print.FaxOptions/DialingPrefix"_s), "0\n");
    EXPECT_EQ(arrived(u"com.kesta.print.FaxOptions/CreditCard"_s), "5500\n");

    ticket.set("K", key::JobType, Dictionary{{"JobType", Number::Index(1)}});
    ticket.set("K", key::FaxOptions, Dictionary{{"SendSpeed", "2"}});
    EXPECT_EQ(ReadAll(saved), WriteJobSettings(tickets)) << "all but the secrets";
}

TEST_F(PrintingTest, StandardInputPagesAndCopies)
{
    const Outcome printed =
        print({u"-P"_s, u"2-3"_s, u"-n"_s, u"2"_s, u"-o"_s, u"InputSlot=Tray1"_s}, ReadAll(QLatin1StringView(SAMPLE)));
    EXPECT_EQ(printed.output, "request id is Kesta-1 (0 file(s))\n") << printed.error.constData();
    const CapturedJob job = cups.job(1).value();
    EXPECT_TRUE(job.argv.contains("\n3: (stdin)\n")) << job.argv.constData();
    EXPECT_EQ(PagesOf(job.data), 2);
    JobOptions options;
    ParseJobOptions(job.options, options);
    EXPECT_EQ(FindJobOption(options, "page-ranges"), u"2-3"_s);
    EXPECT_EQ(FindJobOption(options, "InputSlot"), u"Tray1"_s);
    EXPECT_TRUE(job.data.contains("/NumCopies 2") || job.data.contains("/#copies 2") || job.argv.contains("\n4: 2\n"))
        << job.argv.constData();

    EXPECT_EQ(print({u"-s"_s, u"-dPlain"_s, u"-o"_s, u"raw"_s, u"-t"_s, u""_s}, "text\n").output, "");
    EXPECT_EQ(cups.job(2).value().data, "text\n");
    EXPECT_TRUE(cups.job(2).value().argv.contains("\n3: \n")) << cups.job(2).value().argv.constData();
    EXPECT_TRUE(print({}).error.contains("stdin is empty"));
    EXPECT_EQ(cups.jobState(3), 0);
}

TEST_F(PrintingTest, SavedFieldsAreAppliedAndTheCommandLinePrevails)
{
    tickets.printSettings.set("com.kesta.print.host", "com.kesta.print.host.PageRanges", QString(u"1,3"_s));
    tickets.printSettings.set("com.kesta.print.host", "com.apple.print.PrintSettings.PMCopies", Number::Index(3));
    tickets.pageFormat.set("com.kesta.print.host", "com.apple.print.PageFormat.PMOrientation", Number::Index(2));
    const QString settings = save();
    ASSERT_EQ(print({u"--settings"_s, settings, QLatin1StringView(SAMPLE)}).status, 0);
    JobOptions options;
    ParseJobOptions(cups.job(1).value().options, options);
    EXPECT_EQ(FindJobOption(options, "page-ranges"), u"1,3"_s);
    EXPECT_EQ(FindJobOption(options, "orientation-requested"), u"4"_s);
    EXPECT_TRUE(cups.job(1).value().argv.contains("\n4: 3\n")) << cups.job(1).value().argv.constData();
    EXPECT_EQ(RunProgram(KESTA_TICKET, {u"show"_s}, cups.job(1).value().options).output,
              WritePropertyList(tickets.printSettings.values()));

    ASSERT_EQ(print({u"--settings"_s, settings, u"-n1"_s, u"-o"_s, u"page-ranges=1"_s, u"-o"_s, u"Duplex=None"_s,
                     u"-o"_s, u"number-up=6"_s, QLatin1StringView(SAMPLE)})
                  .status,
              0);
    const CapturedJob job = cups.job(2).value();
    JobOptions changed;
    ParseJobOptions(job.options, changed);
    EXPECT_EQ(FindJobOption(changed, "page-ranges"), u"1"_s);
    EXPECT_EQ(FindJobOption(changed, "number-up"), u"6"_s);
    EXPECT_TRUE(job.argv.contains("\n4: 1\n"));
    EXPECT_TRUE(job.data.contains("%%BeginFeature: *Duplex None"));
}

TEST_F(PrintingTest, WhatThePrinterForbidsOrLacksIsSaidBeforeSending)
{
    const Outcome conflict = print({u"--settings"_s, save(), u"-o"_s, u"KSFold=C"_s, QLatin1StringView(SAMPLE)});
    EXPECT_EQ(conflict.status, 1);
    EXPECT_TRUE(conflict.error.contains("can’t be used together. Set ") && conflict.error.contains("(-o "))
        << conflict.error.constData();
    const Outcome lacking = print({u"-o"_s, u"KSFold=Swan"_s, QLatin1StringView(SAMPLE)});
    EXPECT_EQ(lacking.status, 1);
    EXPECT_TRUE(lacking.error.contains("KSFold=Swan")) << lacking.error.constData();
    tickets.printSettings.ppdDict().set("OtherMakersOption", "X");
    const Outcome foreign = print({u"--settings"_s, save(), QLatin1StringView(SAMPLE)});
    EXPECT_EQ(foreign.status, 0) << foreign.error.constData();
    EXPECT_TRUE(foreign.error.contains("OtherMakersOption"));

    std::mt19937 random(1);
    QByteArray noise(200'000, Qt::Uninitialized);
    for (char& byte : noise)
        byte = static_cast<char>(random());
    tickets.printSettings.set("com.kesta.print", "com.kesta.print.Fonts", noise);
    const Outcome large = print({u"--settings"_s, save(), QLatin1StringView(SAMPLE)});
    EXPECT_EQ(large.status, 1);
    EXPECT_TRUE(large.error.contains("KB can travel")) << large.error.constData();
    EXPECT_EQ(cups.jobState(2), 0) << "only the foreign settings were printed";
}

TEST_F(PrintingTest, SaysWhatIsMissing)
{
    cups.administer(u"cupsreject"_s, {u"Plain"_s});
    struct Row {
        QStringList arguments;
        const char* said;
    };
    const std::vector<Row> rows{
        {{u"-dNowhere"_s, QLatin1StringView(SAMPLE)}, "The printer or class does not exist"},
        {{u"-dPlain"_s, QLatin1StringView(SAMPLE)}, "not accepting"},
        {{QLatin1StringView(SAMPLE), u"/dev/null"_s}, "\"/dev/null\" is empty"},
        {{u"/"_s}, "unable to access \"/\" - Is a directory"},
        {{u"--settings"_s, QLatin1StringView(SAMPLE), QLatin1StringView(SAMPLE)}, "sample.pdf can’t be used: "},
        {{u"--settings"_s, u"/no/such"_s, QLatin1StringView(SAMPLE)}, "/no/such"},
        {{u"--save-settings"_s, u"/no/such/place"_s, QLatin1StringView(SAMPLE)}, "/no/such/place"},
    };
    for (const Row& row : rows) {
        const Outcome outcome = print(row.arguments);
        EXPECT_EQ(outcome.status, 1) << row.said;
        EXPECT_TRUE(outcome.error.startsWith("kesta-print: Error - ") && outcome.error.contains(row.said))
            << row.said << " not in: " << outcome.error.constData();
        EXPECT_EQ(outcome.output, "");
    }
    EXPECT_EQ(cups.jobState(1), 0);
}

TEST_F(PrintingTest, ListsOptionsAndNeedsNoQueueForAPPD)
{
    const Outcome listed = print({u"--list-options"_s});
    EXPECT_TRUE(listed.output.contains("\nDuplex/Two-sided printing: *None DuplexNoTumble DuplexTumble\n"))
        << listed.output.constData();
    EXPECT_GT(listed.output.count('\n'), 20);
    EXPECT_TRUE(print({u"--list-options"_s, u"-dPlain"_s}).error.contains("has no PPD"));

    const QStringList ppd{u"5"_s, u"--no-dialog"_s, u"--ppd"_s, QLatin1StringView(KESTA_PPD)};
    EXPECT_TRUE(RunProgram(PRINT_WITHOUT_DIALOG, ppd).error.contains("--save-settings"));
    const QString saved = directory.filePath(u"ppd.plist"_s);
    EXPECT_EQ(RunProgram(PRINT_WITHOUT_DIALOG, ppd + QStringList{u"--save-settings"_s, saved, u"-oKSFold=C"_s}).status,
              0);
    EXPECT_TRUE(ReadAll(saved).contains("<key>KSFold</key>"));
    EXPECT_EQ(QFile::permissions(saved) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    EXPECT_TRUE(RunProgram(PRINT_WITHOUT_DIALOG, {u"5"_s, u"--help"_s}).output.startsWith("Usage: kesta-print"));
    EXPECT_EQ(RunProgram(PRINT_WITHOUT_DIALOG, {u"5"_s, u"--version"_s}).output, "kesta-print 1.0.0\n");
}

} // namespace
} // namespace kesta::host
