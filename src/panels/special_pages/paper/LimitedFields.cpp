#include "panels/special_pages/paper/LimitedFields.h"

#include "toolkit/controls/Controls.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QLineEdit>
#include <QPushButton>

namespace kesta {
namespace {

constexpr SInt32 kMostTyped = 99'999;

} // namespace

void ShowNumber(SpinField& field, SInt32 number, const FieldLimits& limits, int decimals)
{
    field.setLimits(limits.least < 0 ? -kMostTyped : 0, kMostTyped, decimals);
    field.setStepLimits(limits.least, limits.most);
    field.setNumber(number);
}

bool IsWithin(const SpinField* field, const FieldLimits& limits)
{
    return field && field->hasAcceptableInput() && limits.contains(field->number());
}

bool MarkUnlessWithin(SpinField* field, const FieldLimits& limits)
{
    const bool isWithin = IsWithin(field, limits);
    MarkInvalid(field, !isWithin);
    return isWithin;
}

EventHandler EnableOKWhile(QWidget& window, const std::function<bool()>& areUsable)
{
    const auto follow = [&window, areUsable] { SetControlEnabled(GetWindowDefaultButton(window), areUsable()); };
    for (const SpinField* field : window.findChildren<SpinField*>()) {
        // A text that is no number yet is no hit.
        QObject::connect(field->findChild<QLineEdit*>(), &QLineEdit::textChanged, &window, follow);
    }
    follow();
    return InstallEventHandler(window, [follow](const HitEvent&) {
        follow();
        return EventResult::NotHandled;
    });
}

} // namespace kesta
