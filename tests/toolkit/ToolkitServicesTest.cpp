#include "toolkit/windows/ToolkitServices.h"

#include "platform/system/HelpViewer.h"
#include "platform/system/Notices.h"
#include "platform/system/URLOpener.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/Keys.h"
#include "toolkit/windows/HelpWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class ServicesTest : public testing::Test {
protected:
    ServicesTest() { InstallToolkitServices(); }
    ~ServicesTest() override
    {
        Notices::install(nullptr);
        HelpViewer::install(nullptr);
    }
    static QStringList texts(QWidget& window)
    {
        QStringList texts;
        for (const QLabel* label : window.findChildren<QLabel*>())
            texts << label->text();
        return texts;
    }
    test::ModalUser user;
};

TEST_F(ServicesTest, ANoticeIsReadAndClosed)
{
    user.then([](QWidget& window) {
        EXPECT_EQ(texts(window), (QStringList{u"No paper <b>"_s, u"Fill tray 1."_s}));
        ASSERT_EQ(window.findChildren<QPushButton*>().size(), 1);
        EXPECT_EQ(window.focusWidget(), GetWindowDefaultButton(window));
        test::PressKeyInWindow(window, Qt::Key_Return);
    });
    GetNotices().show({.title = u"No paper <b>"_s, .message = u"Fill tray 1."_s});
    user.then([](QWidget& window) { test::PressKeyInWindow(window, Qt::Key_Escape); });
    GetNotices().show({.title = u"No paper"_s, .message = {}, .button = u"Go on"_s});
}

TEST_F(ServicesTest, AnAlertAnswersWithTheButtonThatWasPressed)
{
    const Alert alert{.title = u"Delete special pages?"_s,
                      .message = u"All leave the list."_s,
                      .buttons = {u"No"_s, u"Yes"_s, u"Later"_s},
                      .cancelButton = 0};
    user.then([](QWidget& window) { test::PressKeyInWindow(window, Qt::Key_Return); });
    EXPECT_EQ(GetNotices().ask(alert), 0);
    user.then([](QWidget& window) {
        for (QPushButton* button : window.findChildren<QPushButton*>()) {
            if (ControlName(*button) == u"Yes"_s)
                return button->click();
        }
        ADD_FAILURE() << "no such button";
    });
    EXPECT_EQ(GetNotices().ask(alert), 1);
    user.then([](QWidget& window) { test::PressKeyInWindow(window, Qt::Key_Escape); });
    EXPECT_EQ(GetNotices().ask(alert), 0);
    user.then([](QWidget& window) { window.close(); });
    Alert lastCancels = alert;
    lastCancels.cancelButton = -1;
    EXPECT_EQ(GetNotices().ask(lastCancels), 2);
}

class URLs : public URLOpener {
public:
    QStringList opened;
    bool open(const QString& url) override
    {
        opened << url;
        return true;
    }
};

class HelpTest : public ServicesTest {
protected:
    QTemporaryDir book;
    HelpTest()
    {
        QDir(book.path()).mkpath(u"How_to"_s);
        write(u"index.htm"_s, "<title>Start</title><a href='How_to/page.htm'>Page</a>");
        write(u"How_to/page.htm"_s, "<title>Page</title><a name='more'>More</a>");
    }
    QString write(const QString& name, const char* html)
    {
        QFile file(book.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
        return file.fileName();
    }
    static HelpWindow* shown()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* help = qobject_cast<HelpWindow*>(window); help && help->isVisible())
                return help;
        }
        return nullptr;
    }
};

TEST_F(HelpTest, StaysUsableBesideAModalDialogAndClosesWithEscape)
{
    QWidget dialog;
    user.then([&](QWidget& front) {
        EXPECT_EQ(GetHelpViewer().show(book.filePath(u"How_to/page.htm"_s), u"more"_s), noErr);
        HelpWindow* help = shown();
        ASSERT_TRUE(help);
        EXPECT_EQ(help->parentWidget(), &front) << "a modal window blocks all windows but its own";
        EXPECT_FALSE(help->isModal());
        EXPECT_EQ(help->windowTitle(), u"Page"_s);
        EXPECT_EQ(help->browser().source().fragment(), u"more"_s);
        GetHelpViewer().show(book.filePath(u"index.htm"_s), {});
        EXPECT_EQ(shown(), help) << "one window for all pages";
        test::PressKeyInWindow(*help, Qt::Key_Escape);
        EXPECT_EQ(shown(), nullptr);
        EndModalLoop(front, ModalResult::OK);
    });
    RunModalLoop(dialog);
}

TEST_F(HelpTest, LinksToNowhereLeadToTheStartPageAndWebLinksOut)
{
    EXPECT_EQ(GetHelpViewer().show(book.filePath(u"missing.htm"_s), {}), kMissingArgument);
    ASSERT_EQ(GetHelpViewer().show(book.filePath(u"How_to/page.htm"_s), {}), noErr);
    const QPointer<HelpWindow> help = shown();
    ASSERT_TRUE(help);
    auto& browser = const_cast<HelpBrowser&>(help->browser());
    browser.setSource(QUrl(u"gone.htm"_s));
    EXPECT_EQ(help->windowTitle(), u"Start"_s);
    browser.backward();
    EXPECT_EQ(help->windowTitle(), u"Page"_s);

    URLs urls;
    const WhileInstalled installed(urls);
    browser.setSource(QUrl(u"https://printer.example/"_s));
    browser.setSource(QUrl(u"ftp://printer.example/"_s));
    EXPECT_EQ(urls.opened, QStringList{u"https://printer.example/"_s});
    EXPECT_EQ(help->windowTitle(), u"Page"_s);
    delete help;
}

} // namespace
} // namespace kesta
