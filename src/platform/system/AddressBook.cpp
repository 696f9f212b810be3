#include "platform/system/AddressBook.h"

#include "platform/system/Installed.h"

namespace kesta {
namespace {

class NoAddressBook : public AddressBook {
public:
    std::optional<AddressBookPerson> person(const QString&) override { return std::nullopt; }
    std::optional<QString> addPerson(const AddressBookPerson&) override { return std::nullopt; }
    std::optional<QString> addGroup(const QString&) override { return std::nullopt; }
    bool addToGroup(const QString&, const QString&) override { return false; }
    bool hasCustomProperty(const QString&) override { return false; }
    bool addCustomProperty(const QString&) override { return false; }
    bool save() override { return false; }
};

} // namespace

AddressBook* AddressBook::install(AddressBook* book)
{
    return InstalledOr<AddressBook, NoAddressBook>().install(book);
}

AddressBook& GetAddressBook()
{
    return InstalledOr<AddressBook, NoAddressBook>().current();
}

} // namespace kesta
