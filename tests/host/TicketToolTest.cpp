#include "ticket-tool/TicketTool.h"

#include "host/job/TicketTransport.h"

#include "platform/values/PropertyList.h"

#include <gtest/gtest.h>

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
QByteArray Options()
{
    QByteArray text = "copies=2 KSFold=C note=a\\ b";
    for (const host::JobOption& option : host::EncodeTicket(Settings()).options)
        text += ' ' + option.name.toUtf8() + '=' + option.value.toUtf8();
    return text;
}

Outcome RunTool(const QByteArrayList& arguments, const QByteArray& input = {})
{
    return RunTicketTool(arguments, [input] { return input; });
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
    };
    for (const Row& row : rows) {
        const Outcome outcome = RunTool(row.arguments, row.input);
        EXPECT_EQ(outcome.status, 1) << row.said;
        EXPECT_TRUE(outcome.output.isEmpty()) << row.said;
        EXPECT_TRUE(outcome.error.contains(QLatin1StringView(row.said))) << outcome.error.toStdString();
    }
}

} // namespace
} // namespace kesta::ticket_tool
