#pragma once

#include <QString>

class QWidget;

namespace kesta {

// What may be typed into a field; a limit below 1 and an empty set are no limit. Lengths in UTF-16 units.
struct TextLimits {
    int minimumLength = 0;
    int maximumLength = 0;
    QString allowedCharacters = {};
};

// What the user types, pastes or drops into the text field or editable combo box is taken whole or, with a beep, not at
// all: it must not make the text longer than the maximum and must consist of allowed characters. Deleting is always
// possible, and texts set by the program are not looked at. After each change by the user the control sends a text
// length event (a minimum below 1 counts as 1 here); so does choosing from a combo box's list, always as long enough. A
// second call replaces the limits of the first.
void LimitInputLengthAndCharacters(QWidget* control, const TextLimits& limits);

} // namespace kesta
