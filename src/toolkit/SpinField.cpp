#include "toolkit/SpinField.h"

#include "toolkit/ControlEvent.h"

#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kesta {
namespace {

constexpr int kUsualWidth = 88;  // points
constexpr int kMostDecimals = 9; // more than a 32-bit number has digits for

} // namespace

SpinField::SpinField(QWidget* parent) : QDoubleSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setDecimals(0);
    setRange(0, 99);
    connect(this, &QDoubleSpinBox::valueChanged, this, &SpinField::sendHit);
}

void SpinField::sendHit()
{
    if (settingByCode_ == 0)
        SendControlEvent(*this, HitEvent{.value = number()});
}

SInt32 SpinField::toNumber(double shown) const
{
    constexpr double kLeast = std::numeric_limits<SInt32>::min();
    constexpr double kMost = std::numeric_limits<SInt32>::max();
    return static_cast<SInt32>(std::clamp(std::round(shown * std::pow(10.0, decimals())), kLeast, kMost));
}

double SpinField::toShown(SInt32 number) const
{
    return number / std::pow(10.0, decimals());
}

void SpinField::setLimits(SInt32 least, SInt32 most, int decimals)
{
    ++settingByCode_;
    setDecimals(std::clamp(decimals, 0, kMostDecimals));
    setRange(toShown(least), toShown(most));
    setSingleStep(toShown(1));
    --settingByCode_;
}

SInt32 SpinField::leastNumber() const
{
    return toNumber(minimum());
}

SInt32 SpinField::mostNumber() const
{
    return toNumber(maximum());
}

SInt32 SpinField::number() const
{
    return toNumber(value());
}

void SpinField::setNumber(SInt32 number)
{
    ++settingByCode_;
    setValue(toShown(number));
    --settingByCode_;
}

QSize SpinField::sizeHint() const
{
    return QDoubleSpinBox::sizeHint().expandedTo({kUsualWidth, 0});
}

void SpinField::wheelEvent(QWheelEvent* event)
{
    hasFocus() ? QDoubleSpinBox::wheelEvent(event) : event->ignore();
}

} // namespace kesta
