#include "toolkit/controls/AccessibleControls.h"

#include "toolkit/controls/AccessibleField.h"
#include "toolkit/controls/AccessibleParts.h"
#include "toolkit/controls/AccessiblePopup.h"
#include "toolkit/controls/ClickableText.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/PictureView.h"

#include <QLabel>

#include <algorithm>

namespace kesta {

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
AccessibleLabelled::relations(QAccessible::Relation match) const
{
    auto found = QAccessibleWidget::relations(match);
    QLabel* label = match & QAccessible::Label ? LabelOf(*widget()) : nullptr;
    QAccessibleInterface* accessible = label ? QAccessible::queryAccessibleInterface(label) : nullptr;
    const bool isKnown = std::ranges::any_of(found, [&](const auto& one) { return one.first == accessible; });
    if (accessible && !isKnown)
        found.append({accessible, QAccessible::Label});
    return found;
}

// The name says what can be read on the button, also where a label has given it a name of its own.
QString AccessibleOpener::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value) {
        const auto* swatch = qobject_cast<const ColorSwatch*>(widget());
        return swatch ? swatch->color().name() : QString();
    }
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    const QString shown = WithoutMnemonic(static_cast<QAbstractButton*>(widget())->text());
    const QString name = ControlName(*widget());
    return name.contains(shown) ? name : shown;
}

QAccessible::State AccessibleOpener::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    return state;
}

QStringList AccessibleOpener::actionNames() const
{
    return widget()->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
}

void AccessibleOpener::doAction(const QString& name)
{
    if (actionNames().contains(name))
        static_cast<QAbstractButton*>(widget())->click();
}

namespace {

class AccessibleLink : public QAccessibleWidget {
public:
    explicit AccessibleLink(ClickableText& link) : QAccessibleWidget(&link, QAccessible::Link) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? ControlName(*widget()) : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override
    {
        return widget()->isEnabled() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (actionNames().contains(name))
            static_cast<QAbstractButton*>(widget())->click();
    }
};

// A plain widget of an interface file: a dialog as long as it is a window, and a group of controls when it has a name.
class AccessibleContainer : public AccessibleLabelled {
public:
    explicit AccessibleContainer(QWidget& widget) : AccessibleLabelled(&widget) {}

    QAccessible::Role role() const override
    {
        if (widget()->isWindow())
            return widget()->property(kAlertProperty).toBool() ? QAccessible::AlertMessage : QAccessible::Dialog;
        const bool isNamed = !widget()->accessibleName().isEmpty();
        return isNamed ? QAccessible::Grouping : QAccessibleWidget::role();
    }
};

bool IsPlain(const QObject& object)
{
    return object.metaObject() == &QWidget::staticMetaObject || object.property(kAlertProperty).isValid();
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    if (auto* popup = qobject_cast<PopupButton*>(object))
        return MakeAccessiblePopup(*popup);
    if (auto* menu = qobject_cast<MenuButton*>(object))
        return new AccessibleOpener(*menu, QAccessible::ButtonMenu);
    if (auto* swatch = qobject_cast<ColorSwatch*>(object))
        return new AccessibleOpener(*swatch, QAccessible::ColorChooser);
    if (auto* link = qobject_cast<ClickableText*>(object))
        return new AccessibleLink(*link);
    if (auto* picture = qobject_cast<PictureView*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic, picture->accessibleName());
    if (auto* field = qobject_cast<QLineEdit*>(object))
        return MakeAccessibleField(*field);
    if (auto* widget = qobject_cast<QWidget*>(object); widget && IsPlain(*widget))
        return new AccessibleContainer(*widget);
    return nullptr;
}

} // namespace

void InstallAccessibleControls()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace kesta
