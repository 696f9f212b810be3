#include "model/FaxProperties.h"
#include "model/FaxRecipientList.h"
#include "model/Stored.h"

#include <gtest/gtest.h>

namespace kesta::fax_recipient_test {
namespace {

using namespace Qt::StringLiterals;

FaxRecipient Recipient(const std::optional<QString>& first, const std::optional<QString>& last,
                       const std::optional<QString>& number)
{
    FaxRecipient recipient;
    recipient.setFirstName(first);
    recipient.setLastName(last);
    recipient.setFaxNumber(number);
    return recipient;
}

TEST(FaxRecipient, EveryFieldSurvivesTheTicket)
{
    FaxRecipient recipient = Recipient(u"Ann"_s, u"Lee"_s, u"555"_s);
    recipient.setFaxNumberLabel(u"work"_s);
    recipient.setOrganization(u"Kesta"_s);
    recipient.setPhoneNumber(u"556"_s);
    recipient.setEmailAddress(u"ann@kesta.example"_s);
    recipient.setMailbox(u"12"_s);
    recipient.setUID(u"id-1"_s);
    const Dictionary expected{{"FirstName", "Ann"},
                              {"LastName", "Lee"},
                              {"FaxNumber", "555"},
                              {"FaxNumberLabel", "work"},
                              {"Organization", "Kesta"},
                              {"PhoneNumber", "556"},
                              {"EmailAddress", "ann@kesta.example"},
                              {"Mailbox", "12"},
                              {"UID", "id-1"}};
    EXPECT_EQ(recipient.toTicket(), expected);
    EXPECT_EQ(FaxRecipient(*test::Stored(expected).dictionary()).toTicket(), expected);
    EXPECT_EQ(FaxRecipient(recipient).toTicket(), expected);

    recipient.fromTicket({{"FirstName", "Bo"}, {"LastName", Number::Index(1)}});
    EXPECT_EQ(recipient.toTicket(), (Dictionary{{"FirstName", "Bo"}}));
}

TEST(FaxRecipient, ReferencesAreCountedAndNotCopied)
{
    FaxRecipient recipient;
    EXPECT_EQ(recipient.retain(), 2);
    FaxRecipient copy(recipient);
    EXPECT_EQ(copy.retain(), 2);
    copy = recipient;
    EXPECT_EQ(copy.release(), 1);
    EXPECT_EQ(recipient.release(), 1);

    FaxRecipientRelease(new FaxRecipient); // leak checkers watch this one
    FaxRecipientRelease(nullptr);
}

TEST(FaxRecipientList, HoldsAReferenceForEachEntry)
{
    const FaxRecipientRef made = FaxRecipientRef::Make();
    const auto references = [&] {
        made->retain();
        return made->release();
    };
    {
        FaxRecipientList list;
        list.append(made.get());
        list.insertAtIndex(made.get(), 0);
        EXPECT_EQ(references(), 3);
        const FaxRecipientList copy = list;
        EXPECT_EQ(references(), 5);
        list.removeAtIndex(0);
        list.removeAtIndex(9);
        EXPECT_EQ(references(), 4);
        list.append(nullptr);
        EXPECT_EQ(list.count(), 1u);
        EXPECT_EQ(list.recipientAtIndex(0), made.get());
        EXPECT_EQ(list.recipientAtIndex(1), nullptr);
    }
    EXPECT_EQ(references(), 1);
}

TEST(FaxRecipientList, RemovingSkipsTheEntryNextToARemovedOne)
{
    const FaxRecipientRef a = FaxRecipientRef::Make(), b = FaxRecipientRef::Make();
    FaxRecipientList list;
    for (const auto& recipient : {a, a, b, a})
        list.append(recipient.get());
    list.remove(a.get());
    ASSERT_EQ(list.count(), 2u);
    EXPECT_EQ(list.recipientAtIndex(0), a.get());
    EXPECT_EQ(list.recipientAtIndex(1), b.get());
    list.remove(nullptr);
    EXPECT_EQ(list.count(), 2u);
}

TEST(FaxRecipientList, DuplicatesHaveTheSameNamesAndNumber)
{
    FaxRecipientList list;
    list.append(FaxRecipientRef::Make(Recipient(u"Ann"_s, u"Lee"_s, u"555"_s)).get());
    list.append(FaxRecipientRef::Make(Recipient({}, {}, u"777"_s)).get());

    FaxRecipient known = Recipient(u"Ann"_s, u"Lee"_s, u"555"_s);
    known.setOrganization(u"another"_s);
    EXPECT_TRUE(list.containsRecipient(known));
    EXPECT_TRUE(list.containsRecipient(Recipient({}, {}, u"777"_s)));
    EXPECT_FALSE(list.containsRecipient(Recipient(u"ann"_s, u"Lee"_s, u"555"_s)));
    EXPECT_FALSE(list.containsRecipient(Recipient(u""_s, {}, u"777"_s))) << "an empty name is a name";
    EXPECT_FALSE(list.containsRecipient(Recipient(u"Ann"_s, u"Lee"_s, u"556"_s)));
}

TEST(FaxRecipientList, TheTicketKeepsTheOrder)
{
    const Array ticket{Dictionary{{"FirstName", "Ann"}}, Dictionary(), Dictionary{{"FirstName", "Bo"}}};
    FaxRecipientList list(*test::Stored(ticket).array());
    EXPECT_EQ(list.toTicket(), ticket);
    list.fromTicket({Value("damaged"), Dictionary{{"FirstName", Array()}, {"Mailbox", "3"}}});
    EXPECT_EQ(list.toTicket(), (Array{Dictionary{{"Mailbox", "3"}}}));
}

TEST(FaxRecipient, TextsMadeFromARecipient)
{
    EXPECT_EQ(CopyDialingStringFromFaxNumber(u"+1 (555) 123-4567"_s), u"15551234567"_s);
    EXPECT_EQ(CopyDialingStringFromFaxNumber(u"aAbBcCdDsSeE,.;:٣"_s), u"ABCDS,:"_s);
    EXPECT_EQ(CopyDialingStringFromFaxNumber({}), QString());

    EXPECT_EQ(DisplayNameFromRecipient(Recipient(u"Ann"_s, u"Lee"_s, {})), u"Ann Lee"_s);
    EXPECT_EQ(DisplayNameFromRecipient(Recipient({}, u"Lee"_s, {})), u"Lee"_s);
    EXPECT_EQ(DisplayNameFromRecipient({}), QString());

    EXPECT_EQ(CreateLANFaxSenderInformation(u"Ann"_s, u"Kesta"_s, u"a@b"_s, u"Phone"_s, u"1"_s, u"Fax"_s, u"2"_s),
              u"Ann\nKesta\na@b\nPhone : 1\nFax : 2\n"_s);
    EXPECT_EQ(CreateLANFaxSenderInformation({}, u"Kesta"_s, {}, u"Phone"_s, {}, {}, u"2"_s), u"Kesta\n : 2\n"_s);
}

} // namespace
} // namespace kesta::fax_recipient_test
