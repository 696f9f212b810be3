#include "platform/system/LinuxConfiguration.h"

#include "platform/SampleBundle.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <map>
#include <pwd.h>
#include <unistd.h>

namespace kesta {
namespace {

QString UserOfThisProcess()
{
    return QString::fromLocal8Bit(getpwuid(getuid())->pw_name);
}

TEST(SystemConfiguration, TheComputerHasItsPrettyNameOrItsHostName)
{
    char host[256] = {};
    ASSERT_EQ(gethostname(host, sizeof host - 1), 0);
    const test::BundleFolder root;
    const LinuxConfiguration machine(root.path);
    EXPECT_EQ(machine.computerName(), QString::fromLocal8Bit(host));
    const std::pair<const char*, QString> names[] = {
        {"PRETTY_HOSTNAME=\"Lennart's \\\"Büro\\\" PC\"\n", QStringLiteral("Lennart's \"Büro\" PC")},
        {"# comment\nICON_NAME=x\n PRETTY_HOSTNAME='a\\b'", QStringLiteral("a\\b")},
        {"PRETTY_HOSTNAME=plain", QStringLiteral("plain")},
        {"PRETTY_HOSTNAME=\n", QString::fromLocal8Bit(host)},
        {"XPRETTY_HOSTNAME=wrong\n=\n\"", QString::fromLocal8Bit(host)},
    };
    for (const auto& [content, name] : names) {
        root.write(QStringLiteral("etc/machine-info"), content);
        EXPECT_EQ(machine.computerName(), name) << content;
    }
}

TEST(SystemConfiguration, TheConsoleUserSitsAtTheSeat)
{
    const auto userOf = [](LinuxConfiguration::ActiveUser active) {
        return LinuxConfiguration({}, active).consoleUser();
    };
    EXPECT_EQ(userOf([] { return std::optional<uid_t>(1); }), QString::fromLocal8Bit(getpwuid(1)->pw_name));
    EXPECT_EQ(userOf([] { return std::optional<uid_t>(); }), UserOfThisProcess());
    EXPECT_EQ(userOf([] { return std::optional<uid_t>(4'000'000'000); }), UserOfThisProcess())
        << "an account that is gone";
    const bool isServed = QFile::exists(QStringLiteral("/run/systemd/seats/seat0"));
    EXPECT_TRUE(isServed || !UserOfTheFirstSeat()) << "nobody is known without a login service";
}

// The kernel's own table as text: interface to lowest metric of its default routes.
std::map<QString, unsigned> DefaultRoutesOfProc()
{
    std::map<QString, unsigned> routes;
    QFile file(QStringLiteral("/proc/net/route"));
    file.open(QIODevice::ReadOnly);
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() < 8 || fields[1] != "00000000" || fields[7].trimmed() != "00000000")
            continue;
        const unsigned metric = fields[6].toUInt();
        const auto [entry, isNew] = routes.emplace(QString::fromLocal8Bit(fields[0]), metric);
        entry->second = std::min(entry->second, metric);
    }
    return routes;
}

TEST(SystemConfiguration, ThePrimaryInterfaceHasTheDefaultRouteOfLowestMetric)
{
    const std::map<QString, unsigned> expected = DefaultRoutesOfProc();
    const LinuxConfiguration machine;
    const std::optional<QString> primary = machine.primaryInterface();
    ASSERT_EQ(primary.has_value(), !expected.empty());
    if (!primary)
        return;
    ASSERT_TRUE(expected.contains(*primary)) << primary->toStdString();
    for (const auto& [name, metric] : expected)
        EXPECT_LE(expected.at(*primary), metric);
    EXPECT_FALSE(machine.ipv4Addresses(*primary).isEmpty());
}

TEST(SystemConfiguration, AddressesBelongToTheirInterface)
{
    const LinuxConfiguration machine;
    EXPECT_EQ(machine.ipv4Addresses(QStringLiteral("lo")).value(0), QStringLiteral("127.0.0.1"));
    EXPECT_EQ(machine.ipv4Addresses(QStringLiteral("no such")), QStringList());
    EXPECT_EQ(machine.systemVersion(), (SystemVersion{10, 5, 0}));
}

} // namespace
} // namespace kesta
