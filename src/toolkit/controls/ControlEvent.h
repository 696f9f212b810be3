#pragma once

#include "platform/values/Types.h"

#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <type_traits>
#include <variant>

class QPainter;

namespace kesta {

// A control's number is unique under the signature of the interface file that it comes from.
struct ControlID {
    FourCharCode signature = 0;
    SInt32 number = 0;

    bool operator==(const ControlID&) const = default;
};

// Events are the user's actions, one struct a kind. Only the user's: setting a control from code sends nothing. In each
// of them `control` is where it happened; SendControlEvent fills it in.

// The control has a new value or, a push button, was pressed.
struct HitEvent {
    ControlID control = {};
    SInt32 value = 0;       // of pop-ups, tabs and lists the position, from 1; of check boxes and the like 0 or 1
    SInt32 ticketValue = 0; // of a menu item: the value that it stands for
};

struct CommandEvent {
    ControlID control = {};
    FourCharCode command = kNoCommand;
    SInt32 ticketValue = 0; // of a menu item: the value that it stands for
    int position = 0;       // of a menu item: its place in its menu, from 1
};

// A menu is about to open: time to enable, disable and mark its items.
struct MenuEnableItemsEvent {
    ControlID control = {};
};

// Text is about to enter a field by typing, pasting, dropping or an input method; an answer other than NotHandled keeps
// it out as a whole and leaves the field as it was. Lengths are UTF-16 units.
struct TextTypedEvent {
    ControlID control = {};
    QString typed = {};     // empty when text is only taken away
    QString before = {};    // the field's text as it is now
    qsizetype replaced = 0; // length of what the typed text takes the place of

    qsizetype lengthAfter() const { return before.size() - replaced + typed.size(); }
    bool isEditingOnly() const; // nothing but control characters: editing keys
};

// A field's text is another one now.
struct TextEditedEvent {
    ControlID control = {};
    QString text = {};
};

// What an input limiter says about a field after each change.
enum class TextLength { Empty, TooShort, LongEnough };
struct TextLengthEvent {
    ControlID control = {};
    TextLength length = TextLength::Empty;
};

// An item of a combo box's or list view's was chosen: a click in the open list, a double click or Return in a list
// view.
struct ItemChosenEvent {
    ControlID control = {};
    int position = 0; // from 1
    SInt32 ticketValue = 0;
};

// The control shows itself; Handled means that nothing else is to be drawn.
struct DrawEvent {
    ControlID control = {};
    QPainter* painter = nullptr; // never null
    QRect bounds = {};           // in the painter's coordinates
};

// A key went down in the control; an answer other than NotHandled keeps it from the control.
struct KeyEvent {
    ControlID control = {};
    int key = 0; // Qt::Key
    Qt::KeyboardModifiers modifiers = {};
    QString text = {};
};

using ControlEvent = std::variant<HitEvent, CommandEvent, MenuEnableItemsEvent, TextTypedEvent, TextEditedEvent,
                                  TextLengthEvent, ItemChosenEvent, DrawEvent, KeyEvent>;

// Swallowed also keeps the print dialog open where it would have closed.
enum class EventResult : OSStatus { Handled = 0, NotHandled = -9874, Swallowed = -12345678 };

using EventFunction = std::function<EventResult(const ControlEvent&)>;

// An installed handler; destroying or replacing it uninstalls. It may outlive its target.
class EventHandler {
public:
    EventHandler() = default;
    EventHandler(EventHandler&&) noexcept = default;
    EventHandler& operator=(EventHandler&& other) noexcept;
    ~EventHandler() { uninstall(); }

    struct Entry;

private:
    friend EventHandler InstallEventFunction(QWidget&, EventFunction);
    void uninstall();

    QPointer<QWidget> target_;
    std::shared_ptr<Entry> entry_;
};

// For a function that takes events of every kind; see InstallEventHandler.
[[nodiscard]] EventHandler InstallEventFunction(QWidget& target, EventFunction function);

template <class... Functions> struct EventFunctions : Functions... {
    using Functions::operator()...;
};

// Installs functions that each take one kind of event and answer an EventResult:
//     InstallEventHandler(pane, [](const HitEvent& hit) { ... }, [](const CommandEvent& command) { ... });
template <class... Functions> [[nodiscard]] EventHandler InstallEventHandler(QWidget& target, Functions... functions)
{
    return InstallEventFunction(
        target, [on = EventFunctions<Functions...>{std::move(functions)...}](const ControlEvent& event) mutable {
            return std::visit(
                [&on]<class Event>(const Event& one) {
                    if constexpr (std::is_invocable_v<EventFunctions<Functions...>&, const Event&>)
                        return EventResult{on(one)};
                    else
                        return EventResult::NotHandled;
                },
                event);
        });
}

// Delivers to the handlers of the control, then of each widget around it up to its window, until one answers other
// than NotHandled; at one widget the handler installed last goes first. Handlers may delete anything, also the
// control.
EventResult SendControlEvent(QWidget& control, ControlEvent event);

void SetControlID(QWidget& widget, ControlID id);
ControlID GetControlID(const QWidget& widget); // both 0 for a widget that is no control
bool IsControl(const QWidget& widget);

} // namespace kesta
