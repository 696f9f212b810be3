#include "pde/forms/TextFieldUtilities.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/TextInput.h"

#include <QApplication>
#include <QPointer>

#include <algorithm>

namespace kesta {
namespace {

// The limits of one control and the handler that keeps them. Belongs to the control.
class InputLimiter : public QObject {
public:
    explicit InputLimiter(QWidget& control) : QObject(&control)
    {
        SendTextEvents(control);
        handler_ = InstallEventHandler(
            control, [this](const TextTypedEvent& event) { return textTyped(event); },
            [this, &control](const TextEditedEvent& event) {
                SendControlEvent(control, TextLengthEvent{.length = lengthOf(event.text)});
                return EventResult::NotHandled;
            },
            [&control](const ItemChosenEvent&) {
                SendControlEvent(control, TextLengthEvent{.length = TextLength::LongEnough});
                return EventResult::NotHandled;
            });
    }
    void setLimits(const TextLimits& limits) { limits_ = limits; }

private:
    EventResult textTyped(const TextTypedEvent& event) const
    {
        if (event.isEditingOnly())
            return EventResult::NotHandled;
        const bool tooLong = limits_.maximumLength > 0 && event.lengthAfter() > limits_.maximumLength;
        const auto allowed = [this](QChar c) { return limits_.allowedCharacters.contains(c); };
        const bool foreign = !limits_.allowedCharacters.isEmpty() && !std::ranges::all_of(event.typed, allowed);
        if (!tooLong && !foreign)
            return EventResult::NotHandled;
        QApplication::beep();
        return EventResult::Handled;
    }
    TextLength lengthOf(const QString& text) const
    {
        if (text.isEmpty())
            return TextLength::Empty;
        return text.size() < std::max(limits_.minimumLength, 1) ? TextLength::TooShort : TextLength::LongEnough;
    }

    TextLimits limits_;
    EventHandler handler_;
};

InputLimiter* LimiterOf(const QWidget& control)
{
    for (QObject* child : control.children()) {
        if (auto* limiter = dynamic_cast<InputLimiter*>(child))
            return limiter;
    }
    return nullptr;
}

} // namespace

void LimitInputLengthAndCharacters(QWidget* control, const TextLimits& limits)
{
    if (!control)
        return;
    InputLimiter* limiter = LimiterOf(*control);
    if (!limiter)
        limiter = new InputLimiter(*control);
    limiter->setLimits(limits);
}

} // namespace kesta
