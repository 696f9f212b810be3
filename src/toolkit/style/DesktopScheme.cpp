#include "toolkit/style/DesktopScheme.h"

#include "toolkit/style/KestaStyle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto kPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto kNamespace = "org.freedesktop.appearance"_L1;
constexpr auto kKey = "color-scheme"_L1;
constexpr uint kPrefersDark = 1; // 0 is no preference, 2 light

} // namespace

SchemeFollower::SchemeFollower(QApplication& application, QDBusConnection bus) : QObject(&application)
{
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    question << QString(kNamespace) << QString(kKey);
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take(reply.value());
        answer->deleteLater();
    });
    bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));
}

void SchemeFollower::settingChanged(const QDBusMessage& change)
{
    const QVariantList said = change.arguments();
    if (said.size() == 3 && said[0].toString() == kNamespace && said[1].toString() == kKey)
        take(said[2].value<QDBusVariant>());
}

// Read answers with a variant in a variant, the signal with one.
void SchemeFollower::take(const QDBusVariant& value)
{
    QVariant scheme = value.variant();
    if (scheme.metaType() == QMetaType::fromType<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    if (scheme.typeId() == QMetaType::UInt)
        UseOwnPalette(scheme.toUInt() == kPrefersDark);
}

void FollowDesktopScheme(QApplication& application)
{
    const QString platform = QGuiApplication::platformName();
    if (platform == "offscreen"_L1 || platform == "minimal"_L1)
        return; // no desktop around it
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        FollowDesktopScheme(application, bus);
}

void FollowDesktopScheme(QApplication& application, const QDBusConnection& bus)
{
    new SchemeFollower(application, bus);
}

} // namespace kesta
