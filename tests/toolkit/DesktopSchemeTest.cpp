#include "toolkit/style/DesktopScheme.h"

#include "toolkit/style/KestaColors.h"
#include "toolkit/style/KestaStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr auto kPortalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kSettings = "org.freedesktop.portal.Settings"_L1;

// The desktop's side: what it answers in, and what it tells later.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint scheme = 1;
    QDBusConnection bus;
    explicit Portal(const QDBusConnection& connection) : bus(connection)
    {
        bus.registerObject(kPortalPath, this, QDBusConnection::ExportAllSlots);
        bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    void tell(const QString& key, const QVariant& value)
    {
        QDBusMessage changed = QDBusMessage::createSignal(kPortalPath, kSettings, u"SettingChanged"_s);
        changed << u"org.freedesktop.appearance"_s << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(changed);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key)
    {
        const bool known = group == u"org.freedesktop.appearance" && key == u"color-scheme";
        return QDBusVariant(QVariant::fromValue(QDBusVariant(known ? QVariant(scheme) : QVariant(u"?"_s))));
    }
};

class DesktopSchemeTest : public testing::Test {
protected:
    QProcess daemon;
    QString address;
    DesktopSchemeTest()
    {
        daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        EXPECT_TRUE(daemon.waitForReadyRead()) << daemon.errorString().toStdString();
        address = QString::fromLocal8Bit(daemon.readLine().trimmed());
        UseOwnPalette(false);
    }
    ~DesktopSchemeTest() override
    {
        for (QObject* follower : qApp->findChildren<SchemeFollower*>())
            delete follower;
        QDBusConnection::disconnectFromBus(u"desktop"_s);
        QDBusConnection::disconnectFromBus(u"program"_s);
        daemon.terminate();
        daemon.waitForFinished();
        QApplication::setPalette(QPalette());
    }
    QDBusConnection connection(const QString& name) const { return QDBusConnection::connectToBus(address, name); }
    static bool becomes(bool dark)
    {
        for (const QDeadlineTimer end(5000); CurrentColors().dark != dark && !end.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return CurrentColors().dark == dark;
    }
};

TEST_F(DesktopSchemeTest, TheDesktopsPreferenceIsFollowedWhenItComesAndWhenItChanges)
{
    Portal portal(connection(u"desktop"_s));
    ASSERT_FALSE(CurrentColors().dark);
    FollowDesktopScheme(*qApp, connection(u"program"_s));
    EXPECT_FALSE(CurrentColors().dark) << "nothing waits for the answer";
    EXPECT_TRUE(becomes(true));
    portal.tell(u"color-scheme"_s, uint(2));
    EXPECT_TRUE(becomes(false));
    portal.tell(u"accent-color"_s, uint(1));
    portal.tell(u"color-scheme"_s, u"dark"_s); // no number
    portal.tell(u"color-scheme"_s, uint(1));
    EXPECT_TRUE(becomes(true));
}

TEST_F(DesktopSchemeTest, WithoutAPortalEverythingStays)
{
    FollowDesktopScheme(*qApp, connection(u"program"_s));
    for (const QDeadlineTimer end(300); !end.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_FALSE(CurrentColors().dark);
}

} // namespace
} // namespace kesta

#include "DesktopSchemeTest.moc"
