#include "toolkit/controls/SpinField.h"

#include "toolkit/controls/ControlEvent.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

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
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { empty_ = meansEmpty(text); });
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
    setDecimals(std::clamp(decimals, 0, kMostDecimals));
    setRange(toShown(least), toShown(most));
    setSingleStep(toShown(1));
    lastNumber_ = number();
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
    return empty_ ? kUnset : toNumber(value());
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
    setShown(empty_ ? 0 : number);
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
    return meansEmpty(text) ? QValidator::Acceptable : QDoubleSpinBox::validate(text, position);
}

double SpinField::valueFromText(const QString& text) const
{
    return meansEmpty(text) ? value() : QDoubleSpinBox::valueFromText(text);
}

QString SpinField::textFromValue(double shown) const
{
    return empty_ ? QString() : QDoubleSpinBox::textFromValue(shown);
}

void SpinField::stepBy(int steps)
{
    if (empty_) {
        setNumber(0);
        lastNumber_ = kUnset;
    }
    QDoubleSpinBox::stepBy(steps);
    sendHit(); // an end that is reached from empty is another number, too
}

QAbstractSpinBox::StepEnabled SpinField::stepEnabled() const
{
    return empty_ && !isReadOnly() ? StepUpEnabled | StepDownEnabled : QDoubleSpinBox::stepEnabled();
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
