#include "host/server/DocumentSource.h"

#include "platform/system/Descriptor.h"

#include <QTemporaryFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <span>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr int kLookAgainMilliseconds = 100;

QString Reason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

Message NoAccess(const QString& path, int error)
{
    return Say("File Without Access", path, Reason(error));
}

Message IsEmpty(const QString& path)
{
    return Say("File Empty", path);
}

// Bytes read into the buffer, 0 at the end, -1 with errno. Looks at the cancellation while nothing comes.
ssize_t ReadSome(int descriptor, std::span<char> buffer, Cancellation& cancellation)
{
    for (;;) {
        if (cancellation.requested()) {
            errno = ECANCELED;
            return -1;
        }
        pollfd wait{descriptor, POLLIN, 0};
        const int ready = ::poll(&wait, 1, kLookAgainMilliseconds);
        if (ready < 0 && errno != EINTR)
            return -1;
        if (ready <= 0)
            continue;
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count >= 0 || (errno != EINTR && errno != EAGAIN))
            return count;
    }
}

std::optional<QString> Copy(int descriptor, QTemporaryFile& copy, Cancellation& cancellation)
{
    std::array<char, 65'536> buffer;
    for (;;) {
        const ssize_t count = ReadSome(descriptor, buffer, cancellation);
        if (count == 0)
            return copy.flush() && copy.seek(0) ? std::nullopt : std::optional(copy.errorString());
        if (count < 0)
            return Reason(errno);
        if (copy.write(buffer.data(), count) != count)
            return copy.errorString();
    }
}

std::optional<Message> Spool(int descriptor, const Message& name, Document& document, Cancellation& cancellation)
{
    auto copy = std::make_unique<QTemporaryFile>();
    if (!copy->open())
        return Say("No Temporary File", copy->errorString());
    if (const auto reason = Copy(descriptor, *copy, cancellation))
        return Say("Document Unreadable", name, *reason);
    document.size = copy->size();
    document.file = std::move(copy);
    return std::nullopt;
}

std::optional<Message> OpenStandardInput(Document& document, Cancellation& cancellation)
{
    document.name = u"(stdin)"_s;
    auto problem = Spool(STDIN_FILENO, Say("Standard Input As Document"), document, cancellation);
    if (!problem && document.size == 0)
        return Say("Standard Input Empty");
    return problem;
}

// Of what is known without reading.
std::optional<Message> FaultOf(const QString& path, const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return NoAccess(path, EISDIR);
    if (S_ISREG(status.st_mode) && status.st_size == 0)
        return IsEmpty(path);
    return std::nullopt;
}

std::optional<Message> OpenPath(const QByteArray& encoded, Document& document, Cancellation& cancellation)
{
    const QString path = QFile::decodeName(encoded);
    document.name = path.section(u'/', -1);
    Descriptor descriptor(::open(encoded.constData(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0)
        return NoAccess(path, errno);
    if (auto fault = FaultOf(path, status))
        return fault;
    if (!S_ISREG(status.st_mode)) {
        if (auto problem = Spool(descriptor, Verbatim(path), document, cancellation))
            return problem;
    } else {
        document.file = std::make_unique<QFile>(path);
        if (!document.file->open(descriptor.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
            return NoAccess(path, EIO);
        document.size = status.st_size;
    }
    return document.size == 0 ? std::optional(IsEmpty(path)) : std::nullopt;
}

} // namespace

std::optional<Message> FindFileProblem(const QByteArrayList& paths)
{
    for (const QByteArray& encoded : paths) {
        const QString path = QFile::decodeName(encoded);
        struct stat status {};
        if (::stat(encoded.constData(), &status) != 0 || ::access(encoded.constData(), R_OK) != 0)
            return NoAccess(path, errno);
        if (auto fault = FaultOf(path, status))
            return fault;
    }
    return std::nullopt;
}

DocumentList OpenDocuments(const QByteArrayList& paths, Cancellation& cancellation)
{
    DocumentList list;
    const qsizetype count = std::max<qsizetype>(paths.size(), 1);
    for (qsizetype i = 0; i < count; ++i) {
        Document document;
        const auto problem =
            paths.isEmpty() ? OpenStandardInput(document, cancellation) : OpenPath(paths[i], document, cancellation);
        if (problem)
            return {{}, *problem};
        list.documents.push_back(std::move(document));
    }
    return list;
}

} // namespace kesta::host
