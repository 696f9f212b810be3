#include "host/server/BackgroundTask.h"

#include <QObject>
#include <QTimer>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace kesta::host {
namespace {

// A thread that looks at its cancellation ends well within this; one that is stuck in a name look-up is left behind.
constexpr std::chrono::milliseconds kGrace{500};

} // namespace

// Owned by the task and its thread together, so that either may go first.
class BackgroundTask::Shared : public std::enable_shared_from_this<Shared> {
public:
    Shared() : receiver_(std::make_unique<QObject>()) {}

    Cancellation cancellation;

    void deliver(std::function<void()> function)
    {
        const std::lock_guard lock(mutex_);
        if (receiver_)
            QMetaObject::invokeMethod(receiver_.get(), guarded(Outcome::Delivered, std::move(function)),
                                      Qt::QueuedConnection);
    }

    void setDeadline(std::chrono::milliseconds deadline, std::function<void()> late)
    {
        QTimer::singleShot(deadline, receiver_.get(), guarded(Outcome::Late, std::move(late)));
    }

    // Drops what was delivered but has not run yet as well.
    void close()
    {
        std::unique_ptr<QObject> receiver;
        const std::lock_guard lock(mutex_);
        receiver = std::move(receiver_);
    }

    void ended()
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        end_.notify_all();
    }

    void waitForEnd()
    {
        std::unique_lock lock(mutex_);
        end_.wait_for(lock, kGrace, [this] { return ended_; });
    }

private:
    enum class Outcome { None, Delivered, Late };

    // On the starting thread: after a delivery the deadline says nothing more, after the deadline no delivery does.
    std::function<void()> guarded(Outcome outcome, std::function<void()> function)
    {
        return [weak = weak_from_this(), outcome, function = std::move(function)] {
            const std::shared_ptr<Shared> self = weak.lock();
            if (!self || (self->outcome_ != Outcome::None && (outcome == Outcome::Late || self->outcome_ != outcome)))
                return;
            self->outcome_ = outcome;
            if (outcome == Outcome::Late)
                self->cancellation.request();
            function();
        };
    }

    std::mutex mutex_;
    std::condition_variable end_;
    std::unique_ptr<QObject> receiver_;
    Outcome outcome_ = Outcome::None;
    bool ended_ = false;
};

Cancellation& BackgroundTask::Context::cancellation()
{
    return shared_.cancellation;
}

void BackgroundTask::Context::deliver(std::function<void()> function)
{
    shared_.deliver(std::move(function));
}

BackgroundTask::BackgroundTask(Work work) : shared_(std::make_shared<Shared>())
{
    std::thread([shared = shared_, work = std::move(work)] {
        Context context(*shared);
        work(context);
        shared->ended();
    }).detach();
}

BackgroundTask::BackgroundTask(Work work, std::chrono::milliseconds deadline, std::function<void()> late)
    : BackgroundTask(std::move(work))
{
    shared_->setDeadline(deadline, std::move(late));
}

BackgroundTask& BackgroundTask::operator=(BackgroundTask&& other) noexcept
{
    if (this != &other) {
        abandon();
        shared_ = std::move(other.shared_);
    }
    return *this;
}

BackgroundTask::~BackgroundTask()
{
    abandon();
}

void BackgroundTask::cancel()
{
    if (shared_)
        shared_->cancellation.request();
}

void BackgroundTask::abandon()
{
    if (!shared_)
        return;
    shared_->cancellation.request();
    shared_->close();
    shared_->waitForEnd();
    shared_.reset();
}

} // namespace kesta::host
