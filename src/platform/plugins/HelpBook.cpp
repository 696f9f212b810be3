#include "platform/plugins/HelpBook.h"

#include "platform/plugins/Bundle.h"
#include "platform/system/HelpViewer.h"
#include "platform/system/SafeFile.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

namespace kesta {
namespace {

constexpr QLatin1String kStartPage("index.htm");
constexpr int kMostPages = 2000;                // that a look-up of an anchor reads
constexpr qsizetype kLargestPage = 1024 * 1024; // bytes

QString BookOf(const Bundle& bundle)
{
    const QString* folder = bundle.info.string("CFBundleHelpBookFolder");
    return bundle.resourcesPath + u'/' + (folder ? *folder : QStringLiteral("Help"));
}

// Where a page may be, the best place first: the language folders, then the book itself.
QStringList FoldersOf(const QString& book)
{
    QStringList folders;
    for (const QString& language : PreferredLanguages())
        folders.append(book + u'/' + language);
    folders.append(book);
    return folders;
}

QString FindPage(const QString& book, const QString& page)
{
    const QString inside = QFileInfo(book).canonicalFilePath() + u'/';
    for (const QString& folder : FoldersOf(book)) {
        const QFileInfo file(folder + u'/' + page);
        if (!page.isEmpty() && file.isFile() && file.canonicalFilePath().startsWith(inside))
            return file.canonicalFilePath();
    }
    return {};
}

bool HasAnchor(const QString& file, const QRegularExpression& anchor)
{
    const FileContent content = ReadFile(file, kLargestPage);
    return content.bytes && QString::fromUtf8(*content.bytes).contains(anchor);
}

// The page that has the anchor, in the first folder where one does; the first by name.
QString FindAnchor(const QString& book, const QString& anchor)
{
    const QRegularExpression pattern(
        QStringLiteral("\\b(?:id|name)\\s*=\\s*[\"']%1[\"']").arg(QRegularExpression::escape(anchor)));
    for (const QString& folder : FoldersOf(book)) {
        QStringList pages;
        QDirIterator files(folder, {QStringLiteral("*.htm")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext() && pages.size() < kMostPages)
            pages.append(files.next());
        pages.sort();
        for (const QString& page : pages) {
            if (HasAnchor(page, pattern))
                return page;
        }
    }
    return {};
}

} // namespace

QString HelpPageFile(const Bundle& bundle, const QString& page)
{
    const QString book = BookOf(bundle);
    const QString found = FindPage(book, page);
    return found.isEmpty() ? FindPage(book, kStartPage) : found;
}

OSStatus OpenHelp(const Bundle& bundle, const QString& page, const QString& anchor)
{
    const QString withAnchor = page.isEmpty() && !anchor.isEmpty() ? FindAnchor(BookOf(bundle), anchor) : QString();
    const QString file = withAnchor.isEmpty() ? HelpPageFile(bundle, page) : withAnchor;
    return file.isEmpty() ? kFileNotFound : GetHelpViewer().show(file, anchor);
}

} // namespace kesta
