#include "platform/system/SharedStoreFile.h"

#include "platform/system/Directories.h"
#include "platform/system/SafeFile.h"
#include "platform/values/PropertyList.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace kesta {
namespace {

constexpr char kFolder[] = "/Kesta";

// Everything that a list may have is read.
constexpr qsizetype kLargestStoreFile = PropertyListLimits().bytes;

constexpr int kMostTries = 5;

std::optional<mode_t> Mode(const QString& path)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status.st_mode;
}

bool IsAllowed(const QString& path, int access)
{
    return ::access(QFile::encodeName(path).constData(), access) == 0;
}

// Open to whom the folder above is open, whatever the umask: sharing is decided by who set up that one.
void ShareLikeFolder(const QString& path, mode_t bits)
{
    if (const std::optional<mode_t> folder = Mode(QFileInfo(path).path()))
        chmod(QFile::encodeName(path).constData(), *folder & bits);
}

void MakeSharedFolder(const QString& path)
{
    if (mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0)
        ShareLikeFolder(path, ALLPERMS);
}

// In a folder that others may write to as well, a link could lead to any file of this user's: nothing but a plain file
// will do.
bool CanKeepShared(const QString& folder, const QString& path)
{
    const std::optional<mode_t> file = Mode(path);
    return IsAllowed(folder, R_OK | W_OK | X_OK) && (!file || (S_ISREG(*file) && IsAllowed(path, R_OK | W_OK)));
}

// Empty without a home.
QString OwnFolder()
{
    const QString data = DataDirectory();
    return data.isEmpty() ? QString() : data + QLatin1String(kFolder);
}

std::optional<Dictionary> ParseRoot(const QByteArray& bytes, QString& problem)
{
    PropertyListResult list = ParsePropertyList(bytes);
    if (Dictionary* root = list.value ? list.value->dictionary() : nullptr)
        return std::move(*root);
    problem = list.value ? QStringLiteral("the list is not a dictionary") : list.error;
    return std::nullopt;
}

struct Root {
    std::optional<Dictionary> content;
    QByteArray bytes; // of the file, when there is content
    int error = 0; // errno's, when there is no content: ENOENT; EILSEQ or EFBIG when it is damaged; else it may be good
};

Root ReadRoot(const QString& path)
{
    std::optional<Dictionary> root;
    QString problem;
    const FileContent file = ReadFileAtRest(path, kLargestStoreFile, [&](const QByteArray& bytes) {
        root = ParseRoot(bytes, problem);
        return root.has_value();
    });
    if (file.bytes)
        return {std::move(root), *file.bytes};
    if (file.error.code != ENOENT)
        std::fprintf(stderr, "CopyXMLData()::CFPropertyListCreateFromXMLData() error: %s\n",
                     qPrintable(file.error.code == EILSEQ ? problem : file.error.text));
    return {std::nullopt, {}, file.error.code};
}

// Two programs that write at once may leave a mixture of both: whoever sees that writes again.
int WriteContent(const QString& path, const QByteArray& bytes)
{
    for (int tries = 0; tries < kMostTries; ++tries) {
        if (const std::optional<FileError> error = WriteFileInPlace(path, bytes))
            return error->code;
        const FileContent written = ReadFile(path, kLargestStoreFile);
        if (!written.bytes || *written.bytes == bytes || ParsePropertyList(*written.bytes).value)
            return 0;
    }
    return EBUSY;
}

int WriteRoot(const QString& path, const QByteArray& before, const Dictionary& root)
{
    const QByteArray bytes = WritePropertyList(root);
    if (bytes == before)
        return 0;
    const bool isNew = !QFileInfo::exists(path);
    if (const int error = WriteContent(path, bytes))
        return error;
    if (isNew)
        ShareLikeFolder(path, DEFFILEMODE);
    return 0;
}

} // namespace

std::optional<QString> CopyPreferenceFileURL(QAnyStringView file)
{
    const QString name = file.toString();
    if (!IsPlainFileName(name))
        return std::nullopt;
    const QString shared = MachineDirectory() + QLatin1String(kFolder);
    const QString sharedPath = shared + u'/' + name;
    MakeSharedFolder(shared);
    if (CanKeepShared(shared, sharedPath))
        return sharedPath;
    const QString own = OwnFolder();
    if (own.isEmpty() || !MakeDirectory(own))
        return std::nullopt;
    return own + u'/' + name;
}

std::optional<Dictionary> CopyOwnXMLData(QAnyStringView file)
{
    const std::optional<QString> inUse = CopyPreferenceFileURL(file);
    const QString own = OwnFolder() + u'/' + file.toString();
    const bool isAside = inUse && *inUse != own && QFileInfo(own).isFile();
    return isAside ? ReadRoot(own).content : std::nullopt;
}

std::optional<Dictionary> CopyXMLData(QAnyStringView file)
{
    const std::optional<QString> path = CopyPreferenceFileURL(file);
    return path ? ReadRoot(*path).content : std::nullopt;
}

int ChangeXMLData(QAnyStringView file, WhenUnreadable whenUnreadable, const Change& change)
{
    const std::optional<QString> path = CopyPreferenceFileURL(file);
    if (!path)
        return ENOENT;
    Root root = ReadRoot(*path);
    if (!root.content) {
        const bool isDamaged = root.error == EILSEQ || root.error == EFBIG;
        if (root.error != ENOENT && !isDamaged)
            return root.error;
        if (whenUnreadable == WhenUnreadable::DoNothing)
            return 0;
        if (isDamaged && !KeepAsDamaged(*path))
            return errno;
        root.content.emplace();
    }
    change(*root.content);
    return WriteRoot(*path, root.bytes, *root.content);
}

} // namespace kesta
