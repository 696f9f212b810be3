#pragma once

class QAccessibleInterface;
class QLineEdit;

namespace kesta {

// A line edit of which assistive programs also learn that its contents can't be used: Qt's own says nothing of that.
// Null for the inner part of a spin field or combo box, which Qt knows. Hidden characters stay hidden.
QAccessibleInterface* MakeAccessibleField(QLineEdit& field);

} // namespace kesta
