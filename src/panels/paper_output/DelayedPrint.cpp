#include "panels/paper_output/DelayedPrint.h"

#include "panels/paper_output/DelayedPrintTime.h"
#include "pde/forms/DialogCommands.h"
#include "platform/system/Clock.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QLocale>
#include <QTimeEdit>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr QLatin1StringView kDelayedPrintHelp("How_to/m_ht_use_Delayed_Print.htm");

// As the locale writes a time, and always with the seconds, which count too.
QString TimeFormat(const QLocale& locale)
{
    QString format = locale.timeFormat(QLocale::ShortFormat);
    if (!format.contains(u's'))
        format.replace(u"mm"_s, u"mm:ss"_s);
    return format;
}

// A part with all its digits goes on to the next one by itself; the separator that people type then must not skip that.
EventHandler InstallTypingHandler(QTimeEdit& field)
{
    return InstallEventHandler(field,
                               [&field, typedInto = std::optional<QTimeEdit::Section>()](const KeyEvent& key) mutable {
                                   const bool isDigit = key.text.size() == 1 && key.text.front().isDigit();
                                   const bool hasGoneOn = typedInto && typedInto != field.currentSection();
                                   typedInto = isDigit ? std::optional(field.currentSection()) : std::nullopt;
                                   const bool isSeparator = key.text == u":" || key.text == u".";
                                   return hasGoneOn && isSeparator ? EventResult::Handled : EventResult::NotHandled;
                               });
}

} // namespace

OSStatus RunModalDelayedPrintSetup(const Bundle& bundle, SInt64& time)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "DelayedPrint", "DelayedPrint");
    auto* field = FindControlAs<QTimeEdit>(window.get(), {jobtypes::kDelayedPrintSignature, jobtypes::kTimeField});
    if (!field)
        return kInterfaceFileUnreadable;
    field->setLayoutDirection(Qt::LeftToRight); // a mirrored field shows the seconds first
    field->setDisplayFormat(TimeFormat(field->locale()));
    field->setTime(QTime::fromMSecsSinceStartOfDay(TimeOfDay(time) * 1000));
    field->setFocus();
    field->setSelectedSection(QDateTimeEdit::HourSection); // typing starts here
    const EventHandler typing = InstallTypingHandler(*field);

    if (RunModalDialog(bundle, *window, kDelayedPrintHelp) == ModalResult::OK)
        time = NextMomentAt(field->time().msecsSinceStartOfDay() / 1000, GetClock());
    return noErr;
}

} // namespace kesta
