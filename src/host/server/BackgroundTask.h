#pragma once

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace kesta::host {

// A wish to stop, from one thread to another. The library of the print system reads it as a plain int.
class Cancellation {
public:
    void request() { std::atomic_ref(flag_).store(1); }
    bool requested() { return std::atomic_ref(flag_).load() != 0; }
    int* flag() { return &flag_; }

private:
    int flag_ = 0;
};

// Work on a thread of its own whose results come back to the thread that started it, which runs an event loop.
// Once the task is destroyed nothing more is delivered; destroying it never waits for a server.
class BackgroundTask {
public:
    class Shared;

    // What the work sees of its task.
    class Context {
    public:
        explicit Context(Shared& shared) : shared_(shared) {}
        Cancellation& cancellation();
        // Runs the function on the starting thread, in the order of the calls.
        void deliver(std::function<void()> function);

    private:
        Shared& shared_;
    };

    using Work = std::function<void(Context&)>;

    explicit BackgroundTask(Work work);
    // As above; when the work has delivered nothing within the time, "late" is called on the starting thread and what
    // the work delivers afterwards is dropped.
    BackgroundTask(Work work, std::chrono::milliseconds deadline, std::function<void()> late);
    BackgroundTask(BackgroundTask&&) noexcept = default;
    BackgroundTask& operator=(BackgroundTask&& other) noexcept;
    ~BackgroundTask();

    // Asks the work to stop; it still delivers what it has to say.
    void cancel();

private:
    void abandon();
    std::shared_ptr<Shared> shared_;
};

} // namespace kesta::host
