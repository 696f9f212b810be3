#pragma once

#include "platform/values/Types.h"

#include <QVariant>

class QWidget;

namespace kesta {

struct Bundle;

// Data that code keeps on a control, under its creator's and its own four characters. Setting an invalid value removes
// it; a property that is not there is invalid.
void SetControlProperty(QWidget& control, FourCharCode creator, FourCharCode tag, const QVariant& value);
QVariant GetControlProperty(const QWidget& control, FourCharCode creator, FourCharCode tag);

// The bundle that a control is tagged with, so that others find the bundle from the control; null without one. The
// bundle must outlive the control.
void SetControlBundle(QWidget& control, FourCharCode creator, const Bundle* bundle);
const Bundle* GetControlBundle(const QWidget& control, FourCharCode creator);

} // namespace kesta
