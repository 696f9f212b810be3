#pragma once

#include "platform/values/Types.h"

#include <QStringList>

#include <vector>

class QWidget;

namespace kesta {

class PopupButton;

// From now on what the control shows is told in the summary of its window, at its place in the line (lower ones first),
// unless it is the default: a pop-up's chosen item, unless it has the default value; the lines of a summary text view,
// without those of the default text. A control that is not there is left alone.
void ShowInSummary(PopupButton* popup, SInt32 place, SInt32 defaultValue);
void ShowInSummary(QWidget* summaryTextView, SInt32 place, const QString& defaultText);

// From now on the summary has these phrases for the control, each by itself, until it is given others.
void SetSummaryPhrases(QWidget& control, SInt32 place, const QStringList& phrases);

// What those controls show now, a phrase a place. Controls that their panel has hidden are left out, those of a panel
// that is not in front are not. Never what a person types into a field.
QStringList WindowSummary(const QWidget& window);

// What a control of the window shows and the printer does not offer, in the words that it is shown with.
struct NotOffered {
    QString label;   // of the control
    QString shown;   // in it
    QString instead; // what takes its place on demand; empty when there is nothing
};

// Of all panels, hidden rows included: all of it is in the job.
std::vector<NotOffered> FindNotOffered(const QWidget& window);

// Takes what has a place taken, as if the user had chosen it.
void ReplaceNotOffered(QWidget& window);

// The lines of a summary without the dashes before them.
QStringList SummaryFacts(const QString& summary);

} // namespace kesta
