#include "platform/system/UserPreferences.h"

#include "platform/system/Directories.h"
#include "platform/system/SafeFile.h"
#include "platform/values/PropertyList.h"

#include <cerrno>
#include <cstdio>

namespace kesta {
namespace {

constexpr qsizetype kLargestFile = 16 * 1024 * 1024;

// Empty when there is no such place.
QString PreferenceFile(QAnyStringView file)
{
    const QString name = file.toString();
    const QString folder = ConfigDirectory();
    if (folder.isEmpty() || name.isEmpty() || name.startsWith(u'.') || name.contains(u'/') || name.contains(QChar()))
        return {};
    return folder + u'/' + name;
}

Dictionary SetAside(const QString& path, const QString& problem)
{
    const std::optional<QString> kept = KeepAsDamaged(path);
    std::fprintf(stderr, "%s: %s%s\n", qPrintable(path), qPrintable(problem),
                 kept ? qPrintable(QStringLiteral("; kept as %1").arg(*kept)) : "");
    return {};
}

} // namespace

std::optional<Dictionary> CopyUserPreferences(QAnyStringView file)
{
    const QString path = PreferenceFile(file);
    if (path.isEmpty())
        return std::nullopt;
    const FileContent content = ReadFile(path, kLargestFile);
    if (!content.bytes)
        return content.error.code == EFBIG ? SetAside(path, QStringLiteral("too large")) : Dictionary();
    PropertyListResult list = ParsePropertyList(*content.bytes);
    if (!list.value)
        return SetAside(path, list.error);
    Dictionary* preferences = list.value->dictionary();
    return preferences ? std::move(*preferences) : SetAside(path, QStringLiteral("the list is not a dictionary"));
}

bool WriteUserPreferences(QAnyStringView file, const Dictionary& preferences)
{
    const QString path = PreferenceFile(file);
    int code = path.isEmpty() ? ENOENT : 0;
    if (code == 0 && !MakeDirectory(ConfigDirectory()))
        code = errno;
    if (code == 0) {
        if (const std::optional<FileError> error =
                WriteFile(path, WritePropertyList(preferences), FileAccess::OwnerOnly))
            code = error->code;
    }
    if (code != 0)
        std::fprintf(stderr, "WriteUserPreferences() failed (%d)\n", code);
    return code == 0;
}

} // namespace kesta
