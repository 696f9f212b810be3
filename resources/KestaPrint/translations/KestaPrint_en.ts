<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Printer:</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages Hint</source>
        <translation>All pages, or page numbers and ranges such as 1-4, 7</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Per Sheet:</source>
        <translation>Per sheet</translation>
    </message>
    <message>
        <source>Pages per Sheet</source>
        <translation>Pages per sheet</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Try Again</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Window Title</source>
        <translation>Print: %1</translation>
    </message>
    <message>
        <source>Window Title No Document</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Standard Input</source>
        <translation>Standard input</translation>
    </message>
    <message>
        <source>Looking for Printers</source>
        <translation>Looking for printers…</translation>
    </message>
    <message>
        <source>Reading Printer</source>
        <translation>Reading what %1 can do…</translation>
    </message>
    <message>
        <source>No Printers Title</source>
        <translation>There is no printer to print to</translation>
    </message>
    <message>
        <source>No Printers Message</source>
        <translation>The print server knows no printers. Add one in the system’s printer settings, then try again.</translation>
    </message>
    <message>
        <source>No Server Title</source>
        <translation>The printers can’t be listed</translation>
    </message>
    <message>
        <source>Unknown Printer Title</source>
        <translation>This printer can’t be used</translation>
    </message>
    <message>
        <source>Printer Paused</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 (paused)</translation>
    </message>
    <message>
        <source>Printer Not Accepting</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 (takes no jobs)</translation>
    </message>
    <message>
        <source>No Printer Chosen</source>
        <translation>None chosen</translation>
    </message>
    <message>
        <source>Printer With Place</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Plain Options Title</source>
        <translation>Only the options above are offered</translation>
    </message>
    <message>
        <source>Other Maker Message</source>
        <extracomment>%1: the printer; %2: its maker; %3: what can be done all the same</extracomment>
        <translation>%1 has “%2” as its maker, and the other options are for printers of the maker “Kesta”. %3</translation>
    </message>
    <message>
        <source>No Maker Message</source>
        <extracomment>%1: the printer; %2: what can be done all the same</extracomment>
        <translation>%1 does not say who made it, and the other options are for printers of the maker “Kesta”. %2</translation>
    </message>
    <message>
        <source>Pane Failed Message</source>
        <extracomment>%1: the printer; %2: a status number; %3: what can be done all the same</extracomment>
        <translation>The other options of %1 can’t be shown (%2). %3</translation>
    </message>
    <message>
        <source>No Description Message</source>
        <extracomment>%1: a sentence that says why; %2: what can be done all the same</extracomment>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>No Plug-in Title</source>
        <translation>The printer’s own options are missing</translation>
    </message>
    <message>
        <source>No Plug-in Message</source>
        <extracomment>%1: a sentence that says what is missing; %2: what can be done all the same</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Printing Still Works</source>
        <translation>You can still print with copies, pages, pages per sheet and orientation as set above.</translation>
    </message>
    <message>
        <source>Saving Still Works</source>
        <translation>You can still save copies, pages, pages per sheet and orientation as set above.</translation>
    </message>
    <message>
        <source>Other Choices Kept</source>
        <extracomment>%1: a sentence</extracomment>
        <translation>%1 Your other choices are not sent to it; they are kept for a printer that has them.</translation>
    </message>
    <message>
        <source>Passcode Missing</source>
        <translation>A secure print job needs a passcode.</translation>
    </message>
    <message>
        <source>Recipients Missing</source>
        <translation>A fax needs recipients.</translation>
    </message>
    <message>
        <source>Secure Job Title</source>
        <translation>This is a secure print job</translation>
    </message>
    <message>
        <source>Job Not Kept Question</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 can’t keep this job until a passcode is typed. Print it now?</translation>
    </message>
    <message>
        <source>Delayed Job Title</source>
        <translation>This is a delayed print job</translation>
    </message>
    <message>
        <source>Job Not Held Question</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 can’t delay this job. Print it now?</translation>
    </message>
    <message>
        <source>Saved Job Title</source>
        <translation>This is a saved job</translation>
    </message>
    <message>
        <source>Job Not Stored Question</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 can’t save this job for later. Print it now?</translation>
    </message>
    <message>
        <source>Fax Job Title</source>
        <translation>This is a fax</translation>
    </message>
    <message>
        <source>No Fax Question</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 can’t send faxes. Print it on paper?</translation>
    </message>
    <message>
        <source>Sample Set Title</source>
        <translation>This is a sample set</translation>
    </message>
    <message>
        <source>No Sample Set Question</source>
        <extracomment>%1: the printer</extracomment>
        <translation>%1 can’t print one set first. Print all copies now?</translation>
    </message>
    <message>
        <source>Pages Not Understood Title</source>
        <translation>These pages can’t be read</translation>
    </message>
    <message>
        <source>Pages Not Understood Message</source>
        <translation>Type page numbers and ranges with commas between them, for example 1-4, 7.</translation>
    </message>
    <message>
        <source>Pages Backwards Title</source>
        <translation>A page range runs backwards</translation>
    </message>
    <message>
        <source>Pages Backwards Message</source>
        <translation>Type the smaller page first, for example 3-7.</translation>
    </message>
    <message>
        <source>Pages No Such Page Title</source>
        <translation>There is no such page</translation>
    </message>
    <message>
        <source>Pages No Such Page Message</source>
        <translation>Type page numbers from 1 to %1.</translation>
    </message>
    <message>
        <source>Pages Too Many Title</source>
        <translation>These are too many ranges</translation>
    </message>
    <message>
        <source>Pages Too Many Message</source>
        <translation>Print at most %1 ranges at once.</translation>
    </message>
    <message>
        <source>Queue Not Accepting Title</source>
        <translation>%1 takes no jobs now</translation>
    </message>
    <message>
        <source>Queue Not Accepting Message</source>
        <translation>Choose another printer, or print when it accepts jobs again.</translation>
    </message>
    <message>
        <source>Queue Stopped Title</source>
        <translation>%1 is paused</translation>
    </message>
    <message>
        <source>Queue Stopped Message</source>
        <translation>The job will wait until the printer is resumed.</translation>
    </message>
    <message>
        <source>Queue Reason</source>
        <translation>%1

It says: %2</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Print Anyway</translation>
    </message>
    <message>
        <source>Sending Stopped Title</source>
        <translation>The job was stopped</translation>
    </message>
    <message>
        <source>Not Offered Title</source>
        <translation>This printer can’t do all that is set</translation>
    </message>
    <message>
        <source>Not Offered Sentence</source>
        <extracomment>%1: what a control is called; %2: what it shows</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Leave Out Message</source>
        <extracomment>%1: names of options, one a line</extracomment>
        <translation>The printer does not have these options:
%1
Leave them out and print?</translation>
    </message>
    <message>
        <source>Leave Out</source>
        <translation>Leave Out</translation>
    </message>
    <message>
        <source>Conflict Title</source>
        <translation>Some options don’t go together</translation>
    </message>
    <message>
        <source>Conflict Message</source>
        <translation>%1

To print, these would change:
%2</translation>
    </message>
    <message>
        <source>Conflict No Way Out</source>
        <translation>%1

Go back and change one of them.</translation>
    </message>
    <message>
        <source>Accept Changes</source>
        <translation>Accept Changes</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Go Back</translation>
    </message>
    <message>
        <source>Sending Title</source>
        <translation>Sending to %1</translation>
    </message>
    <message>
        <source>Sending Failed Title</source>
        <translation>%1 did not take the job</translation>
    </message>
    <message>
        <source>Document Failed Title</source>
        <translation>The document can’t be printed</translation>
    </message>
    <message>
        <source>Saving Failed Title</source>
        <translation>The settings were not saved</translation>
    </message>
    <message>
        <source>Save Settings Title</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>Settings File Name</source>
        <translation>Print Settings.plist</translation>
    </message>
    <message numerus="yes">
        <source>Copies Summary</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages Summary</source>
        <translation>pages %1</translation>
    </message>
    <message numerus="yes">
        <source>Per Sheet Summary</source>
        <translation>
            <numerusform>%n page per sheet</numerusform>
            <numerusform>%n pages per sheet</numerusform>
        </translation>
    </message>
    <message>
        <source>Landscape Summary</source>
        <translation>landscape</translation>
    </message>
    <message>
        <source>Default Summary</source>
        <translation>1 copy, all pages</translation>
    </message>
    <message>
        <source>Server Without Name</source>
        <translation>The print server</translation>
    </message>
    <message>
        <source>Server With Name</source>
        <translation>The print server “%1”</translation>
    </message>
    <message>
        <source>Server Silent</source>
        <translation>%1 does not answer. Check that it runs and can be reached, then try again.</translation>
    </message>
    <message>
        <source>Server Too Old</source>
        <translation>%1 does not understand this program. It may be too old.</translation>
    </message>
    <message>
        <source>Server Refuses</source>
        <translation>%1 asks for a password or does not let you print. Ask who runs it for access.</translation>
    </message>
    <message>
        <source>Server Says</source>
        <translation>%1 says: %2</translation>
    </message>
    <message>
        <source>Server Gone</source>
        <translation>%1 went away</translation>
    </message>
    <message>
        <source>Queue Unknown</source>
        <translation>There is no printer “%1”. Choose a printer above.</translation>
    </message>
    <message>
        <source>Queue Of Environment Unknown</source>
        <translation>There is no printer “%2”, which your settings (%1) name as your default. Choose a printer above.</translation>
    </message>
    <message>
        <source>No Default Queue</source>
        <translation>There is no default printer. Choose a printer above.</translation>
    </message>
    <message>
        <source>Queue Without PPD</source>
        <translation>“%1” has no printer description, so its own options can’t be shown.</translation>
    </message>
    <message>
        <source>Queue PPD Not Fetched</source>
        <translation>The printer description of “%1” could not be fetched: %2.</translation>
    </message>
    <message>
        <source>Queue PPD Without Room</source>
        <translation>The printer description of “%1” could not be kept: %2.</translation>
    </message>
    <message>
        <source>Queue PPD Cut Off</source>
        <translation>The printer description of “%1” did not arrive whole.</translation>
    </message>
    <message>
        <source>Queue PPD Large</source>
        <translation>The printer description of “%1” is larger than %2 MB.</translation>
    </message>
    <message>
        <source>Request ID</source>
        <translation>The job is %1. Files sent: %2.</translation>
    </message>
    <message>
        <source>Job Cancelled</source>
        <translation>The job was cancelled. Nothing was printed.</translation>
    </message>
    <message>
        <source>Job Not Sent</source>
        <translation>%1 Nothing was printed to “%2”.</translation>
    </message>
    <message>
        <source>Job Refused</source>
        <translation>%1 refused the job for “%2”: %3. %4</translation>
    </message>
    <message>
        <source>Print When Accepting</source>
        <translation>Print again when the printer accepts jobs, or choose another one above.</translation>
    </message>
    <message>
        <source>Nothing Printed</source>
        <translation>Nothing was printed.</translation>
    </message>
    <message>
        <source>Job Withdrawn</source>
        <translation>The job %1 was cancelled</translation>
    </message>
    <message>
        <source>Job Left Behind</source>
        <translation>The job %1 could not be cancelled: look whether it still waits at the printer</translation>
    </message>
    <message>
        <source>Job Stopped</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Document Not Sent</source>
        <translation>The document could not be sent to “%1”: %2. %3; then print again.</translation>
    </message>
    <message>
        <source>Document Shortened</source>
        <translation>“%1” became shorter while it was read</translation>
    </message>
    <message>
        <source>File Without Access</source>
        <translation>“%1” can’t be read: %2.</translation>
    </message>
    <message>
        <source>File Empty</source>
        <translation>“%1” is empty, so nothing was printed.</translation>
    </message>
    <message>
        <source>No Temporary File</source>
        <translation>There is no room for a copy of the document: %1.</translation>
    </message>
    <message>
        <source>Document Unreadable</source>
        <translation>%1 can’t be read: %2.</translation>
    </message>
    <message>
        <source>Standard Input As Document</source>
        <translation>The document</translation>
    </message>
    <message>
        <source>Standard Input Empty</source>
        <translation>The document is empty, so nothing was printed.</translation>
    </message>
    <message>
        <source>Option Name Unusable</source>
        <translation>“%1” is not the name of an option.</translation>
    </message>
    <message>
        <source>Option Value Long</source>
        <translation>The value of the option “%1” is longer than %2 bytes.</translation>
    </message>
    <message>
        <source>Option Value Unusable</source>
        <translation>The value of the option “%1” has a control character, which would get lost on the way. Leave it out.</translation>
    </message>
    <message>
        <source>Option Made Here</source>
        <translation>The option “%1” is made by this program. Leave it out.</translation>
    </message>
    <message>
        <source>Ticket Empty Or Large</source>
        <translation>The job’s settings are empty or larger than %1 MB.</translation>
    </message>
    <message>
        <source>Ticket Too Large</source>
        <translation>The job’s settings take %1 KB on the way to the printer, and at most %2 KB can travel. %3</translation>
    </message>
    <message>
        <source>Leave Out Recipients</source>
        <translation>Most of it is the list of fax recipients. Leave some of them out, or print in two jobs.</translation>
    </message>
    <message>
        <source>Leave Out Exception Pages</source>
        <translation>Most of it are exception pages. Leave some of them out, or print in two jobs.</translation>
    </message>
    <message>
        <source>Leave Out Inserts</source>
        <translation>Most of it are inserts. Leave some of them out, or print in two jobs.</translation>
    </message>
    <message>
        <source>Leave Out Cover Sheet Texts</source>
        <translation>Most of it are the texts of the fax cover sheet. Shorten them.</translation>
    </message>
    <message>
        <source>Leave Out Anything</source>
        <translation>Leave out some special pages, recipients or a watermark, or print in two jobs.</translation>
    </message>
    <message>
        <source>Ticket Key Unusable</source>
        <translation>The key that the printer’s description has for passcodes (KSTicketKey) can’t be used: %1. Nothing was sent. Ask your administrator for a new key.</translation>
    </message>
    <message>
        <source>Ticket Key Unknown</source>
        <translation>The job has a passcode, a dialing prefix or a credit-card code, and whether the printer has a key to keep it secret is not known: %1</translation>
    </message>
    <message>
        <source>Ticket Keys Differ</source>
        <translation>there are several</translation>
    </message>
    <message>
        <source>Ticket Key Empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>Ticket Key Damaged</source>
        <translation>it is damaged</translation>
    </message>
    <message>
        <source>Ticket Key Of Unknown Kind</source>
        <translation>it is of a kind that this program does not know</translation>
    </message>
    <message>
        <source>Ticket Key No Encryption</source>
        <translation>this computer can’t encrypt</translation>
    </message>
    <message>
        <source>Ticket Secret Too Long</source>
        <translation>The passcode, dialing prefix or credit-card code is too long to be sealed.</translation>
    </message>
    <message>
        <source>Settings Unusable</source>
        <translation>The settings in %1 can’t be used: %2</translation>
    </message>
    <message>
        <source>Settings Too Large To Save</source>
        <extracomment>%1: a file; %2: what is wrong</extracomment>
        <translation>%1 was not written, because it could not be read again: %2</translation>
    </message>
    <message>
        <source>Settings Of Another Kind</source>
        <translation>It is not a job settings file: %1.</translation>
    </message>
    <message>
        <source>Settings Not A Dictionary</source>
        <translation>“%1” is not a dictionary</translation>
    </message>
    <message>
        <source>Settings Without Parts</source>
        <translation>it has none of the parts of one</translation>
    </message>
    <message>
        <source>Settings Not A String</source>
        <translation>“%1” in “%2” is not a string</translation>
    </message>
    <message>
        <source>Settings Clients Without Ticket</source>
        <translation>“%1” in “Clients” has no ticket or is not a dictionary</translation>
    </message>
    <message>
        <source>Settings Clients Without Entry</source>
        <translation>“Clients” names “%1”, which “%2” does not have</translation>
    </message>
    <message>
        <source>Settings Root Not A Dictionary</source>
        <translation>its root is not a dictionary</translation>
    </message>
    <message>
        <source>PPD Unusable</source>
        <translation>The printer description %1 can’t be used: %2.</translation>
    </message>
    <message>
        <source>PPD Refused</source>
        <translation>The printer description %1 can’t be used: line %2: %3.</translation>
    </message>
    <message>
        <source>PPD Many Lines</source>
        <translation>it has more than %1 lines</translation>
    </message>
    <message>
        <source>PPD Many Lines Of</source>
        <translation>it has more than %1 lines of *%2</translation>
    </message>
    <message>
        <source>PPD Large</source>
        <translation>it is larger than %1 MB</translation>
    </message>
    <message>
        <source>PPD Of Another Kind</source>
        <translation>it does not begin as a printer description does</translation>
    </message>
    <message>
        <source>PPD Not Text</source>
        <translation>it holds bytes that are not text</translation>
    </message>
    <message>
        <source>PPD Breaks Off</source>
        <translation>it breaks off in the middle</translation>
    </message>
    <message>
        <source>PPD Key Without Value</source>
        <translation>its line *KSTicketKey has no value</translation>
    </message>
    <message>
        <source>No Such File</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>Not A File</source>
        <translation>it is not a file</translation>
    </message>
    <message>
        <source>File Unreadable</source>
        <translation>it can’t be read</translation>
    </message>
    <message>
        <source>Option State</source>
        <translation>%1 “%2”</translation>
    </message>
    <message>
        <source>Accessory State</source>
        <translation>%1 is “%2”</translation>
    </message>
    <message>
        <source>And</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>Conflict Together</source>
        <translation>%1 can’t be used together.</translation>
    </message>
    <message>
        <source>Conflict With Accessory</source>
        <translation>%1 can’t be used while %2.</translation>
    </message>
    <message>
        <source>Choice Change</source>
        <translation>Set %1 to “%2”</translation>
    </message>
    <message>
        <source>Plug-in Not Found</source>
        <translation>The printer’s features (KestaFeatures.plugin) were not found in %1.</translation>
    </message>
    <message>
        <source>Plug-in Unusable</source>
        <translation>The printer’s features can’t be used: %1.</translation>
    </message>
    <message>
        <source>Plug-in Of Another Program</source>
        <translation>%1 is not made for this program.</translation>
    </message>
    <message>
        <source>Panel List Unusable</source>
        <translation>The list of panels is empty or has a panel without a name.</translation>
    </message>
    <message>
        <source>Panel Missing</source>
        <translation>A panel is missing.</translation>
    </message>
    <message>
        <source>Plug-in Factory Not A UUID</source>
        <translation>%1: CFPlugInTypes holds a factory that is no UUID</translation>
    </message>
    <message>
        <source>Plug-in Factory Not Named</source>
        <translation>%1: CFPlugInFactories does not name the function of %2</translation>
    </message>
    <message>
        <source>Plug-in Function Missing</source>
        <translation>%1 has no function %2</translation>
    </message>
    <message>
        <source>Plug-in Without Types</source>
        <translation>%1: Info.plist has no CFPlugInTypes</translation>
    </message>
    <message>
        <source>Plug-in Type Unusable</source>
        <translation>%1: CFPlugInTypes holds what is no type with its factories</translation>
    </message>
    <message>
        <source>Bundle Missing</source>
        <translation>they are not in %1</translation>
    </message>
    <message>
        <source>Bundle Loaded Twice</source>
        <translation>%1: %2 is loaded already, from %3</translation>
    </message>
    <message>
        <source>Bundle Without Code</source>
        <translation>%1 has no code</translation>
    </message>
    <message>
        <source>Bundle Damaged</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Bundle List Not A Dictionary</source>
        <translation>%1: the list is not a dictionary</translation>
    </message>
    <message>
        <source>Bundle Code Unusable</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Bundle Code Cut Off</source>
        <translation>%1: the file is cut off</translation>
    </message>
    <message>
        <source>Bundle Without Identifier</source>
        <translation>%1 has no CFBundleIdentifier</translation>
    </message>
    <message>
        <source>Bundle Executable Not Plain</source>
        <translation>%1: CFBundleExecutable is not a plain name</translation>
    </message>
    <message>
        <source>Window Unreadable</source>
        <translation>The dialog’s own window can’t be read.</translation>
    </message>
    <message>
        <source>Settings Not Saved</source>
        <translation>The settings are not saved: no file was named.</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Server Silent</source>
        <translation>%1 does not answer. Start it, or name another one with -h, and try again.</translation>
    </message>
    <message>
        <source>Server With Name</source>
        <translation>The print server "%1"</translation>
    </message>
    <message>
        <source>Server Too Old</source>
        <translation>%1 does not understand this program: add '/version=1.1' to server name.</translation>
    </message>
    <message>
        <source>Queue Unknown</source>
        <translation>The printer or class does not exist: "%1". Name one that lpstat -e lists with -d.</translation>
    </message>
    <message>
        <source>Queue Of Environment Unknown</source>
        <translation>%1 environment variable names non-existent destination "%2". Name a queue with -d.</translation>
    </message>
    <message>
        <source>No Default Queue</source>
        <translation>No default destination. Name a queue with -d.</translation>
    </message>
    <message>
        <source>Queue Without PPD</source>
        <translation>The queue "%1" has no PPD file: its options can't be shown.</translation>
    </message>
    <message>
        <source>Request ID</source>
        <translation>request id is %1 (%2 file(s))</translation>
    </message>
    <message>
        <source>Print When Accepting</source>
        <translation>Print again when the queue accepts jobs, or to another one with -d.</translation>
    </message>
    <message>
        <source>Job Not Sent</source>
        <translation>%1 Nothing was printed to queue "%2".</translation>
    </message>
    <message>
        <source>Job Refused</source>
        <translation>%1 refused the job for queue "%2": %3. %4</translation>
    </message>
    <message>
        <source>Job Left Behind</source>
        <translation>The job %1 could not be cancelled: look whether it is there (lpstat -o)</translation>
    </message>
    <message>
        <source>File Without Access</source>
        <translation>unable to access "%1" - %2</translation>
    </message>
    <message>
        <source>File Empty</source>
        <translation>"%1" is empty, so no job has been sent.</translation>
    </message>
    <message>
        <source>No Temporary File</source>
        <translation>unable to create temporary file - %1.</translation>
    </message>
    <message>
        <source>Document Unreadable</source>
        <translation>unable to read %1 - %2.</translation>
    </message>
    <message>
        <source>Standard Input As Document</source>
        <translation>standard input</translation>
    </message>
    <message>
        <source>Standard Input Empty</source>
        <translation>stdin is empty, so no job has been sent.</translation>
    </message>
    <message>
        <source>Option Name Unusable</source>
        <translation>"%1" is not an option's name: give -o NAME=VALUE.</translation>
    </message>
    <message>
        <source>Plug-in Not Found</source>
        <translation>The printer's features (KestaFeatures.plugin) were not found in %1. Set KESTA_PLUGIN_PATH to the folder that holds them.</translation>
    </message>
    <message>
        <source>Settings Not Saved</source>
        <translation>the settings are not saved: no --save-settings FILE was given</translation>
    </message>
    <message>
        <source>Copies Not A Number</source>
        <translation>"-n %1" is not a number of copies: give 1 to %2.</translation>
    </message>
    <message>
        <source>Copies Too Few</source>
        <translation>copies must be 1 or more: "-n %1".</translation>
    </message>
    <message>
        <source>Page List Unusable</source>
        <translation>"-P %1" is not a page list: give pages from 1 and ranges, as in -P 1-4,7,16-.</translation>
    </message>
    <message>
        <source>Option With Control Character</source>
        <translation>"-o %1" has a control character, which would get lost on the way: leave it out.</translation>
    </message>
    <message>
        <source>Option Without Name</source>
        <translation>"-o %1" names no option: give -o NAME=VALUE.</translation>
    </message>
    <message>
        <source>Panel Without Name</source>
        <translation>"--panels %1" has an empty name: give names with commas between them.</translation>
    </message>
    <message>
        <source>File Name Empty</source>
        <translation>an empty file name was given: give the file's name.</translation>
    </message>
    <message>
        <source>Option Without Value</source>
        <translation>expected %1 after "%2" option.</translation>
    </message>
    <message>
        <source>Option Takes No Value</source>
        <translation>option "%1" takes no value.</translation>
    </message>
    <message>
        <source>Option Not Known</source>
        <translation>unknown option "%1"; see kesta-print --help.</translation>
    </message>
    <message>
        <source>Standard Input And Files</source>
        <translation>cannot print from stdin if files are provided: leave out "-" or the files.</translation>
    </message>
    <message>
        <source>Standard Input Twice</source>
        <translation>standard input can't be both the script and the document: name the document's file.</translation>
    </message>
    <message>
        <source>PPD And Queue</source>
        <translation>"--ppd" stands for a printer without a queue: leave out "-d %1" or "--ppd".</translation>
    </message>
    <message>
        <source>Address Without PPD</source>
        <translation>"--device-uri" gives an address to the printer of "--ppd": add --ppd FILE.</translation>
    </message>
    <message>
        <source>Script Without Dialog</source>
        <translation>"--script" plays in the dialog: leave out "--no-dialog" or "--script".</translation>
    </message>
    <message>
        <source>Passcode Missing</source>
        <translation>a secure print job needs a passcode, which no settings file keeps: print it in the dialog, or without --settings.</translation>
    </message>
    <message>
        <source>Recipients Missing</source>
        <translation>a fax needs recipients, and the settings have none: print it in the dialog, or without --settings.</translation>
    </message>
    <message>
        <source>Job Not Kept</source>
        <translation>"%1" can't keep this job until a passcode is typed: print it on another printer with -d, or without --settings.</translation>
    </message>
    <message>
        <source>Job Not Held</source>
        <translation>"%1" can't delay this job: print it on another printer with -d, or without --settings.</translation>
    </message>
    <message>
        <source>Job Not Stored</source>
        <translation>"%1" can't save this job for later: print it on another printer with -d, or without --settings.</translation>
    </message>
    <message>
        <source>No Fax</source>
        <translation>"%1" can't send faxes: print it on another printer with -d, or without --settings.</translation>
    </message>
    <message>
        <source>No Sample Set</source>
        <translation>"%1" can't print one set first: print it on another printer with -d, or without --settings.</translation>
    </message>
    <message>
        <source>Settings Left Out</source>
        <translation>"%1" takes copies, pages, pages per sheet and orientation of the saved settings; the others are left out.</translation>
    </message>
    <message>
        <source>Choice Not Offered</source>
        <translation>the printer does not offer "%1": see kesta-print --list-options.</translation>
    </message>
    <message>
        <source>Choice Left Out</source>
        <translation>the printer does not offer "%1" of the saved settings; it is left out.</translation>
    </message>
    <message>
        <source>Conflict With Change</source>
        <translation>%1 %2 (-o %3=%4).</translation>
    </message>
    <message>
        <source>Two Lines</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>Nothing To Do</source>
        <translation>--ppd prints nothing: add --save-settings FILE, or print to a queue with -d.</translation>
    </message>
    <message>
        <source>No Display</source>
        <translation>there is no display to show the dialog on: use --no-dialog or --script FILE</translation>
    </message>
    <message>
        <source>Own Files Missing</source>
        <translation>the dialog's own files can't be read: %1</translation>
    </message>
</context>
</TS>
