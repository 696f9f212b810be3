#include "platform/system/SafeFile.h"

#include "platform/system/Descriptor.h"

#include "platform/system/Clock.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace kesta {
namespace {

constexpr qsizetype kPiece = 64 * 1024; // bytes read or written at once
constexpr int kMostLinks = 40;

// A file that is not understood is damaged when four more readings in 200 ms find nothing else.
constexpr SInt64 kBetweenReadings = 50; // milliseconds
constexpr int kReadingsAtRest = 4;
constexpr int kMostReadings = 40; // two seconds

// Of a new file, less the umask.
mode_t ModeOf(FileAccess access)
{
    return access == FileAccess::OwnerOnly ? S_IRUSR | S_IWUSR : DEFFILEMODE;
}

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

// Room for the bytes from begin to end, by writing: for file systems that don't reserve any (some network file systems,
// memory).
int Extend(int file, off_t begin, off_t end)
{
    static const QByteArray zeros(kPiece, '\0');
    for (off_t at = begin; at < end;) {
        const ssize_t written =
            pwrite(file, zeros.constData(), static_cast<size_t>(std::min<off_t>(kPiece, end - at)), at);
        if (written < 0 && errno != EINTR)
            return errno;
        at += written > 0 ? written : 0;
    }
    return 0;
}

// The room is there before the first byte of the old content goes; without it the file gets its old size back.
int Reserve(int file, off_t oldSize, off_t size)
{
    if (size <= oldSize)
        return 0;
    int code = 0;
    // Not posix_fallocate: where there is nothing to call it reads, which a file opened for writing can't.
    do
        code = fallocate(file, 0, 0, size) == 0 ? 0 : errno;
    while (code == EINTR);
    if (code == EOPNOTSUPP || code == ENOSYS)
        code = Extend(file, oldSize, size);
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

// Where the links of a path lead, also when nothing is there yet; nothing for links without end.
std::optional<QString> EndOfLinks(QString path)
{
    for (int links = 0; links < kMostLinks; ++links) {
        const QFileInfo file(path);
        if (!file.isSymLink())
            return path;
        path = file.symLinkTarget();
    }
    return std::nullopt;
}

int SyncFolder(const QString& folder)
{
    Descriptor opened;
    if (!opened.open(folder, O_RDONLY | O_DIRECTORY))
        return errno;
    return fsync(opened) == 0 || errno == EINVAL ? 0 : errno; // EINVAL: a file system that has nothing to sync
}

// A file without a name, or under the one given where the file system has no files without names.
class FileAside {
public:
    FileAside(const QString& folder, const QString& name, mode_t mode) : name_(name)
    {
        if (!file_.open(folder, O_WRONLY | O_TMPFILE, mode) && file_.open(name, O_WRONLY | O_CREAT | O_EXCL, mode))
            isNamed_ = true;
    }
    ~FileAside()
    {
        if (isNamed_)
            QFile::remove(name_);
    }
    FileAside(const FileAside&) = delete;
    FileAside& operator=(const FileAside&) = delete;

    int descriptor() const { return file_; }
    // 0 or errno.
    int moveTo(const QString& path)
    {
        if (!isNamed_) {
            const QByteArray unnamed = "/proc/self/fd/" + QByteArray::number(file_);
            const QByteArray name = QFile::encodeName(name_);
            if (linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0)
                return errno;
            isNamed_ = true;
        }
        if (const int code = file_.close())
            return code;
        if (std::rename(QFile::encodeName(name_).constData(), QFile::encodeName(path).constData()) != 0)
            return errno;
        isNamed_ = false;
        return 0;
    }

private:
    QString name_;
    Descriptor file_;
    bool isNamed_ = false;
};

// Gives the file the mode and the owner that the old one has.
bool Resemble(int file, const struct stat& old, FileAccess access)
{
    const mode_t mode = access == FileAccess::OwnerOnly ? S_IRUSR | S_IWUSR : old.st_mode & ALLPERMS;
    struct stat now = {};
    if (fstat(file, &now) != 0)
        return false;
    const bool sameOwner = now.st_uid == old.st_uid && now.st_gid == old.st_gid;
    return (sameOwner || fchown(file, old.st_uid, old.st_gid) == 0) && fchmod(file, mode) == 0;
}

// Nothing when the file can't be written aside, else 0 or errno.
std::optional<int> WriteAside(const QString& path, const QByteArray& bytes, FileAccess access)
{
    struct stat old = {};
    const bool isThere = stat(QFile::encodeName(path).constData(), &old) == 0;
    if (!isThere && errno != ENOENT)
        return errno;
    if (isThere && (!S_ISREG(old.st_mode) || old.st_nlink > 1))
        return std::nullopt;
    if (isThere && ::access(QFile::encodeName(path).constData(), W_OK) != 0)
        return errno;
    const QFileInfo file(path);
    const QString name =
        QStringLiteral("%1/.%2.%3")
            .arg(file.path(), file.fileName(), QString::number(QRandomGenerator::system()->generate64(), 36));
    FileAside aside(file.path(), name, ModeOf(access));
    if (aside.descriptor() < 0 || (isThere && !Resemble(aside.descriptor(), old, access)))
        return std::nullopt;
    if (const int code = WriteAll(aside.descriptor(), bytes))
        return code;
    if (fsync(aside.descriptor()) != 0)
        return errno;
    if (aside.moveTo(path) != 0)
        return std::nullopt;
    return SyncFolder(file.path());
}

struct Reading {
    FileContent content;
    qint64 changed = 0; // nanoseconds since 1970

    bool operator==(const Reading& other) const
    {
        return content.bytes == other.content.bytes && content.error.code == other.content.error.code &&
               changed == other.changed;
    }
};

Reading ReadOnce(const QString& path, qsizetype limit)
{
    Reading reading{.content = ReadFile(path, limit)};
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) == 0)
        reading.changed = qint64{status.st_mtim.tv_sec} * 1000000000 + status.st_mtim.tv_nsec;
    return reading;
}

} // namespace

std::optional<FileError> WriteFile(const QString& path, const QByteArray& bytes, FileAccess access)
{
    const std::optional<QString> place = EndOfLinks(path);
    if (!place)
        return ErrorOf(path, ELOOP);
    const std::optional<int> code = WriteAside(*place, bytes, access);
    if (!code)
        return WriteFileInPlace(path, bytes, access);
    return *code == 0 ? std::nullopt : std::optional(ErrorOf(path, *code));
}

std::optional<FileError> WriteFileInPlace(const QString& path, const QByteArray& bytes, FileAccess access)
{
    const mode_t mode = ModeOf(access);
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

FileContent ReadFileAtRest(const QString& path, qsizetype limit, const Understands& understands)
{
    Reading last = ReadOnce(path, limit);
    for (int same = 0, readings = 1; readings < kMostReadings; ++readings) {
        const FileContent& content = last.content;
        if (content.bytes ? understands(*content.bytes) : content.error.code != EFBIG)
            return std::move(last.content);
        if (same == kReadingsAtRest)
            return content.bytes ? FileContent{std::nullopt, ErrorOf(path, EILSEQ)} : std::move(last.content);
        GetClock().wait(kBetweenReadings);
        Reading next = ReadOnce(path, limit);
        same = next == last ? same + 1 : 0;
        last = std::move(next);
    }
    return {std::nullopt, ErrorOf(path, EBUSY)};
}

FileContent ReadFile(const QString& path, qsizetype limit)
{
    Descriptor file;
    QByteArray bytes;
    const int code = file.open(path, O_RDONLY) ? ReadUpTo(file, limit, bytes) : errno;
    if (code == EFBIG)
        return {std::nullopt, {code, QStringLiteral("%1: larger than %2 bytes").arg(path, QString::number(limit))}};
    if (code != 0)
        return {std::nullopt, ErrorOf(path, code)};
    return {std::move(bytes)};
}

bool IsPlainFileName(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') && !name.contains(QChar());
}

std::optional<QString> KeepAsDamaged(const QString& path)
{
    const QString kept = path + QStringLiteral(".damaged");
    if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) != 0)
        return std::nullopt;
    return kept;
}

} // namespace kesta
