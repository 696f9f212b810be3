#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

const QString kBook = QStringLiteral(KESTA_RESOURCES "/KestaFeatures/Help");

QString ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(HelpPages, AreThereForEveryWindowThatHasHelp)
{
    const QStringList lines = ContentOf(QStringLiteral(TEST_DATA "/help-pages.txt")).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_GT(lines.size(), 10);
    for (const QString& page : lines) {
        EXPECT_TRUE(page.startsWith(u'#') || QFile::exists(kBook + u'/' + page)) << page.toStdString();
    }
}

TEST(HelpPages, LinkToPagesThatExistAndCanBeReached)
{
    static const QRegularExpression link(u"href=\"([^\"#]+)"_s);
    QStringList reached = {u"index.htm"_s};
    for (qsizetype i = 0; i < reached.size(); ++i) {
        const QString folder = QFileInfo(reached[i]).path();
        for (auto match = link.globalMatch(ContentOf(kBook + u'/' + reached[i])); match.hasNext();) {
            const QString target = QDir::cleanPath(folder + u'/' + match.next().captured(1));
            EXPECT_TRUE(QFile::exists(kBook + u'/' + target))
                << reached[i].toStdString() << " -> " << target.toStdString();
            if (!reached.contains(target))
                reached << target;
        }
    }
    for (QDirIterator all(kBook, QDir::Files, QDirIterator::Subdirectories); all.hasNext();) {
        const QString page = QDir(kBook).relativeFilePath(all.next());
        EXPECT_TRUE(reached.contains(page)) << "no link leads to " << page.toStdString();
    }
}

} // namespace
} // namespace kesta
