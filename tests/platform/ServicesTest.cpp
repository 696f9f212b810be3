#include "platform/printsystem/PrintSession.h"
#include "platform/system/Clock.h"
#include "platform/system/FileChooser.h"
#include "platform/system/Notices.h"
#include "platform/system/RandomSource.h"
#include "platform/system/SystemConfiguration.h"
#include "platform/system/URLOpener.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <array>
#include <cstring>
#include <set>

namespace kesta {
namespace {

TEST(Services, AnotherClockCountsWhileItIsInstalled)
{
    const Date before = GetClock().now();
    EXPECT_GT(before.seconds, 1'700'000'000);
    {
        const test::StoppedClock outer(1'000);
        {
            const test::StoppedClock inner(2'000);
            EXPECT_EQ(GetClock().now(), Date{2'000});
        }
        EXPECT_EQ(GetClock().now(), Date{1'000});
    }
    EXPECT_GE(GetClock().now().seconds, before.seconds);
}

// Answers the given numbers one after the other.
class Dice : public RandomSource {
public:
    explicit Dice(std::vector<std::uint32_t> numbers) : numbers_(std::move(numbers)) {}
    void fill(std::span<std::byte> bytes) override
    {
        ASSERT_LT(next_, numbers_.size());
        std::memcpy(bytes.data(), &numbers_[next_++], bytes.size());
    }

private:
    std::vector<std::uint32_t> numbers_;
    std::size_t next_ = 0;
};

TEST(RandomSource, NumbersBelowABoundAreEvenlySpread)
{
    Dice dice({0, 3, 4, 13, 7}); // 2^32 is 6 more than a multiple of 10: 0 to 5 are drawn again
    const WhileInstalled installed(dice);
    EXPECT_EQ(RandomBelow(10), 3u);
    EXPECT_EQ(RandomBelow(1), 0u);
}

TEST(RandomSource, TheSystemsFillsEveryByte)
{
    std::array<std::byte, 7> bytes{};
    std::array<std::set<std::byte>, 7> seen;
    for (int i = 0; i < 64; ++i) {
        GetRandomSource().fill(bytes);
        for (std::size_t at = 0; at < bytes.size(); ++at)
            seen[at].insert(bytes[at]);
    }
    for (const std::set<std::byte>& values : seen)
        EXPECT_GT(values.size(), 10u);
}

TEST(Notices, WithoutWindowsTheyArePrintedAndNothingIsChanged)
{
    testing::internal::CaptureStderr();
    GetNotices().show({.title = QStringLiteral("Title"), .message = QStringLiteral("message")});
    const Alert alert{QStringLiteral("Sure?"), QString(), {QStringLiteral("Yes"), QStringLiteral("No")}};
    EXPECT_EQ(GetNotices().ask(alert), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Title: message\nSure?\n");
    Alert other = alert;
    other.cancelButton = 0;
    EXPECT_EQ(CancelButtonOf(other), 0);
    other.cancelButton = 7;
    EXPECT_EQ(CancelButtonOf(other), 1);
    EXPECT_EQ(GetFileChooser().save({.title = QStringLiteral("Save")}), std::nullopt);
}

// Stands in for the desktop's xdg-open while it lives.
class FakeBrowser {
public:
    FakeBrowser() : path_(qgetenv("PATH"))
    {
        QFile program(folder_.filePath(QStringLiteral("xdg-open")));
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\nprintf '%s|' \"$@\" >>\"$0.opened\"\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(folder_.path()));
    }
    ~FakeBrowser() { qputenv("PATH", path_); }

    // All arguments it was ever started with, each followed by a bar; waits for them.
    QByteArray opened(qsizetype length) const
    {
        QByteArray arguments;
        for (int i = 0; i < 1000 && arguments.size() < length; ++i) {
            QThread::msleep(10);
            QFile file(folder_.filePath(QStringLiteral("xdg-open.opened")));
            arguments = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        }
        return arguments;
    }

private:
    QTemporaryDir folder_;
    QByteArray path_;
};

TEST(URLOpener, OpensOnlyAddressesForTheBrowser)
{
    const FakeBrowser browser;
    for (const char* url : {"", "file:///etc/passwd", "javascript:alert(1)", "printer.local", "--help", "http://",
                            "ssh://host", "http://a b/"})
        EXPECT_FALSE(GetURLOpener().open(QString::fromLatin1(url))) << url;
    QByteArray expected;
    for (const char* url : {"http://printer.local/$(x)", "https://10.0.0.1:8443/a?b=c", "mailto:help@example.com"}) {
        EXPECT_TRUE(GetURLOpener().open(QString::fromLatin1(url))) << url;
        expected += QByteArray(url) + '|';
        EXPECT_EQ(browser.opened(expected.size()), expected);
    }
}

TEST(Printer, DescribesItselfByURL)
{
    PrintSession session;
    EXPECT_EQ(PMSessionGetCurrentPrinter(session), nullptr);
    session.printer = PMPrinter{.ppdPath = QStringLiteral("/a b/ü%.ppd"), .deviceURI = QStringLiteral("ipp://x")};
    const PMPrinter& printer = *PMSessionGetCurrentPrinter(session);
    EXPECT_EQ(PMPrinterGetDescriptionURL(printer, kPMPPDDescriptionType),
              QStringLiteral("file:///a%20b/%C3%BC%25.ppd"));
    EXPECT_EQ(PMPrinterGetDescriptionURL(printer, "other"), std::nullopt);
    EXPECT_EQ(PMPrinterGetDescriptionURL(PMPrinter{}, kPMPPDDescriptionType), std::nullopt);
    EXPECT_EQ(PMPrinterGetDeviceURI(printer), QStringLiteral("ipp://x"));
}

} // namespace
} // namespace kesta
