#pragma once

#include "platform/system/Service.h"

#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace kesta {

inline constexpr char kAddressBookWorkLabel[] = "Work";
inline constexpr char kAddressBookWorkFaxLabel[] = "WorkFax";

// One of several phone numbers or e-mail addresses of a person.
struct AddressBookEntry {
    QString label;
    QString value;

    bool operator==(const AddressBookEntry&) const = default;
};

// What is not known is empty.
struct AddressBookPerson {
    QString firstName = {};
    QString lastName = {};
    QString organization = {};
    std::vector<AddressBookEntry> phones = {};
    std::vector<AddressBookEntry> emails = {};
    std::map<QString, QString> custom = {}; // by the name of a property that the address book was given

    bool operator==(const AddressBookPerson&) const = default;
};

// The user's contacts. Records are known by identifiers that stay.
class AddressBook {
public:
    using Interface = AddressBook;
    virtual ~AddressBook() = default;

    virtual std::optional<AddressBookPerson> person(const QString& identifier) = 0;

    // The new record's identifier; nothing when it can't be added.
    virtual std::optional<QString> addPerson(const AddressBookPerson& person) = 0;
    virtual std::optional<QString> addGroup(const QString& name) = 0;
    virtual bool addToGroup(const QString& group, const QString& person) = 0;

    // Texts of the user's own that persons can carry.
    virtual bool hasCustomProperty(const QString& name) = 0;
    virtual bool addCustomProperty(const QString& name) = 0;

    virtual bool save() = 0;

    // What GetAddressBook() answers from now on; null for the one without contacts. Returns what was installed before,
    // null for none.
    static AddressBook* install(AddressBook* book);
};

// Without a contact store every change fails.
AddressBook& GetAddressBook();

} // namespace kesta
