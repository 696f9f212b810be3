#include "pde/MenuUtilities.h"

#include "toolkit/InterfaceFile.h"
#include "toolkit/ModalLoop.h"

#include <QApplication>

#include <algorithm>

namespace kesta {
namespace {

bool Fits(const TextTypedEvent& typing, const TextLimits& limits)
{
    if (typing.isEditingOnly())
        return true;
    if (limits.maximumLength > 0 && typing.lengthAfter() > limits.maximumLength)
        return false;
    return limits.allowedCharacters.isEmpty() ||
           std::ranges::all_of(typing.typed, [&limits](QChar c) { return limits.allowedCharacters.contains(c); });
}

TextLength LengthOf(const QString& text, int minimumLength)
{
    if (text.isEmpty())
        return TextLength::Empty;
    return text.size() < std::max(minimumLength, 1) ? TextLength::TooShort : TextLength::LongEnough;
}

// Lives as long as the field.
class Limiter : public QObject {
public:
    Limiter(QWidget& field, const TextLimits& limits)
        : QObject(&field),
          handler_(InstallEventHandler(
              field,
              [limits](const TextTypedEvent& typing) {
                  if (Fits(typing, limits))
                      return EventResult::NotHandled;
                  QApplication::beep();
                  return EventResult::Handled;
              },
              [&field, minimum = limits.minimumLength](const TextEditedEvent& edited) {
                  return SendControlEvent(field, TextLengthEvent{.length = LengthOf(edited.text, minimum)});
              }))
    {
    }

private:
    EventHandler handler_;
};

} // namespace

void LimitInputLengthAndCharacters(QLineEdit* field, const TextLimits& limits)
{
    if (field)
        new Limiter(*field, limits);
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

    const EventHandler commands = InstallEventHandler(*window, [&](const CommandEvent& event) {
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
