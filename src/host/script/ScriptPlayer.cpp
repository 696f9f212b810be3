#include "host/script/ScriptPlayer.h"

#include "host/commandline/Console.h"
#include "host/script/ScriptActions.h"
#include "platform/system/SafeFile.h"
#include "toolkit/controls/Controls.h"

#include <QApplication>
#include <QPixmap>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr int kLayoutRounds = 8;    // a layout may ask the one around it for room, and so on
constexpr unsigned long kPause = 2; // milliseconds between looks at a dialog that is busy

QString WriteScreenshot(QWidget& window, const QString& file)
{
    for (int round = 0; round < kLayoutRounds; ++round)
        QApplication::sendPostedEvents();
    return window.grab().save(file, "PNG") ? QString() : u"%1 can't be written"_s.arg(file);
}

// A menu or a help window that was opened last.
QWidget* WindowOver(const QWidget& front)
{
    if (QWidget* menu = QApplication::activePopupWidget())
        return menu;
    QWidget* active = QApplication::activeWindow();
    return active && active != &front && active->objectName() == u"Help" ? active : nullptr;
}

QString WriteDump(const QByteArray& settings, const QString& file)
{
    const std::optional<FileError> error = WriteFile(file, settings, FileAccess::OwnerOnly);
    return error ? error->text : QString();
}

QString PressCommand(const QWidget& window, FourCharCode command)
{
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (GetControlCommand(*button) != command)
            continue;
        if (!button->isEnabled())
            return u"the button is disabled"_s;
        button->click();
        return {};
    }
    return u"there is no such button"_s;
}

} // namespace

ScriptPlayer::ScriptPlayer(DialogScript script, ScriptedDialog& dialog, Translations translations)
    : script_(std::move(script)), dialog_(dialog), texts_(std::move(translations))
{
    SetModalIdleAction([this](QWidget& window) { idle(window); });
}

ScriptPlayer::~ScriptPlayer()
{
    SetModalIdleAction(nullptr);
}

std::optional<QString> ScriptPlayer::fault() const
{
    if (!fault_.isEmpty())
        return fault_;
    if (next_ < script_.steps.size())
        return ScriptFault(script_.steps[next_].line, u"the dialog has closed"_s);
    return std::nullopt;
}

// A step is not played from within this call: the loop's timer would rest while the step has a menu open.
void ScriptPlayer::idle(QWidget& window)
{
    innermost_ = &window;
    if (due_)
        return;
    due_ = true;
    QTimer::singleShot(0, this, [this] {
        due_ = false;
        act();
    });
}

void ScriptPlayer::act()
{
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal ? modal : innermost_.data();
    if (!front)
        return;
    if (ended_) {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        EndModalLoop(*front, ModalResult::Cancel);
        if (front != innermost_) // a dialog with a loop of its own
            front->close();
    } else if (front == &dialog_.window() && dialog_.isBusy()) {
        QThread::msleep(kPause);
    } else if (next_ < script_.steps.size()) {
        playNext();
    } else {
        finish(*front);
    }
}

void ScriptPlayer::playNext()
{
    const ScriptStep& step = script_.steps[next_++]; // a step may open a dialog in which the following ones are played
    const QPointer<QWidget> front = QApplication::activeModalWidget();
    const QString reason = play(step, front ? *front : *innermost_);
    if (!reason.isEmpty())
        fail(step.line, reason);
    else if (!ended_)
        dialog_.updateSummary();
}

void ScriptPlayer::finish(QWidget& front)
{
    const int line = script_.steps.empty() ? 1 : script_.steps.back().line;
    if (&front != &dialog_.window())
        fail(line, u"the script ends while \"%1\" is open"_s.arg(front.windowTitle()));
    ended_ = true;
}

void ScriptPlayer::fail(int line, const QString& reason)
{
    if (fault_.isEmpty())
        fault_ = ScriptFault(line, reason);
    next_ = script_.steps.size();
    ended_ = true;
}

QString ScriptPlayer::play(const ScriptStep& step, QWidget& front)
{
    QWidget* over = WindowOver(front);
    QWidget& shown = over ? *over : front;
    switch (step.verb) {
    case ScriptVerb::Key:
        return PressKey(shown, step.key);
    case ScriptVerb::Expect:
        return ExpectText(shown, step.text, texts_);
    case ScriptVerb::Screenshot:
        return WriteScreenshot(shown, step.text);
    default:
        break;
    }
    if (over) // a person can reach nothing else of a menu, and puts help aside
        over->close();
    switch (step.verb) {
    case ScriptVerb::Panel:
        return ShowPanel(front, step.target, texts_);
    case ScriptVerb::Choose:
        return ChooseItem(front, step, texts_);
    case ScriptVerb::Command:
        return SendMenuCommand(front, step.command);
    case ScriptVerb::Check:
        return CheckControl(front, step, texts_);
    case ScriptVerb::Type:
        return TypeText(front, step, texts_);
    case ScriptVerb::Press:
        return PressButton(front, step.target, texts_);
    case ScriptVerb::Select:
        return SelectRows(front, step, texts_);
    case ScriptVerb::ExpectValue:
        return ExpectValue(front, step, texts_);
    case ScriptVerb::ExpectEnabled:
        return ExpectEnabled(front, step, texts_);
    default:
        return playOnDialog(step, front);
    }
}

QString ScriptPlayer::playOnDialog(const ScriptStep& step, QWidget& front)
{
    switch (step.verb) {
    case ScriptVerb::Sync:
        return dialog_.syncPane(step.flag) ? QString() : u"there is no pane"_s;
    case ScriptVerb::Dump:
        return WriteDump(dialog_.jobSettings(), step.text);
    case ScriptVerb::Summary:
        PrintLine(dialog_.summaryText());
        return {};
    case ScriptVerb::Print:
    case ScriptVerb::Cancel:
        if (&front != &dialog_.window())
            return u"\"%1\" is open over the dialog"_s.arg(front.windowTitle());
        return step.verb == ScriptVerb::Print ? PressCommand(front, kCommandOK) : cancelDialog(step, front);
    default:
        return u"the action is unknown"_s;
    }
}

// The status that a step names is the one that the program would have without a script.
QString ScriptPlayer::cancelDialog(const ScriptStep& step, const QWidget& front)
{
    if (QString reason = PressCommand(front, kCommandCancel); !reason.isEmpty() || !step.status)
        return reason;
    const std::optional<DialogEnd> end = dialog_.end();
    if (!end)
        return u"the dialog has not closed"_s;
    const int status = ExitStatus(*end, false);
    return status == *step.status ? QString() : u"the program would end with status %1"_s.arg(status);
}

} // namespace kesta::host
