#include "ticket-tool/TicketTool.h"

#include "host/job/SealedTicket.h"

#include "platform/values/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kesta::ticket_tool {
namespace {

QByteArray Settings()
{
    return WritePropertyList(Dictionary{
        {"com.kesta.print.JobType", Dictionary{{"JobType", Number::Index(6)}, {"Name", QString(u"Grüße <&>"_s)}}},
        {"com.kesta.print.Covers", Array{Dictionary{{"StartPage", Number::Index(3)}}}},
        {"with/slash", true},
        {"Density", Number::Float64(0.25)},
        {"Picture", QByteArray("\x01\x02\x03")}});
}

// As the print server hands it to a filter.
QByteArray Options(const host::JobOptions& ticket)
{
    QByteArray text = "copies=2 KSFold=C note=a\\ b";
    for (const host::JobOption& option : ticket)
        text += ' ' + option.name.toUtf8() + '=' + option.value.toUtf8();
    return text;
}

QByteArray Options()
{
    return Options(host::EncodeTicket(Settings()).options);
}

Outcome RunTool(const QByteArrayList& arguments, const QByteArray& input = {})
{
    return RunTicketTool(arguments, u"/no/such/key"_s, [input] { return input; });
}

TEST(TicketToolTest, ShowsAndGets)
{
    EXPECT_EQ(RunTool({"show", Options()}).output, Settings());
    EXPECT_EQ(RunTool({"show"}, Options()).output, Settings());
    EXPECT_EQ(RunTool({"show", "-"}, Options()).output, Settings());
    EXPECT_EQ(RunTool({"get", "com.kesta.print.JobType/JobType"}, Options()).output, "6\n");
    EXPECT_EQ(RunTool({"get", "com.kesta.print.JobType/Name", Options()}).output, "Grüße <&>\n");
    EXPECT_EQ(RunTool({"get", "com.kesta.print.Covers/0/StartPage"}, Options()).output, "3\n");
    EXPECT_EQ(RunTool({"get", "with/slash"}, Options()).output, "true\n");
    EXPECT_EQ(RunTool({"get", "Density"}, Options()).output, "0.25\n");
    EXPECT_EQ(RunTool({"get", "Picture"}, Options()).output, "AQID\n");
    EXPECT_EQ(RunTool({"get", "com.kesta.print.Covers/0"}, Options()).output,
              WritePropertyList(Dictionary{{"StartPage", Number::Index(3)}}));
    EXPECT_TRUE(RunTool({"--help"}).output.startsWith("Usage: kesta-ticket"));
}

TEST(TicketToolTest, SaysWhatIsWrong)
{
    struct Row {
        QByteArrayList arguments;
        QByteArray input;
        const char* said;
    };
    const std::vector<Row> rows{
        {{}, {}, "--help"},
        {{"list"}, {}, "--help"},
        {{"get"}, {}, "--help"},
        {{"show", "a", "b"}, {}, "--help"},
        {{"show"}, "copies=2", "no ticket"},
        {{"show"}, Options().chopped(3), "damaged"},
        {{"show"}, QByteArray(3 << 20, 'x'), "longer than"},
        {{"get", "com.kesta.print.JobType/None"}, Options(), "com.kesta.print.JobType/None"},
        {{"get", "com.kesta.print.Covers/1"}, Options(), "com.kesta.print.Covers/1"},
        {{"get", QByteArray(100'000, '/')}, Options(), "have no"},
        {{"show", "--key"}, Options(), "--help"},
        {{"show", "--force"}, Options(), "--help"},
        {{"keygen", "x"}, {}, "--help"},
        {{"keygen"}, {}, "/no/such/key: No such file"},
    };
    for (const Row& row : rows) {
        const Outcome outcome = RunTool(row.arguments, row.input);
        EXPECT_EQ(outcome.status, 1) << row.said;
        EXPECT_TRUE(outcome.output.isEmpty()) << row.said;
        EXPECT_TRUE(outcome.error.contains(QLatin1StringView(row.said))) << outcome.error.toStdString();
    }
}

TEST(TicketToolTest, OpensWhatIsSealedWhereThePrivateKeyIs)
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"key"_s));
    const QByteArray lines = RunTool({"keygen", "--key", path}).output;
    const qsizetype start = lines.indexOf("*KSTicketKey: \"") + 15;
    const QByteArray publicKey = lines.sliced(start, lines.indexOf('"', start) - start);
    const Dictionary settings{
        {"com.kesta.print.JobType", Dictionary{{"JobType", Number::Index(6)}, {"SecurePrintPassword", "0123456789"}}}};
    const QByteArray options = Options(host::EncodeJobTicket(settings, {.publicKeys = {publicKey}}).options);
    const QByteArray passcode = "com.kesta.print.JobType/SecurePrintPassword";
    EXPECT_EQ(RunTool({"show", "--key", path}, options).output, WritePropertyList(settings));
    EXPECT_EQ(RunTool({"get", passcode, "--key", path}, options).output, "0123456789\n");

    EXPECT_EQ(RunTool({"get", "com.kesta.print.JobType/JobType"}, options).status, 0);
    for (const QByteArrayList& asked :
         {QByteArrayList{"show"}, {"get", passcode}, {"get", "com.kesta.print.JobType"}}) {
        const Outcome outcome = RunTool(asked, options);
        EXPECT_EQ(outcome.status, kStatusSealed);
        EXPECT_FALSE(outcome.output.contains("0123456789"));
        EXPECT_TRUE(outcome.error.contains(u"/no/such/key"_s)) << outcome.error.toStdString();
        EXPECT_EQ(outcome.output.isEmpty(), asked.contains(passcode));
    }
    EXPECT_EQ(RunTool({"keygen", "--key", path, "--force"}).status, 0);
    EXPECT_TRUE(RunTool({"show", "--key", path}, options).error.contains(u"another one"_s));
}

TEST(TicketToolTest, APrivateKeyIsForTheServerAndNotLostByMistake)
{
    const QTemporaryDir folder;
    const auto content = [&folder](const QString& name) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray path = QFile::encodeName(folder.filePath(u"key"_s));
    const Outcome made = RunTool({"keygen", "--key", path});
    EXPECT_EQ(made.status, 0);
    const QByteArray first = content(u"key"_s);
    EXPECT_TRUE(first.contains("\nkp1-"));
    EXPECT_FALSE(made.output.contains("kp1-"));
    struct stat file {};
    ASSERT_EQ(::stat(path.constData(), &file), 0);
    EXPECT_EQ(file.st_mode & 07777, 0640U);
    if (::geteuid() == 0) {
        EXPECT_EQ(file.st_uid, 0U);
        EXPECT_EQ(file.st_gid, ::getgrnam("lp")->gr_gid);
    }

    EXPECT_TRUE(RunTool({"keygen", "--key", path}).error.contains(u"--force"_s));
    EXPECT_EQ(content(u"key"_s), first);
    ASSERT_EQ(::symlink("key", (path + "-link").constData()), 0);
    EXPECT_EQ(RunTool({"keygen", "--key", path + "-link"}).status, 1);
    EXPECT_EQ(RunTool({"keygen", "--key", path + "-link", "--force"}).status, 0);
    EXPECT_EQ(content(u"key"_s), first) << "the link is replaced";
    EXPECT_NE(content(u"key-link"_s), first);
    EXPECT_EQ(RunTool({"keygen", "--key", path, "--force"}).status, 0);
    EXPECT_NE(content(u"key"_s), first);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 2);
}

} // namespace
} // namespace kesta::ticket_tool
