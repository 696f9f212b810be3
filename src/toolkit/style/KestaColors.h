#pragma once

#include <QColor>
#include <QPalette>

namespace kesta {

// The colours of the look; all but error and caution are the palette's own or mixes of them.
struct KestaColors {
    QColor window;
    QColor text;
    QColor base;
    QColor button;
    QColor accent;
    QColor onAccent;
    QColor ring;        // of what has the focus, on any of the grounds
    QColor onBase;      // text in fields, lists and menus
    QColor onButton;    // text on what is pressed
    QColor placeholder; // text in place of a value
    QColor pane;
    QColor text2;    // labels, hints
    QColor disabled; // text and chevrons
    QColor disabledOnBase;
    QColor disabledOnButton;
    QColor hairline;
    QColor border; // outline of what is pressed
    QColor field;  // outline of what is typed into
    QColor error;
    QColor caution;
    bool dark = false;
};

KestaColors ColorsOf(const QPalette& palette);
KestaColors CurrentColors(); // of the application's palette

// How much lighter the one is than the other, by their luminance: 1 to 21.
double Contrast(const QColor& color, const QColor& other);

// The palette with every text that it leaves unreadable replaced by a mix of its own colours: placeholders have 4.5:1,
// disabled texts at least 2:1.
QPalette Readable(QPalette palette);

// The first colour with so much of the other in it, 0 to 1.
QColor Mix(const QColor& color, const QColor& other, double share);

} // namespace kesta
