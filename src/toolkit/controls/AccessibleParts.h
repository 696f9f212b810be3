#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace kesta {

// A control that has a label somewhere in its window: Qt looks among its neighbours only.
class AccessibleLabelled : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override;
};

// A button that opens something. What it shows is its value where it does not name it.
class AccessibleOpener : public AccessibleLabelled {
public:
    AccessibleOpener(QAbstractButton& button, QAccessible::Role role) : AccessibleLabelled(&button, role) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
};

} // namespace kesta
