#include "host/commandline/CommandLine.h"

#include "host/Words.h"

#include <gtest/gtest.h>

namespace kesta::host {
namespace {

CommandLineResult Parse(std::vector<const char*> arguments)
{
    return ParseCommandLine(arguments);
}

std::string Error(std::vector<const char*> arguments)
{
    return test::OnConsole(Parse(std::move(arguments)).error).toStdString();
}

TEST(CommandLineTest, ReadsEveryOption)
{
    const CommandLineResult result = Parse({"-d",       "Kesta/draft",     "-n",          "3",
                                            "-P",       "7,1-4,16-",       "-t",          "Report",
                                            "-o",       "A=1 noB C='x y'", "-h",          "host:8631",
                                            "-s",       "--settings",      "in.plist",    "--save-settings=out.plist",
                                            "--panels", "One,Two",         "--no-dialog", "--",
                                            "-odd.pdf", "--odder.pdf"});
    ASSERT_TRUE(result.error.isEmpty());
    CommandLine expected;
    expected.queue = QStringLiteral("Kesta/draft");
    expected.presets.copies = 3;
    expected.presets.pageRanges = QStringLiteral("1-4,7,16-");
    expected.title = QStringLiteral("Report");
    expected.presets.options = {{QStringLiteral("A"), QStringLiteral("1")},
                                {QStringLiteral("B"), QStringLiteral("false")},
                                {QStringLiteral("C"), QStringLiteral("x y")}};
    expected.server = QStringLiteral("host:8631");
    expected.silent = true;
    expected.settingsPath = QStringLiteral("in.plist");
    expected.saveSettingsPath = QStringLiteral("out.plist");
    expected.panels = {QStringLiteral("One"), QStringLiteral("Two")};
    expected.noDialog = true;
    expected.files = {"-odd.pdf", "--odder.pdf"};
    EXPECT_EQ(result.commandLine, expected);

    const CommandLine other =
        Parse({"--ppd=p.ppd", "--device-uri", "socket://a", "--script=-", "--list-options"}).commandLine;
    EXPECT_EQ(other.ppdPath, QStringLiteral("p.ppd"));
    EXPECT_EQ(other.deviceURI, QStringLiteral("socket://a"));
    EXPECT_EQ(other.scriptPath, QStringLiteral("-"));
    EXPECT_TRUE(other.listOptions);
    EXPECT_TRUE(Parse({"--help", "--no-dialog", "--script", "x"}).commandLine.help);
    EXPECT_TRUE(Parse({"--version"}).commandLine.version);
}

TEST(CommandLineTest, LettersJoinAsInLp)
{
    EXPECT_EQ(Parse({"-n2"}).commandLine.presets.copies, 2);
    const CommandLine joined = Parse({"-sdKesta", "a.pdf", "-sn", "4", "b.pdf"}).commandLine;
    EXPECT_TRUE(joined.silent);
    EXPECT_EQ(joined.queue, QStringLiteral("Kesta"));
    EXPECT_EQ(joined.presets.copies, 4);
    EXPECT_EQ(joined.files, (QByteArrayList{"a.pdf", "b.pdf"}));
    EXPECT_TRUE(Parse({"-"}).commandLine.files.isEmpty());
    EXPECT_EQ(Parse({"-o", "X=1", "-ox=2"}).commandLine.presets.options,
              (JobOptions{{QStringLiteral("X"), QStringLiteral("2")}}));
    EXPECT_EQ(Parse({"-t", ""}).commandLine.title, QString());
    EXPECT_EQ(Parse({}).commandLine.title, std::nullopt);
}

TEST(CommandLineTest, RefusesWhatMeansNothing)
{
    struct Row {
        std::vector<const char*> arguments;
        const char* named;  // what the message must name
        const char* wayOut; // and what it must propose
    };
    const std::vector<Row> rows{
        {{"-n"}, "copies after \"-n\"", ""},
        {{"-d"}, "destination after \"-d\"", ""},
        {{"-n", "0"}, "copies must be 1 or more", ""},
        {{"-n", "-3"}, "copies must be 1 or more", ""},
        {{"-n10000"}, "-n 10000", "1 to 9999"},
        {{"-n", "99999999999999999999"}, "-n 9999", "1 to 9999"},
        {{"-n", "2x"}, "-n 2x", "1 to 9999"},
        {{"-P", "4-1"}, "-P 4-1", "1-4,7,16-"},
        {{"-P", "0"}, "-P 0", "1-4,7,16-"},
        {{"-P", ""}, "-P ", "1-4,7,16-"},
        {{"-P", "1,"}, "-P 1,", "1-4,7,16-"},
        {{"-o", " "}, "-o", "NAME=VALUE"},
        {{"-o", "a=b\rc"}, "-o a=b c", "leave it out"},
        {{"-sx"}, "\"x\"", "--help"},
        {{"--nodialog"}, "\"--nodialog\"", "--help"},
        {{"--no-dialog=yes"}, "\"--no-dialog\"", ""},
        {{"--ppd"}, "\"--ppd\"", ""},
        {{"--ppd="}, "empty file name", ""},
        {{"--panels", "A,,B"}, "--panels A,,B", "commas"},
        {{"-", "file"}, "stdin", "leave out"},
        {{"--script", "-"}, "standard input", "name the document"},
        {{"--ppd", "x", "-d", "q"}, "\"-d q\"", "leave out"},
        {{"--device-uri", "x"}, "--device-uri", "add --ppd FILE"},
        {{"--no-dialog", "--script", "x", "f"}, "--script", "leave out"},
    };
    for (const Row& row : rows) {
        const std::string error = Error(row.arguments);
        EXPECT_NE(error.find(row.named), std::string::npos) << row.named << " not in: " << error;
        EXPECT_NE(error.find(row.wayOut), std::string::npos) << row.wayOut << " not in: " << error;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    }
}

} // namespace
} // namespace kesta::host
