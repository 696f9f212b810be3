#include "panels/booklet_watermark/FontBuilder.h"
#include "panels/booklet_watermark/fonts/Type42.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

struct Outcome {
    int exitCode;
    QByteArray output;
    QByteArray errors;
};

Outcome RunTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral(TYPE42_TOOL), arguments);
    EXPECT_TRUE(tool.waitForFinished(20000));
    return {tool.exitCode(), tool.readAllStandardOutput(), tool.readAllStandardError()};
}

class Type42Tool : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    QByteArray read(const QString& name)
    {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    QTemporaryDir folder_;
    test::FontBuilder builder_;
};

TEST_F(Type42Tool, ConvertsToAFileOrToStandardOutput)
{
    const QString font = write(u"Nameless.ttf"_s, builder_.file());
    QByteArray expected;
    ASSERT_TRUE(convertTTFtoPS42(builder_.file(), "Nameless", expected));

    const Outcome toOutput = RunTool({font});
    EXPECT_EQ(toOutput.exitCode, 0);
    EXPECT_EQ(toOutput.output, expected);
    const Outcome toFile = RunTool({font, u"-o"_s, folder_.filePath(u"out"_s)});
    EXPECT_EQ(toFile.exitCode, 0);
    EXPECT_EQ(toFile.output + toFile.errors, "");
    EXPECT_EQ(read(u"out"_s), expected);
}

TEST_F(Type42Tool, AFontThatFailsLeavesTheOutputAsItWas)
{
    builder_.setGlyphSizes({70000});
    const QString uncut = write(u"Uncut.ttf"_s, builder_.file());
    const QString text = write(u"text.ttf"_s, "text");
    const QString out = write(u"out"_s, "before");
    for (const QString& font : {uncut, text, folder_.filePath(u"missing"_s)}) {
        const Outcome outcome = RunTool({font, u"-o"_s, out});
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_TRUE(outcome.errors.contains(font.toLocal8Bit())) << outcome.errors.constData();
        EXPECT_EQ(read(u"out"_s), "before");
    }
    EXPECT_EQ(RunTool({}).exitCode, 1);
}

} // namespace
} // namespace kesta::booklet_watermark
