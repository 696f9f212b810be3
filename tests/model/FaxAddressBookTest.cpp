#include "model/FaxRecipientList.h"

#include <gtest/gtest.h>

namespace kesta::fax_address_book_test {
namespace {

using namespace Qt::StringLiterals;

class FakeAddressBook : public AddressBook {
public:
    std::map<QString, AddressBookPerson> persons;
    std::vector<QString> groups, members, properties;
    bool takesPersons = true, takesGroups = true, canSave = true;
    int saves = 0;

    std::optional<AddressBookPerson> person(const QString& identifier) override
    {
        const auto found = persons.find(identifier);
        return found == persons.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<QString> addPerson(const AddressBookPerson& person) override
    {
        if (!takesPersons)
            return std::nullopt;
        const QString identifier = u"id-%1"_s.arg(persons.size());
        persons.emplace(identifier, person);
        return identifier;
    }
    std::optional<QString> addGroup(const QString& name) override
    {
        if (!takesGroups)
            return std::nullopt;
        groups.push_back(name);
        return u"group"_s;
    }
    bool addToGroup(const QString& group, const QString& person) override
    {
        members.push_back(group + u'/' + person);
        return true;
    }
    bool hasCustomProperty(const QString& name) override { return std::ranges::count(properties, name) > 0; }
    bool addCustomProperty(const QString& name) override
    {
        properties.push_back(name);
        return true;
    }
    bool save() override
    {
        ++saves;
        return canSave;
    }
};

class FaxAddressBook : public testing::Test {
protected:
    FakeAddressBook book_;
    WhileInstalled<AddressBook> installed_{book_};
};

TEST_F(FaxAddressBook, ACommittedRecipientHasARecord)
{
    FaxRecipient recipient;
    recipient.setFirstName(u"Ann"_s);
    recipient.setLastName(u"Lee"_s);
    recipient.setFaxNumber(u"555"_s);
    recipient.setPhoneNumber(u"556"_s);
    recipient.setEmailAddress(u"ann@kesta.example"_s);
    recipient.setOrganization(u"Kesta"_s);
    recipient.setMailbox(u"12"_s);
    EXPECT_EQ(recipient.abRecord(), std::nullopt);
    EXPECT_TRUE(recipient.commitToAddressBook());
    EXPECT_EQ(book_.saves, 1);
    EXPECT_EQ(recipient.uid(), u"id-0"_s);
    EXPECT_EQ(recipient.abRecord(),
              (AddressBookPerson{.firstName = u"Ann"_s, // and no last name
                                 .organization = u"Kesta"_s,
                                 .phones = {{u"WorkFax"_s, u"555"_s}, {u"Work"_s, u"556"_s}},
                                 .emails = {{u"Work"_s, u"ann@kesta.example"_s}},
                                 .custom = {{u"com.kesta.mailbox"_s, u"12"_s}}}));
    EXPECT_TRUE(recipient.commitToAddressBook());
    EXPECT_EQ(book_.properties, (std::vector<QString>{u"com.kesta.mailbox"_s})) << "added once";

    book_.takesPersons = false;
    FaxRecipient refused;
    const int savesBefore = book_.saves;
    EXPECT_FALSE(refused.commitToAddressBook());
    EXPECT_EQ(refused.uid(), std::nullopt);
    EXPECT_EQ(book_.saves, savesBefore);
}

TEST_F(FaxAddressBook, AGroupHasARecordForEachRecipient)
{
    FaxRecipientList list;
    for (const auto& uid : {std::optional<QString>(), std::optional(u"known"_s), std::optional<QString>()}) {
        const FaxRecipientRef recipient = FaxRecipientRef::Make();
        recipient->setUID(uid);
        list.append(recipient.get());
    }
    EXPECT_TRUE(list.saveAsABGroupWithName(u"Partners"_s));
    EXPECT_EQ(book_.groups, (std::vector<QString>{u"Partners"_s}));
    EXPECT_EQ(book_.members, (std::vector<QString>{u"group/id-0"_s, u"group/known"_s, u"group/id-1"_s}));
    EXPECT_EQ(list.recipientAtIndex(2)->uid(), u"id-1"_s);

    EXPECT_TRUE(list.saveAsABGroupWithName(u"Again"_s));
    EXPECT_EQ(book_.persons.size(), 2u) << "each is committed once";
    book_.canSave = false;
    EXPECT_FALSE(list.saveAsABGroupWithName(u"Unsaved"_s));
    book_.takesGroups = false;
    book_.members.clear();
    EXPECT_FALSE(list.saveAsABGroupWithName(u"Refused"_s));
    EXPECT_TRUE(book_.members.empty());
}

TEST(FaxWithoutAddressBook, NothingCanBeSaved)
{
    FaxRecipient recipient;
    EXPECT_FALSE(recipient.commitToAddressBook());
    EXPECT_FALSE(FaxRecipientList().saveAsABGroupWithName(u"Partners"_s));
}

} // namespace
} // namespace kesta::fax_address_book_test
