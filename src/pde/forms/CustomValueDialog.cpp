#include "pde/forms/CustomValueDialog.h"

#include "pde/forms/DialogCommands.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace {

constexpr QLatin1StringView kHelpPage("image_options/db_custom_color_d.htm");

} // namespace

OSStatus RunModalCustomValueDialog(const Bundle& bundle, const TextLimits& limits, std::optional<QString>& text,
                                   ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "Utilities", "CustomValue");
    QLineEdit* field = FindTextField(window.get(), {customvalue::kSignature, customvalue::kValueField});
    if (!field)
        return kInterfaceFileUnreadable;
    LimitInputLengthAndCharacters(field, limits);
    field->setText(text.value_or(QString()));
    field->setFocus();

    result = RunModalDialog(bundle, *window, kHelpPage);
    text = result == ModalResult::OK ? std::optional(field->text()) : std::nullopt;
    return noErr;
}

} // namespace kesta
