#pragma once

#include <QFile>

namespace kesta::test {

// Nothing also for a file that can't be read.
inline QByteArray Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace kesta::test
