#pragma once

#include <QColor>

class QPalette;

namespace kesta {

// The colours of the look; all but error and caution are the palette's own or mixes of them.
struct KestaColors {
    QColor window;
    QColor text;
    QColor base;
    QColor button;
    QColor accent;
    QColor onAccent;
    QColor pane;
    QColor text2;    // labels, hints
    QColor disabled; // text and chevrons
    QColor hairline;
    QColor border; // outline of what is pressed
    QColor field;  // outline of what is typed into
    QColor error;
    QColor caution;
    bool dark = false;
};

KestaColors ColorsOf(const QPalette& palette);
KestaColors CurrentColors(); // of the application's palette

// The first colour with so much of the other in it, 0 to 1.
QColor Mix(const QColor& color, const QColor& other, double share);

} // namespace kesta
