#include "platform/system/SafeFile.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kesta {
namespace {

constexpr qsizetype kPiece = 64 * 1024; // bytes read at once

// A file descriptor that closes itself.
class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor() { close(); }
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
    // 0 or errno; some file systems tell only now that a write failed.
    int close()
    {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0 ? 0 : errno;
    }

private:
    int number_ = -1;
};

FileError ErrorOf(const QString& path, int code)
{
    return {code, QStringLiteral("%1: %2").arg(path, QString::fromLocal8Bit(std::strerror(code)))};
}

// Each of these answers 0 or errno.

int WriteAll(int file, const QByteArray& bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written = write(file, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return errno;
        done += written > 0 ? written : 0;
    }
    return 0;
}

// The room is there before the first byte of the old content goes; without it the file gets its old size back.
int Reserve(int file, off_t oldSize, off_t size)
{
    if (size <= oldSize)
        return 0;
    int code = 0;
    do
        code = posix_fallocate(file, 0, size);
    while (code == EINTR);
    if (code == EOPNOTSUPP)
        return 0;
    if (code != 0 && ftruncate(file, oldSize) != 0)
        return errno;
    return code;
}

int ReplaceContent(int file, off_t oldSize, const QByteArray& bytes)
{
    if (const int code = Reserve(file, oldSize, bytes.size()))
        return code;
    if (const int code = WriteAll(file, bytes))
        return code;
    return ftruncate(file, bytes.size()) == 0 && fsync(file) == 0 ? 0 : errno;
}

int WriteTo(int file, const QByteArray& bytes, FileAccess access)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return WriteAll(file, bytes);
    if (access == FileAccess::OwnerOnly && fchmod(file, S_IRUSR | S_IWUSR) != 0)
        return errno;
    return ReplaceContent(file, status.st_size, bytes);
}

// EFBIG when there is more than the limit.
int ReadUpTo(int file, qsizetype limit, QByteArray& bytes)
{
    QByteArray piece(kPiece, Qt::Uninitialized);
    while (bytes.size() <= limit) {
        const ssize_t count = read(file, piece.data(), kPiece);
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0)
            bytes.append(piece.constData(), count);
    }
    return EFBIG;
}

} // namespace

std::optional<FileError> WriteFile(const QString& path, const QByteArray& bytes, FileAccess access)
{
    const mode_t mode = access == FileAccess::OwnerOnly ? 0600 : 0666; // less the umask
    Descriptor file;
    const bool isNew = file.open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
    // Also through a link to a file that is not there yet.
    if (!isNew && (errno != EEXIST || !file.open(path, O_WRONLY | O_CREAT, mode)))
        return ErrorOf(path, errno);
    int code = WriteTo(file, bytes, access);
    const int closing = file.close();
    if (code == 0)
        code = closing;
    if (code == 0)
        return std::nullopt;
    if (isNew)
        QFile::remove(path);
    return ErrorOf(path, code);
}

FileContent ReadFile(const QString& path, qsizetype limit)
{
    Descriptor file;
    QByteArray bytes;
    const int code = file.open(path, O_RDONLY) ? ReadUpTo(file, limit, bytes) : errno;
    if (code == EFBIG)
        return {std::nullopt, {code, QStringLiteral("%1: larger than %2 bytes").arg(path).arg(limit)}};
    if (code != 0)
        return {std::nullopt, ErrorOf(path, code)};
    return {std::move(bytes)};
}

std::optional<QString> KeepAsDamaged(const QString& path)
{
    const QString kept = path + QStringLiteral(".damaged");
    if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) != 0)
        return std::nullopt;
    return kept;
}

} // namespace kesta
