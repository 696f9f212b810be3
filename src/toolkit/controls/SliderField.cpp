#include "toolkit/controls/SliderField.h"

#include "toolkit/controls/SpinField.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QWheelEvent>

namespace kesta {
namespace {

constexpr int kGap = 8; // points between slider and field
constexpr int kUsualSliderWidth = 160;
constexpr int kPage = 10; // a click beside the handle

class Slider : public QSlider {
public:
    explicit Slider(QWidget* parent) : QSlider(Qt::Horizontal, parent)
    {
        setFocusPolicy(Qt::NoFocus); // the field has it
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setPageStep(kPage);
    }
    QSize sizeHint() const override { return {kUsualSliderWidth, QSlider::sizeHint().height()}; }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); } // panels scroll
};

} // namespace

SliderField::SliderField(QWidget* parent) : QWidget(parent), slider_(new Slider(this)), field_(new SpinField(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(slider_, 1);
    row->addWidget(field_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(field_);
    setLimits(0, 99);
    connect(slider_, &QSlider::valueChanged, this, &SliderField::slide);
    fieldEvents_ = InstallEventHandler(*field_, [this](const HitEvent& hit) {
        showNumberOnSlider();
        SendControlEvent(*this, HitEvent{.value = hit.value});
        return EventResult::Handled;
    });
}

int SliderField::minimum() const
{
    return slider_->minimum();
}

void SliderField::setMinimum(int least)
{
    setLimits(least, maximum());
}

int SliderField::maximum() const
{
    return slider_->maximum();
}

void SliderField::setMaximum(int most)
{
    setLimits(minimum(), most);
}

void SliderField::setLimits(int least, int most)
{
    const QSignalBlocker quiet(slider_);
    field_->setLimits(least, most);
    slider_->setRange(least, most);
    showNumberOnSlider();
}

QString SliderField::emptyText() const
{
    return field_->emptyText();
}

void SliderField::setEmptyText(const QString& text)
{
    field_->setEmptyText(text);
}

SInt32 SliderField::number() const
{
    return field_->number();
}

void SliderField::setNumber(SInt32 number)
{
    field_->setNumber(number);
    showNumberOnSlider();
}

void SliderField::showNumberOnSlider()
{
    const QSignalBlocker quiet(slider_);
    slider_->setValue(number() == kUnset ? 0 : number());
}

void SliderField::slide(int position)
{
    field_->setNumber(position);
    SendControlEvent(*this, HitEvent{.value = position});
}

void SliderField::nameParts()
{
    slider_->setAccessibleName(accessibleName());
    field_->setAccessibleName(accessibleName());
}

} // namespace kesta
