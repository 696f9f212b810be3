#include "watermark-tool/WatermarkTool.h"

#include "panels/booklet_watermark/TestFonts.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SharedStoreFile.h"
#include "support/SmallDisk.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace kesta::watermark_tool {
namespace {

using namespace booklet_watermark;
using namespace Qt::StringLiterals;

class WatermarkTool : public testing::Test {
public:
    WatermarkTool() { qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder_.path())); }

    QString at(const char* file) const { return folder_.filePath(QLatin1String(file)); }
    static QString storePath() { return CopyPreferenceFileURL(kWatermarkFile).value(); }
    static QByteArray output(const QStringList& arguments)
    {
        const Outcome outcome = RunWatermarkTool(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.said.join(u'\n').toStdString();
        return outcome.output;
    }
    static std::string failure(const QStringList& arguments)
    {
        const Outcome outcome = RunWatermarkTool(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.output.isEmpty());
        return outcome.said.join(u'\n').toStdString();
    }

private:
    QTemporaryDir folder_;
};

TEST_F(WatermarkTool, AddsShowsListsAndRemoves)
{
    EXPECT_EQ(output({u"list"_s}), "");
    output({u"add"_s, u"--text"_s, u"Gr\u00fcn"_s, u"--font"_s, u"DejaVuSans"_s, u"--size"_s, u"40"_s, u"--angle"_s,
            u"-30"_s, u"--density"_s, u"60"_s, u"--color"_s, u"#ff0080"_s, u"--x"_s, u"1.5"_s, u"--y"_s, u"-2"_s});
    QImage(4, 4, QImage::Format_RGB32).save(at("logo.png"));
    output({u"add"_s, u"--scale"_s, u"50"_s, u"--picture"_s, at("logo.png")});
    EXPECT_EQ(output({u"list"_s}), "Gr\u00fcn\nlogo.png\n");
    EXPECT_EQ(output({u"show"_s, u"Gr\u00fcn"_s}),
              "text: Gr\u00fcn\nfont: DejaVuSans\nsize: 40\nangle: -30\ndensity: 60\n"
              "color: #ff0080\nx: 1.5\ny: -2\n");
    EXPECT_EQ(output({u"show"_s, u"logo.png"_s}), "picture: " + at("logo.png").toUtf8() + "\nscale: 50\n");

    ASSERT_FALSE(convertFont(kWatermarkFile, u"Gr\u00fcn"_s).subsetName.isEmpty());
    output({u"remove"_s, u"Gr\u00fcn"_s});
    EXPECT_EQ(output({u"list"_s}), "logo.png\n");
    EXPECT_FALSE(test::FileBytes(storePath()).contains("KS-DejaVuSans-KS"));
    EXPECT_NE(failure({u"remove"_s, u"LOGO.PNG"_s}).find("no watermark"), std::string::npos);
}

TEST_F(WatermarkTool, ReplacesOnlyWhenAskedTo)
{
    output({u"add"_s, u"--text"_s, u"Draft"_s});
    EXPECT_NE(failure({u"add"_s, u"--text"_s, u"Draft"_s, u"--size"_s, u"9"_s}).find("--replace"), std::string::npos);
    output({u"add"_s, u"--replace"_s, u"--text"_s, u"Draft"_s, u"--size"_s, u"9"_s});
    EXPECT_EQ(output({u"list"_s}), "Draft\n");
    EXPECT_TRUE(output({u"show"_s, u"Draft"_s}).contains("size: 9\n"));
}

TEST_F(WatermarkTool, SaysHowATextWillLook)
{
    const Outcome outcome = RunWatermarkTool({u"add"_s, u"--text"_s, u"A\U00012000"_s});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said,
              QStringList({u"kesta-watermark: note: drawn in Liberation Sans, which stands in for ArialMT"_s,
                           u"kesta-watermark: note: no font on this computer has the characters \U00012000"_s}));
    EXPECT_EQ(RunWatermarkTool({u"add"_s, u"--text"_s, u"B"_s, u"--font"_s, u"RestrictedSans"_s}).said.size(), 1);
}

TEST_F(WatermarkTool, RefusesInWords)
{
    test::WriteBytes(at("text.png"), "no picture");
    test::WriteBytes(at("big.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='100000' height='100000'/>");
    const std::pair<QStringList, const char*> rows[] = {
        {{}, "--help"},
        {{u"paint"_s}, "--help"},
        {{u"show"_s}, "--help"},
        {{u"list"_s, u"more"_s}, "--help"},
        {{u"add"_s}, "either --text or --picture"},
        {{u"add"_s, u"--text"_s}, "needs a value"},
        {{u"add"_s, u"--text"_s, QString()}, "empty"},
        {{u"add"_s, u"--text"_s, QString(u'x').repeated(512)}, "longer than 511"},
        {{u"add"_s, u"--text"_s, u"WatermarkListEntries"_s}, "the store's own"},
        {{u"add"_s, u"--text"_s, u"KS-A-KS"_s}, "that of a font"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--angle"_s, u"361"_s}, "from -360 to 360"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--size"_s, u"0"_s}, "from 1 to 1000"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--density"_s, u"x"_s}, "from 0 to 100"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--color"_s, u"red"_s}, "six hexadecimal"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--x"_s, u"nan"_s}, "inches"},
        {{u"add"_s, u"--text"_s, u"A"_s, u"--text"_s, u"B"_s}, "twice"},
        {{u"add"_s, u"--sise"_s, u"9"_s}, "no option --sise"},
        {{u"add"_s, u"--picture"_s, at("missing.png")}, "can't be opened"},
        {{u"add"_s, u"--picture"_s, at("text.png")}, "no picture"},
        {{u"add"_s, u"--picture"_s, at("big.svg")}, "too large"},
        {{u"preview"_s, u"Draft"_s, u"-o"_s, at("a.pdf")}, "no watermark"},
        {{u"preview"_s, u"Draft"_s, u"-o"_s, at("a.gif")}, ".pdf or .png"},
        {{u"preview"_s, u"Draft"_s, u"-o"_s, at("a.pdf"), u"--paper"_s, u"Napkin"_s}, "no paper"},
    };
    for (const auto& [arguments, words] : rows)
        EXPECT_NE(failure(arguments).find(words), std::string::npos) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(QFileInfo::exists(storePath()));
}

TEST_F(WatermarkTool, AStoreThatCannotBeWrittenIsSaidAndStaysAsItIs)
{
    output({u"add"_s, u"--text"_s, u"Draft"_s});
    const QByteArray before = test::FileBytes(storePath());
    const test::SmallDisk disk(static_cast<rlim_t>(before.size()));
    EXPECT_NE(failure({u"add"_s, u"--text"_s, u"Copy"_s}).find("could not be written"), std::string::npos);
    EXPECT_EQ(test::FileBytes(storePath()), before);
}

TEST_F(WatermarkTool, PreviewsLeaveTheStoreAsItIs)
{
    output({u"add"_s, u"--text"_s, u"Draft"_s, u"--density"_s, u"100"_s});
    const QByteArray before = test::FileBytes(storePath());
    output({u"preview"_s, u"Draft"_s, u"-o"_s, at("a.png"), u"--paper"_s, u"letter"_s});
    output({u"preview"_s, u"-o"_s, at("a.pdf"), u"Draft"_s});
    const QImage page(at("a.png"));
    EXPECT_EQ(page.size(), QSize(1275, 1650));
    EXPECT_EQ(page.pixel(0, 0), qRgb(255, 255, 255));
    int ink = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            ink += page.pixel(x, y) == qRgb(0, 0, 255);
    EXPECT_GT(ink, 5000);
    EXPECT_TRUE(test::FileBytes(at("a.pdf")).startsWith("%PDF-"));
    EXPECT_EQ(test::FileBytes(storePath()), before);
}

TEST_F(WatermarkTool, WhatAFileHoldsIsNoCommandToTheTerminal)
{
    _WatermarkData record;
    record.fileName.set(u"logo.png"_s);
    record.filePath.set(u"/nowhere/\u009b2J\nlogo.png"_s);
    saveWatermarkData(kWatermarkFile, record);
    EXPECT_EQ(failure({u"preview"_s, u"logo.png"_s, u"-o"_s, at("a.pdf")}),
              "kesta-watermark: /nowhere/ 2J logo.png can't be opened");
}

// Changes at the same moment may undo each other; what is there stays whole, and a change later on finds it.
TEST_F(WatermarkTool, ProgramsThatEditAtOnceLeaveAWholeStore)
{
    output({u"add"_s, u"--text"_s, u"First"_s});
    for (int round = 0; round < 5; ++round) {
        QProcess programs[2];
        for (int i = 0; i < 2; ++i)
            programs[i].start(QStringLiteral(WATERMARK_TOOL),
                              {u"add"_s, u"--text"_s, u"%1 of %2"_s.arg(round).arg(i), u"--font"_s, u"DejaVuSans"_s});
        for (QProcess& program : programs)
            EXPECT_TRUE(program.waitForFinished(60000));
        std::optional<QStringList> names = loadWatermarkList(kWatermarkFile);
        ASSERT_TRUE(names);
        EXPECT_TRUE(names->contains(u"First"_s));
        EXPECT_EQ(names->removeDuplicates(), 0);
    }
    EXPECT_FALSE(QFileInfo::exists(storePath() + u".damaged"_s));
    output({u"add"_s, u"--text"_s, u"Last"_s});
    EXPECT_EQ(loadWatermarkList(kWatermarkFile)->back(), u"Last"_s);
    EXPECT_EQ(loadWatermarkList(kWatermarkFile)->front(), u"First"_s);
}

TEST_F(WatermarkTool, NeedsNoWidgets)
{
    QProcess ldd;
    ldd.start(u"ldd"_s, {QStringLiteral(WATERMARK_TOOL)});
    ASSERT_TRUE(ldd.waitForFinished());
    const QByteArray libraries = ldd.readAllStandardOutput();
    EXPECT_TRUE(libraries.contains("libcairo")) << libraries.constData();
    EXPECT_FALSE(libraries.contains("Widgets"));
    EXPECT_FALSE(libraries.contains("libkesta-support"));
}

} // namespace
} // namespace kesta::watermark_tool
