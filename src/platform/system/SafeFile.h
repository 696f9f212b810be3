#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kesta {

struct FileError {
    int code = 0; // errno's
    QString text; // one line with the file's name
};

enum class FileAccess {
    AsUsual,   // what the user's umask leaves
    OwnerOnly, // 0600, also when the file was there with more
};

// Writes the whole file; nothing on success. Room is reserved first, so that a full disk leaves the file as it was, or
// not there when it was not. A path that is no regular file (a terminal, a pipe) is written to as it is.
std::optional<FileError> WriteFile(const QString& path, const QByteArray& bytes,
                                   FileAccess access = FileAccess::AsUsual);

struct FileContent {
    std::optional<QByteArray> bytes;
    FileError error = {}; // when there are no bytes
};

// The whole file, also of a pipe; an error when it is larger than the limit in bytes.
FileContent ReadFile(const QString& path, qsizetype limit);

// Moves a file that could not be understood to its name with ".damaged" after it; an older one there goes.
// The new name, nothing when it could not be moved.
std::optional<QString> KeepAsDamaged(const QString& path);

} // namespace kesta
