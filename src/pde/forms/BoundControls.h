#pragma once

#include "pde/menus/Binding.h"
#include "toolkit/controls/ControlEvent.h"

class QWidget;

namespace kesta {

struct Bundle;

// Where a form's controls are found, and what they are filled from. The PPD may be null.
struct FormPlace {
    const QWidget* root;
    FourCharCode signature;
    const Bundle& bundle;
    ppd_file_t* ppd;
};

// One control of a form: a pop-up, a check box, a spin or slider field. One that is not there is passed over.
//
// Whatever a bound control shows, ShowInControl has shown, and whatever the user changes comes through ValueOfHit or
// ValueInControl.
void FillControl(const FormPlace& place, SInt32 control, const BindingRule& rule);
// A number that no item stands for is one more item of a pop-up, marked and never chosen anew; the initial number is
// that of a new record.
void ShowInControl(const FormPlace& place, SInt32 control, const BindingRule& rule, SInt32 value, SInt32 initial);
SInt32 ValueOfHit(const FormPlace& place, const BindingRule& rule, const HitEvent& hit);
std::optional<SInt32> ValueInControl(const FormPlace& place, SInt32 control, const BindingRule& rule);

enum class Showing { Opened, TicketRead };

// All controls of a form that are bound to the numbers of one record.
template <class Record> class BoundControls {
public:
    BoundControls(const FormPlace& place, Bindings<Record> bindings) : place_(place), bindings_(bindings) {}

    // Once, when the window is there.
    void fill() const
    {
        for (const Binding<Record>& binding : bindings_)
            FillControl(place_, binding.control, binding.rule);
    }

    // The control that the user is typing into keeps its text as typed.
    void show(const Record& record, Showing when, SInt32 typedInto = 0) const
    {
        for (const Binding<Record>& binding : bindings_) {
            const bool isDue = when == Showing::Opened || !binding.rule.whenOpenedOnly;
            if (isDue && binding.control != typedInto)
                ShowInControl(place_, binding.control, binding.rule, binding.value.get(record),
                              binding.value.get(Record()));
        }
    }

    // The user's change; false when none of the controls was hit.
    bool take(const HitEvent& hit, Record& record) const
    {
        for (const Binding<Record>& binding : bindings_) {
            if (binding.control == hit.control.number) {
                change(binding, record, ValueOfHit(place_, binding.rule, hit));
                return true;
            }
        }
        return false;
    }

    // What all controls show. Where there is none, or nothing chosen, the number stays.
    void takeAll(Record& record) const
    {
        for (const Binding<Record>& binding : bindings_) {
            if (const std::optional<SInt32> value = ValueInControl(place_, binding.control, binding.rule))
                change(binding, record, *value);
        }
    }

private:
    // Every change by the user goes through here.
    void change(const Binding<Record>& binding, Record& record, SInt32 value) const
    {
        binding.value.set(record, value);
    }

    FormPlace place_;
    Bindings<Record> bindings_;
};

} // namespace kesta
