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
    if (folder.isEmpty() || !IsPlainFileName(name))
        return {};
    return folder + u'/' + name;
}

std::optional<Dictionary> ParsePreferences(const QByteArray& bytes, QString& problem)
{
    PropertyListResult list = ParsePropertyList(bytes);
    Dictionary* preferences = list.value ? list.value->dictionary() : nullptr;
    if (preferences)
        return std::move(*preferences);
    problem = list.value ? QStringLiteral("the list is not a dictionary") : list.error;
    return std::nullopt;
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
    std::optional<Dictionary> preferences;
    QString problem;
    const FileContent content = ReadFileAtRest(path, kLargestFile, [&](const QByteArray& bytes) {
        preferences = ParsePreferences(bytes, problem);
        return preferences.has_value();
    });
    if (content.bytes)
        return preferences;
    switch (content.error.code) {
    case ENOENT:
    case ENOTDIR:
        return Dictionary();
    case EILSEQ:
        return SetAside(path, problem);
    case EFBIG:
        return SetAside(path, QStringLiteral("too large"));
    default:
        std::fprintf(stderr, "%s\n", qPrintable(content.error.text));
        return std::nullopt;
    }
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
