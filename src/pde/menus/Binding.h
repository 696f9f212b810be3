#pragma once

#include "pde/menus/SettingMap.h"
#include "pde/ticket/TicketUtilities.h"
#include "printer/PPDUtilities.h"
#include "toolkit/controls/Menu.h"

#include <span>

// How a control, a number of a record and a job's ticket belong together, as rows of a table: a panel or dialog says it
// once, and the functions here and in pde/forms/BoundControls.h fill the control, show the number, take the user's
// choice, and read and write the ticket.
namespace kesta {

// What the control offers, and where a job keeps the number. A part that is left out has no say.
struct BindingRule {
    SettingMap map = {}; // a pop-up's items; without one the choices of the printer's option, or the panel's own
    const char* other = nullptr; // key of a text with a number, for one that has no name; nothing: the usual text
    const char* (*nameOf)(SInt32) = nullptr; // key of what a number is called that no item stands for; it may be null
    bool byPosition = false;                 // the chosen item's place counts, from 1, not what the item stands for
    bool whenOpenedOnly = false;             // shown when the window opens, not when tickets are read
    SInt32 on = 1;                           // of a check box
    SInt32 off = 0;

    const char* key = nullptr;             // of the ticket's entry
    std::optional<PPDKeyword> option = {}; // the printer's, read when there is no key
    Conflicting conflicting = Conflicting::Keep;
    std::optional<SInt32> otherwise = {}; // what a ticket means that does not say; nothing: the number stays
};

template <class Record> struct Access {
    SInt32 (*get)(const Record&) = nullptr;
    void (*set)(Record&, SInt32) = nullptr;
};

template <class Record> struct Binding {
    SInt32 control = 0; // its number in the window
    Access<Record> value;
    BindingRule rule = {};
};
template <class Record> using Bindings = std::span<const Binding<Record>>;

// A binding's access to a member: kMember<&AdvancedOptions::banner>.
template <auto member> struct MemberAccess;
template <class Record, SInt32 Record::*member> struct MemberAccess<member> {
    static constexpr Access<Record> kAccess{[](const Record& record) { return record.*member; },
                                            [](Record& record, SInt32 value) { record.*member = value; }};
};
template <auto member> inline constexpr auto kMember = MemberAccess<member>::kAccess;

// The items for the rule, and the pop-up's maximum.
struct BoundMenu {
    Menu menu;
    int maximum = 0;
};
BoundMenu MenuOfRule(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd);

// "Saved Job, not on this printer".
QString NotOnThisPrinter(const Bundle& bundle, const QString& what);

// What is shown of a number that no item of the menu stands for: an item of its own, marked as not offered unless the
// number stands for a choice of the printer's that has none. Nothing for what goes without saying: not set, what a
// ticket means that does not say, or, where the printer has nothing to choose from, the record's initial number.
// Nothing, either, of an option of a printer without a PPD.
std::optional<MenuItem> ItemForOther(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, const Menu& menu,
                                     SInt32 value, SInt32 initial);

// The way back to the initial number in a menu that has no items; nothing where it has no name.
std::optional<MenuItem> ItemForInitial(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, SInt32 initial);

// Nothing when the number stays as it is. The PPD may be null.
std::optional<SInt32> ReadBound(const BindingRule& rule, const Ticket& settings, ppd_file_t* ppd);
void WriteBound(const BindingRule& rule, const TicketWriter& settings, SInt32 value);

template <class Record> void ReadBindings(std::type_identity_t<Bindings<Record>> bindings, Record& record,
                                          const Ticket& settings, ppd_file_t* ppd)
{
    for (const Binding<Record>& binding : bindings) {
        if (const std::optional<SInt32> value = ReadBound(binding.rule, settings, ppd))
            binding.value.set(record, *value);
    }
}

template <class Record>
void WriteBindings(std::type_identity_t<Bindings<Record>> bindings, const Record& record, const TicketWriter& settings)
{
    for (const Binding<Record>& binding : bindings)
        WriteBound(binding.rule, settings, binding.value.get(record));
}

} // namespace kesta
