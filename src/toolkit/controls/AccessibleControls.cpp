#include "toolkit/controls/AccessibleControls.h"

#include "toolkit/controls/ClickableText.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"

#include <QAccessibleWidget>

namespace kesta {
namespace {

// A button that opens something. What it shows is its value where it does not name it.
class AccessibleOpener : public QAccessibleWidget {
public:
    AccessibleOpener(QAbstractButton& button, QAccessible::Role role) : QAccessibleWidget(&button, role) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return ControlName(*widget());
        if (kind == QAccessible::Value)
            return value();
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }
    QStringList actionNames() const override
    {
        return widget()->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (actionNames().contains(name))
            static_cast<QAbstractButton*>(widget())->click();
    }

private:
    QString value() const
    {
        if (const auto* popup = qobject_cast<const PopupButton*>(widget()))
            return popup->text();
        const auto* swatch = qobject_cast<const ColorSwatch*>(widget());
        return swatch ? swatch->color().name() : QString();
    }
};

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

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    if (auto* popup = qobject_cast<PopupButton*>(object))
        return new AccessibleOpener(*popup, QAccessible::ComboBox);
    if (auto* menu = qobject_cast<MenuButton*>(object))
        return new AccessibleOpener(*menu, QAccessible::ButtonMenu);
    if (auto* swatch = qobject_cast<ColorSwatch*>(object))
        return new AccessibleOpener(*swatch, QAccessible::ColorChooser);
    if (auto* link = qobject_cast<ClickableText*>(object))
        return new AccessibleLink(*link);
    if (auto* picture = qobject_cast<PictureView*>(object))
        return new QAccessibleWidget(picture, QAccessible::Graphic, picture->accessibleName());
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
