#pragma once

#include "platform/values/Types.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace kesta::host {

enum class ScriptVerb {
    Panel,
    Choose,
    Command,
    Check,
    Type,
    Key,
    Press,
    Select,
    Expect,
    ExpectValue,
    ExpectEnabled,
    Sync,
    Dump,
    Summary,
    Screenshot,
    Print,
    Cancel
};

// A control or an item as a script names it: by a text, by #number, or (items only) by the =value that it stands for.
struct ScriptName {
    QString text = {};
    std::optional<SInt32> number = {};
    std::optional<SInt32> value = {};

    bool operator==(const ScriptName&) const = default;
};

// One key press: Qt::Key and Qt::KeyboardModifiers, and what it types.
struct ScriptKey {
    int key = 0;
    int modifiers = 0;
    QString text = {};

    bool operator==(const ScriptKey&) const = default;
};

// One user action. Which members count follows from the verb; docs/dialog-scripts.md lists them.
struct ScriptStep {
    int line = 0; // from 1
    ScriptVerb verb = ScriptVerb::Summary;
    ScriptName target = {};
    ScriptName item = {};
    QString text = {};                 // to type, to expect, or the file to write
    FourCharCode command = 0;          // Command
    ScriptKey key = {};                // Key
    bool flag = false;                 // Check: on; ExpectEnabled: yes; Sync: from the tickets
    std::vector<SInt32> numbers = {};  // Select: rows from 1
    std::optional<SInt32> status = {}; // Cancel: the exit status that is expected

    bool operator==(const ScriptStep&) const = default;
};

struct DialogScript {
    std::vector<ScriptStep> steps;
    QString error; // empty, or "script line N: reason"; then there are no steps
};

// Largest script that is read, in bytes.
inline constexpr qsizetype kLargestScript = 1 << 20;

// Reads a whole script. Nothing of a script with a fault is played, so a misspelt last line costs no half-done work.
DialogScript ParseDialogScript(const QByteArray& utf8);

// "script line N: reason", as every failure of a script is reported.
QString ScriptFault(int line, const QString& reason);

// How texts are compared: without mnemonic marks, case, surrounding blanks and a trailing colon.
QString ComparableName(const QString& shown);

} // namespace kesta::host
