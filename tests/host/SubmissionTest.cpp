#include "host/server/Submission.h"
#include "host/server/Queues.h"

#include "host/PrivateServer.h"
#include "host/Words.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <csignal>
#include <thread>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

using namespace std::chrono_literals;
using kesta::test::PrivateServer;
using test::OnConsole;

class SubmissionTest : public testing::Test {
protected:
    int argc = 0;
    QCoreApplication application{argc, nullptr};
    PrivateServer cups;
    PrintServer server{.address = cups.address(), .patience = 600ms};
    Cancellation cancellation;
    QTemporaryFile document;

    // A document large enough to be interrupted; the server stores it without a look inside.
    PrintJob largeJob(qint64 size = 64 << 20)
    {
        EXPECT_TRUE(document.open());
        EXPECT_TRUE(document.resize(size));
        return {
            .queue = u"Plain"_s, .files = {QFile::encodeName(document.fileName())}, .options = {{u"raw"_s, u"true"_s}}};
    }
    // Does something once, when a part of the document was sent.
    static ProgressFunction midway(std::function<void()> action)
    {
        return [action, done = std::make_shared<bool>(false)](const SubmissionProgress& progress) {
            if (progress.sent > (1 << 20) && !std::exchange(*done, true))
                action();
        };
    }
};

TEST_F(SubmissionTest, FindsQueuesAndTheirPPDs)
{
    const QueueList list = FetchQueues(server, cancellation);
    ASSERT_TRUE(list.problem.isEmpty());
    ASSERT_EQ(list.queues.size(), 2u);
    const Queue& kesta = list.queues[0];
    EXPECT_EQ(kesta.name, u"Kesta"_s);
    EXPECT_TRUE(kesta.isDefault && kesta.isAccepting && !kesta.isStopped);
    EXPECT_FALSE(list.queues[1].isDefault);
    EXPECT_EQ(kesta.deviceURI, u"capture:/jobs"_s);
    EXPECT_EQ(kesta.displayName, u"Kesta"_s);

    const QueuePPD ppd = FetchQueuePPD(server, u"Kesta"_s, cancellation);
    ASSERT_TRUE(ppd.problem.isEmpty());
    QFile fetched(ppd.path);
    QFile original(QLatin1StringView(KESTA_PPD));
    ASSERT_TRUE(fetched.open(QIODevice::ReadOnly) && original.open(QIODevice::ReadOnly));
    EXPECT_EQ(fetched.readAll(), original.readAll());
    EXPECT_EQ(fetched.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    const QueuePPD none = FetchQueuePPD(server, u"Plain"_s, cancellation);
    EXPECT_TRUE(none.hasNone && none.path.isEmpty() && OnConsole(none.problem).contains(u"Plain"_s));
    EXPECT_EQ(FindQueue(server, {}, cancellation).queue.name, u"Kesta"_s);
    EXPECT_EQ(FindQueue(server, u"Plain"_s, cancellation).queue.name, u"Plain"_s);
    EXPECT_TRUE(OnConsole(FindQueue(server, u"Nowhere"_s, cancellation).problem).contains(u"does not exist"_s));
}

TEST_F(SubmissionTest, TakesFromAQueueWhatIsOfAJobAndNoMoreThanAPPDMayHave)
{
    server.patience = 10s;
    const QTemporaryDir home; // with the user's own defaults, which a thread reads when it first needs them
    QFile options(home.filePath(u".cups/lpoptions"_s));
    ASSERT_TRUE(QDir(home.path()).mkdir(u".cups"_s) && options.open(QIODevice::WriteOnly));
    options.write("Dest Plain printer-resolution=600dpi printer-commands=none marker-levels=3\n");
    options.close();
    const QByteArray homeBefore = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    NamedQueue plain;
    std::thread([&] { plain = FindQueue(server, u"Plain"_s, cancellation); }).join();
    qputenv("HOME", homeBefore);
    EXPECT_EQ(FindJobOption(plain.defaults, "printer-resolution"), u"600dpi"_s);
    EXPECT_EQ(FindJobOption(plain.defaults, "printer-commands"), std::nullopt);
    EXPECT_EQ(FindJobOption(plain.defaults, "marker-levels"), std::nullopt);

    cups.describe(QByteArray("*% a line of many\n").repeated(600'000));
    EXPECT_EQ(FetchQueuePPD(server, u"Kesta"_s, cancellation).problem.key, u"Queue PPD Large"_s);

    cups.administer(u"lpadmin"_s, {u"-x"_s, u"Kesta"_s});
    for (const auto& [variable, problem] :
         {std::pair("lp", u"No Default Queue"_s), {"gone", u"Queue Of Environment Unknown"_s}}) {
        qputenv("PRINTER", variable); // where "lp" is some program's name for the default
        EXPECT_EQ(FindQueue(server, {}, cancellation).problem.key, problem);
    }
    qunsetenv("PRINTER");
}

TEST_F(SubmissionTest, ReportsProgressAndSendsEveryByte)
{
    const PrintJob job = largeJob(3 << 20);
    std::vector<std::int64_t> sent;
    const SubmissionResult result = SubmitJob(server, job, cancellation, [&](const SubmissionProgress& progress) {
        EXPECT_EQ(progress.total, 3 << 20);
        sent.push_back(progress.sent);
    });
    EXPECT_EQ(OnConsole(result.message), u"request id is Plain-1 (1 file(s))"_s);
    ASSERT_GT(sent.size(), 10u);
    EXPECT_TRUE(std::ranges::is_sorted(sent));
    EXPECT_EQ(sent.back(), 3 << 20);
    EXPECT_EQ(cups.job(1).value().data, QByteArray(3 << 20, '\0'));
}

TEST_F(SubmissionTest, InterruptedJobsAreCancelledAndNeverSentTwice)
{
    const PrintJob job = largeJob();
    const SubmissionResult shortened =
        SubmitJob(server, job, cancellation, midway([this] { document.resize(2 << 20); }));
    EXPECT_FALSE(shortened.sent());
    EXPECT_TRUE(shortened.documentAtFault);
    const QString said = OnConsole(shortened.message);
    EXPECT_TRUE(said.contains(u"Plain-1 was cancelled"_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(QFileInfo(document.fileName()).fileName())) << said.toStdString();
    EXPECT_EQ(cups.jobState(1), 7);

    document.resize(64 << 20);
    const SubmissionResult cancelled = SubmitJob(server, job, cancellation, midway([this] { cancellation.request(); }));
    EXPECT_TRUE(cancelled.cancelled && !cancelled.sent());
    EXPECT_EQ(cups.jobState(2), 7);
    EXPECT_EQ(cups.jobState(3), 0);
    EXPECT_FALSE(cups.hasJob(1) || cups.hasJob(2));
}

TEST_F(SubmissionTest, ASilentServerEndsEveryWait)
{
    const PrintJob job = largeJob();
    const SubmissionResult halfway = SubmitJob(server, job, cancellation, midway([this] { cups.signal(SIGSTOP); }));
    EXPECT_TRUE(OnConsole(halfway.message).contains(u"went away"_s)) << OnConsole(halfway.message).toStdString();
    bool called = false;
    server.patience = 60s;
    QElapsedTimer timer;
    {
        const BackgroundTask hanging = FetchQueuesAside(server, [&](const QueueList&) { called = true; });
        const BackgroundTask sending = SubmitJobAside(server, job, {}, [&](const SubmissionResult&) { called = true; });
        QCoreApplication::processEvents();
        timer.start();
    }
    EXPECT_LT(timer.elapsed(), 3000) << "leaving does not wait for the server";
    std::jthread user([this] {
        std::this_thread::sleep_for(200ms);
        cancellation.request();
    });
    EXPECT_FALSE(FetchQueues(server, cancellation).problem.isEmpty());
    EXPECT_LT(timer.elapsed(), 20'000) << "nor does who stops waiting";

    // All at once: the library waits a second of its own in each. Nobody answers, however long one has patience.
    server.patience = 50ms;
    QStringList problems;
    const auto note = [&problems](const auto& answer) { problems << OnConsole(answer.problem); };
    const BackgroundTask asked[] = {
        FetchQueuesAside(server, note), FetchQueuePPDAside(server, u"Kesta"_s, note), FindQueueAside(server, {}, note),
        FindQueueAside(server, u"Kesta"_s, note),
        SubmitJobAside(server, job, {}, [&](const SubmissionResult& sent) { problems << OnConsole(sent.message); })};
    while (problems.size() < 5 && timer.elapsed() < 15'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(problems.filter(u"does not answer"_s).size(), 5) << problems.join(u'\n').toStdString();
    EXPECT_FALSE(called);
}

} // namespace
} // namespace kesta::host
