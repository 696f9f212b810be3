#include "pde/MenuUtilities.h"

#include "toolkit/InterfaceFile.h"
#include "toolkit/ModalLoop.h"

#include <QApplication>
#include <QValidator>

#include <algorithm>

namespace kesta {
namespace {

class LimitValidator : public QValidator {
public:
    LimitValidator(QObject* parent, TextLimits limits) : QValidator(parent), limits_(std::move(limits)) {}

    State validate(QString& text, int&) const override
    {
        const bool tooLong = limits_.maximumLength > 0 && text.size() > limits_.maximumLength;
        const bool foreign = !limits_.allowedCharacters.isEmpty() && !std::ranges::all_of(text, [this](QChar c) {
            return limits_.allowedCharacters.contains(c);
        });
        if (!tooLong && !foreign)
            return Acceptable;
        QApplication::beep();
        return Invalid;
    }

private:
    TextLimits limits_;
};

EventKind TextNotification(qsizetype length, int minimumLength)
{
    if (length == 0)
        return EventKind::TextEmpty;
    return length < std::max(minimumLength, 1) ? EventKind::TextTooShort : EventKind::TextLongEnough;
}

} // namespace

void LimitInputLengthAndCharacters(QLineEdit* field, const TextLimits& limits)
{
    if (!field)
        return;
    auto* validator = new LimitValidator(field, limits);
    field->setValidator(validator);
    QObject::connect(field, &QLineEdit::textEdited, validator,
                     [field, minimum = limits.minimumLength](const QString& text) {
                         SendControlEvent(*field, {.kind = TextNotification(text.size(), minimum)});
                     });
}

OSStatus RunModalCustomValueDialog(const Bundle& bundle, const TextLimits& limits, std::optional<QString>& text,
                                   ModalResult& result)
{
    constexpr ControlID kValueField{"Util"_code, 1};

    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "Utilities", "CustomValue");
    QLineEdit* field = FindTextField(window.get(), kValueField);
    if (!field)
        return kInterfaceFileUnreadable;
    LimitInputLengthAndCharacters(field, limits);
    field->setText(text.value_or(QString()));
    field->setFocus();

    const EventHandler commands = InstallEventHandler(*window, {EventKind::Command}, [&](const ControlEvent& event) {
        if (event.command == kCommandOK)
            EndModalLoop(*window, ModalResult::OK);
        else if (event.command == kCommandCancel)
            EndModalLoop(*window, ModalResult::Cancel);
        else
            return EventResult::NotHandled;
        return EventResult::Handled;
    });
    result = RunModalLoop(*window);
    text = result == ModalResult::OK ? std::optional(field->text()) : std::nullopt;
    return noErr;
}

} // namespace kesta
