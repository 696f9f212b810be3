#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
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

// Writes the whole file; nothing on success. The new content is written aside and takes the old one's place at once, so
// that a power cut, a kill or a full disk leaves the old content or the new one: also behind a symbolic link, with the
// mode and the owner that the file had. Where that can't be (the folder may not be written to, the owner can't be kept,
// the file has another hard link, the file system does not rename) it is written in place. A path that is no regular
// file (a terminal, a pipe) is written to as it is.
std::optional<FileError> WriteFile(const QString& path, const QByteArray& bytes,
                                   FileAccess access = FileAccess::AsUsual);

// The same over the old content, which is gone from the first byte on. Room is reserved before, so that a full disk
// leaves the file as it was, or not there when it was not.
std::optional<FileError> WriteFileInPlace(const QString& path, const QByteArray& bytes,
                                          FileAccess access = FileAccess::AsUsual);

struct FileContent {
    std::optional<QByteArray> bytes;
    FileError error = {}; // when there are no bytes
};

// The whole file, also of a pipe; an error when it is larger than the limit in bytes.
FileContent ReadFile(const QString& path, qsizetype limit);

// Reads a file that others may be writing in place just now: a content that is not understood is read again until it
// is, or until nothing about it changed for 200 ms. The error is ENOENT when there is no such file, EILSEQ when it is
// really damaged (EFBIG when by its size), EBUSY when it never came to rest, or why it can't be read at present: then
// it may be as good as ever.
using Understands = std::function<bool(const QByteArray& bytes)>;
FileContent ReadFileAtRest(const QString& path, qsizetype limit, const Understands& understands);

// Whether a name from outside is one of a file in the folder that it is looked for in: no path, not hidden, not empty.
bool IsPlainFileName(const QString& name);

// Moves a file that could not be understood to its name with ".damaged" after it; an older one there goes.
// The new name, nothing when it could not be moved.
std::optional<QString> KeepAsDamaged(const QString& path);

} // namespace kesta
