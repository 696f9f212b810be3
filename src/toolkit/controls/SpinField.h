#pragma once

#include "platform/values/Types.h"

#include <QDoubleSpinBox>

namespace kesta {

// A number with arrows, in the language's notation. Its number is a whole count of units of 10^-decimals: with one
// decimal, 5 shows as 0.5. A user's change sends a hit with the new number; so does each digit that leaves one in
// range. In interface files `minimum`, `maximum`, `value` and `singleStep` are as shown.
//
// With an empty text, which it shows in place of a number, it may also be empty: its number is then kUnset, taking its
// text away makes it so, and its arrows go on from the number nearest to 0.
class SpinField : public QDoubleSpinBox {
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

public:
    explicit SpinField(QWidget* parent = nullptr);

    void setLimits(SInt32 least, SInt32 most, int decimals = 0);
    SInt32 leastNumber() const;
    SInt32 mostNumber() const;
    SInt32 number() const;
    void setNumber(SInt32 number); // brought within the limits, but for the kUnset of an empty field; sends nothing

    QString emptyText() const;
    void setEmptyText(const QString& text); // an empty one: never empty

    QSize sizeHint() const override;

    QValidator::State validate(QString& text, int& position) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double shown) const override;
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent* event) override; // only with the focus: panels scroll

private:
    SInt32 toNumber(double shown) const;
    double toShown(SInt32 number) const;
    bool meansEmpty(const QString& text) const;
    void setShown(SInt32 number);
    void sendHit();

    int settingByCode_ = 0;
    bool empty_ = false;
    SInt32 lastNumber_ = 0; // that code set or a hit told
};

} // namespace kesta
