#pragma once

#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>

class QApplication;
class QDBusConnection;

namespace kesta {

// See FollowDesktopScheme.
class SchemeFollower : public QObject {
    Q_OBJECT

public:
    SchemeFollower(QApplication& application, QDBusConnection bus);

public Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

private:
    void take(const QDBusVariant& value);
};

// Asks the desktop whether it prefers dark colours (the portal's setting "color-scheme" of
// "org.freedesktop.appearance") and follows its answer, now and whenever it changes. Nothing waits for the answer.
// For a palette that is ours alone: InstallKestaStyle calls it where no desktop and no environment variable says more.
void FollowDesktopScheme(QApplication& application);
void FollowDesktopScheme(QApplication& application, const QDBusConnection& bus);

} // namespace kesta
