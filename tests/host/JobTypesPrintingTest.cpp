// Each job type through the plug-in, the program and a print server to the printer: the dialog scripts of the job
// types, printed.

#include "host/FileContent.h"
#include "host/PrivateServer.h"
#include "host/ProgramFixture.h"

#include "platform/printsystem/JobSettings.h"
#include "platform/values/PropertyList.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

#include <map>
#include <thread>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using kesta::test::CapturedJob;
using kesta::test::Content;
using kesta::test::Ended;
using kesta::test::PrivateServer;
using kesta::test::ProgramTest;

QStringList FilesBelow(const QString& folder)
{
    QStringList files;
    for (QDirIterator all(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
         all.hasNext();)
        files << all.next();
    return files;
}

// Looks at the command lines of all processes for a text, for as long as it lives.
class CommandLineWatch {
public:
    explicit CommandLineWatch(QByteArray text) : text_(std::move(text)) {}
    QStringList findings() // ends the watch
    {
        watcher_.request_stop();
        watcher_.join();
        return findings_;
    }

private:
    void look()
    {
        for (const QString& process : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QByteArray line = Content(u"/proc/%1/cmdline"_s.arg(process));
            if (line.contains(text_))
                findings_ << QString::fromLocal8Bit(line);
        }
    }

    QByteArray text_;
    QStringList findings_;
    std::jthread watcher_{[this](const std::stop_token& stop) {
        while (!stop.stop_requested())
            look();
    }};
};

class JobTypesPrintingTest : public ProgramTest {
protected:
    JobTypesPrintingTest()
    {
        environment.insert(u"HOME"_s, folder.path());
        environment.insert(u"XDG_DATA_HOME"_s, folder.path());
        environment.insert(u"TMPDIR"_s, folder.path());
        const Read made = readTicket({u"keygen"_s, u"--key"_s, keyPath});
        EXPECT_EQ(made.status, 0);
        server.describe(made.output);
    }

    struct Read {
        int status = -1;
        QByteArray output;
    };
    static Read readTicket(const QStringList& arguments, const QByteArray& options = {})
    {
        QProcess reader;
        reader.start(QStringLiteral(KESTA_TICKET), arguments);
        reader.write(options);
        reader.closeWriteChannel();
        reader.waitForFinished();
        return {reader.exitCode(), reader.readAllStandardOutput()};
    }

    Ended print(const QByteArray& script, const QString& scripts) const
    {
        static const QRegularExpression with(u"^# with: (.*)$"_s, QRegularExpression::MultilineOption);
        const QString more = with.match(QString::fromUtf8(script)).captured(1).replace(u"@FOLDER@"_s, scripts);
        const QStringList arguments{u"-h"_s, server.address(), u"--script"_s, u"-"_s, QStringLiteral(SAMPLE)};
        return run(QProcess::splitCommand(more) + arguments, script);
    }

    QByteArray ticketOf(const CapturedJob& job) const
    {
        return readTicket({u"show"_s, u"--key"_s, keyPath}, job.options).output;
    }

    // Whoever has no private key finds the job's settings wherever the server shows or keeps them, and not the secret.
    void expectToBeSealed(const CapturedJob& job, int number, const QByteArray& secret) const
    {
        EXPECT_TRUE(ticketOf(job).contains(secret));
        const QByteArray shown = server.shownOf(number);
        const QByteArray control =
            Content(QFileInfo(server.address()).path() + u"/spool/c%1"_s.arg(number, 5, 10, QChar(u'0')));
        const QString log = QFileInfo(server.address()).path() + u"/log/error"_s;
        const std::map<const char*, QByteArray> places{{"options", job.options},
                                                       {"arguments", job.argv},
                                                       {"answer", shown},
                                                       {"control file", control},
                                                       {"log", Content(log)}};
        for (const auto& [name, place] : places) {
            const qsizetype start = place.lastIndexOf("com.kesta.print.ticket.sealed");
            ASSERT_GE(start, 0) << name << place.size();
            EXPECT_EQ(place.mid(start + 29, 20).count("ks1-"), 1) << name;
            EXPECT_FALSE(place.contains(secret)) << name;
        }
        for (const QByteArray& options : {job.options, QByteArray(shown).replace('\n', ' ')}) {
            const Read read = readTicket({u"show"_s, u"--key"_s, u"/no/such/key"_s}, options);
            EXPECT_EQ(read.status, 2);
            EXPECT_TRUE(read.output.contains("<key>JobType</key>"));
            EXPECT_FALSE(read.output.contains(secret));
        }
    }

    void expectToArrive(const CapturedJob& job) const
    {
        kesta::JobTickets chosen;
        ASSERT_FALSE(ReadJobSettings(Content(folder.filePath(u"chosen.plist"_s)), chosen));
        EXPECT_EQ(ticketOf(job), WritePropertyList(chosen.printSettings.values()));
        EXPECT_GT(chosen.printSettings.ppdDict().count(), 5);
        const QByteArrayList arrived = job.options.split(' ');
        for (const auto& [option, choice] : chosen.printSettings.ppdDict()) {
            const QByteArray name = option.toUtf8();
            const QByteArray value = choice.string()->toUtf8();
            const bool isOn = value == "True" && arrived.contains(name);
            const bool isOff = value == "False" && arrived.contains("no" + name);
            EXPECT_TRUE(isOn || isOff || arrived.contains(name + '=' + value))
                << name.constData() << ' ' << job.options.constData();
            if (name == "PageSize")
                continue;                               // the filters turn it into the pages themselves
            const QByteArray code = name == "JCLBanner" // before the pages, in the printer's job language
                                        ? "@PJL SET JOBBANNER=" + QByteArray(value == "True" ? "ON" : "OFF")
                                        : "%%BeginFeature: *" + name + ' ' + value;
            EXPECT_TRUE(job.data.contains(code + '\n')) << code.constData();
        }
    }

    // In no log and in no file but those that nobody else can read.
    void expectToBeKept(const QByteArray& secret) const
    {
        const QString serverFolder = QFileInfo(server.address()).path();
        int places = 0;
        for (const QString& file : FilesBelow(folder.path()) + FilesBelow(serverFolder)) {
            if (!Content(file).contains(secret))
                continue;
            struct stat status {};
            ASSERT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
            EXPECT_EQ(status.st_mode & 077, 0U) << file.toStdString();
            EXPECT_EQ(QFileInfo(file).fileName(), u"chosen.plist"_s) << file.toStdString(); // asked for by the script
            ++places;
        }
        EXPECT_EQ(places, 1);
        for (const QString& control : QDir(serverFolder + u"/spool"_s).entryList({u"c*"_s}, QDir::Files))
            EXPECT_FALSE(QFile::permissions(serverFolder + u"/spool/"_s + control) & QFile::ReadOther);
    }

    const bool logsAll = qputenv("PRIVATE_CUPS_LOG_LEVEL", "debug2");
    PrivateServer server;
    const QTemporaryDir keys;
    const QString keyPath = keys.filePath(u"ticket.key"_s);
};

TEST_F(JobTypesPrintingTest, EachArrivesAsChosenAndKeepsItsPasscode)
{
    static const QRegularExpression longPasscode(u"# dump: SecurePrintPassword=([0-9]{10})\n"_s);
    const QDir scripts(QStringLiteral(JOB_SCRIPTS));
    int number = 0;
    int secrets = 0;
    for (const QString& name : scripts.entryList({u"*.script"_s})) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray script = Content(scripts.filePath(name));
        const QByteArray secret = longPasscode.match(QString::fromUtf8(script)).captured(1).toUtf8();
        CommandLineWatch watch(secret.isEmpty() ? "no secret" : secret);
        const Ended ended = print(script, scripts.path());
        ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
        const auto job = server.job(++number);
        ASSERT_TRUE(job);
        EXPECT_EQ(watch.findings(), QStringList());
        expectToArrive(*job);
        if (secret.isEmpty())
            continue;
        ++secrets;
        EXPECT_FALSE((ended.output + ended.errors).toUtf8().contains(secret));
        expectToBeKept(secret);
        expectToBeSealed(*job, number, secret);
    }
    EXPECT_GE(number, 10);
    EXPECT_EQ(secrets, 3);
}

TEST_F(JobTypesPrintingTest, NothingIsSentForADamagedKey)
{
    server.describe("*KSTicketKey: \"kk1-short\"\n");
    const QString plist = QStringLiteral(JOB_SCRIPTS) + u"/fax.plist"_s;
    const QStringList settings{u"-h"_s, server.address(), u"--settings"_s, plist, QStringLiteral(SAMPLE)};
    const QByteArray script = "print\nexpect \"KSTicketKey\"\npress \"OK\"\ncancel\n";
    for (const QString& mode : {u"--no-dialog"_s, u"--script=-"_s}) {
        const Ended ended = run(QStringList{mode} + settings, script);
        EXPECT_EQ(ended.status, 1) << ended.errors.toStdString();
        EXPECT_TRUE(ended.errors.contains(u"KSTicketKey"_s)) << ended.errors.toStdString();
    }
    EXPECT_EQ(server.jobState(1), 0);
}

} // namespace
