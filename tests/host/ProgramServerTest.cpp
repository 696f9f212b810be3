// The program with a print server that goes away, refuses, or comes back.

#include "host/PrivateServer.h"
#include "host/ProgramFixture.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using kesta::test::Ended;
using kesta::test::PrivateServer;
using kesta::test::ProgramTest;

class ProgramServerTest : public ProgramTest {
protected:
    // A job for the server's default queue.
    Ended print(const QByteArray& script, const QString& file = QStringLiteral(SAMPLE),
                const std::function<void()>& beside = {}) const
    {
        return run({u"-h"_s, server.address(), u"--script"_s, u"-"_s, u"-d"_s, u"Kesta"_s, file}, script, beside);
    }

    static bool waitFor(const std::function<bool()>& condition)
    {
        for (QDeadlineTimer deadline(20'000); !deadline.hasExpired(); QThread::msleep(5)) {
            if (condition())
                return true;
        }
        return false;
    }

    // Waits until the program wants to read the pipe, so it has found its printer; then this happens, and then the pipe
    // has its document. The next attempt finds a pipe of its own.
    static void feed(const QByteArray& pipe, const std::function<void()>& before)
    {
        int descriptor = -1;
        ASSERT_TRUE(
            waitFor([&] { return (descriptor = ::open(pipe.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) >= 0; }));
        ASSERT_TRUE(::unlink(pipe.constData()) == 0 && ::mkfifo(pipe.constData(), 0600) == 0);
        before();
        const QByteArray document = "%!PS\nshowpage\n";
        EXPECT_EQ(::write(descriptor, document.constData(), static_cast<size_t>(document.size())), document.size());
        ::close(descriptor);
    }

    PrivateServer server;
};

TEST_F(ProgramServerTest, AServerThatIsGoneLeavesAWindowToTryAgainIn)
{
    server.signal(SIGKILL);
    const Ended ended = print("expect \"No Server Title\"\ntype Copies 3\npress \"Try Again\"\n"
                              "expect \"No Server Title\"\nexpect-value Copies 3\nexpect-enabled Print no\ncancel");
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
}

TEST_F(ProgramServerTest, AServerThatDiesBeforeTheJobLeavesEverythingToPrintOnce)
{
    const QString pipe = folder.filePath(u"pipe.ps"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const Ended ended = print("type Copies 3\ntype Pages 1\nchoose \"Per Sheet\" 4\nchoose \"Two Sided Printing:\" "
                              "=2\nprint\nexpect \"Sending Failed Title\"\n"
                              "expect \"Nothing was printed\"\npress OK\nexpect-value Copies 3\n"
                              "expect-value \"Two Sided Printing:\" =2\nprint",
                              pipe, [&] {
                                  feed(QFile::encodeName(pipe), [&] { server.signal(SIGKILL); });
                                  feed(QFile::encodeName(pipe), [&] { server.restart(); });
                              });
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(ended.output, u"request id is Kesta-1 (1 file(s))\n"_s);
    EXPECT_EQ(ended.errors.count(u"Nothing was printed"_s), 1) << ended.errors.toStdString();
    const auto job = server.job(1);
    ASSERT_TRUE(job);
    EXPECT_TRUE(job->argv.contains("\n4: 3\n")) << job->argv.toStdString();
    for (const char* option : {"page-ranges=1", "number-up=4", "Duplex=DuplexNoTumble", "com.kesta.print.ticket.1="})
        EXPECT_TRUE(job->options.contains(option)) << option << " in " << job->options.toStdString();
    EXPECT_EQ(server.jobState(2), 0) << "nothing is sent twice";
}

TEST_F(ProgramServerTest, AServerThatDiesWithinTheJobEndsItWithOne)
{
    QFile large(folder.filePath(u"large.ps"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(qint64(1) << 30)); // takes no room, but time to send
    large.close();
    const Ended ended = print("type Copies 3\nprint\nexpect \"Sending Failed Title\"\nexpect \"could not be sent\"\n"
                              "press OK\nexpect-value Copies 3\ncancel",
                              large.fileName(), [&] {
                                  EXPECT_TRUE(waitFor([&] { return server.jobState(1) != 0; }));
                                  server.signal(SIGKILL);
                              });
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, QString());
    EXPECT_TRUE(ended.errors.contains(u"look whether it is there (lpstat -o)"_s)) << ended.errors.toStdString();
    server.restart();
    EXPECT_EQ(server.jobState(2), 0) << "nothing is sent twice";
    EXPECT_FALSE(server.hasJob(1));
}

TEST_F(ProgramServerTest, AQueueThatTakesNoJobsAsksFirst)
{
    server.administer(u"cupsreject"_s, {u"-r"_s, u"out of order"_s, u"Kesta"_s});
    const Ended back = print("type Copies 3\nprint\nexpect \"Queue Not Accepting Title\"\nexpect \"out of order\"\n"
                             "press \"Go Back\"\nexpect-value Copies 3\ncancel");
    EXPECT_EQ(back.status, 0) << back.errors.toStdString();

    const Ended refused = print("print\npress \"Print Anyway\"\nexpect \"Sending Failed Title\"\npress OK\ncancel");
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.errors.contains(u"when the queue accepts jobs"_s)) << refused.errors.toStdString();
    EXPECT_FALSE(server.hasJob(1));
}

TEST_F(ProgramServerTest, AJobWaitsAtAPausedQueue)
{
    server.administer(u"cupsdisable"_s, {u"Kesta"_s});
    const Ended ended = print("print\nexpect \"Queue Stopped Title\"\npress \"Print Anyway\"");
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(ended.output, u"request id is Kesta-1 (1 file(s))\n"_s);
    EXPECT_EQ(server.jobState(1), 3);
}

TEST_F(ProgramServerTest, ClosedStandardInputIsAnEmptyDocument)
{
    prepare = [] { ::close(STDIN_FILENO); };
    const Ended ended = run({u"-h"_s, server.address(), u"--no-dialog"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.errors.contains(u"is empty"_s)) << ended.errors.toStdString();
}

} // namespace
