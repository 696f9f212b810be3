#include "toolkit/controls/MenuControl.h"

#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/OpenMenu.h"
#include "toolkit/style/KestaStyleDrawing.h"

#include <QCoreApplication>
#include <QCursor>
#include <QIcon>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace kesta {
namespace {

// Opens where the control ends, as wide as the control at least, and above it where the screen ends.
void ShowBelow(QMenu& menu, const QWidget& control)
{
    menu.setMinimumWidth(control.width());
    const bool rightToLeft = control.isRightToLeft();
    QPoint corner = control.mapToGlobal(rightToLeft ? control.rect().bottomRight() : control.rect().bottomLeft());
    if (rightToLeft)
        corner.rx() -= std::max(menu.sizeHint().width(), control.width()) - 1;
    menu.exec(corner);
}

} // namespace

MenuControl::MenuControl(QWidget* parent) : QAbstractButton(parent)
{
    InstallAccessibleControls();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::pressed, this, [this] {
        setDown(false);
        openMenu();
    });
}

void MenuControl::replaceMenu(Menu menu)
{
    menu_ = std::move(menu);
}

void MenuControl::changeItems(const std::function<void(Menu&)>& change)
{
    change(menu_);
    menuChanged();
    updateGeometry();
}

bool MenuControl::isOffered(int) const
{
    return true;
}

int MenuControl::currentItem() const
{
    return 0;
}

bool MenuControl::isMarked(int, const MenuItem& item) const
{
    return item.checked;
}

const MenuItem* MenuControl::itemAt(const MenuPath& path) const
{
    const std::vector<MenuItem>* items = &menu_.items;
    const MenuItem* item = nullptr;
    for (const int position : path) {
        if (position < 1 || position > static_cast<int>(items->size()) || (item && !item->enabled))
            return nullptr;
        item = &(*items)[static_cast<std::size_t>(position) - 1];
        items = &item->submenu;
    }
    return item;
}

bool MenuControl::chooseFromOpenMenu(const MenuPath& path)
{
    const MenuItem* item = itemAt(path);
    if (!isEnabled() || !item || !item->enabled || item->notOffered || item->separator || !item->submenu.empty() ||
        !isOffered(path.front()))
        return false;
    sendChosen(path, MenuItem(*item)); // a copy: handlers may refill the menu
    return true;
}

bool MenuControl::chooseItem(const MenuPath& path)
{
    if (!isEnabled())
        return false;
    const QPointer<MenuControl> alive = this;
    SendControlEvent(*this, MenuEnableItemsEvent{});
    return alive && chooseFromOpenMenu(path);
}

void MenuControl::findNotOffered(const std::vector<MenuItem>& items, MenuPath path, std::vector<MenuPath>& found) const
{
    const bool isTop = path.empty();
    path.push_back(0);
    for (const MenuItem& item : items) {
        ++path.back();
        if (item.notOffered && (isTop ? isMarked(path.back(), item) : item.checked))
            found.push_back(path);
        findNotOffered(item.submenu, path, found);
    }
}

std::vector<MenuPath> MenuControl::shownNotOffered() const
{
    std::vector<MenuPath> found;
    findNotOffered(menu_.items, {}, found);
    return found;
}

MenuPath MenuControl::insteadOf(const MenuPath& shown) const
{
    const MenuItem* item = itemAt(shown);
    MenuPath instead = shown;
    instead.back() = item ? item->instead : 0;
    return instead;
}

void MenuControl::chooseInstead()
{
    const QPointer<MenuControl> alive = this;
    for (const MenuPath& shown : shownNotOffered()) {
        if (!alive)
            return;
        const MenuPath path = insteadOf(shown);
        if (const MenuItem* instead = itemAt(path))
            sendChosen(path, MenuItem(*instead));
    }
}

bool MenuControl::chooseItem(int position, int submenuPosition)
{
    return chooseItem(submenuPosition ? MenuPath{position, submenuPosition} : MenuPath{position});
}

void MenuControl::addActions(QMenu& shown, const std::vector<MenuItem>& items, const MenuPath& owner)
{
    MenuPath path = owner;
    path.push_back(0);
    for (const MenuItem& item : items) {
        ++path.back();
        QString title = item.title;
        title.replace(QLatin1Char('&'), QLatin1String("&&")); // titles carry no mnemonics
        if (item.separator) {
            shown.addSeparator();
        } else if (!item.submenu.empty()) {
            auto* submenu = new OpenMenu(title, &shown);
            shown.addMenu(submenu);
            submenu->setEnabled(item.enabled);
            addActions(*submenu, item.submenu, path);
        } else {
            QAction* action = shown.addAction(title);
            const bool marked = owner.empty() ? isMarked(path.back(), item) : item.checked;
            action->setCheckable(marked);
            action->setChecked(marked);
            action->setEnabled(item.enabled && !item.notOffered && isOffered(path.front()));
            if (item.notOffered)
                action->setIcon(CautionIcon(devicePixelRatio()));
            connect(action, &QAction::triggered, this, [this, path] { chooseFromOpenMenu(path); });
        }
    }
}

void MenuControl::openMenu()
{
    const QPointer<MenuControl> alive = this;
    SendControlEvent(*this, MenuEnableItemsEvent{});
    if (!alive || !isEnabled() || menu_.items.empty())
        return;
    const QPointer<QMenu> shown = new OpenMenu(this); // a handler may delete the control, and the menu with it
    addActions(*shown, menu_.items, {});
    const int current = currentItem();
    if (current >= 1 && current <= shown->actions().size())
        QTimer::singleShot(0, shown, [shown, current] { shown->setActiveAction(shown->actions()[current - 1]); });
    ShowBelow(*shown, *this);
    delete shown;
    if (alive)
        forgetMouse();
}

// While the menu was open, the mouse may have left without a word.
void MenuControl::forgetMouse()
{
    if (rect().contains(mapFromGlobal(QCursor::pos())))
        return;
    QEvent leave(QEvent::Leave);
    setAttribute(Qt::WA_UnderMouse, false);
    QCoreApplication::sendEvent(this, &leave);
    update();
}

void MenuControl::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_F4:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        return openMenu();
    case Qt::Key_Up:
        return event->ignore(); // abstract buttons move the focus
    default:
        return QAbstractButton::keyPressEvent(event);
    }
}

} // namespace kesta
