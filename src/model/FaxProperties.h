#pragma once

#include "pde/interface/TicketKeys.h"

// The keys of a fax job's dictionaries.
namespace kesta {

// A recipient. All texts.
inline constexpr char kFaxRecipientFirstNameProperty[] = "FirstName";
inline constexpr char kFaxRecipientLastNameProperty[] = "LastName";
inline constexpr char kFaxRecipientFaxNumberProperty[] = "FaxNumber";
inline constexpr char kFaxRecipientFaxNumberLabelProperty[] = "FaxNumberLabel";
inline constexpr char kFaxRecipientOrganizationProperty[] = "Organization";
inline constexpr char kFaxRecipientPhoneNumberProperty[] = "PhoneNumber";
inline constexpr char kFaxRecipientEmailAddressProperty[] = "EmailAddress";
inline constexpr char kFaxRecipientMailboxProperty[] = "Mailbox";
inline constexpr char kFaxRecipientUIDProperty[] = "UID";

// The address book's property for a recipient's mailbox.
inline constexpr char kKMailboxABProperty[] = "com.kesta.mailbox";

// The fax options.
inline constexpr char kFaxConfirmationSheetProperty[] = "ConfirmationSheet"; // boolean
inline constexpr char kFaxSendSpeedProperty[] = "SendSpeed";                 // 1 4800 bps, 2 G3, 3 Super G3
inline constexpr char kFaxResolutionProperty[] = "Resolution";               // 1 standard, 2 fine, 3 superfine
inline constexpr char kFaxNewJobResolutionProperty[] = "NewJobResolution";   // reserved: neither written nor read
inline constexpr char kFaxSendTimeProperty[] = "SendTime"; // 64-bit seconds since 1904, local time; of a delayed send
inline constexpr auto& kFaxDialingPrefixProperty = key::FaxDialingPrefix;        // text, when one is used
inline constexpr auto& kFaxCreditCardProperty = key::FaxCreditCard;              // text, when one is used
inline constexpr char kFaxCoverSheetProperty[] = "CoverSheet";                   // boolean
inline constexpr char kFaxCoverSheetNotesProperty[] = "CoverSheetNotes";         // text
inline constexpr char kFaxPromptDuplicateProperty[] = "PromptDuplicate";         // boolean
inline constexpr char kFaxPromptRemoveProperty[] = "PromptRemove";               // boolean
inline constexpr char kFaxShowRecipientsProperty[] = "ShowRecipients";           // 1 hide, 2 all, 3 custom text
inline constexpr char kFaxCustomRecipientTextProperty[] = "CustomRecipientText"; // text
inline constexpr char kFaxShowSenderProperty[] = "ShowSender";                   // boolean
inline constexpr char kFaxSenderNameProperty[] = "SenderName";                   // this and the next four: texts
inline constexpr char kFaxSenderOrganizationProperty[] = "SenderOrganization";
inline constexpr char kFaxSenderEmailAddressProperty[] = "SenderEmailAddress";
inline constexpr char kFaxSenderPhoneNumberProperty[] = "SenderPhoneNumber";
inline constexpr char kFaxSenderFaxNumberProperty[] = "SenderFaxNumber";
inline constexpr char kFaxShowWatermarkProperty[] = "ShowWatermark"; // boolean: the cover carries an image
inline constexpr char kFaxWatermarkNameProperty[] = "WatermarkName"; // text
inline constexpr char kFaxSizeProperty[] = "Size";                   // the cover image's size item

// The cover's labels in the user's language. All texts.
inline constexpr char kFaxCoverLocalizedToLabel[] = "LocalizedToLabel";
inline constexpr char kFaxCoverLocalizedFromLabel[] = "LocalizedFromLabel";
inline constexpr char kFaxCoverLocalizedPhoneLabel[] = "LocalizedPhoneLabel";
inline constexpr char kFaxCoverLocalizedFaxLabel[] = "LocalizedFaxLabel";
inline constexpr char kFaxCoverLocalizedNotesLabel[] = "LocalizedNotesLabel";

// Where the setup dialog remembers the selected cover image.
inline constexpr char kFaxWaterMarkSelectedIndex[] = "FAXWaterMarkSelectedIndex";

} // namespace kesta
