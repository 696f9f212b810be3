#include "panels/paper_output/JobTypeSetups.h"

#include "panels/paper_output/DelayedPrintTime.h"
#include "pde/DialogCommands.h"
#include "platform/Clock.h"
#include "toolkit/InterfaceFile.h"

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

    if (RunModalDialog(bundle, *window, kDelayedPrintHelp) == ModalResult::OK)
        time = NextMomentAt(field->time().msecsSinceStartOfDay() / 1000, GetClock());
    return noErr;
}

} // namespace kesta
