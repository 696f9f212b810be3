#pragma once

#include "platform/system/AddressBook.h"
#include "platform/values/Value.h"

#include <utility>

namespace kesta {

// Each is absent or a text; an empty text is not an absent one.
struct FaxRecipientFields {
    std::optional<QString> firstName = {};
    std::optional<QString> lastName = {};
    std::optional<QString> faxNumber = {};
    std::optional<QString> faxNumberLabel = {};
    std::optional<QString> organization = {};
    std::optional<QString> phoneNumber = {};
    std::optional<QString> emailAddress = {};
    std::optional<QString> mailbox = {};
    std::optional<QString> uid = {}; // identifies the address book record
};

// One addressee of a fax. Recipients are shared by counting references; a new one has the count 1.
class FaxRecipient {
public:
    using Text = std::optional<QString>;

    FaxRecipient() = default;
    explicit FaxRecipient(const Dictionary& ticket) { fromTicket(ticket); }
    FaxRecipient(const FaxRecipient& other) : fields_(other.fields_) {} // the texts, not the count
    FaxRecipient& operator=(const FaxRecipient& other);

    const Text& firstName() const { return fields_.firstName; }
    const Text& lastName() const { return fields_.lastName; }
    const Text& faxNumber() const { return fields_.faxNumber; }
    const Text& faxNumberLabel() const { return fields_.faxNumberLabel; }
    const Text& organization() const { return fields_.organization; }
    const Text& phoneNumber() const { return fields_.phoneNumber; }
    const Text& emailAddress() const { return fields_.emailAddress; }
    const Text& mailbox() const { return fields_.mailbox; }
    const Text& uid() const { return fields_.uid; }

    void setFirstName(const Text& name) { fields_.firstName = name; }
    void setLastName(const Text& name) { fields_.lastName = name; }
    void setFaxNumber(const Text& number) { fields_.faxNumber = number; }
    void setFaxNumberLabel(const Text& label) { fields_.faxNumberLabel = label; }
    void setOrganization(const Text& organization) { fields_.organization = organization; }
    void setPhoneNumber(const Text& number) { fields_.phoneNumber = number; }
    void setEmailAddress(const Text& address) { fields_.emailAddress = address; }
    void setMailbox(const Text& mailbox) { fields_.mailbox = mailbox; }
    void setUID(const Text& uid) { fields_.uid = uid; }

    // Both only count and return the new count; deleting at 0 is FaxRecipientRelease's part.
    SInt32 retain() { return ++count_; }
    SInt32 release() { return --count_; }

    Dictionary toTicket() const;               // only what is there
    void fromTicket(const Dictionary& ticket); // what the ticket lacks is cleared

    // The record of the address book that uid names; nothing when there is none.
    std::optional<AddressBookPerson> abRecord() const;

    // Adds the recipient to the address book, but for its last name, and keeps the new record's identifier as uid.
    // False when it could not be added.
    bool commitToAddressBook();

private:
    FaxRecipientFields fields_;
    SInt32 count_ = 1;
};

// Gives up one reference, with the last one the recipient.
void FaxRecipientRelease(FaxRecipient* recipient);

// One counted reference to a recipient, or none.
class FaxRecipientRef {
public:
    FaxRecipientRef() = default;
    explicit FaxRecipientRef(FaxRecipient* retained) : recipient_(retained)
    {
        if (recipient_)
            recipient_->retain();
    }
    FaxRecipientRef(const FaxRecipientRef& other) : FaxRecipientRef(other.recipient_) {}
    FaxRecipientRef(FaxRecipientRef&& other) noexcept : recipient_(std::exchange(other.recipient_, nullptr)) {}
    FaxRecipientRef& operator=(FaxRecipientRef other) noexcept
    {
        std::swap(recipient_, other.recipient_);
        return *this;
    }
    ~FaxRecipientRef() { FaxRecipientRelease(recipient_); }

    // A recipient of its own, copied from the given one; the only reference to it.
    static FaxRecipientRef Make(const FaxRecipient& content = {});

    FaxRecipient* get() const { return recipient_; }
    FaxRecipient& operator*() const { return *recipient_; }
    FaxRecipient* operator->() const { return recipient_; }

private:
    FaxRecipient* recipient_ = nullptr;
};

// First and last name, what is missing left out, with a blank between.
QString DisplayNameFromRecipient(const FaxRecipient& recipient);

// What of a fax number can be dialed: these characters of it, in their order.
inline constexpr char kFaxDialingCharacters[] = "0123456789*#=:!,/S$<>ABCD";
QString CopyDialingStringFromFaxNumber(const QString& number);

// The cover sheet's lines about the sender; what is empty has no line.
QString CreateLANFaxSenderInformation(const QString& name, const QString& organization, const QString& emailAddress,
                                      const QString& phoneLabel, const QString& phoneNumber, const QString& faxLabel,
                                      const QString& faxNumber);

} // namespace kesta
