// Settings from every source, in the dialog and without one, on several printers, as they arrive at the printer.

#include "host/PrivateServer.h"
#include "host/ProgramFixture.h"
#include "host/job/JobOptions.h"

#include "pde/interface/TicketKeys.h"
#include "platform/printsystem/JobSettings.h"
#include "platform/values/PropertyList.h"
#include "support/PPDVariant.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

using kesta::Dictionary;
using kesta::JobTickets;
using kesta::Number;
using kesta::host::FindJobOption;
using kesta::host::JobOptions;
using kesta::test::CapturedJob;
using kesta::test::Ended;
using kesta::test::PPDVariant;
using kesta::test::PrivateServer;
using kesta::test::ProgramTest;

namespace key = kesta::key;

class SettingsArrivalTest : public ProgramTest {
protected:
    SettingsArrivalTest()
    {
        environment.insert(u"HOME"_s, folder.path());
        environment.insert(u"CUPS_SERVERROOT"_s, folder.path()); // where the superuser's lpoptions are
        acme.replaceLines("*Manufacturer:", "*Manufacturer: \"Acme\"");
        server.administer(u"lpadmin"_s,
                          {u"-p"_s, u"Acme"_s, u"-v"_s, u"capture:/jobs"_s, u"-P"_s, acme.path(), u"-E"_s});
    }

    void write(const QString& name, const QByteArray& content) const
    {
        QDir(folder.path()).mkpath(u".cups"_s);
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    void setUserDefaults(const QByteArray& options) const
    {
        for (const QString& name : {u"lpoptions"_s, u".cups/lpoptions"_s})
            write(name, options.isEmpty() ? options
                                          : "Dest Kesta " + options + "\nDest Kesta/upright Duplex=DuplexNoTumble\n");
    }

    Ended print(const QStringList& more, const QByteArray& script = "print\n") const
    {
        const QStringList arguments{u"-h"_s, server.address(), QStringLiteral(SAMPLE)};
        return run((script.isEmpty() ? QStringList{u"--no-dialog"_s} : QStringList{u"--script"_s, u"-"_s}) + more +
                       arguments,
                   script);
    }

    struct Arrived {
        JobOptions options;
        Dictionary ticket; // empty: there is none
    };
    Arrived arrived()
    {
        const std::optional<CapturedJob> job = server.job(++jobs);
        EXPECT_TRUE(job) << jobs;
        Arrived result;
        kesta::host::ParseJobOptions(job ? job->options : QByteArray(), result.options);
        QProcess reader;
        reader.start(QStringLiteral(KESTA_TICKET), {u"show"_s});
        reader.write(job ? job->options : QByteArray());
        reader.closeWriteChannel();
        reader.waitForFinished();
        if (const auto list = kesta::ParsePropertyList(reader.readAllStandardOutput()).value;
            list && list->dictionary())
            result.ticket = *list->dictionary();
        return result;
    }

    // In the words of the printer's option, or what differs.
    static QString duplexIn(const Arrived& job)
    {
        const QString choice = FindJobOption(job.options, "Duplex").value_or(u"nothing"_s);
        const QStringList choices{u"nothing"_s, u"None"_s, u"DuplexNoTumble"_s, u"DuplexTumble"_s};
        const QStringList sides{{}, u"one-sided"_s, u"two-sided-long-edge"_s, u"two-sided-short-edge"_s};
        const auto number = choices.indexOf(choice);
        const QString said = FindJobOption(job.options, "sides").value_or(sides.value(number));
        QStringList differing;
        if (said != sides.value(number))
            differing << u"sides="_s + said;
        for (const char* place : {key::FinishingDuplex, key::PMDuplexing}) {
            const Number* stored = job.ticket.number(place);
            if (stored && stored->as<int>() != number)
                differing << QLatin1StringView(place);
        }
        return choice + differing.join(u' ');
    }

    QString settingsOf(const JobTickets& tickets, const QString& name = u"start.plist"_s) const
    {
        write(name, WriteJobSettings(tickets));
        return folder.filePath(name);
    }

    PPDVariant acme;
    PrivateServer server;
    int jobs = 0;
};

TEST_F(SettingsArrivalTest, TwoSidedFromAnySourceIsTheSameEverywhere)
{
    JobTickets contrary;
    contrary.printSettings.set("K", key::FinishingDuplex, Number::SInt32(3));
    contrary.printSettings.set("K", key::PMDuplexing, Number::SInt32(1));
    contrary.printSettings.ppdDict().set("Duplex", "DuplexNoTumble");
    JobTickets choiceOnly;
    choiceOnly.printSettings.set("K", key::PrintingOptimization, Number::SInt32(1));
    choiceOnly.printSettings.ppdDict().set("Duplex", "DuplexTumble");
    const QStringList fromContrary{u"--settings"_s, settingsOf(contrary)};
    const QStringList fromChoice{u"--settings"_s, settingsOf(choiceOnly, u"choice.plist"_s)};
    struct Source {
        const char* userDefaults;
        QStringList arguments;
        QString expected;
    };
    const std::vector<Source> sources{
        {"", {}, u"None"_s},
        {"", {u"-oDuplex=DuplexTumble"_s}, u"DuplexTumble"_s},
        {"", {u"-osides=two-sided-long-edge"_s}, u"DuplexNoTumble"_s},
        {"Duplex=DuplexTumble", {}, u"DuplexTumble"_s},
        {"sides=two-sided-long-edge", {}, u"DuplexNoTumble"_s},
        {"Duplex=DuplexTumble", {u"-osides=one-sided"_s}, u"None"_s},
        {"Duplex=DuplexTumble", {u"-dKesta/upright"_s}, u"DuplexNoTumble"_s},
        {"Duplex=DuplexTumble", {u"-oDuplex=DuplexNoTumble"_s}, u"DuplexNoTumble"_s},
        {"Duplex=DuplexNoTumble", fromContrary, u"DuplexTumble"_s},
        {"Duplex=DuplexNoTumble", fromChoice, u"DuplexTumble"_s},
        {"", fromContrary + QStringList{u"-oDuplex=None"_s}, u"None"_s},
        {"", fromChoice + QStringList{u"-osides=two-sided-long-edge"_s}, u"DuplexNoTumble"_s},
    };
    for (const Source& source : sources) {
        setUserDefaults(source.userDefaults);
        for (const QByteArray script : {"print\n", ""}) {
            SCOPED_TRACE(source.userDefaults + source.arguments.join(u' ').toStdString() + script.toStdString());
            const Ended ended = print(source.arguments, script);
            ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
            const QString duplex = duplexIn(arrived());
            const bool isUnsaid = duplex == u"nothing" && source.expected == u"None"; // the printer's own default
            EXPECT_TRUE(duplex == source.expected || isUnsaid) << duplex.toStdString();
        }
    }
}

TEST_F(SettingsArrivalTest, EachPrinterHasItsOwnDefaultsAndTheUsersChoicesGoAlong)
{
    PPDVariant second;
    second.setDefault("Duplex", "DuplexTumble").setDefault("OutputBin", "Stacker");
    server.administer(u"lpadmin"_s,
                      {u"-p"_s, u"Second"_s, u"-v"_s, u"capture:/jobs"_s, u"-P"_s, second.path(), u"-E"_s});
    ASSERT_EQ(print({}, "choose Printer \"Second\"\nprint").status, 0);
    EXPECT_EQ(duplexIn(arrived()), u"DuplexTumble"_s);
    ASSERT_EQ(print({u"-dSecond"_s}, "choose Printer \"Kesta\"\nprint").status, 0);
    EXPECT_EQ(duplexIn(arrived()), u"None"_s);
    ASSERT_EQ(print({}, "choose \"Two Sided Printing:\" =2\nchoose Printer \"Second\"\n"
                        "expect-value \"Two Sided Printing:\" =2\nprint")
                  .status,
              0);
    const Arrived chosen = arrived();
    EXPECT_EQ(duplexIn(chosen), u"DuplexNoTumble"_s);
    EXPECT_EQ(FindJobOption(chosen.options, "OutputBin"), u"Stacker"_s);
    ASSERT_EQ(print({u"-oDuplex=DuplexTumble"_s}, "choose \"Two Sided Printing:\" =1\nchoose Printer \"Second\"\nprint")
                  .status,
              0);
    EXPECT_EQ(duplexIn(arrived()), u"None"_s) << "the user's choice prevails over -o, on the next printer too";
}

constexpr char kSecure[] = "choose \"Job Type:\" =6\ntype \"Passcode:\" 4711\ntype \"ConfirmPasscode:\" 4711\n"
                           "press \"OK Command\"\nchoose \"Two Sided Printing:\" =2\nchoose \"Hole Punch:\" =3\n";

TEST_F(SettingsArrivalTest, APrinterWithoutThePaneGetsWhatTheWindowShows)
{
    for (const QByteArray printer : {"Acme", "Plain"}) {
        const QByteArray script = QByteArray(kSecure).replace("choose \"Hole Punch:\" =3\n", "") +
                                  "type Copies 2\nchoose Printer \"" + printer +
                                  "\"\nexpect \"Other Choices Kept\"\nprint\nexpect \"Job Not Kept Question\"\n"
                                  "press \"Go Back\"\nchoose Printer \"Kesta\"\nexpect-value \"Job Type:\" =6\n"
                                  "expect-value \"Two Sided Printing:\" =2\nexpect-value Copies 2\nchoose Printer \"" +
                                  printer + "\"\nprint\npress \"Print\"\n";
        const QString saved = folder.filePath(u"saved.plist"_s);
        const Ended ended = print({u"-oInputSlot=Tray2"_s, u"--save-settings"_s, saved}, script);
        ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
        const CapturedJob job = server.job(jobs + 1).value();
        EXPECT_FALSE((job.options + job.argv).contains("4711") || (job.options + job.argv).contains("kesta.print"))
            << job.options.constData();
        EXPECT_TRUE(job.argv.contains("\n4: 2\n")) << job.argv.constData();
        const Arrived plain = arrived();
        EXPECT_EQ(FindJobOption(plain.options, "InputSlot"), u"Tray2"_s) << "said for this job";
        EXPECT_EQ(FindJobOption(plain.options, "Duplex"), std::nullopt);
        QFile file(saved);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        EXPECT_TRUE(content.contains("PMCopies") && !content.contains("JobType")) << content.constData();
    }
}

TEST_F(SettingsArrivalTest, WithoutADialogTheSameIsLeftOutOrRefused)
{
    JobTickets normal;
    normal.printSettings.set("K", key::PMCopies, Number::Index(2));
    normal.printSettings.set("K", key::JobType, Dictionary{{key::JobTypeNumber, Number::Index(1)}});
    normal.printSettings.ppdDict().set("Duplex", "DuplexTumble");
    const Ended sent = print({u"-dAcme"_s, u"--settings"_s, settingsOf(normal)}, "");
    EXPECT_EQ(sent.status, 0);
    EXPECT_TRUE(sent.errors.contains(u"left out"_s)) << sent.errors.toStdString();
    const CapturedJob job = server.job(1).value();
    EXPECT_TRUE(job.argv.contains("\n4: 2\n") && !job.options.contains("Tumble") && !job.options.contains("ticket"))
        << job.options.constData();
    for (const auto& [type, said] : std::map<int, QString>{{3, u"save"_s}, {5, u"faxes"_s}, {6, u"passcode"_s}}) {
        normal.printSettings.set("K", key::JobType, Dictionary{{key::JobTypeNumber, Number::Index(type)}});
        const Ended refused = print({u"-dPlain"_s, u"--settings"_s, settingsOf(normal)}, "");
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.errors.contains(said)) << refused.errors.toStdString();
    }
    for (const auto& [type, said] : std::map<int, QString>{{5, u"recipients"_s}, {6, u"passcode"_s}}) {
        normal.printSettings.set("K", key::JobType, Dictionary{{key::JobTypeNumber, Number::Index(type)}});
        const Ended refused = print({u"--settings"_s, settingsOf(normal)}, "");
        EXPECT_TRUE(refused.status == 1 && refused.errors.contains(said)) << refused.errors.toStdString();
    }
    EXPECT_EQ(server.jobState(2), 0);
}

// One panel's settings, several at once, and what stands for them in the job.
struct PanelJob {
    const char* script;
    std::map<const char*, const char*> choices; // of the printer's options
    const char* key;                            // of the ticket
};
const PanelJob kPanelJobs[] = {
    {"choose \"Two Sided Printing:\" =2\nchoose \"Print Quality:\" TonerSaver\nchoose \"Output Destination:\" #3\n"
     "command Hpn2\ncommand Cfld\n",
     {{"Duplex", "DuplexNoTumble"}, {"OutputBin", "Top"}, {"KSFold", "C"}},
     key::FinishingOutputColor},
    {"panel SpecialPagesTitle\npress \"Add Covers Command\"\nchoose \"Cover Options Label\" #2\npress \"OK Command\"\n",
     {},
     key::SpecialPagesFrontCover},
    {"panel ColorOptions\ntype \"Lightness\" 20\ntype \"Contrast\" -10\n", {}, key::FullColorOptions},
    {"panel Advanced\nchoose \"Mirrored Output:\" Enabled\nchoose \"Request Offset:\" #2\n"
     "choose \"Output Options:\" \"Face Up\"\n",
     {{"Jog", "EndOfSet"}, {"KSOutputOption", "True"}},
     key::InvertImageOptions},
};

// Through printers that have none of it, and with every source having its say about something else.
TEST_F(SettingsArrivalTest, EachPanelsSettingsComeThroughOtherPrintersAsTheyWere)
{
    JobTickets start;
    start.printSettings.ppdDict().set("PageSize", "A4");
    const QStringList sources{u"--settings"_s, settingsOf(start), u"-oKSTColor=BW"_s};
    setUserDefaults("InputSlot=Tray1");
    for (const PanelJob& panel : kPanelJobs) {
        SCOPED_TRACE(panel.script);
        const QByteArray tour = "summary\nchoose Printer Acme\nchoose Printer Plain\nchoose Printer Kesta\nsummary\n"
                                "sync to-tickets\ndump chosen.plist\nprint\n";
        const Ended ended = print(sources, panel.script + tour);
        ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
        const QStringList said = ended.output.split(u'\n');
        EXPECT_TRUE(said.size() > 2 && said[0] == said[1]) << ended.output.toStdString();
        EXPECT_NE(said[0], u"1 copy, all pages"_s);
        JobTickets chosen;
        QFile file(folder.filePath(u"chosen.plist"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly) && !ReadJobSettings(file.readAll(), chosen));
        const Arrived job = arrived();
        EXPECT_TRUE(job.ticket == chosen.printSettings.values());
        EXPECT_TRUE(job.ticket.find(panel.key)) << panel.key;
        for (const auto& [keyword, choice] : chosen.printSettings.ppdDict()) {
            const QString arrivedChoice = FindJobOption(job.options, keyword).value_or(QString());
            EXPECT_EQ(arrivedChoice.compare(*choice.string(), Qt::CaseInsensitive), 0)
                << keyword.toStdString() << arrivedChoice.toStdString();
        }
        for (const auto& [keyword, choice] : panel.choices)
            EXPECT_EQ(chosen.printSettings.ppdDict().string(keyword) ? *chosen.printSettings.ppdDict().string(keyword)
                                                                     : QString(),
                      QLatin1StringView(choice))
                << keyword;
        EXPECT_EQ(FindJobOption(job.options, "PageSize"), u"A4"_s);
        EXPECT_EQ(FindJobOption(job.options, "KSTColor"), u"BW"_s);
        EXPECT_EQ(FindJobOption(job.options, "InputSlot"), u"Tray1"_s);
    }
}

TEST_F(SettingsArrivalTest, AFaxGivesItsColourBack)
{
    ASSERT_EQ(print({}, "choose \"Job Type:\" =7\npress \"OK Command\"\nsync to-tickets\nprint").status, 0);
    EXPECT_EQ(FindJobOption(arrived().options, "KSTColor"), std::nullopt);
    const QStringList fax{u"--settings"_s, QStringLiteral(JOB_SCRIPTS) + u"/fax.plist"_s};
    const QByteArray toNormal = "sync to-tickets\nchoose \"Job Type:\" =1\nchoose Printer \"Plain\"\n"
                                "choose Printer \"Kesta\"\nprint";
    ASSERT_EQ(print(fax, {}).status, 0);
    EXPECT_EQ(FindJobOption(arrived().options, "KSTColor"), u"BW"_s);
    ASSERT_EQ(print(fax, toNormal).status, 0);
    EXPECT_EQ(FindJobOption(arrived().options, "KSTColor"), std::nullopt);
    ASSERT_EQ(print(fax + QStringList{u"-oKSTColor=Color"_s}, toNormal).status, 0);
    EXPECT_EQ(FindJobOption(arrived().options, "KSTColor"), u"Color"_s);
}

TEST_F(SettingsArrivalTest, WhatThePrinterDoesNotOfferIsNamedAndLeftOut)
{
    JobTickets foreign;
    foreign.printSettings.set("K", key::JobType, Dictionary{{key::JobTypeNumber, Number::Index(4)}});
    foreign.printSettings.ppdDict() = {{"OutputBin", "Nowhere"}, {"OtherMakers", "Thing"}, {"OtherOff", "None"}};
    const QString kept = folder.filePath(u"kept.plist"_s);
    const Ended ended =
        print({u"-oDuplex=Foo"_s, u"--settings"_s, settingsOf(foreign), u"--save-settings"_s, kept},
              "print\nexpect \"Not Offered Title\"\nexpect \"Nowhere, not on this printer\"\npress \"Go Back\"\n"
              "expect-value \"Output Destination:\" \"Nowhere, not on this printer\"\nprint\npress \"Accept Changes\"\n"
              "expect \"OtherMakers\\nDuplex=Foo\\n\"\npress \"Leave Out\"");
    ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
    const Arrived job = arrived();
    EXPECT_EQ(duplexIn(job), u"None"_s);
    EXPECT_EQ(FindJobOption(job.options, "OutputBin"), u"Auto"_s);
    EXPECT_EQ(FindJobOption(job.options, "OtherMakers"), std::nullopt);
    EXPECT_EQ(FindJobOption(job.options, "OtherOff"), std::nullopt);
    const Dictionary* jobType = job.ticket.dictionary(key::JobType);
    ASSERT_TRUE(jobType);
    EXPECT_EQ(jobType->number(key::JobTypeNumber)->as<int>(), 1);
}

} // namespace
