#include "model/FaxRecipientList.h"

#include "model/FaxProperties.h"

namespace kesta {
namespace {

QString Phrase(const char* text)
{
    return QString::fromLatin1(text);
}

AddressBookPerson Person(const FaxRecipient& recipient)
{
    AddressBookPerson person{.firstName = recipient.firstName().value_or(QString()),
                             .organization = recipient.organization().value_or(QString()),
                             .phones = {{Phrase(kAddressBookWorkFaxLabel), recipient.faxNumber().value_or(QString())}}};
    if (recipient.phoneNumber())
        person.phones.push_back({Phrase(kAddressBookWorkLabel), *recipient.phoneNumber()});
    if (recipient.emailAddress())
        person.emails.push_back({Phrase(kAddressBookWorkLabel), *recipient.emailAddress()});
    if (recipient.mailbox())
        person.custom.emplace(Phrase(kKMailboxABProperty), *recipient.mailbox());
    return person;
}

} // namespace

std::optional<AddressBookPerson> FaxRecipient::abRecord() const
{
    return uid() ? GetAddressBook().person(*uid()) : std::nullopt;
}

bool FaxRecipient::commitToAddressBook()
{
    AddressBook& book = GetAddressBook();
    if (mailbox() && !book.hasCustomProperty(Phrase(kKMailboxABProperty)))
        book.addCustomProperty(Phrase(kKMailboxABProperty));
    const std::optional<QString> added = book.addPerson(Person(*this));
    if (!added)
        return false;
    book.save();
    setUID(added);
    return true;
}

bool FaxRecipientList::saveAsABGroupWithName(const QString& name)
{
    AddressBook& book = GetAddressBook();
    const std::optional<QString> group = book.addGroup(name);
    if (!group)
        return false;
    for (const FaxRecipientRef& recipient : recipients_) {
        if (!recipient->uid())
            recipient->commitToAddressBook();
        if (recipient->uid())
            book.addToGroup(*group, *recipient->uid());
    }
    return book.save();
}

} // namespace kesta
