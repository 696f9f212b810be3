#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kesta::test {

inline QString SamplePath()
{
    return QStringLiteral(SAMPLE_PLUGIN);
}

// A folder NAME.plugin with the files it is given, gone with the object.
class BundleFolder {
public:
    explicit BundleFolder(const QString& name = QStringLiteral("Made"))
        : path(folder_.filePath(name + QStringLiteral(".plugin")))
    {
    }

    // The path is relative to the bundle's folder.
    const BundleFolder& write(const QString& file, const QByteArray& content) const
    {
        const QString whole = path + u'/' + file;
        QDir().mkpath(QFileInfo(whole).path());
        QFile opened(whole);
        opened.open(QIODevice::WriteOnly);
        opened.write(content);
        return *this;
    }
    const BundleFolder& writeInfo(const QByteArray& dictionary) const
    {
        return write(QStringLiteral("Contents/Info.plist"), "<plist><dict>" + dictionary + "</dict></plist>");
    }

private:
    QTemporaryDir folder_;

public:
    const QString path;
};

} // namespace kesta::test
