#pragma once

#include <QByteArray>
#include <QString>

namespace kesta::ticket_tool {

inline constexpr qsizetype kLargestKeyFile = 16 * 1024; // bytes

struct NewKeyFile {
    QString problem = {}; // empty, or why there is no new file; one that was there is as it was
    QString note = {};    // what the administrator has yet to do; or empty
};

// Writes a private key of mode 0640, which is never there with more rights or in part. As root it is root:lp. Without
// "force" a file or link of that name is an error; with it that is replaced, a link itself and not what it points to.
NewKeyFile WriteKeyFile(const QString& path, const QByteArray& content, bool force);

} // namespace kesta::ticket_tool
