// The dialog on a print server of the tests' own.

#include "host/PrintDialogFixture.h"
#include "host/PrivateServer.h"
#include "host/dialog/PrintDialogControls.h"
#include "toolkit/controls/Controls.h"

#include <QApplication>
#include <QTimer>

#include <csignal>

namespace kesta::host {
namespace {

using kesta::test::PrivateServer;
using namespace Qt::StringLiterals;

using test::PrintDialogTest;

class DialogPrintingTest : public PrintDialogTest {
protected:
    DialogPrintingTest()
    {
        options.ppdPath.clear();
        options.saveSettingsPath.clear();
        options.server = server.address();
        options.files = {SAMPLE};
    }

    PrivateServer server;
};

TEST_F(DialogPrintingTest, SendingCanBeStopped)
{
    fake.atSyncOut = [&] { server.signal(SIGSTOP); };
    bool stopped = false;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [&] {
        QWidget* window = QApplication::activeModalWidget();
        QWidget* stop = window ? FindControl(window, {kPrintSignature, kStopButton}) : nullptr;
        if (stop && stop->isVisible()) {
            stopped = true;
            ClickControl(stop);
        }
    });
    person.start(20);
    EXPECT_EQ(run("type Copies 3\nprint\nexpect \"Sending Stopped Title\"\npress OK\nexpect-value Copies 3\ncancel"),
              0);
    server.signal(SIGCONT);
    EXPECT_EQ(fault, QString());
    EXPECT_TRUE(stopped);
    EXPECT_FALSE(server.hasJob(1));
}

// The place of a caller whose document comes later: everything that the print server is to be told.
TEST_F(DialogPrintingTest, WithoutASenderNothingIsSent)
{
    hasSender = false;
    options.files.clear();
    EXPECT_EQ(run("type Copies 3\nprint"), 0);
    EXPECT_EQ(fault, QString());
    ASSERT_TRUE(outcome.job);
    EXPECT_EQ(outcome.job->queue, u"Kesta"_s);
    EXPECT_EQ(FindJobOption(outcome.job->options, "copies"), u"3"_s);
    EXPECT_FALSE(server.hasJob(1));
}

TEST_F(DialogPrintingTest, AnotherPrinterGetsAPaneOfItsOwn)
{
    EXPECT_EQ(run("choose Printer #2\nexpect \"No Description Message\"\nexpect-enabled Help no\nchoose Printer #1\n"
                  "expect-enabled Help yes\ncancel"),
              0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(calls(), u"Prologue, Initialize, Open, Sync out, Close, Terminate 0, "
                       "Prologue, Initialize, Open, Close, Terminate 0"_s);
    options.queue = u"Nowhere"_s;
    EXPECT_EQ(run("expect \"Unknown Printer Title\"\nexpect-value Printer Nowhere\nchoose Printer #1\nexpect-enabled "
                  "Help yes\nprint"),
              0);
    EXPECT_EQ(fault, QString());
    EXPECT_TRUE(server.job(1));
}

TEST_F(DialogPrintingTest, TheListSaysWhichPrintersDoNotPrintNow)
{
    server.administer(u"cupsdisable"_s, {u"Kesta"_s});
    server.administer(u"cupsreject"_s, {u"Plain"_s});
    EXPECT_EQ(run("expect-value Printer \"Kesta (paused)\"\nchoose Printer \"Plain (takes no jobs)\"\nprint\n"
                  "expect \"Queue Not Accepting Title\"\npress \"Go Back\"\ncancel"),
              0);
    EXPECT_EQ(fault, QString());
}

TEST_F(DialogPrintingTest, BeginsWithThePrinterOfTheLastJob)
{
    scripted = false;
    EXPECT_EQ(run("choose Printer #2\nexpect-enabled Help no\nprint"), 0);
    EXPECT_EQ(
        run("expect-enabled Help no\nexpect-value Printer #2\nchoose Printer #1\nexpect-enabled Help yes\ncancel"), 0);
    EXPECT_EQ(fault, QString());
    EXPECT_EQ(run("expect-value Printer #2\ncancel"), 0) << "nothing was printed on the other one";
    EXPECT_EQ(fault, QString());
    RememberDialog({.printer = u"Gone"_s, .panel = 0});
    EXPECT_EQ(run("expect-value Printer #1\nexpect-enabled Help yes\ncancel"), 0) << "the default one";
    EXPECT_EQ(fault, QString());
    scripted = true;
    RememberDialog({.printer = u"Gone"_s, .panel = 0});
    EXPECT_EQ(run("expect-value Printer #1\ncancel"), 0) << "nor is a script's beginning anybody's";
    EXPECT_EQ(fault, QString());
}

} // namespace
} // namespace kesta::host
