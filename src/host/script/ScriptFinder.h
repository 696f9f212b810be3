#pragma once

#include "host/script/DialogScript.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QAbstractButton;

namespace kesta::host {

// The texts that a localizable key has in the user's language, of all bundles and tables; none when it is not a key.
using Translations = std::function<QStringList(const QString& key)>;

// What the texts of a script mean in a window.
class ScriptTexts {
public:
    explicit ScriptTexts(Translations translations) : translations_(std::move(translations)) {}

    // The text itself and, when it is a localizable key, what it reads as: all as ComparableName makes them.
    QStringList meanings(const QString& text) const;
    bool matches(const QString& shown, const QString& text) const;

    // Whether the shown text has the text anywhere in it. Placeholders (%1) of a key's text stand for anything.
    bool isPartOf(const QString& shown, const QString& text) const;

private:
    Translations translations_;
};

struct FoundControl {
    QWidget* widget = nullptr;
    QString problem = {}; // when there is none
};

using ControlFilter = std::function<bool(const QWidget&)>;

// The first visible control in the window that has the name or number and passes the filter; one that can be used
// before one that is disabled.
FoundControl FindScriptControl(const QWidget& window, const ScriptName& name, const ScriptTexts& texts,
                               const ControlFilter& filter);

// As above, but a disabled control is a problem.
FoundControl FindUsable(const QWidget& window, const ScriptName& name, const ScriptTexts& texts,
                        const ControlFilter& filter);

// What a person sees or hears as the control's names.
QStringList NamesOf(const QWidget& widget);

// All texts that the window shows.
QStringList ShownTexts(const QWidget& window);

// The buttons of a group of which one is down: of a widget that holds them, or that is one of them. None otherwise.
std::vector<QAbstractButton*> GroupOf(const QWidget& widget);

// The name as in messages: "Copies" or #16.
QString Spelled(const ScriptName& name);

} // namespace kesta::host
