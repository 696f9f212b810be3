#pragma once

#include "platform/Types.h"

#include <QDoubleSpinBox>

namespace kesta {

// A number with arrows, in the language's notation. Its number is a whole count of units of 10^-decimals: with one
// decimal, 5 shows as 0.5. A user's change sends a hit with the new number; so does each digit that leaves one in
// range. In interface files `minimum`, `maximum`, `value` and `singleStep` are as shown.
class SpinField : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit SpinField(QWidget* parent = nullptr);

    void setLimits(SInt32 least, SInt32 most, int decimals = 0);
    SInt32 leastNumber() const;
    SInt32 mostNumber() const;
    SInt32 number() const;
    void setNumber(SInt32 number); // brought within the limits; sends nothing

    QSize sizeHint() const override;

protected:
    void wheelEvent(QWheelEvent* event) override; // only with the focus: panels scroll

private:
    SInt32 toNumber(double shown) const;
    double toShown(SInt32 number) const;
    void sendHit();
    int settingByCode_ = 0;
};

} // namespace kesta
