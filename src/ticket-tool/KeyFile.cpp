#include "ticket-tool/KeyFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kesta::ticket_tool {
namespace {

constexpr char kFilterGroup[] = "lp"; // which the print server's filters run in
constexpr mode_t kPrivateMode = 0640;

QString ErrorText(const QString& path)
{
    return u"%1: %2"_s.arg(path, QString::fromLocal8Bit(std::strerror(errno)));
}

// Beside its place, under a name of its own and for the owner alone until it has its group.
class NewFile {
public:
    explicit NewFile(const QByteArray& place)
        : name_(place + ".XXXXXX"), file_(::mkostemp(name_.data(), O_CLOEXEC)), isThere_(file_ >= 0)
    {
    }
    ~NewFile()
    {
        if (file_ >= 0)
            ::close(file_);
        if (isThere_)
            ::unlink(name_.constData());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool isThere() const { return isThere_; }
    bool giveTo(gid_t group) const { return ::fchown(file_, 0, group) == 0; }
    bool write(const QByteArray& content) const
    {
        return ::write(file_, content.constData(), content.size()) == content.size() &&
               ::fchmod(file_, kPrivateMode) == 0 && ::fsync(file_) == 0;
    }
    // A link fails where something has that name; a rename does not.
    bool moveTo(const QByteArray& place, bool replace)
    {
        if (!replace)
            return ::link(name_.constData(), place.constData()) == 0;
        isThere_ = ::rename(name_.constData(), place.constData()) != 0;
        return !isThere_;
    }

private:
    QByteArray name_;
    int file_;
    bool isThere_;
};

} // namespace

NewKeyFile WriteKeyFile(const QString& path, const QByteArray& content, bool force)
{
    const QByteArray place = QFile::encodeName(path);
    NewFile file(place);
    if (!file.isThere())
        return {.problem = ErrorText(path)};
    NewKeyFile made;
    const group* filters = ::getgrnam(kFilterGroup);
    if (::geteuid() != 0 || !filters)
        made.note = u"let the print server's filters read %1, and nobody else: as root, chown root:lp"_s.arg(path);
    else if (!file.giveTo(filters->gr_gid))
        return {.problem = ErrorText(path)};
    if (!file.write(content))
        return {.problem = ErrorText(path)};
    if (file.moveTo(place, force))
        return made;
    if (errno == EEXIST)
        return {
            .problem =
                u"%1 is there; with --force it is replaced, and jobs sealed for it can't be read any more"_s.arg(path)};
    return {.problem = ErrorText(path)};
}

} // namespace kesta::ticket_tool
