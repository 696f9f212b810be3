#include "host/server/BackgroundTask.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <optional>
#include <thread>

namespace kesta::host {
namespace {

using namespace std::chrono_literals;

// Runs the event loop until the condition holds, five seconds at most.
bool Until(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return condition();
}

class BackgroundTaskTest : public testing::Test {
protected:
    int argc = 0;
    QCoreApplication application{argc, nullptr};
};

TEST_F(BackgroundTaskTest, DeliversInOrderOnTheStartingThread)
{
    const auto main = std::this_thread::get_id();
    std::vector<int> delivered;
    const BackgroundTask task([&](BackgroundTask::Context& context) {
        EXPECT_NE(std::this_thread::get_id(), main);
        for (int i = 0; i < 3; ++i) {
            context.deliver([&, i] {
                EXPECT_EQ(std::this_thread::get_id(), main);
                delivered.push_back(i);
            });
        }
    });
    EXPECT_TRUE(Until([&] { return delivered.size() == 3; }));
    EXPECT_EQ(delivered, (std::vector{0, 1, 2}));
}

TEST_F(BackgroundTaskTest, DestroyedTaskDeliversNothingAndDoesNotWait)
{
    bool delivered = false;
    std::atomic<bool> ready = false;
    std::atomic<bool> release = false;
    std::atomic<bool> gone = false;
    QElapsedTimer timer;
    {
        const BackgroundTask stuck([&](BackgroundTask::Context& context) {
            context.deliver([&] { delivered = true; });
            ready = true;
            while (!release) // deaf to its cancellation, as a name look-up is
                std::this_thread::sleep_for(5ms);
            context.deliver([&] { delivered = true; });
            gone = true;
        });
        while (!ready)
            std::this_thread::sleep_for(1ms);
        timer.start();
    }
    EXPECT_LT(timer.elapsed(), 2000);
    release = true;
    while (!gone)
        std::this_thread::sleep_for(1ms);
    QCoreApplication::processEvents();
    EXPECT_FALSE(delivered);
}

TEST_F(BackgroundTaskTest, ATaskInAnothersPlaceEndsThatOne)
{
    bool delivered = false, followed = false;
    std::atomic<bool> cancelled = false;
    BackgroundTask task([&](BackgroundTask::Context& context) {
        context.deliver([&] { delivered = true; });
        while (!context.cancellation().requested())
            std::this_thread::sleep_for(1ms);
        cancelled = true;
    });
    task = BackgroundTask([&](BackgroundTask::Context& context) { context.deliver([&] { followed = true; }); });
    EXPECT_TRUE(Until([&] { return followed && cancelled; }));
    EXPECT_FALSE(delivered);
}

TEST_F(BackgroundTaskTest, AfterTheDeadlineOnlyTheDeadlineCounts)
{
    int late = 0;
    int delivered = 0;
    std::atomic<bool> cancelled = false;
    const BackgroundTask slow(
        [&](BackgroundTask::Context& context) {
            while (!context.cancellation().requested())
                std::this_thread::sleep_for(1ms);
            context.deliver([&] { ++delivered; });
            cancelled = true;
        },
        10ms, [&] { ++late; });
    const BackgroundTask quick([&](BackgroundTask::Context& context) { context.deliver([&] { ++delivered; }); }, 150ms,
                               [&] { late += 100; });
    EXPECT_TRUE(Until([&] { return late > 0 && cancelled.load(); }));
    QElapsedTimer timer;
    timer.start();
    Until([&] { return timer.elapsed() > 200; });
    EXPECT_EQ(late, 1) << "the quick task's deadline says nothing after its delivery";
    EXPECT_EQ(delivered, 1) << "what comes after the deadline is dropped";
}

TEST_F(BackgroundTaskTest, ADeliveryMayDestroyItsTask)
{
    std::optional<BackgroundTask> task;
    bool second = false;
    task.emplace([&](BackgroundTask::Context& context) {
        context.deliver([&] { task.reset(); });
        context.deliver([&] { second = true; });
    });
    EXPECT_TRUE(Until([&] { return !task; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(second);
}

} // namespace
} // namespace kesta::host
