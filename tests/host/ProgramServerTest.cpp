// The program with a print server that goes away, refuses, or comes back.

#include "host/PrivateServer.h"
#include "host/ProgramFixture.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

using kesta::test::Ended;
using kesta::test::PrivateServer;
using kesta::test::ProgramTest;

class ProgramServerTest : public ProgramTest {
protected:
    // A job for the server's default queue.
    Ended print(const QByteArray& script, const QStringList& more = {}) const
    {
        const QStringList arguments{u"-h"_s, server.address(), u"--script"_s, u"-"_s};
        return run(arguments + more + QStringList{QStringLiteral(SAMPLE)}, script);
    }

    PrivateServer server;
};

TEST_F(ProgramServerTest, AServerThatIsGoneLeavesAWindowToTryAgainIn)
{
    server.signal(SIGKILL);
    const Ended ended = print("expect \"No Server Title\"\ntype Copies 3\npress \"Try Again\"\n"
                              "expect \"No Server Title\"\nexpect-value Copies 3\ncancel");
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
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

} // namespace
