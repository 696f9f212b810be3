#pragma once

#include "host/job/JobRequest.h"
#include "host/script/ScriptFinder.h"
#include "toolkit/windows/ModalLoop.h"

#include <QObject>
#include <QPointer>

namespace kesta::host {

// What a script asks of the dialog besides acting on its window.
class ScriptedDialog {
public:
    virtual ~ScriptedDialog() = default;

    virtual QWidget& window() = 0;
    virtual bool isBusy() const = 0;            // waiting for a server: a person would wait too
    virtual bool syncPane(bool toControls) = 0; // false: there is no pane
    virtual QByteArray jobSettings() const = 0; // as the tickets are now
    virtual QString summaryText() = 0;
    virtual void updateSummary() = 0;
    virtual std::optional<DialogEnd> end() const = 0; // nothing while it goes on
};

// Plays a script in place of a person: each step as soon as the window in front waits for input. While it lives it acts
// in every modal loop. A script that ends without print or cancel cancels the dialog.
class ScriptPlayer : public QObject {
public:
    ScriptPlayer(DialogScript script, ScriptedDialog& dialog, Translations translations);
    ~ScriptPlayer() override;

    // To be asked after the dialog has ended: nothing when every step was done, else "script line N: reason".
    std::optional<QString> fault() const;

private:
    void idle(QWidget& window);
    void act();
    void playNext();
    QString play(const ScriptStep& step, QWidget& front);
    QString playOnDialog(const ScriptStep& step, QWidget& front);
    QString cancelDialog(const ScriptStep& step, const QWidget& front);
    void finish(QWidget& front);
    void fail(int line, const QString& reason);

    DialogScript script_;
    ScriptedDialog& dialog_;
    ScriptTexts texts_;
    std::size_t next_ = 0;
    QString fault_;
    QPointer<QWidget> innermost_; // the window of the innermost modal loop
    bool due_ = false;            // a step is about to be played
    bool ended_ = false;          // nothing more is played: the windows are closed
};

} // namespace kesta::host
