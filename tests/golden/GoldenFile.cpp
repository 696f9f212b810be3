#include "golden/GoldenFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

namespace kesta::test {

QStringList LinesOf(const char* path)
{
    QFile file(QString::fromUtf8(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

void GoldenFile::compare() const
{
    if (qEnvironmentVariableIsSet("KESTA_WRITE_GOLDEN")) {
        QFile file(QString::fromUtf8(path_));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path_;
        file.write(lines_.join(u'\n').toUtf8() + '\n');
        return;
    }
    const QStringList reviewed = LinesOf(path_);
    const QSet<QString> before(reviewed.begin(), reviewed.end()), now(lines_.begin(), lines_.end());
    for (const QString& line : reviewed)
        EXPECT_TRUE(now.contains(line)) << "no longer so: " << line.toStdString();
    for (const QString& line : lines_)
        EXPECT_TRUE(before.contains(line)) << "now so: " << line.toStdString();
    EXPECT_EQ(lines_.size(), reviewed.size()) << "see scripts/golden";
    EXPECT_TRUE(lines_ == reviewed) << "the order is another one";
}

} // namespace kesta::test
