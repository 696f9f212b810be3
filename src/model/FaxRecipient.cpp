#include "model/FaxRecipient.h"

#include "model/FaxProperties.h"
#include "pde/RecordFields.h"

#include <QStringList>

#include <algorithm>
#include <memory>

namespace kesta {
namespace {

using F = FaxRecipientFields;

constexpr Field<F> kFields[] = {
    {kFaxRecipientFirstNameProperty, &F::firstName},
    {kFaxRecipientLastNameProperty, &F::lastName},
    {kFaxRecipientFaxNumberProperty, &F::faxNumber},
    {kFaxRecipientFaxNumberLabelProperty, &F::faxNumberLabel},
    {kFaxRecipientOrganizationProperty, &F::organization},
    {kFaxRecipientPhoneNumberProperty, &F::phoneNumber},
    {kFaxRecipientEmailAddressProperty, &F::emailAddress},
    {kFaxRecipientMailboxProperty, &F::mailbox},
    {kFaxRecipientUIDProperty, &F::uid},
};
static_assert(CoversEveryField<F>(kFields));

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
    WriteFields(fields_, kFields, ticket);
    return ticket;
}

void FaxRecipient::fromTicket(const Dictionary& ticket)
{
    UnsetFields(fields_, kFields);
    ReadFields(fields_, kFields, ticket);
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
