#include "model/FaxRecipient.h"

#include "model/FaxProperties.h"
#include "pde/ticket/RecordFields.h"

#include <QStringList>

#include <algorithm>
#include <memory>

namespace kesta {
namespace {

using R = FaxRecipientFields;

constexpr Field<R> kRecipientFields[] = {
    {kFaxRecipientFirstNameProperty, &R::firstName},
    {kFaxRecipientLastNameProperty, &R::lastName},
    {kFaxRecipientFaxNumberProperty, &R::faxNumber},
    {kFaxRecipientFaxNumberLabelProperty, &R::faxNumberLabel},
    {kFaxRecipientOrganizationProperty, &R::organization},
    {kFaxRecipientPhoneNumberProperty, &R::phoneNumber},
    {kFaxRecipientEmailAddressProperty, &R::emailAddress},
    {kFaxRecipientMailboxProperty, &R::mailbox},
    {kFaxRecipientUIDProperty, &R::uid},
};
static_assert(CoversEveryField<R>(kRecipientFields));

QString Line(const QString& text)
{
    return text.isEmpty() ? QString() : text + QLatin1Char('\n');
}

QString LabeledLine(const QString& label, const QString& number)
{
    return number.isEmpty() ? QString() : Line(label + QLatin1String(" : ") + number);
}

} // namespace

FaxRecipient& FaxRecipient::operator=(const FaxRecipient& other)
{
    fields_ = other.fields_;
    return *this;
}

Dictionary FaxRecipient::toTicket() const
{
    Dictionary ticket;
    WriteFields(fields_, kRecipientFields, ticket);
    return ticket;
}

void FaxRecipient::fromTicket(const Dictionary& ticket)
{
    UnsetFields(fields_, kRecipientFields);
    ReadFields(fields_, kRecipientFields, ticket);
}

void FaxRecipientRelease(FaxRecipient* recipient)
{
    if (recipient && recipient->release() == 0)
        delete recipient;
}

FaxRecipientRef FaxRecipientRef::Make(const FaxRecipient& content)
{
    FaxRecipientRef made;
    made.recipient_ = std::make_unique<FaxRecipient>(content).release(); // its count of 1 is this reference
    return made;
}

QString DisplayNameFromRecipient(const FaxRecipient& recipient)
{
    QStringList names;
    for (const auto& name : {recipient.firstName(), recipient.lastName()})
        if (name)
            names += *name;
    return names.join(QLatin1Char(' '));
}

QString CopyDialingStringFromFaxNumber(const QString& number)
{
    QString dialed;
    std::ranges::copy_if(number, std::back_inserter(dialed),
                         [](QChar c) { return QLatin1String(kFaxDialingCharacters).contains(c); });
    return dialed;
}

QString CreateLANFaxSenderInformation(const QString& name, const QString& organization, const QString& emailAddress,
                                      const QString& phoneLabel, const QString& phoneNumber, const QString& faxLabel,
                                      const QString& faxNumber)
{
    return Line(name) + Line(organization) + Line(emailAddress) + LabeledLine(phoneLabel, phoneNumber) +
           LabeledLine(faxLabel, faxNumber);
}

} // namespace kesta
