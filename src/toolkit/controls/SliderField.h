#pragma once

#include "toolkit/controls/ControlEvent.h"

#include <QWidget>

class QSlider;

namespace kesta {

class SpinField;

// A slider with a field for its number. The mouse moves the slider; typing and the keyboard go to the field, which has
// the focus of both. A user's change of either sends one hit of this control with the new number, also while the
// slider is being dragged. In interface files `minimum`, `maximum` and `emptyText` are the field's.
class SliderField : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

public:
    explicit SliderField(QWidget* parent = nullptr);

    int minimum() const;
    void setMinimum(int least);
    int maximum() const;
    void setMaximum(int most);
    QString emptyText() const;
    void setEmptyText(const QString& text); // see SpinField; while the field is empty the slider stands at 0

    SInt32 number() const;
    void setNumber(SInt32 number); // as SpinField's; sends nothing

    SpinField& field() const { return *field_; }
    QSlider& slider() const { return *slider_; }

    // Calls both parts by the name of the whole, for those who hear them.
    void nameParts();

private:
    void setLimits(int least, int most);
    void showNumberOnSlider();
    void slide(int position);

    QSlider* slider_;
    SpinField* field_;
    EventHandler fieldEvents_;
};

} // namespace kesta
