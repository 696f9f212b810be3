#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

QByteArray Content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// What the pattern's first group finds in the text.
QStringList Found(const QString& text, const QString& pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch& match : QRegularExpression(pattern).globalMatch(text))
        found << match.captured(1);
    return found;
}

// The keys of the sources, of the window, and those that the sources put together.
QStringList UsedKeys()
{
    QStringList keys;
    QDirIterator sources(QStringLiteral(HOST_SOURCES), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString text = QString::fromUtf8(Content(sources.next()));
        keys += Found(text, u"PrintText\\([^\"()+]*\"([^\"]+)\""_s);
        keys += Found(text, u"say\\(u\"([^\"]+)\""_s);
        for (const QString& problem : Found(text, u"return u\"(Pages [^\"]+)\""_s))
            keys << problem + u" Title"_s << problem + u" Message"_s;
    }
    const QString window = QString::fromUtf8(Content(QStringLiteral(HOST_RESOURCES "/PrintDialog/Window.ui")));
    return keys + Found(window, u"name=\"(?:text|toolTip|accessibleName)\"><string>([^<]+)<"_s);
}

TEST(PrintTexts, EveryKeyHasATextAndEveryTextIsUsed)
{
    const auto [bundle, error] = LoadBundleAt(QStringLiteral(KESTA_PRINT_BUNDLE));
    ASSERT_TRUE(bundle) << error.toStdString();
    const QStringList used = UsedKeys();
    EXPECT_GT(used.size(), 50);
    for (const QString& key : used)
        EXPECT_NE(LocalizedString(*bundle, key), QString::fromLatin1(kStringNotFound)) << key.toStdString();
    const QString catalogue =
        QString::fromUtf8(Content(QStringLiteral(HOST_RESOURCES "/translations/KestaPrint_en.ts")));
    for (const QString& key : Found(catalogue, u"<source>([^<]+)</source>"_s))
        EXPECT_TRUE(used.contains(key)) << key.toStdString();
}

} // namespace
} // namespace kesta::host
