#include "toolkit/windows/WindowPlace.h"

#include "support/User.h"
#include "toolkit/windows/FitToScreen.h"
#include "toolkit/windows/ModalLoop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class WindowPlaceTest : public testing::Test {
protected:
    QTemporaryDir folder;
    WindowPlaceTest() { qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit()); }
    ~WindowPlaceTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    static std::unique_ptr<QWidget> makeWindow(const QString& name)
    {
        auto window = std::make_unique<QWidget>();
        window->setObjectName(name);
        window->setProperty("controlSignature", u"Test"_s);
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(new QLineEdit);
        return window;
    }
    test::ModalUser user;

    // The size with which the window appears, after which the user gives it another one.
    QSize shown(const QString& name, QSize byUser)
    {
        const auto window = makeWindow(name);
        QSize size;
        user.then([&](QWidget& front) {
            size = front.size();
            if (!byUser.isEmpty()) {
                front.windowHandle()->resize(byUser); // from outside, as a window manager
                QApplication::processEvents();
                EXPECT_EQ(front.size(), byUser);
            } else {
                front.resize(size + QSize(50, 50)); // from inside
            }
            EndModalLoop(front, ModalResult::OK);
        });
        RunModalLoop(*window);
        return size;
    }
};

TEST_F(WindowPlaceTest, AWindowIsADialogOfTheOneInFrontAndInItsMiddle)
{
    const auto main = makeWindow(u"Main"_s);
    main->setGeometry(200, 150, 400, 300);
    user.then([&](QWidget& front) {
        EXPECT_EQ(front.windowHandle()->transientParent(), nullptr);
        const auto dialog = makeWindow(u"Dialog"_s);
        user.then([&](QWidget& inner) {
            EXPECT_EQ(inner.windowHandle()->transientParent(), front.windowHandle());
            EXPECT_EQ(inner.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
            EXPECT_FALSE(inner.windowFlags() & Qt::WindowMinimizeButtonHint);
            const QPoint off = inner.geometry().center() - front.frameGeometry().center();
            EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 4) << "the frames count, too";
            EXPECT_TRUE(inner.isVisible());
            EndModalLoop(inner, ModalResult::OK);
        });
        RunModalLoop(*dialog);
        EndModalLoop(front, ModalResult::OK);
    });
    RunModalLoop(*main);
}

TEST_F(WindowPlaceTest, AWindowBeforeTheEdgeStaysOnTheScreen)
{
    QWidget front;
    front.setGeometry(-300, 500, 320, 200);
    front.show();
    QWidget window;
    window.resize(500, 400);
    PlaceBefore(window, &front);
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect(window.pos(), window.size())));
}

TEST_F(WindowPlaceTest, TheSizeThatTheUserGaveIsRememberedAndNoOther)
{
    const QSize natural = shown(u"One"_s, {});
    EXPECT_EQ(shown(u"One"_s, {}), natural) << "what the program does is forgotten";
    EXPECT_FALSE(QFile::exists(folder.filePath(u"kesta-print/com.kesta.print.windows.plist"_s)));
    EXPECT_EQ(shown(u"One"_s, QSize(444, 333)), natural);
    EXPECT_EQ(shown(u"One"_s, {}), QSize(444, 333));
    EXPECT_EQ(shown(u"Another"_s, {}), natural);
    shown(u"One"_s, QSize(5000, 4000));
    const QSize room = RoomOnScreen(*makeWindow({}));
    EXPECT_EQ(shown(u"One"_s, {}), room) << "on a smaller screen";
}

TEST_F(WindowPlaceTest, ARememberedSizeThatCantBeIsNoSize)
{
    const QSize natural = shown(u"One"_s, {});
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"kesta-print"_s));
    for (const char* size : {"<integer>-4</integer>", "<integer>99999999999</integer>", "<string>wide</string>"}) {
        QFile file(folder.filePath(u"kesta-print/com.kesta.print.windows.plist"_s));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray("<plist version=\"1.0\"><dict><key>Test.One</key><dict><key>Width</key>") + size +
                   "<key>Height</key><integer>300</integer></dict></dict></plist>");
        file.close();
        EXPECT_EQ(shown(u"One"_s, {}), natural) << size;
    }
}

} // namespace
} // namespace kesta
