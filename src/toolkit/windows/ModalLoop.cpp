#include "toolkit/windows/ModalLoop.h"

#include "toolkit/controls/Mnemonics.h"
#include "toolkit/windows/FitToScreen.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/WindowPlace.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <utility>
#include <vector>

namespace kesta {
namespace {

struct Loop {
    QPointer<QWidget> window;
    QEventLoop events{};
    QTimer idle{}; // with no delay: fires when the loop has run out of events
    ModalResult result = ModalResult::Cancel;
};

struct ModalState {
    std::vector<Loop*> loops; // innermost last
    ModalIdleAction idleAction;
};

ModalState& State()
{
    static ModalState state;
    return state;
}

void ActWhenIdle(const Loop& loop)
{
    const bool isEnded =
        !loop.events.isRunning(); // but other timers, as of animations, may let this one tick once more
    if (isEnded || State().loops.back() != &loop || !loop.window || !State().idleAction)
        return;
    const ModalIdleAction action = State().idleAction; // it may replace itself
    action(*loop.window);
}

// Keys reach the window when no control in it took them.
class WindowEvents : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto& window = static_cast<QWidget&>(*watched);
        if (event->type() == QEvent::Close)
            EndModalLoop(window, ModalResult::Cancel);
        return event->type() == QEvent::KeyPress && pressButton(window, static_cast<QKeyEvent&>(*event));
    }

private:
    static bool pressButton(QWidget& window, const QKeyEvent& key)
    {
        if (key.modifiers() & ~Qt::KeypadModifier)
            return false;
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            auto* focused = qobject_cast<QPushButton*>(window.focusWidget());
            QPushButton* button = focused ? focused : GetWindowDefaultButton(window);
            ClickControl(button);
            return button;
        }
        if (key.key() != Qt::Key_Escape)
            return false;
        QPushButton* cancel = GetWindowCancelButton(window);
        cancel ? ClickControl(cancel) : static_cast<void>(window.close());
        return true;
    }
};

void ShowInFront(QWidget& window, const QWidget* before)
{
    window.setWindowModality(Qt::ApplicationModal);
    AssignMnemonics(window);
    FitToScreen(window);
    RememberSize(window);
    PlaceBefore(window, before);
    window.show();
    window.activateWindow();
}

} // namespace

ModalResult RunModalLoop(QWidget& window)
{
    Loop loop{.window = &window};
    QObject::connect(&loop.idle, &QTimer::timeout, [&loop] { ActWhenIdle(loop); });
    QObject::connect(&window, &QObject::destroyed, &loop.events, &QEventLoop::quit);
    const QPointer<QWidget> before = FrontWindow();
    State().loops.push_back(&loop);

    WindowEvents windowEvents;
    window.installEventFilter(&windowEvents);
    if (State().idleAction)
        loop.idle.start();
    ShowInFront(window, before);
    loop.events.exec();
    std::erase(State().loops, &loop);
    if (loop.window)
        loop.window->hide();
    if (before && before->isVisible()) // not every window system sees to it
        before->activateWindow();
    return loop.result;
}

void EndModalLoop(QWidget& window, ModalResult result)
{
    for (Loop* loop : State().loops) {
        if (loop->window == &window) {
            loop->result = result;
            loop->events.quit();
        }
    }
}

QWidget* FrontWindow()
{
    return FrontModalWindow() ? FrontModalWindow() : QApplication::activeWindow();
}

QWidget* FrontModalWindow()
{
    return State().loops.empty() ? nullptr : State().loops.back()->window.data();
}

ModalIdleAction SetModalIdleAction(ModalIdleAction action)
{
    for (Loop* loop : State().loops)
        action ? loop->idle.start() : loop->idle.stop();
    return std::exchange(State().idleAction, std::move(action));
}

} // namespace kesta
