#include "toolkit/controls/SpinField.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/TextInput.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kesta {
namespace {

constexpr int kUsualWidth = 88;          // points
constexpr int kRoomBesideEmptyText = 40; // for arrows and insets
constexpr int kMostDecimals = 9;         // more than a 32-bit number has digits for

} // namespace

SpinField::SpinField(QWidget* parent) : QDoubleSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setDecimals(0);
    setRange(0, 99);
    connect(this, &QDoubleSpinBox::valueChanged, this, &SpinField::sendHit);
    // Becoming empty, and filled with the number that was there before, is no change of the value below.
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        empty_ = meansEmpty(text);
        if (text != textOfForeign())
            setForeign({});
    });
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        if (hasAcceptableInput())
            sendHit();
    });
}

void SpinField::sendHit()
{
    if (settingByCode_ != 0 || number() == lastNumber_)
        return;
    lastNumber_ = number();
    SendControlEvent(*this, HitEvent{.value = lastNumber_});
}

bool SpinField::meansEmpty(const QString& text) const
{
    return !emptyText().isEmpty() && text.trimmed().isEmpty();
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
    setForeign({});
    stepLimits_.reset();
    setDecimals(std::clamp(decimals, 0, kMostDecimals));
    setRange(toShown(least), toShown(most));
    setSingleStep(toShown(1));
    lastNumber_ = number();
    --settingByCode_;
}

void SpinField::setStepLimits(SInt32 least, SInt32 most)
{
    stepLimits_ = {least, most};
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
    return empty_ ? kUnset : foreign_.value_or(toNumber(value()));
}

void SpinField::setShown(SInt32 number)
{
    ++settingByCode_;
    setValue(toShown(number));
    lastNumber_ = this->number();
    --settingByCode_;
}

void SpinField::setNumber(SInt32 number)
{
    empty_ = number == kUnset && !emptyText().isEmpty();
    const bool isForeign = number != kUnset && (number < leastNumber() || number > mostNumber());
    setForeign(isForeign ? std::optional(number) : std::nullopt);
    setShown(empty_ ? 0 : number);
}

void SpinField::setForeign(std::optional<SInt32> number)
{
    foreign_ = number;
    MarkInvalid(this, number.has_value());
}

// Empty without one.
QString SpinField::textOfForeign() const
{
    return foreign_ ? prefix() + textFromValue(0) + suffix() : QString();
}

QString SpinField::emptyText() const
{
    return lineEdit()->placeholderText();
}

void SpinField::setEmptyText(const QString& text)
{
    lineEdit()->setPlaceholderText(text);
    updateGeometry();
    if (text.isEmpty() && empty_)
        setNumber(0);
}

QValidator::State SpinField::validate(QString& text, int& position) const
{
    const bool isShown = meansEmpty(text) || (foreign_ && text == textOfForeign());
    return isShown ? QValidator::Acceptable : QDoubleSpinBox::validate(text, position);
}

double SpinField::valueFromText(const QString& text) const
{
    const bool isShown = meansEmpty(text) || (foreign_ && text == textOfForeign());
    return isShown ? value() : QDoubleSpinBox::valueFromText(text);
}

QString SpinField::textFromValue(double shown) const
{
    return empty_ ? QString() : QDoubleSpinBox::textFromValue(foreign_ ? toShown(*foreign_) : shown);
}

SInt32 SpinField::nearestStep(SInt32 number) const
{
    const StepLimits limits = stepLimits_.value_or(StepLimits{leastNumber(), mostNumber()});
    return std::clamp(number, limits.least, limits.most);
}

QString SpinField::nearestText() const
{
    return prefix() + QDoubleSpinBox::textFromValue(toShown(nearestStep(number()))) + suffix();
}

void SpinField::takeNearest()
{
    const SInt32 before = number();
    setNumber(nearestStep(before));
    lastNumber_ = before;
    sendHit();
}

// From beyond the limits the first step is to the nearest of them.
void SpinField::stepBy(int steps)
{
    const SInt32 before = number();
    ++settingByCode_;
    if (empty_)
        setNumber(0);
    if (nearestStep(number()) == number())
        QDoubleSpinBox::stepBy(steps);
    if (const SInt32 nearest = nearestStep(number()); nearest != number())
        setNumber(nearest);
    --settingByCode_;
    lastNumber_ = before;
    sendHit(); // an end that is reached from empty is another number, too
}

QAbstractSpinBox::StepEnabled SpinField::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    if (empty_)
        return StepUpEnabled | StepDownEnabled;
    const SInt32 up = nearestStep(std::numeric_limits<SInt32>::max());
    const SInt32 down = nearestStep(std::numeric_limits<SInt32>::min());
    return (number() < up ? StepUpEnabled : StepNone) | (number() > down ? StepDownEnabled : StepNone);
}

QSize SpinField::sizeHint() const
{
    const QSize usual = QDoubleSpinBox::sizeHint().expandedTo({kUsualWidth, 0});
    return usual.expandedTo({fontMetrics().horizontalAdvance(emptyText()) + kRoomBesideEmptyText, 0});
}

void SpinField::wheelEvent(QWheelEvent* event)
{
    hasFocus() ? QDoubleSpinBox::wheelEvent(event) : event->ignore();
}

} // namespace kesta
