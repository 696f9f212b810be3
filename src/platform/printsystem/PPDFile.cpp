#include "platform/printsystem/PPDFile.h"

#include "platform/printsystem/PPDFileCheck.h"

#include <QFile>

#include <optional>
#include <sys/stat.h>

namespace kesta {
namespace {

// A file as it was at one moment: another one at the same place, or other content, compares unequal.
struct FileState {
    dev_t device = 0;
    ino_t number = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;

    bool operator==(const FileState&) const = default;
};

std::optional<FileState> StateOf(const QByteArray& path)
{
    struct stat found {};
    if (stat(path.constData(), &found) != 0)
        return std::nullopt;
    return FileState{.device = found.st_dev,
                     .number = found.st_ino,
                     .size = found.st_size,
                     .seconds = found.st_mtim.tv_sec,
                     .nanoseconds = found.st_mtim.tv_nsec};
}

struct LastOpened {
    QByteArray path;
    FileState state;
    std::shared_ptr<ppd_file_t> ppd;
};

LastOpened& TheLastOpened()
{
    static LastOpened last;
    return last;
}

} // namespace

OpenPPD OpenPPDFile(const QString& path)
{
    if (const std::optional<Message> problem = PPDFileProblem(path))
        return {nullptr, *problem};
    if (ppd_file_t* ppd = ppdOpenFile(QFile::encodeName(path).constData()))
        return {std::shared_ptr<ppd_file_t>(ppd, ppdClose), {}};
    int line = 0;
    const QString reason = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
    return {nullptr, Say("PPD Refused", path, line, reason)};
}

OpenPPD SharedPPDFile(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    const std::optional<FileState> state = StateOf(name); // before it is read: a later change is noticed
    LastOpened& last = TheLastOpened();
    if (last.ppd && state == last.state && name == last.path)
        return {last.ppd, {}};
    OpenPPD opened = OpenPPDFile(path);
    if (opened.ppd && state)
        last = {.path = name, .state = *state, .ppd = opened.ppd};
    return opened;
}

} // namespace kesta
