#include "toolkit/controls/AccessiblePopup.h"

#include "toolkit/controls/AccessibleParts.h"
#include "toolkit/controls/Controls.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace kesta {
namespace {

// Interfaces that stand for no object. Each is made when it is first asked for and stays until its owner goes, so that
// a program may keep it; one whose item is no longer there says so itself.
class Parts {
public:
    Parts() = default;
    ~Parts()
    {
        for (const QAccessible::Id id : ids_)
            QAccessible::deleteAccessibleInterface(id);
    }
    Parts(const Parts&) = delete;

    template <class Make> QAccessibleInterface* at(int index, const Make& make)
    {
        while (static_cast<int>(ids_.size()) <= index)
            ids_.push_back(QAccessible::registerAccessibleInterface(make(static_cast<int>(ids_.size()))));
        return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
    }

private:
    std::vector<QAccessible::Id> ids_;
};

// The list of a pop-up (an empty path), or an item of it with the items of its submenu.
class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleItem(PopupButton& popup, QAccessibleInterface& parent, MenuPath path)
        : popup_(&popup), parent_(QAccessible::uniqueId(&parent)), path_(std::move(path))
    {
    }

    bool isValid() const override { return popup_ && (path_.empty() || item()); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return popup_ ? popup_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::accessibleInterface(parent_); }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QRect rect() const override { return {}; } // nothing is on the screen until the menu opens
    void setText(QAccessible::Text, const QString&) override {}

    int childCount() const override
    {
        const std::vector<MenuItem>* items = below();
        return items ? static_cast<int>(items->size()) : 0;
    }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        return parts_.at(index, [this](int made) {
            MenuPath path = path_;
            path.push_back(made + 1);
            return new AccessibleItem(*popup_, const_cast<AccessibleItem&>(*this), std::move(path));
        });
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* other = dynamic_cast<const AccessibleItem*>(child);
        const bool isOurs = other && other->popup_ == popup_ && other->path_.size() == path_.size() + 1;
        return isOurs ? other->path_.back() - 1 : -1;
    }

    QAccessible::Role role() const override
    {
        const MenuItem* one = item();
        return path_.empty()           ? QAccessible::List
               : one && one->separator ? QAccessible::Separator
                                       : QAccessible::ListItem;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name || !popup_)
            return {};
        return path_.empty() ? ControlName(*popup_) : item() ? item()->title : QString();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        const MenuItem* one = item();
        state.disabled = !isValid() || !popup_->isEnabled() || (one && !one->enabled);
        state.invisible = true; // as the items of a closed menu are
        state.selectable = one && canBeChosen(*one);
        state.selected = path_.size() == 1 && isValid() && popup_->value() == path_.front();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface && !path_.empty() ? static_cast<QAccessibleActionInterface*>(this)
                                                                      : nullptr;
    }
    QStringList actionNames() const override
    {
        const MenuItem* one = item();
        return one && popup_->isEnabled() && canBeChosen(*one) ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (actionNames().contains(name))
            popup_->chooseItem(path_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    static bool canBeChosen(const MenuItem& one) { return one.enabled && !one.separator && one.submenu.empty(); }

    const MenuItem* item() const { return popup_ && !path_.empty() ? popup_->itemAt(path_) : nullptr; }
    const std::vector<MenuItem>* below() const
    {
        if (popup_ && path_.empty())
            return &popup_->menu().items;
        const MenuItem* one = item();
        return one ? &one->submenu : nullptr;
    }

    QPointer<PopupButton> popup_;
    QAccessible::Id parent_;
    MenuPath path_;
    mutable Parts parts_;
};

class AccessiblePopup : public AccessibleOpener {
public:
    explicit AccessiblePopup(PopupButton& popup) : AccessibleOpener(popup, QAccessible::ComboBox) {}

    // Where no label tells what the value is of, its name does.
    QString text(QAccessible::Text kind) const override
    {
        const QString value = popup().text();
        if (kind == QAccessible::Value)
            return value;
        if (kind != QAccessible::Name)
            return AccessibleOpener::text(kind);
        const QString name = LabelOf(popup()) ? QString() : ControlName(popup());
        return name.isEmpty() ? value : value.isEmpty() ? name : name + QLatin1String(": ") + value;
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override
    {
        if (index != 0)
            return nullptr;
        return list_.at(
            0, [this](int) { return new AccessibleItem(popup(), const_cast<AccessiblePopup&>(*this), MenuPath()); });
    }
    int indexOfChild(const QAccessibleInterface* one) const override { return one && one == child(0) ? 0 : -1; }

private:
    PopupButton& popup() const { return static_cast<PopupButton&>(*widget()); }

    mutable Parts list_;
};

} // namespace

QAccessibleInterface* MakeAccessiblePopup(PopupButton& popup)
{
    return new AccessiblePopup(popup);
}

} // namespace kesta
