#pragma once

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace kesta {

// A file descriptor that closes itself; standard input, output and error stay open.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ > STDERR_FILENO)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    // Whether it is open now; else errno says why not.
    bool open(const QString& path, int flags, mode_t mode = 0)
    {
        close();
        number_ = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode);
        return number_ >= 0;
    }
    operator int() const { return number_; }
    int release() { return std::exchange(number_, -1); }
    // 0 or errno; some file systems tell only now that a write failed.
    int close()
    {
        const int number = release();
        return number < 0 || ::close(number) == 0 ? 0 : errno;
    }

private:
    int number_ = -1;
};

} // namespace kesta
