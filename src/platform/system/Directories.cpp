#include "platform/system/Directories.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace kesta {
namespace {

constexpr char kOurs[] = "/kesta-print";

// An address that is not absolute counts as none.
QString Directory(const char* variable, const char* belowHome)
{
    const QString named = QFile::decodeName(qgetenv(variable));
    if (QDir::isAbsolutePath(named))
        return QDir::cleanPath(named) + QLatin1String(kOurs);
    const QString home = QFile::decodeName(qgetenv("HOME"));
    if (!QDir::isAbsolutePath(home))
        return {};
    return QDir::cleanPath(home + QLatin1String(belowHome)) + QLatin1String(kOurs);
}

} // namespace

QString ConfigDirectory()
{
    return Directory("XDG_CONFIG_HOME", "/.config");
}

QString DataDirectory()
{
    return Directory("XDG_DATA_HOME", "/.local/share");
}

QString MachineDirectory()
{
    const QString named = QFile::decodeName(qgetenv("KESTA_DATA_ROOT"));
    return QDir::cleanPath(QDir::isAbsolutePath(named) ? named : QStringLiteral(KESTA_MACHINE_FOLDER));
}

bool MakeDirectory(const QString& path)
{
    if (path.isEmpty() || QDir(path).exists())
        return !path.isEmpty();
    const QString above = QFileInfo(path).path();
    return MakeDirectory(above) && (mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QDir(path).exists());
}

} // namespace kesta
