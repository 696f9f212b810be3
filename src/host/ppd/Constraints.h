#pragma once

#include "platform/values/Message.h"
#include "platform/values/Value.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace kesta::host {

// A choice to set instead of the one that is set.
struct ChoiceChange {
    QString keyword; // the option's
    QString choice;  // its new choice
    Message text;    // "Set Punch to None", in the printer's own words

    bool operator==(const ChoiceChange&) const = default;
};

// Choices that the printer forbids together.
struct ChoiceConflict {
    Message sentence;                  // with the printer's own words for options and choices
    std::vector<ChoiceChange> changes; // resolve it, and cause no other; none: there is no such change
};

struct ConflictReport {
    std::vector<ChoiceConflict> conflicts; // in the PPD's order
    QStringList unknown;                   // keywords or "keyword=choice" that this printer does not have
    Message problem;                       // empty, or why the PPD can't be read
};

// Checks the choices (option keyword to choice keyword) with the PPD's defaults for everything else. Fitted accessories
// are never proposed for a change. Changes of several conflicts agree: all of them together leave no conflict.
ConflictReport FindConflicts(const QString& ppdPath, const Dictionary& choices);

// The choices with the changes of all conflicts applied.
Dictionary ApplyChanges(const ConflictReport& report, Dictionary choices);

} // namespace kesta::host
