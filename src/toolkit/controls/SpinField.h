#pragma once

#include "platform/values/Types.h"

#include <QDoubleSpinBox>

#include <optional>

namespace kesta {

// A number with arrows, in the language's notation. Its number is a whole count of units of 10^-decimals: with one
// decimal, 5 shows as 0.5. A user's change sends a hit with the new number; so does each digit that leaves one in
// range. In interface files `minimum`, `maximum`, `value` and `singleStep` are as shown.
//
// With an empty text, which it shows in place of a number, it may also be empty: its number is then kUnset, taking its
// text away makes it so, and its arrows go on from the number nearest to 0.
//
// A number beyond the limits, which nobody can type, is shown as what it is, and marked, until the user changes it.
class SpinField : public QDoubleSpinBox {
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

public:
    explicit SpinField(QWidget* parent = nullptr);

    void setLimits(SInt32 least, SInt32 most, int decimals = 0);
    // What arrows and keys stop at, where more can be typed; setLimits() ends it.
    void setStepLimits(SInt32 least, SInt32 most);
    SInt32 leastNumber() const;
    SInt32 mostNumber() const;
    SInt32 number() const;
    void setNumber(SInt32 number); // sends nothing; kUnset, where it may not be empty, is brought within the limits

    bool isBeyondLimits() const { return foreign_.has_value(); }
    // The number at the limit, as text; and taking it, as if the user had stepped there.
    QString nearestText() const;
    void takeNearest();

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
    QString textOfForeign() const;
    SInt32 nearestStep(SInt32 number) const;
    void setForeign(std::optional<SInt32> number);
    void setShown(SInt32 number);
    void sendHit();

    int settingByCode_ = 0;
    bool empty_ = false;
    std::optional<SInt32> foreign_ = {}; // beyond the limits
    struct StepLimits {
        SInt32 least, most;
    };
    std::optional<StepLimits> stepLimits_ = {};
    SInt32 lastNumber_ = 0; // that code set or a hit told
};

} // namespace kesta
