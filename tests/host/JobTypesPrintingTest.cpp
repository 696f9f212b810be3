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
        QProcess reader;
        reader.start(QStringLiteral(KESTA_TICKET), {u"show"_s});
        reader.write(job.options);
        reader.closeWriteChannel();
        reader.waitForFinished();
        return reader.readAllStandardOutput();
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
                continue; // the filters turn it into the pages themselves
            EXPECT_TRUE(job.data.contains("%%BeginFeature: *" + name + ' ' + value + '\n'))
                << name.constData() << ' ' << value.constData();
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
    }
    EXPECT_GE(number, 10);
    EXPECT_EQ(secrets, 3);
}

} // namespace
