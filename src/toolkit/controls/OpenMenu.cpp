#include "toolkit/controls/OpenMenu.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include <algorithm>

namespace kesta {

bool GoesOn(const QElapsedTimer& sinceTyped)
{
    return sinceTyped.isValid() && sinceTyped.elapsed() < QGuiApplication::styleHints()->keyboardInputInterval();
}

bool WritesTitle(const QKeyEvent& key, bool goesOn)
{
    const QString typed = key.text();
    const bool plain = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    return plain && !typed.isEmpty() && typed.front().isPrint() && (key.key() != Qt::Key_Space || goesOn);
}

// To the first of them that can be gone to, in steps of the menu's own: made active at once it would open its submenu,
// and the keys that follow would go there.
void OpenMenu::goTo(QList<QAction*> candidates)
{
    const auto found = std::ranges::find_if(
        candidates, [](const QAction* one) { return !one->isSeparator() && one->isVisible() && one->isEnabled(); });
    for (qsizetype steps = actions().size(); found != candidates.end() && activeAction() != *found && steps > 0;
         --steps) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QMenu::keyPressEvent(&down);
    }
}

bool OpenMenu::goByTyping(const QKeyEvent& key)
{
    const bool goesOn = !typed_.isEmpty() && GoesOn(sinceTyped_);
    if (!WritesTitle(key, goesOn))
        return false;
    typed_ = goesOn ? typed_ + key.text() : key.text();
    sinceTyped_.start();
    QList<QAction*> around = actions(); // from the active one on; a new beginning looks further
    const qsizetype active = std::max(qsizetype{0}, around.indexOf(activeAction()) + (goesOn ? 0 : 1));
    std::rotate(around.begin(), around.begin() + active % std::max(qsizetype{1}, around.size()), around.end());
    around.removeIf([this](const QAction* one) {
        QString title = one->text();
        return !title.replace(QLatin1String("&&"), QLatin1String("&")).startsWith(typed_, Qt::CaseInsensitive);
    });
    goTo(around);
    return true;
}

void OpenMenu::keyPressEvent(QKeyEvent* event)
{
    QList<QAction*> all = actions();
    if (event->key() == Qt::Key_End)
        std::ranges::reverse(all);
    if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)
        goTo(all);
    else if (!goByTyping(*event))
        QMenu::keyPressEvent(event);
}

} // namespace kesta
